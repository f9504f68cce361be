#include <tests/end_to_end/HostTest.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class PlainText : public HostTest
{
protected:
    /// What one document with this text becomes.
    QByteArray exportOf(const QByteArray &text, const QStringList &settings = {}) const
    {
        writeManuscript({{u"Text"_s, text}});
        QStringList options = {u"--yes"_s};
        for (const QString &setting : settings) {
            options += {u"--set"_s, setting};
        }
        const HostResult result = runExport(options);
        EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
        return fileContent(exported(u"001 Text.txt"_s));
    }
};

} // namespace

TEST_F(PlainText, DefaultsTakeAllMarksAway)
{
    EXPECT_EQ(exportOf("### Deep\n## Title\n\n\n\n> \"It's **bold**\", she //said// -- \"...\"\n\tIndented.\n"),
              "Deep\nTitle\n\n\n\n“It’s bold”, she said – “…”\n    Indented.\n");
}

TEST_F(PlainText, LinesEndWithLineFeeds)
{
    EXPECT_EQ(exportOf("# One\r\ntwo\rthree\nfour"), "One\ntwo\nthree\nfour");
}

TEST_F(PlainText, EmptyTextStaysEmpty)
{
    EXPECT_EQ(exportOf(""), "");
}

TEST_F(PlainText, LineLengthIsTheLongestLine)
{
    EXPECT_EQ(exportOf("The quick brown fox jumps over the lazy dog", {u"line-length=10"_s}),
              "The quick\nbrown fox\njumps\nover the\nlazy dog");
    const QByteArray longLine = QByteArray("words and ").repeated(50) + "more";
    EXPECT_EQ(exportOf(longLine, {u"line-length=0"_s}), longLine);
}

TEST_F(PlainText, IndentedWordLongerThanALineLosesTheIndent)
{
    EXPECT_EQ(exportOf("\tabcdefgh", {u"line-length=6"_s}), "a\nb\ncdefgh");
    EXPECT_EQ(exportOf("\tab cdefgh", {u"line-length=8"_s}), "    ab\ncdefgh");
    EXPECT_EQ(exportOf(" ", {u"line-length=1"_s}), " ");
}

TEST_F(PlainText, WrappingKeepsCharactersWhole)
{
    const QByteArray faces = QByteArray("😀").repeated(6);
    const QByteArray wrapped = exportOf(faces, {u"line-length=5"_s});
    EXPECT_TRUE(wrapped.contains('\n'));
    EXPECT_EQ(QByteArray(wrapped).replace("\n", ""), faces);
}

TEST_F(PlainText, QuotationLanguageChoosesTheMarks)
{
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=de"_s}), "„a“");
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=de_CH"_s}), "»a«");
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=fr"_s}), "«a»");
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=en_UK"_s}), "‘a’");
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=sv"_s}), "”a”");
    EXPECT_EQ(exportOf("\"a\"", {u"quotation-language=none"_s}), "\"a\"");
}

TEST_F(PlainText, InlineTagsArePairs)
{
    EXPECT_EQ(exportOf("[a] **b** {c} see https://example.org/x", {u"inline-tags=[,];{,}"_s}),
              "a **b** c see https://example.org/x");
    EXPECT_EQ(exportOf("**b**", {u"inline-tags="_s}), "**b**");
    EXPECT_EQ(exportOf("see https://example.org/x or //this//"), "see https://example.org/x or this");
}

TEST_F(PlainText, TagsAndMarksMayHoldEscapeSequences)
{
    EXPECT_EQ(exportOf("a\tb\tc", {uR"(inline-tags=\t,\t)"_s}), "abc");
    EXPECT_EQ(exportOf("\tTitle", {uR"(level-strings=\t)"_s}), "Title");
    EXPECT_EQ(exportOf("\tQuote", {uR"(paragraph-marks=\t)"_s}), "Quote");
}

TEST_F(PlainText, LevelStringsAreTriedLongestFirst)
{
    EXPECT_EQ(exportOf("* One\n** Two\n*** Three", {u"level-strings=*,***,**"_s, u"inline-tags="_s}),
              "One\nTwo\nThree");
    EXPECT_EQ(exportOf("# One", {u"level-strings="_s}), "# One");
}

TEST_F(PlainText, ParagraphMarksAreDeletedAtLineStarts)
{
    EXPECT_EQ(exportOf("| a | b\n> c", {u"paragraph-marks=|"_s}), "a | b\n> c");
    EXPECT_EQ(exportOf("> a", {u"paragraph-marks="_s}), "> a");
}

TEST_F(PlainText, TabWidthIsInBlanks)
{
    EXPECT_EQ(exportOf("\t\ta\tb", {u"tab-width=2"_s}), "    a\tb");
    EXPECT_EQ(exportOf("\t\ta\tb", {u"tab-width=0"_s}), "a\tb");
    EXPECT_EQ(exportOf("\t\ta\tb", {u"tab-width=keep"_s}), "\t\ta\tb");
}

TEST_F(PlainText, EmptyLinesAreKeptOrDropped)
{
    EXPECT_EQ(exportOf("a\n\n\nb", {u"empty-lines=keep"_s}), "a\n\n\nb");
    EXPECT_EQ(exportOf("a\n\n\nb", {u"empty-lines=drop"_s}), "a\nb");
}

TEST_F(PlainText, TypographyCanBeLeftAlone)
{
    EXPECT_EQ(exportOf("it's -- ...", {u"typography=no"_s}), "it's -- ...");
    EXPECT_EQ(exportOf("it's -- ...", {u"typography=yes"_s}), "it’s – …");
}

} // namespace end_to_end

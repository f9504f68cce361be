#include <OrvaneExportKit/text/TaggedSpans.h>
#include <tests/support/BothTexts.h>
#include <tests/support/LineTerminators.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace KZAttributedStringExportAdditions;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using namespace KZStringExportAdditions;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;
using support::plain;
using support::styled;
using support::stylesOf;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();

template <typename Text>
struct LineRangesForLevelString : testing::Test {
    /// The lines of a text that begin with the level string.
    static RangeList lines(const QString &units, QStringView levelString)
    {
        return lineRangesForLevelString(Text(units), levelString);
    }
};
TYPED_TEST_SUITE(LineRangesForLevelString, support::BothTexts, support::TextNames);

TYPED_TEST(LineRangesForLevelString, HoldTheLinesThatBeginWithTheLevelString)
{
    EXPECT_EQ(this->lines(u"#a\n##b\nc#\n#"_s, u"#"), (RangeList{{0, 3}, {3, 4}, {10, 1}}));
}

TYPED_TEST(LineRangesForLevelString, StartNoLineBehindACarriageReturnAlone)
{
    EXPECT_EQ(this->lines(u"a\r#b"_s, u"#"), RangeList());
}

TYPED_TEST(LineRangesForLevelString, StartNoLineBehindAnyOtherTerminator)
{
    EXPECT_EQ(this->lines(u"a\u0085#b\u2028#c\u2029#d"_s, u"#"), RangeList());
}

TYPED_TEST(LineRangesForLevelString, EndAtAnyOfTheSixTerminators)
{
    for (const QString &terminator : support::lineTerminators) {
        EXPECT_EQ(this->lines(u"#a"_s + terminator + u"b"_s, u"#"),
                  (RangeList{{0, 2 + static_cast<std::size_t>(terminator.size())}}));
    }
}

TYPED_TEST(LineRangesForLevelString, StartALineBehindCarriageReturnLineFeed)
{
    EXPECT_EQ(this->lines(u"#a\r\n#b\r\n"_s, u"#"), (RangeList{{0, 4}, {4, 4}}));
}

TYPED_TEST(LineRangesForLevelString, AreNoneForAnEmptyLevelStringOrText)
{
    EXPECT_EQ(this->lines(u"#a\n#b"_s, u""), RangeList());
    EXPECT_EQ(this->lines(u""_s, u"#"), RangeList());
    EXPECT_EQ(this->lines(u""_s, u""), RangeList());
}

TYPED_TEST(LineRangesForLevelString, AreNoneForALevelStringLongerThanTheText)
{
    EXPECT_EQ(this->lines(u"##"_s, u"###"), RangeList());
}

TYPED_TEST(LineRangesForLevelString, CompareUnitByUnit)
{
    EXPECT_EQ(this->lines(u"h a\nH b\n"_s, u"H"), (RangeList{{4, 4}}));
    EXPECT_EQ(this->lines(u"\u00E9\n"_s, u"e\u0301"), RangeList());
}

TYPED_TEST(LineRangesForLevelString, HoldAllLinesOfALevelStringWithLineFeeds)
{
    EXPECT_EQ(this->lines(u"a\n\n#b\nc"_s, u"\n#"), (RangeList{{2, 4}}));
    EXPECT_EQ(this->lines(u"\n#b\n"_s, u"\n#"), (RangeList{{0, 4}}));
    EXPECT_EQ(this->lines(u"#\n#\na"_s, u"#\n"), (RangeList{{0, 2}, {2, 2}}));
    EXPECT_EQ(this->lines(u"#\n#\n#"_s, u"#\n#"), (RangeList{{0, 4}}));
    EXPECT_EQ(this->lines(u"a\n\n\nb"_s, u"\n"), (RangeList{{2, 1}, {3, 1}}));
}

TYPED_TEST(LineRangesForLevelString, SearchOnBehindAnOccurrenceThatStartsNoLine)
{
    // The occurrences at the start of a line overlap those before them, so the search passes them by.
    EXPECT_EQ(this->lines(u"a\n\n\n"_s, u"\n\n"), RangeList());
    EXPECT_EQ(this->lines(u"ab\nb\nb"_s, u"b\nb"), RangeList());
}

TYPED_TEST(LineRangesForLevelString, TakeTheLineFeedAlongWhenTheLevelStringEndsInsideItsPair)
{
    EXPECT_EQ(this->lines(u"#\r\na"_s, u"#\r"), (RangeList{{0, 3}}));
}

template <typename Text>
struct DeleteLevelMark : testing::Test {
    /// What the deletion makes of a text.
    static QString unmarked(const QString &units, QStringView levelString)
    {
        Text text(units);
        deleteLevelMark(text, levelString);
        return plain(text);
    }
};
TYPED_TEST_SUITE(DeleteLevelMark, support::BothTexts, support::TextNames);

TYPED_TEST(DeleteLevelMark, TakesTheMarkAndTheBlanksBehindIt)
{
    EXPECT_EQ(this->unmarked(u"##  Title\nText\n##\n"_s, u"##"), u"Title\nText\n\n"_s);
}

TYPED_TEST(DeleteLevelMark, LeavesATabBehindTheMark)
{
    EXPECT_EQ(this->unmarked(u"#\tTitle"_s, u"#"), u"\tTitle"_s);
    EXPECT_EQ(this->unmarked(u"# \t Title"_s, u"#"), u"\t Title"_s);
    EXPECT_EQ(this->unmarked(u"#\u00A0Title"_s, u"#"), u"\u00A0Title"_s);
}

TYPED_TEST(DeleteLevelMark, LeavesTheRestOfALongerMark)
{
    EXPECT_EQ(this->unmarked(u"### Title"_s, u"##"), u"# Title"_s);
}

TYPED_TEST(DeleteLevelMark, LeavesMarksInsideALine)
{
    EXPECT_EQ(this->unmarked(u"a # b\r# c"_s, u"#"), u"a # b\r# c"_s);
}

TYPED_TEST(DeleteLevelMark, TakesBlanksUpToTheEndOfTheText)
{
    EXPECT_EQ(this->unmarked(u"a\n#   "_s, u"#"), u"a\n"_s);
    EXPECT_EQ(this->unmarked(u"#"_s, u"#"), u""_s);
}

TYPED_TEST(DeleteLevelMark, ChangesNothingForAnEmptyLevelStringOrText)
{
    EXPECT_EQ(this->unmarked(u"  a\n b"_s, u""), u"  a\n b"_s);
    EXPECT_EQ(this->unmarked(u""_s, u"#"), u""_s);
}

TYPED_TEST(DeleteLevelMark, TakesALevelStringWithLineFeeds)
{
    EXPECT_EQ(this->unmarked(u"a\n\n# b\n"_s, u"\n#"), u"a\nb\n"_s);
    EXPECT_EQ(this->unmarked(u"#\n  x"_s, u"#\n"), u"x"_s);
    EXPECT_EQ(this->unmarked(u"a\n\n\n  b"_s, u"\n"), u"a\nb"_s);
}

TYPED_TEST(DeleteLevelMark, TakesABlankThatTwoMarksShare)
{
    EXPECT_EQ(this->unmarked(u" \n \n x"_s, u" \n"), u"x"_s);
}

TYPED_TEST(DeleteLevelMark, TakesAMarkOfBlanks)
{
    EXPECT_EQ(this->unmarked(u"   a\n b\nc"_s, u" "), u"a\nb\nc"_s);
}

TEST(DeleteLevelMarkFromAttributedText, TakesTheAttributesAlong)
{
    AttributedString text = styled(u"# ab\n#c"_s, u"1234567");
    deleteLevelMark(text, u"#");
    EXPECT_EQ(text.string(), u"ab\nc"_s);
    EXPECT_EQ(stylesOf(text), u"3457"_s);
}

/// What the deletion of paragraph marks makes of a text.
QString unmarkedParagraphs(const QString &units, QStringView mark, const RangeList &ranges)
{
    AttributedString text(units);
    deleteParagraphMark(text, mark, ranges);
    return text.string();
}

TEST(DeleteParagraphMark, TakesTheMarkAndTheBlanksBehindIt)
{
    EXPECT_EQ(unmarkedParagraphs(u"> a\n> b\n"_s, u">", {{0, 4}, {4, 4}}), u"a\nb\n"_s);
}

TEST(DeleteParagraphMark, TakesWhatStandsBeforeTheMarkToo)
{
    EXPECT_EQ(unmarkedParagraphs(u"ab > c"_s, u">", {{0, 6}}), u"c"_s);
}

TEST(DeleteParagraphMark, UsesARepeatedRangeAgainOnTheShortenedText)
{
    EXPECT_EQ(unmarkedParagraphs(u"> a\n> b\n"_s, u">", {{0, 4}, {0, 4}}), u"b\n"_s);
}

TEST(DeleteParagraphMark, DeletesOnlyTheFirstMarkOfARange)
{
    EXPECT_EQ(unmarkedParagraphs(u"> > a"_s, u">", {{0, 5}}), u"> a"_s);
}

TEST(DeleteParagraphMark, LeavesARangeWithoutTheMarkAsItIs)
{
    EXPECT_EQ(unmarkedParagraphs(u"  a\n> b\n"_s, u">", {{0, 4}, {4, 4}}), u"  a\nb\n"_s);
}

TEST(DeleteParagraphMark, FindsOnlyMarksThatLieWhollyInsideTheRange)
{
    EXPECT_EQ(unmarkedParagraphs(u"a>> b"_s, u">>", {{0, 2}}), u"a>> b"_s);
    EXPECT_EQ(unmarkedParagraphs(u"a>> b"_s, u">>", {{0, 3}}), u"b"_s);
    EXPECT_EQ(unmarkedParagraphs(u"a>> b"_s, u">>", {{2, 3}}), u"a>> b"_s);
}

TEST(DeleteParagraphMark, TakesBlanksBeyondTheEndOfTheRange)
{
    EXPECT_EQ(unmarkedParagraphs(u">   a"_s, u">", {{0, 1}}), u"a"_s);
    EXPECT_EQ(unmarkedParagraphs(u"a>   "_s, u">", {{1, 1}}), u"a"_s);
}

TEST(DeleteParagraphMark, LeavesATabBehindTheMark)
{
    EXPECT_EQ(unmarkedParagraphs(u"> \ta"_s, u">", {{0, 4}}), u"\ta"_s);
}

TEST(DeleteParagraphMark, TakesTheRangesFromTheLastInTheOrderGiven)
{
    // The first paragraph loses its mark first, which moves the mark of the third one into the second range.
    EXPECT_EQ(unmarkedParagraphs(u"> a\n> b\n> c"_s, u">", {{4, 4}, {0, 4}}), u"a\n> c"_s);
    EXPECT_EQ(unmarkedParagraphs(u"> a\n> b\n> c"_s, u">", {{0, 4}, {4, 4}}), u"a\nb\n> c"_s);
}

TEST(DeleteParagraphMark, KeepsTheDeletionsMadeBeforeARangePastTheEnd)
{
    AttributedString text(u"> a\n> b\n"_s);
    EXPECT_TRUE(throwsRangeException(
        [&] {
            deleteParagraphMark(text, u">", {{4, 4}, {0, 4}});
        },
        "deleteParagraphMark", {4, 4}, 6));
    EXPECT_EQ(text.string(), u"a\n> b\n"_s);
}

TEST(DeleteParagraphMark, ChangesNothingWhenTheLastRangeReachesPastTheEnd)
{
    for (const Range range : {Range{9, 0}, Range{4, 5}, Range{4, largest}, Range{largest, 1}}) {
        AttributedString text(u"> a\n> b\n"_s);
        EXPECT_TRUE(throwsRangeException(
            [&] {
                deleteParagraphMark(text, u">", {{0, 4}, range});
            },
            "deleteParagraphMark", range, 8));
        EXPECT_EQ(text.string(), u"> a\n> b\n"_s);
    }
}

TEST(DeleteParagraphMark, ChangesNothingForAnEmptyMarkListOrRange)
{
    EXPECT_EQ(unmarkedParagraphs(u"  a\n"_s, u"", {{0, 4}}), u"  a\n"_s);
    EXPECT_EQ(unmarkedParagraphs(u"> a\n"_s, u">", {}), u"> a\n"_s);
    EXPECT_EQ(unmarkedParagraphs(u"> a\n"_s, u">", {{0, 0}, {4, 0}}), u"> a\n"_s);
}

TEST(DeleteParagraphMark, ThrowsForARangePastTheEndAlsoWithAnEmptyMark)
{
    AttributedString text(u"> a\n"_s);
    EXPECT_TRUE(throwsRangeException(
        [&] {
            deleteParagraphMark(text, u"", {{0, 5}});
        },
        "deleteParagraphMark", {0, 5}, 4));
    EXPECT_EQ(text.string(), u"> a\n"_s);
}

TEST(DeleteParagraphMark, TakesTheAttributesAlong)
{
    AttributedString text = styled(u"> ab\n> c"_s, u"12345678");
    deleteParagraphMark(text, u">", {{0, 5}, {5, 3}});
    EXPECT_EQ(text.string(), u"ab\nc"_s);
    EXPECT_EQ(stylesOf(text), u"3458"_s);
}

TEST(RangesForStartTag, CoverTheTagsOfASpan)
{
    EXPECT_EQ(rangesForStartTag(u"a **b** c", u"**", u"**"), (RangeList{{2, 2}, {5, 2}}));
}

TEST(RangesForStartTag, TakeAnInnerStartAndAStopWithoutStartAsText)
{
    EXPECT_EQ(rangesForStartTag(u"[[x]]", u"[", u"]"), (RangeList{{0, 1}, {3, 1}}));
}

TEST(RangesForStartTag, SkipADoubleSlashBehindAColon)
{
    EXPECT_EQ(rangesForStartTag(u"a://b and //c//", u"//", u"//"), (RangeList{{10, 2}, {13, 2}}));
}

TEST(RangesForStartTag, AcceptADoubleSlashAtTheStartOfTheText)
{
    EXPECT_EQ(rangesForStartTag(u"//x//", u"//", u"//"), (RangeList{{0, 2}, {3, 2}}));
}

TEST(RangesForStartTag, DropAStartThatNothingCloses)
{
    EXPECT_EQ(rangesForStartTag(u"x STAy", u"STA", u"STO"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"STAySTO STA", u"STA", u"STO"), (RangeList{{0, 3}, {4, 3}}));
}

TEST(RangesForStartTag, AreCaseSensitive)
{
    EXPECT_EQ(rangesForStartTag(u"staxsto", u"STA", u"STO"), RangeList());
}

TEST(RangesForStartTag, PairEqualTagsInTurn)
{
    EXPECT_EQ(rangesForStartTag(u"*a*b*c", u"*", u"*"), (RangeList{{0, 1}, {2, 1}}));
    EXPECT_EQ(rangesForStartTag(u"****", u"*", u"*"), (RangeList{{0, 1}, {1, 1}, {2, 1}, {3, 1}}));
}

TEST(RangesForStartTag, DoNotOverlap)
{
    EXPECT_EQ(rangesForStartTag(u"***", u"**", u"**"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"*****", u"**", u"**"), (RangeList{{0, 2}, {2, 2}}));
    EXPECT_EQ(rangesForStartTag(u"aba", u"ab", u"ba"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"bxabxab", u"b", u"ab"), (RangeList{{0, 1}, {2, 2}}));
}

TEST(RangesForStartTag, SearchOnBehindADoubleSlashThatIsSkipped)
{
    EXPECT_EQ(rangesForStartTag(u":////x//", u"//", u"//"), (RangeList{{3, 2}, {6, 2}}));
    EXPECT_EQ(rangesForStartTag(u":///x//", u"//", u"//"), RangeList());
}

TEST(RangesForStartTag, SkipAStopBehindAColon)
{
    EXPECT_EQ(rangesForStartTag(u"[a://b//", u"[", u"//"), (RangeList{{0, 1}, {6, 2}}));
    EXPECT_EQ(rangesForStartTag(u"[a://b", u"[", u"//"), RangeList());
}

TEST(RangesForStartTag, SkipAStartBehindAColonWithAnyStop)
{
    EXPECT_EQ(rangesForStartTag(u"a://b] //c]", u"//", u"]"), (RangeList{{7, 2}, {10, 1}}));
}

TEST(RangesForStartTag, SkipAStopBehindAColonThatBelongsToTheStartTag)
{
    EXPECT_EQ(rangesForStartTag(u"a://x//", u"a:", u"//"), (RangeList{{0, 2}, {5, 2}}));
}

TEST(RangesForStartTag, SkipAStartBehindAColonThatBelongsToTheStopTag)
{
    EXPECT_EQ(rangesForStartTag(u"//x:////y:", u"//", u":"), (RangeList{{0, 2}, {3, 1}, {6, 2}, {9, 1}}));
}

TEST(RangesForStartTag, SkipNoOtherTagBehindAColon)
{
    EXPECT_EQ(rangesForStartTag(u":/a:/", u"/", u"/"), (RangeList{{1, 1}, {4, 1}}));
    EXPECT_EQ(rangesForStartTag(u":///a:///", u"///", u"///"), (RangeList{{1, 3}, {6, 3}}));
}

TEST(RangesForStartTag, TakeWhiteSpaceAsItStands)
{
    EXPECT_EQ(rangesForStartTag(u" \n [ \n ] ", u"[", u"]"), (RangeList{{3, 1}, {7, 1}}));
    EXPECT_EQ(rangesForStartTag(u"a x \n", u" ", u"\n"), (RangeList{{1, 1}, {4, 1}}));
}

TEST(RangesForStartTag, DependOnNothingOutsideTheView)
{
    const QStringView text = u"://x//]";
    EXPECT_EQ(rangesForStartTag(text.mid(1), u"//", u"//"), (RangeList{{0, 2}, {3, 2}}));
    EXPECT_EQ(rangesForStartTag(text.left(6), u"x", u"]"), RangeList());
}

TEST(RangesForStartTag, AreNoneForAnEmptyTextOrTag)
{
    EXPECT_EQ(rangesForStartTag(u"", u"[", u"]"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"[a]", u"", u"]"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"[a]", u"[", u""), RangeList());
    EXPECT_EQ(rangesForStartTag(u"[a]", u"", u""), RangeList());
}

TEST(RangesForStartTag, AreNoneForTagsLongerThanTheText)
{
    EXPECT_EQ(rangesForStartTag(u"**", u"***", u"*"), RangeList());
    EXPECT_EQ(rangesForStartTag(u"**", u"*", u"***"), RangeList());
}

} // namespace

#include <tests/end_to_end/FormatTest.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Html : public FormatTest
{
protected:
    Html() : FormatTest(u"html"_s) {}

    QByteArray bodyOf(const QByteArray &text, const QStringList &settings = {}) const
    {
        return contentOf(text, "<body>\n", "</body>", settings);
    }

    /// Whether a strict reader of HTML finds neither an error nor a warning in the file.
    testing::AssertionResult isValid(const QString &file) const
    {
        return passes(u"tidy"_s, {u"-q"_s, u"-e"_s}, file, u"."_s);
    }
};

} // namespace

TEST_F(Html, MarksBecomeElements)
{
    EXPECT_EQ(bodyOf("# Title\n\n##  Part\n### Piece\n\n\tA **bold** and an //emphatic// word.\n\n> Quoted\n\n* * *\n"),
              "<h1>Title</h1>\n<h2>Part</h2>\n<h3>Piece</h3>\n"
              "<p>A <strong>bold</strong> and an <em>emphatic</em> word.</p>\n"
              "<blockquote><p>Quoted</p></blockquote>\n<hr>\n");
}

TEST_F(Html, LinesThatNothingPartsAreOneParagraph)
{
    EXPECT_EQ(bodyOf("one\ntwo\n\tthree\r\nfour\rfive\n\nsix"),
              "<p>one<br>\ntwo</p>\n<p>three<br>\nfour<br>\nfive</p>\n<p>six</p>\n");
}

TEST_F(Html, StylesThatOverlapAreNestedWell)
{
    EXPECT_EQ(bodyOf("**a //b** c//"), "<p><strong>a </strong><strong><em>b</em></strong><em> c</em></p>\n");
}

TEST_F(Html, TextAndNamesAreEscaped)
{
    EXPECT_EQ(bodyOf("a < b & \"c\" > d &amp; \x01", {u"quotation-language=none"_s}),
              "<p>a &lt; b &amp; &quot;c&quot; &gt; d &amp;amp; </p>\n");
    writeManuscript({{u"<b>&\""_s, "text"}});
    EXPECT_EQ(exportWith().exitCode, 0);
    EXPECT_NE(
        fileContent(exported(u"index.html"_s)).indexOf("<a href=\"001%20%3Cb%3E%26%22.html\">&lt;b&gt;&amp;&quot;<"),
        -1);
}

TEST_F(Html, FontAndPageBecomeAStyleSheet)
{
    const QByteArray page =
        exportOf("text", {u"font-name=Palatino-BoldItalic"_s, u"font-size=12.5"_s, u"paper-size={400, 600}"_s,
                          u"left-margin=50"_s, u"right-margin=70"_s, u"language=de-CH"_s});
    EXPECT_NE(page.indexOf("<html lang=\"de-CH\">"), -1);
    EXPECT_NE(page.indexOf("@page { size: 400pt 600pt; margin: 72pt 70pt 72pt 50pt; }"), -1);
    EXPECT_NE(
        page.indexOf("font-family: \"Palatino\", serif; font-weight: bold; font-style: italic; font-size: 12.5pt;"),
        -1);
    EXPECT_NE(page.indexOf("max-width: 280pt;"), -1);
}

TEST_F(Html, ValuesThatCannotBeAreRefused)
{
    EXPECT_TRUE(failedWith(1, {u"language takes a language tag"_s}, exportWith({u"language=\"><script>"_s})));
    EXPECT_TRUE(failedWith(1, {u"font-name takes"_s}, exportWith({u"font-name=a\"; }"_s})));
    EXPECT_TRUE(failedWith(1, {u"font-size takes"_s}, exportWith({u"font-size=0"_s})));
    EXPECT_TRUE(failedWith(1, {u"paper-size takes {width, height} in points"_s}, exportWith({u"paper-size=A4"_s})));
    EXPECT_TRUE(failedWith(1, {u"no choice 'margin'"_s}, exportWith({u"margin=5"_s})));
    EXPECT_TRUE(failedWith(3, {u"the margins leave no room on the paper"_s},
                           exportWith({u"left-margin=300"_s, u"right-margin=300"_s})));
}

TEST_F(Html, StylesComeFromTheSettings)
{
    writeFile(path(u"settings.plist"_s),
              R"(<plist><dict>
                 <key>paragraphStyles</key><array><dict>
                   <key>identifier</key><string>side note</string><key>tag</key><string>!</string>
                   <key>relaxed</key><false/></dict></array>
                 <key>inlineStyles</key><array><dict>
                   <key>identifier</key><string>shout</string>
                   <key>startTag</key><string>[</string><key>endTag</key><string>]</string></dict></array>
                 <key>markerStyles</key><array/>
                 </dict></plist>)");
    writeManuscript({{u"Text"_s, "! A [loud] note\n\n!not\n\n* * *"}});
    const HostResult result =
        runExport({u"--plugin"_s, u"html"_s, u"--settings"_s, path(u"settings.plist"_s), u"--yes"_s});
    EXPECT_EQ(result.exitCode, 0) << testing::PrintToString(result.errors);
    EXPECT_NE(fileContent(exported(u"001 Text.html"_s))
                  .indexOf("<body>\n<p class=\"side-note\">A <span class=\"shout\">loud</span> note</p>\n"
                           "<p>!not</p>\n<p>* * *</p>\n</body>"),
              -1);
}

TEST_F(Html, IndexNamesAllDocuments)
{
    EXPECT_EQ(exportWith().exitCode, 0);
    EXPECT_NE(fileContent(exported(u"index.html"_s))
                  .indexOf("<h1>A Test</h1>\n<ol>\n<li><a href=\"001%20One.html\">One</a></li>\n"
                           "<li><a href=\"002%20Two.html\">Two</a></li>\n"
                           "<li><a href=\"003%20Three.html\">Three</a></li>\n</ol>"),
              -1);
}

TEST_F(Html, ADocumentThatWouldBeTheIndexIsRefused)
{
    writeManuscript({{u"index"_s, "text"}});
    EXPECT_TRUE(failedWith(4,
                           {u"document 1, 'index': '%1'"_s.arg(exported(u"index.html"_s)), u"the plug-in's own file"_s},
                           runExport({u"--plugin"_s, u"html"_s, u"--pattern"_s, u"<2>"_s})));
}

TEST_F(Html, AnIndexThatExistsIsNotReplacedUnasked)
{
    writeFile(exported(u"index.html"_s), "mine");
    EXPECT_TRUE(failedWith(5, {u"'%1'"_s.arg(exported(u"index.html"_s))}, runExport({u"--plugin"_s, u"html"_s})));
    EXPECT_EQ(fileContent(exported(u"index.html"_s)), "mine");
}

TEST_F(Html, SampleManuscriptsAreAsExpectedAndValid)
{
    expectSample(u"die-gezeitenuhr"_s, u"006.html"_s, u"06-das-heft-der-kuesterin.html"_s);
    expectSample(u"letters-from-the-breakwater"_s, u"003.html"_s, u"03-what-the-tide-left.html"_s);
    expectSample(u"the-lamplighters-ledger"_s, u"010.html"_s, u"10-pages-from-the-ledger.html"_s);
    const QStringList files = filesIn(destination());
    EXPECT_EQ(files.size(), 12);
    for (const QString &file : files) {
        EXPECT_TRUE(isValid(file));
    }
}

} // namespace end_to_end

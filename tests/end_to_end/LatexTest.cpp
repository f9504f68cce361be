#include <tests/end_to_end/FormatTest.h>

using namespace Qt::Literals::StringLiterals;

namespace end_to_end {

namespace {

class Latex : public FormatTest
{
protected:
    Latex() : FormatTest(u"latex"_s) {}

    QByteArray bodyOf(const QByteArray &text, const QStringList &settings = {}) const
    {
        return contentOf(text, "\\baselineskip}\n\n", "\\end{document}", settings);
    }

    testing::AssertionResult compiles(const QString &file) const
    {
        return passes(u"pdflatex"_s, {u"-halt-on-error"_s, u"-interaction=nonstopmode"_s}, file,
                      u"(?m)^!|No pages of output"_s);
    }
};

} // namespace

TEST_F(Latex, MarksBecomeCommands)
{
    EXPECT_EQ(
        bodyOf(
            "# Title\n##  Part\n### Piece\n\n\tA **bold** and an //emphatic// word.\n\n> Quoted\n> twice\n\n* * *\n"),
        "\\section{Title}\n\n\\subsection{Part}\n\n\\subsubsection{Piece}\n\n"
        "A \\textbf{bold} and an \\emph{emphatic} word.\n\n"
        "\\begin{quote}\nQuoted\\newline\ntwice\n\\end{quote}\n\n\\asterism\n\n");
}

TEST_F(Latex, WhatHasAMeaningIsEscaped)
{
    EXPECT_EQ(bodyOf(R"(\begin{x} $a^2$ ~ 5% _u_ #t & "q" --- '' `` ?` !`)",
                     {u"typography=no"_s, u"quotation-language=none"_s}),
              "\\textbackslash{}begin\\{x\\} \\$a\\textasciicircum{}2\\$ \\textasciitilde{} 5\\% \\_u\\_ \\#t \\& "
              "\\textquotedbl{}q\\textquotedbl{} -{}-{}- '{}' `{}` ?{}` !{}`\n\n");
}

TEST_F(Latex, CharactersThatFontsMayLackAreGuarded)
{
    EXPECT_EQ(bodyOf("Ä – 你 \xF0\x9D\x84\x9E"), "Ä – \\anychar{你}{4F60} \\anychar{\xF0\x9D\x84\x9E}{1D11E}\n\n");
}

TEST_F(Latex, PageAndSizeComeFromTheSettings)
{
    const QByteArray source = exportOf("text", {u"paper-size={400, 600}"_s, u"top-margin=30"_s, u"bottom-margin=40"_s,
                                                u"left-margin=50"_s, u"right-margin=60"_s, u"font-size=13"_s});
    EXPECT_NE(source.indexOf("paperwidth=400bp,paperheight=600bp,top=30bp,bottom=40bp,left=50bp,right=60bp"), -1);
    EXPECT_NE(source.indexOf("\\documentclass[12pt]{article}"), -1);
}

TEST_F(Latex, EveryAsciiCharacterCompiles)
{
    QByteArray text = "# ";
    for (char character = ' '; character < 0x7F; ++character) {
        text += character;
        text += character;
        text += character;
    }
    exportOf(text + "\n\n[" + text + "\n[" + text.repeated(30) + "\n\n> " + text);
    EXPECT_TRUE(compiles(u"001 Text.tex"_s));
}

TEST_F(Latex, EmptyDocumentsCompile)
{
    exportOf("");
    EXPECT_TRUE(compiles(u"001 Text.tex"_s));
}

TEST_F(Latex, SampleManuscriptsAreAsExpectedAndCompile)
{
    expectSample(u"letters-from-the-breakwater"_s, u"003.tex"_s, u"03-what-the-tide-left.tex"_s);
    EXPECT_TRUE(compiles(u"003.tex"_s));
    expectSample(u"die-gezeitenuhr"_s, u"006.tex"_s, u"06-das-heft-der-kuesterin.tex"_s);
    EXPECT_TRUE(compiles(u"006.tex"_s));
    expectSample(u"the-lamplighters-ledger"_s, u"010.tex"_s, u"10-pages-from-the-ledger.tex"_s);
    EXPECT_TRUE(compiles(u"010.tex"_s));
}

} // namespace end_to_end

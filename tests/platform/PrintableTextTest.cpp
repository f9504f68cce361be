#include <OrvaneExportKit/platform/PrintableText.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::printableText;

namespace {

TEST(PrintableText, EscapesControlCharacters)
{
    EXPECT_EQ(printableText(u"a\x1b[31mb"), u"a\\x1b[31mb"_s);
    EXPECT_EQ(printableText(u"a\nb\tc\rd\u007fe"), u"a\\x0ab\\x09c\\x0dd\\x7fe"_s);
    EXPECT_EQ(printableText(u"\u0080\u009b\u009f"), u"\\x80\\x9b\\x9f"_s);
    EXPECT_EQ(printableText(QString(u'\0')), u"\\x00"_s);
}

TEST(PrintableText, EscapesWhatTurnsTheDirectionOrEndsALine)
{
    EXPECT_EQ(printableText(u"\u061c\u200e\u200f"), u"\\u061c\\u200e\\u200f"_s);
    EXPECT_EQ(printableText(u"\u202a\u202b\u202c\u202d\u202e"), u"\\u202a\\u202b\\u202c\\u202d\\u202e"_s);
    EXPECT_EQ(printableText(u"\u2066\u2067\u2068\u2069"), u"\\u2066\\u2067\\u2068\\u2069"_s);
    EXPECT_EQ(printableText(u"\u2028\u2029"), u"\\u2028\\u2029"_s);
}

TEST(PrintableText, KeepsAllElse)
{
    const QString text = u"Ebb & Flöd \\x1b 長い名 \u200d\u2027\u202f\u2065\u206a\u00a0 \U0001F600"_s;
    EXPECT_EQ(printableText(text), text);
    EXPECT_EQ(printableText({}), u""_s);
}

} // namespace

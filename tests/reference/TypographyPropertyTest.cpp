#include <tests/reference/Generators.h>
#include <tests/reference/PropertyTesting.h>
#include <tests/reference/Typography.h>

#include <OrvaneExportKit/text/Typography.h>

#include <gtest/gtest.h>

using platform::AttributedString;
using property::asLibrary;
using property::forEachCase;
using property::outcome;
using property::Pieces;
using property::printed;
using property::Random;
using reference::NaiveAttributedString;

namespace {

const Pieces &typedPieces()
{
    static const Pieces result{u".",      u".",      u"..",     u"...", u"-", u"-", u"--", u"'", u"'",
                               u"\u2026", u"\u2013", u"\u2019", u",",   u"/", u"&", u"(",  u" ", u"a"};
    return result;
}

/// Checks one correction on random texts: the library's version against the step-by-step one.
void checkPlain(void (*correct)(QString &), void (*correctStepByStep)(std::u16string &))
{
    forEachCase([&](Random &random) {
        const std::u16string text = property::randomText(random, typedPieces());
        EXPECT_EQ(outcome(asLibrary(text), correct), outcome(text, correctStepByStep)) << "text " << printed(text);
    });
}

void checkAttributed(void (*correct)(AttributedString &), void (*correctStepByStep)(NaiveAttributedString &))
{
    forEachCase([&](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, typedPieces());
        EXPECT_EQ(outcome(asLibrary(text), correct), outcome(text, correctStepByStep)) << "text " << printed(text);
    });
}

} // namespace

TEST(TypographyProperty, ConvertEllipses)
{
    checkPlain(&KZMutableStringExportAdditions::convertEllipses, &reference::convertEllipses);
}

TEST(TypographyProperty, ConvertEllipsesInAttributedText)
{
    checkAttributed(&KZMutableAttributedStringExportAdditions::convertEllipses, &reference::convertEllipses);
}

TEST(TypographyProperty, CorrectApostrophes)
{
    checkPlain(&KZMutableStringExportAdditions::correctApostrophes, &reference::correctApostrophes);
}

TEST(TypographyProperty, CorrectApostrophesInAttributedText)
{
    checkAttributed(&KZMutableAttributedStringExportAdditions::correctApostrophes, &reference::correctApostrophes);
}

TEST(TypographyProperty, CorrectDashes)
{
    checkPlain(&KZMutableStringExportAdditions::correctDashes, &reference::correctDashes);
}

TEST(TypographyProperty, CorrectDashesInAttributedText)
{
    checkAttributed(&KZMutableAttributedStringExportAdditions::correctDashes, &reference::correctDashes);
}

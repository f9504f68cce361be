#include <tests/reference/Generators.h>
#include <tests/reference/PropertyTesting.h>
#include <tests/reference/QuotationMarks.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/QuotationMarks.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using platform::AttributedString;
using property::asLibrary;
using property::forEachCase;
using property::outcome;
using property::Pieces;
using property::printed;
using property::Random;
using property::view;
using reference::NaiveAttributedString;

namespace {

const Pieces &quotedPieces()
{
    static const Pieces result{u"\"", u"\"",     u"\"",     u"\"\"",   u"\n",     u"\n", u"\r",   u"\r\n", u" ",
                               u"\t", u"\u00A0", u"\u2029", u"\u200B", u"\u3000", u"a",  u"word", u"'",    u"\u201D"};
    return result;
}

std::int32_t randomStyle(Random &random)
{
    constexpr auto smallest = std::numeric_limits<std::int32_t>::min();
    constexpr auto largest = std::numeric_limits<std::int32_t>::max();
    return random.chance(5) ? random.oneOf({smallest, smallest + 3, largest, largest - 3})
                            : static_cast<std::int32_t>(random.between(0, 12)) - 3;
}

} // namespace

TEST(QuotationMarksProperty, ConvertQuotationsToStart)
{
    forEachCase([](Random &random) {
        const Pieces markPieces{u"\u201C", u"\u2018", u"\"", u"\n", u" ", u"<<"};
        const std::u16string text = property::randomText(random, quotedPieces());
        const std::u16string start = property::randomString(random, markPieces, 2);
        const std::u16string stop = property::randomString(random, markPieces, 2);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) {
                              KZMutableStringExportAdditions::convertQuotationsToStart(t, view(start), view(stop));
                          }),
                  outcome(text, [&](std::u16string &t) { reference::convertQuotationsToStart(t, start, stop); }))
            << "text " << printed(text) << "\nstart " << printed(start) << "\nstop " << printed(stop);
    });
}

TEST(QuotationMarksProperty, ConvertQuotationsToType)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, quotedPieces());
        const std::int32_t style = randomStyle(random);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) { KZMutableStringExportAdditions::convertQuotationsToType(t, style); }),
                  outcome(text, [&](std::u16string &t) { reference::convertQuotationsToType(t, style); }))
            << "text " << printed(text) << "\nstyle " << style;
    });
}

TEST(QuotationMarksProperty, ConvertQuotationsToTypeInAttributedText)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, quotedPieces());
        const std::int32_t style = randomStyle(random);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::convertQuotationsToType(t, style);
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::convertQuotationsToType(t, style); }))
            << "text " << printed(text) << "\nstyle " << style;
    });
}

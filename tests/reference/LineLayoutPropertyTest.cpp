#include <tests/reference/Generators.h>
#include <tests/reference/LineLayout.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/text/LineLayout.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using property::asLibrary;
using property::forEachCase;
using property::outcome;
using property::Pieces;
using property::printed;
using property::Random;

namespace {

/// The units on both sides of every border between break characters and others, and what lines end with.
const Pieces &layoutPieces()
{
    static const Pieces result{u" ",    u" ", u" ",  u"  ",  u"\n", u"\n", u"\r\n", u"\r", u"\u2028", u"\u0085",
                               u"word", u"a", u"bb", u"ccc", u"!",  u"\"", u"#",    u"&",  u"'",      u"(",
                               u")",    u"-", u"/",  u"0",   u"9",  u":",  u"@",    u"A",  u"[",      u"\\",
                               u"]",    u"^", u"{",  u"|",   u"}",  u"~",  u"\x7F", u"\t"};
    return result;
}

std::uint32_t randomLimit(Random &random, std::size_t textLength)
{
    constexpr auto largest = std::numeric_limits<std::uint32_t>::max();
    const auto length = static_cast<std::uint32_t>(textLength);
    const auto small = static_cast<std::uint32_t>(random.between(0, 15));
    return random.chance(85) ? small
                             : random.oneOf({length, length + 1, length / 2, length == 0 ? 0 : length - 1, largest,
                                             largest - 1, largest - 2, largest / 2});
}

} // namespace

TEST(LineLayoutProperty, ConvertStartTabsToSpace)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, {u"\t", u"\t", u"\t", u"\t\t", u"\n", u"\n", u"\n",
                                                                  u"\n\t", u"\r", u"\r\n", u"\u2028", u" ", u"a"});
        const auto spaces = static_cast<std::uint32_t>(random.between(0, random.chance(2) ? 500 : 9));

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) { KZMutableStringExportAdditions::convertStartTabsToSpace(t, spaces); }),
                  outcome(text, [&](std::u16string &t) { reference::convertStartTabsToSpace(t, spaces); }))
            << "text " << printed(text) << "\nspaces " << spaces;
    });
}

TEST(LineLayoutProperty, DeleteEmptyLines)
{
    forEachCase([](Random &random) {
        const std::u16string text =
            property::randomText(random, {u"\n", u"\n", u"\n", u"\n\n", u"\r\n", u"\r", u" ", u"\t", u"a", u"b"});

        EXPECT_EQ(outcome(asLibrary(text), [](QString &t) { KZMutableStringExportAdditions::deleteEmptyLines(t); }),
                  outcome(text, [](std::u16string &t) { reference::deleteEmptyLines(t); }))
            << "text " << printed(text);
    });
}

TEST(LineLayoutProperty, SetMaxLineLength)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, layoutPieces());
        const std::uint32_t limit = randomLimit(random, text.size());

        EXPECT_EQ(
            outcome(asLibrary(text), [&](QString &t) { KZMutableStringExportAdditions::setMaxLineLength(t, limit); }),
            outcome(text, [&](std::u16string &t) { reference::setMaxLineLength(t, limit); }))
            << "text " << printed(text) << "\nlimit " << limit;
    });
}

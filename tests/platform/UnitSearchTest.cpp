#include <OrvaneExportKit/platform/UnitSearch.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using platform::AsciiSieve;
using platform::Exactly;
using platform::Expected;
using platform::OneOf;

namespace {

/// Every unit from some to some, or every other one, in any processor's way of looking at them.
struct Stretch {
    static constexpr bool asBytes = true;
    char16_t first;
    char16_t last;
    bool isWanted = true;

    template <typename Units>
    constexpr auto operator()(Units units) const
    {
        return isWanted ? platform::isWithin(units, first, last) : platform::isOutside(units, first, last);
    }
};

/// Units around every border that the searches know, signs of 8 and 16 bits among them.
std::u16string randomUnits(std::mt19937 &random, std::size_t length)
{
    static const std::u16string units =
        u"ab*/'\"\n\r\t .\\~" + std::u16string{u'\0',     u'\x7E',   u'\x7F',   u'\u0080', u'\u0085',
                                               u'\u00FF', u'\u0100', u'\u2028', u'\u2029', u'\u7FFF',
                                               u'\u8000', u'\u8080', u'\uFF80', u'\uFFFE', u'\uFFFF'};
    std::u16string text;
    while (text.size() < length) {
        text += units[random() % units.size()];
    }
    return text;
}

/// Requires of the masks of any number of units that they say what `isWanted` says of each unit.
template <typename Kind, typename IsWanted>
void expectMasksByRule(const Kind &kind, IsWanted isWanted)
{
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        const std::u16string text = randomUnits(random, platform::maskedUnits + 8);
        const std::size_t start = random() % 8;
        platform::UnitMask expected = 0;
        for (std::size_t index = 0; index < platform::maskedUnits; ++index) {
            expected |= platform::UnitMask{isWanted(text[start + index])} << index;
        }
        EXPECT_EQ(platform::fullMask(text.data() + start, kind), expected);
        EXPECT_EQ(platform::plainMask(text.data() + start, platform::maskedUnits, kind), expected);
        for (const unsigned count : {0U, 1U, 7U, 15U, 16U, 17U, 31U, 32U, 47U, 48U, 63U}) {
            EXPECT_EQ(platform::partialMask(text.data() + start, count, kind),
                      expected & ((platform::UnitMask{1} << count) - 1));
        }
    }
}

/// The same for units that stand in a list.
template <typename Kind>
void expectMasks(const Kind &kind, std::u16string_view wanted)
{
    expectMasksByRule(kind, [wanted](char16_t unit) { return wanted.find(unit) != wanted.npos; });
}

/// The same for a stretch of ASCII, or for all but it.
void expectMasks(const Stretch &kind)
{
    expectMasksByRule(kind, [&](char16_t unit) { return (kind.first <= unit && unit <= kind.last) == kind.isWanted; });
}

template <typename Kind>
std::vector<std::size_t> indicesUnitByUnit(std::u16string_view text, std::size_t from, const Kind &kind)
{
    std::vector<std::size_t> indices;
    for (std::size_t index = from; index < text.size(); ++index) {
        if (kind(text[index])) {
            indices.push_back(index);
        }
    }
    return indices;
}

} // namespace

TEST(UnitSearch, MasksSayWhichUnitsAreWanted)
{
    expectMasks(OneOf<u'*'>(), u"*");
    expectMasks(OneOf<u'"', u'\n'>(), u"\"\n");
    expectMasks(OneOf<u'\0', u'\x7E'>(), {u"\0\x7E", 2});
    expectMasks(OneOf<u'\x7F'>(), u"\x7F");
    expectMasks(OneOf<u'\n', u'\r', u'\u0085', u'\uFFFF', u'\u8000'>(), u"\n\r\u0085\uFFFF\u8000");
    expectMasks(Exactly<true>{u'*'}, u"*");
    expectMasks(Exactly<false>{u'*'}, u"*");
    expectMasks(Exactly<false>{u'\uFF80'}, u"\uFF80");
}

TEST(UnitSearch, RangesOfAsciiTellItFromAllBeyond)
{
    expectMasks(Stretch{u'\0', u'!'});
    expectMasks(Stretch{u'*', u'*'});
    expectMasks(Stretch{u'\0', u'\x7E'});
    expectMasks(Stretch{u'\0', u'\x7E', false});
    expectMasks(Stretch{u'\x0E', u'\x7E', false});
    expectMasks(Stretch{u' ', u'~', false});
}

TEST(UnitSearch, ASieveLetsThroughItsRangesAndAllBeyondAscii)
{
    const AsciiSieve::Bounds others{u'~', u'~'};
    for (const bool withOthers : {false, true}) {
        expectMasksByRule(
            AsciiSieve({{{u'\0', u'\0'}, {u'"', u'\''}, {u'*', u'/'}, others}}, withOthers), [&](char16_t unit) {
                return unit > u'~' ? withOthers
                                   : unit == u'\0' || unit == u'~' ||
                                         std::u16string_view(u"\"#$%&'*+,-./").find(unit) != std::u16string_view::npos;
            });
    }
}

TEST(UnitSearch, VisitsEveryUnitOfAKindFromAnyPlaceOn)
{
    std::mt19937 random(2);
    const OneOf<u'a', u'\uFFFF'> kind;
    for (std::size_t length = 0; length < 200; ++length) {
        const std::u16string text = randomUnits(random, length);
        const std::size_t from = random() % (length + 1);
        std::vector<std::size_t> visited;
        platform::forEachUnit(text, from, kind, [&](std::size_t index) { visited.push_back(index); });
        const std::vector<std::size_t> expected = indicesUnitByUnit(text, from, kind);
        EXPECT_EQ(visited, expected);
        visited.clear();
        platform::forEachUnit<Expected::Rarely>(text, from, kind, [&](std::size_t index) { visited.push_back(index); });
        EXPECT_EQ(visited, expected);
        EXPECT_EQ(platform::findUnit(text, from, kind), expected.empty() ? length : expected.front());
    }
}

TEST(UnitSearch, FindsWhatStandsFarApart)
{
    std::u16string text(1000, u'-');
    const std::vector<std::size_t> places{70, 71, 400, 960, 999};
    for (const std::size_t place : places) {
        text[place] = u'*';
    }
    std::vector<std::size_t> visited;
    platform::forEachUnit(text, 5, OneOf<u'*'>(), [&](std::size_t at) { visited.push_back(at); });
    EXPECT_EQ(visited, places);
    EXPECT_EQ(platform::findUnit(text, 72, OneOf<u'*'>()), 400U);
}

TEST(UnitSearch, FindsManyMoreThanAreNotedDownAtOnce)
{
    const std::u16string text(20000, u'*');
    std::size_t next = 3;
    platform::forEachUnit(text, 3, OneOf<u'*'>(), [&](std::size_t at) { EXPECT_EQ(at, next++); });
    EXPECT_EQ(next, text.size());
}

TEST(UnitSearch, FindsTheLastUnitBetweenTwoPlaces)
{
    std::mt19937 random(3);
    const OneOf<u'~'> kind;
    for (std::size_t length = 0; length < 200; ++length) {
        const std::u16string text = randomUnits(random, length);
        const std::size_t until = random() % (length + 1);
        const std::size_t from = random() % (until + 1);
        const std::vector<std::size_t> indices =
            indicesUnitByUnit(std::u16string_view(text).substr(0, until), from, kind);
        EXPECT_EQ(platform::findBehindLastUnit(text, from, until, kind), indices.empty() ? from : indices.back() + 1);
    }
}

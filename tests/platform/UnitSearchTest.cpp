#include <OrvaneExportKit/platform/UnitSearch.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using platform::AsciiSieve;
using platform::OneOf;

namespace {

/// Every unit from some to some, in any processor's way of looking at them.
struct Within {
    char16_t first;
    char16_t last;

    template <typename Units>
    constexpr auto operator()(Units units) const
    {
        return platform::isWithin(units, first, last);
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

template <typename Kind>
void expectTheSameMasks(const Kind &kind)
{
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        const std::u16string text = randomUnits(random, platform::maskedUnits + 8);
        const std::size_t start = random() % 8;
        const platform::UnitMask expected = platform::plainMask(text.data() + start, platform::maskedUnits, kind);
        EXPECT_EQ(platform::fullMask(text.data() + start, kind), expected);
        for (const std::size_t count : {0, 1, 7, 15, 16, 17, 31, 32, 47, 48, 63}) {
            EXPECT_EQ(platform::partialMask(text.data() + start, count, kind),
                      expected & ((platform::UnitMask{1} << count) - 1));
        }
    }
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

std::vector<std::size_t> placesUnitByUnit(std::u16string_view text, std::u16string_view literal, std::size_t from,
                                          std::size_t until)
{
    std::vector<std::size_t> places;
    for (std::size_t index = from; index < until; ++index) {
        if (text.substr(index).starts_with(literal)) {
            places.push_back(index);
        }
    }
    return places;
}

} // namespace

TEST(UnitSearch, ManyUnitsAtOnceAnswerLikeOneAfterTheOther)
{
    expectTheSameMasks(OneOf{u'*'});
    expectTheSameMasks(OneOf{u'"', u'\n'});
    expectTheSameMasks(OneOf{u'\n', u'\r', u'\u0085', u'\uFFFF', u'\u8000'});
}

TEST(UnitSearch, RangesTakeUnitsForUnsigned)
{
    expectTheSameMasks(Within{u'\0', u'!'});
    expectTheSameMasks(Within{u'\u2028', u'\u2029'});
    expectTheSameMasks(Within{u'\u7FFF', u'\u8000'});
    expectTheSameMasks(Within{u'\uFF80', u'\uFFFF'});
    expectTheSameMasks(Within{u'\0', u'\uFFFF'});
}

TEST(UnitSearch, ASieveLetsThroughItsRangesAndAllBeyondAscii)
{
    for (const bool withOthers : {false, true}) {
        expectTheSameMasks(AsciiSieve<1>({{{u'\n', u'\r'}}}, withOthers));
        expectTheSameMasks(AsciiSieve<4>({{{u'\0', u'\0'}, {u'"', u'\''}, {u'*', u'/'}, {u'~', u'~'}}}, withOthers));
    }
}

TEST(UnitSearch, VisitsEveryUnitOfAKindFromAnyPlaceOn)
{
    std::mt19937 random(2);
    const OneOf kind{u'a', u'\uFFFF'};
    for (std::size_t length = 0; length < 200; ++length) {
        const std::u16string text = randomUnits(random, length);
        const std::size_t from = random() % (length + 1);
        std::vector<std::size_t> visited;
        platform::forEachUnit(text, from, kind, [&](std::size_t index) { visited.push_back(index); });
        const std::vector<std::size_t> expected = indicesUnitByUnit(text, from, kind);
        EXPECT_EQ(visited, expected);
        EXPECT_EQ(platform::findUnit(text, from, kind), expected.empty() ? length : expected.front());
    }
}

TEST(UnitSearch, FindsTheLastUnitBetweenTwoPlaces)
{
    std::mt19937 random(3);
    const OneOf kind{u'~'};
    for (std::size_t length = 0; length < 200; ++length) {
        const std::u16string text = randomUnits(random, length);
        const std::size_t until = random() % (length + 1);
        const std::size_t from = random() % (until + 1);
        const std::vector<std::size_t> indices =
            indicesUnitByUnit(std::u16string_view(text).substr(0, until), from, kind);
        EXPECT_EQ(platform::findBehindLastUnit(text, from, until, kind), indices.empty() ? from : indices.back() + 1);
    }
}

TEST(UnitSearch, VisitsEveryPlaceOfALiteralOverlappingOnesIncluded)
{
    std::mt19937 random(4);
    for (const std::u16string_view literal : {u"a", u"aa", u"ab", u"aaa", u"aab", u"aba"}) {
        for (std::size_t length = 0; length < 300; ++length) {
            std::u16string text;
            while (text.size() < length) {
                text += random() % 3 == 0 ? u'b' : u'a';
            }
            const std::size_t until = random() % (length + 1);
            const std::size_t from = random() % (until + 1);
            std::vector<std::size_t> visited;
            platform::forEachLiteral(text, literal, from, until, [&](std::size_t at) { visited.push_back(at); });
            EXPECT_EQ(visited, placesUnitByUnit(text, literal, from, until));
        }
    }
}

TEST(UnitSearch, AnEmptyLiteralStandsNowhere)
{
    platform::forEachLiteral(u"abc", u"", 0, 3, [](std::size_t) { FAIL(); });
}

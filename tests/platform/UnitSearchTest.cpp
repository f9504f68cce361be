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

template <typename Kind>
void expectTheSameMasks(const Kind &kind)
{
    std::mt19937 random(1);
    for (int round = 0; round < 500; ++round) {
        const std::u16string text = randomUnits(random, platform::maskedUnits + 8);
        const std::size_t start = random() % 8;
        const platform::UnitMask expected = platform::plainMask(text.data() + start, platform::maskedUnits, kind);
        EXPECT_EQ(platform::fullMask(text.data() + start, kind), expected);
        for (const unsigned count : {0U, 1U, 7U, 15U, 16U, 17U, 31U, 32U, 47U, 48U, 63U}) {
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
    expectTheSameMasks(OneOf<u'*'>());
    expectTheSameMasks(OneOf<u'"', u'\n'>());
    expectTheSameMasks(OneOf<u'\0', u'\x7E'>());
    expectTheSameMasks(OneOf<u'\x7F'>());
    expectTheSameMasks(OneOf<u'\n', u'\r', u'\u0085', u'\uFFFF', u'\u8000'>());
    expectTheSameMasks(Exactly<true>{u'*'});
    expectTheSameMasks(Exactly<false>{u'*'});
    expectTheSameMasks(Exactly<false>{u'\uFF80'});
}

TEST(UnitSearch, RangesOfAsciiTellItFromAllBeyond)
{
    expectTheSameMasks(Stretch{u'\0', u'!'});
    expectTheSameMasks(Stretch{u'*', u'*'});
    expectTheSameMasks(Stretch{u'\0', u'\x7E'});
    expectTheSameMasks(Stretch{u'\0', u'\x7E', false});
    expectTheSameMasks(Stretch{u'\x0E', u'\x7E', false});
    expectTheSameMasks(Stretch{u' ', u'~', false});
}

TEST(UnitSearch, ASieveLetsThroughItsRangesAndAllBeyondAscii)
{
    for (const bool withOthers : {false, true}) {
        expectTheSameMasks(AsciiSieve({{{u'\0', u'\0'}, {u'"', u'\''}, {u'*', u'/'}, {u'~', u'~'}}}, withOthers));
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
    const auto visit = [&](std::size_t at) {
        visited.push_back(at);
    };
    platform::forEachUnit(text, 5, OneOf<u'*'>(), visit);
    EXPECT_EQ(visited, places);
    EXPECT_EQ(platform::findUnit(text, 72, OneOf<u'*'>()), 400U);
    visited.clear();
    platform::forEachLiteral(text, u"-*", 5, text.size(), visit);
    EXPECT_EQ(visited, (std::vector<std::size_t>{69, 399, 959, 998}));
}

TEST(UnitSearch, FindsManyMoreThanAreNotedDownAtOnce)
{
    const std::u16string text(20000, u'*');
    std::size_t next = 3;
    platform::forEachUnit(text, 3, OneOf<u'*'>(), [&](std::size_t at) { EXPECT_EQ(at, next++); });
    EXPECT_EQ(next, text.size());
    next = 3;
    platform::forEachLiteral<Expected::Often>(text, u"**", 3, 19000, [&](std::size_t at) { EXPECT_EQ(at, next++); });
    EXPECT_EQ(next, 19000U);
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

TEST(UnitSearch, VisitsEveryPlaceOfALiteralOverlappingOnesIncluded)
{
    std::mt19937 random(4);
    const std::u16string_view units = u"aaaaaabbb\u1061\u1061\uFF61\x7F";
    // U+1061 and U+0161 end like the letter a, U+FF61 becomes a byte with a sign.
    for (const std::u16string_view literal : {u"a", u"aa", u"ab", u"aaa", u"aab", u"aba", u"\u1061", u"\u1061\u1061",
                                              u"a\u1061", u"\uFF61a", u"\x7F\x7F"}) {
        for (std::size_t length = 0; length < 300; ++length) {
            std::u16string text;
            while (text.size() < length) {
                text += units[random() % units.size()];
            }
            const std::size_t until = random() % (length + 1);
            const std::size_t from = random() % (until + 1);
            std::vector<std::size_t> visited;
            platform::forEachLiteral(text, literal, from, until, [&](std::size_t at) { visited.push_back(at); });
            const std::vector<std::size_t> expected = placesUnitByUnit(text, literal, from, until);
            EXPECT_EQ(visited, expected);
            visited.clear();
            platform::forEachLiteral<Expected::Often>(text, literal, from, until,
                                                      [&](std::size_t at) { visited.push_back(at); });
            EXPECT_EQ(visited, expected);
        }
    }
}

TEST(UnitSearch, OccurrencesAreThePlacesFromTheLeftThatDoNotOverlap)
{
    std::vector<std::size_t> visited;
    platform::forEachOccurrence(u"-------a--", u"--", 1, 10, [&](std::size_t at) { visited.push_back(at); });
    EXPECT_EQ(visited, (std::vector<std::size_t>{1, 3, 5, 8}));
}

TEST(UnitSearch, AnEmptyLiteralStandsNowhere)
{
    platform::forEachLiteral(u"abc", u"", 0, 3, [](std::size_t) { FAIL(); });
}

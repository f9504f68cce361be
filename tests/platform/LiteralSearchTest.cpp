#include <OrvaneExportKit/platform/LiteralSearch.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

using platform::Expected;

namespace {

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

std::vector<std::size_t> places(std::u16string_view text, std::u16string_view literal, std::size_t from,
                                std::size_t until)
{
    std::vector<std::size_t> visited;
    platform::forEachLiteral(text, literal, from, until, [&](std::size_t at) { visited.push_back(at); });
    return visited;
}

} // namespace

TEST(LiteralSearch, FindsWhatStandsFarApart)
{
    std::u16string text(1000, u'-');
    for (const std::size_t place : {70U, 71U, 400U, 960U, 999U}) {
        text[place] = u'*';
    }
    EXPECT_EQ(places(text, u"-*", 5, text.size()), (std::vector<std::size_t>{69, 399, 959, 998}));
}

TEST(LiteralSearch, FindsManyMoreThanAreNotedDownAtOnce)
{
    const std::u16string text(20000, u'*');
    std::size_t next = 3;
    platform::forEachLiteral<Expected::Often>(text, u"**", 3, 19000, [&](std::size_t at) { EXPECT_EQ(at, next++); });
    EXPECT_EQ(next, 19000U);
}

TEST(LiteralSearch, VisitsEveryPlaceOfALiteralOverlappingOnesIncluded)
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

TEST(LiteralSearch, OccurrencesAreThePlacesFromTheLeftThatDoNotOverlap)
{
    std::vector<std::size_t> visited;
    platform::forEachOccurrence(u"-------a--", u"--", 1, 10, [&](std::size_t at) { visited.push_back(at); });
    EXPECT_EQ(visited, (std::vector<std::size_t>{1, 3, 5, 8}));
}

TEST(LiteralSearch, AnEmptyLiteralStandsNowhere)
{
    platform::forEachLiteral(u"abc", u"", 0, 3, [](std::size_t) { FAIL(); });
}

TEST(LiteralSearch, FindsLiteralsOfAnyLengthInTextsThatRepeatTheirUnits)
{
    std::mt19937 random(5);
    for (const std::size_t length : {15U, 16U, 17U, 18U, 64U, 100U, 129U}) {
        for (int round = 0; round < 200; ++round) {
            // Two units, one of them rare, make literals that begin again inside themselves.
            std::u16string text(400, u'a');
            for (std::size_t count = random() % 6; count > 0; --count) {
                text[random() % text.size()] = u'b';
            }
            const std::u16string literal = text.substr(random() % (text.size() - length + 1), length);
            const std::size_t until = random() % (text.size() + 1);
            const std::size_t from = random() % (until + 1);
            const std::vector<std::size_t> expected = placesUnitByUnit(text, literal, from, until);
            EXPECT_EQ(places(text, literal, from, until), expected);
            const std::vector<std::size_t> toTheEnd = placesUnitByUnit(text, literal, from, text.size());
            EXPECT_EQ(platform::findLiteral(text, literal, from),
                      toTheEnd.empty() ? platform::notFound : toTheEnd.front());
        }
    }
}

TEST(LiteralSearch, ALiteralLongerThanTheTextStandsNowhere)
{
    EXPECT_EQ(places(u"aaa", std::u16string(100, u'a'), 0, 3), std::vector<std::size_t>{});
    EXPECT_EQ(platform::findLiteral(u"aaa", std::u16string(100, u'a'), 0), platform::notFound);
}

TEST(LiteralSearch, TheFirstPlaceIsNotBeforeTheOneAskedFor)
{
    EXPECT_EQ(platform::findLiteral(u"ab-ab", u"ab", 0), 0U);
    EXPECT_EQ(platform::findLiteral(u"ab-ab", u"ab", 1), 3U);
    EXPECT_EQ(platform::findLiteral(u"ab-ab", u"ab", 4), platform::notFound);
    EXPECT_EQ(platform::findLiteral(u"ab-ab", u"ab", 9), platform::notFound);
    EXPECT_EQ(platform::findLiteral(u"ab-ab", u"", 0), platform::notFound);
}

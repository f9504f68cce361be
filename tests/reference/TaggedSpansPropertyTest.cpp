#include <tests/reference/Generators.h>
#include <tests/reference/PlainText.h>
#include <tests/reference/PropertyTesting.h>
#include <tests/reference/RangeLists.h>
#include <tests/reference/TaggedSpans.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/TaggedSpans.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

using namespace std::string_view_literals;
using platform::AttributedString;
using platform::RangeList;
using property::asLibrary;
using property::forEachCase;
using property::outcome;
using property::Pieces;
using property::printed;
using property::Random;
using property::view;
using reference::NaiveAttributedString;

namespace {

/// Marks that are beginnings of each other, hold blanks or terminators, overlap with themselves, or cut a surrogate
/// pair.
const Pieces &marks()
{
    static const Pieces result{u"#",    u"##",     u"###",    u">",          u"\t",     u"\t\t", u" ",    u"  ",
                               u"# ",   u" #",     u"# #",    u"\n",         u"\n\n",   u"\n#",  u"#\n",  u" \n",
                               u"\n ",  u"\r",     u"\r\n",   u"\n\r",       u"\u2028", u"aa",   u"aba",  u"a\na",
                               u"\0"sv, u"\xD83D", u"\xDE00", u"\U0001F600", u"\n#\n#", u"#\n#", u"abab", u""};
    return result;
}

const Pieces &tags()
{
    static const Pieces result{u"//", u"//",  u"/", u"///", u"//:", u"://", u":",   u"*",   u"**",     u"***",  u"[",
                               u"]",  u"<b>", u"<", u"aa",  u"aba", u"\n",  u" \n", u"STA", u"\xD83D", u"\0"sv, u""};
    return result;
}

Pieces withoutEmptyOnes(Pieces pieces)
{
    std::erase(pieces, u""sv);
    return pieces;
}

/// Texts made of these hold the mark often, also at the start of lines and cut short.
Pieces piecesAroundMark(std::u16string_view mark)
{
    return withoutEmptyOnes(
        {mark, mark, mark.substr(0, 1), mark.substr(mark.size() / 2), u"\n", u"\n", u" ", u"#", u"a", u"b", u"\r"});
}

Pieces piecesAroundTags(std::u16string_view start, std::u16string_view stop)
{
    return withoutEmptyOnes({start, start, stop, stop, start.substr(0, 1), stop.substr(0, 1), u":", u"/", u"*", u"a"});
}

} // namespace

TEST(TaggedSpansProperty, LineRangesForLevelString)
{
    forEachCase([](Random &random) {
        const std::u16string_view level = random.oneOf(marks());
        const std::u16string text = property::randomText(random, piecesAroundMark(level));
        const RangeList expected = reference::lineRangesForLevelString(text, level);

        EXPECT_EQ(KZStringExportAdditions::lineRangesForLevelString(view(text), view(level)), expected)
            << "text " << printed(text) << "\nlevel string " << printed(level);
        EXPECT_EQ(
            KZAttributedStringExportAdditions::lineRangesForLevelString(AttributedString(asLibrary(text)), view(level)),
            expected)
            << "text " << printed(text) << "\nlevel string " << printed(level);
    });
}

TEST(TaggedSpansProperty, DeleteLevelMark)
{
    forEachCase([](Random &random) {
        const std::u16string_view level = random.oneOf(marks());
        const std::u16string text = property::randomText(random, piecesAroundMark(level));

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) { KZMutableStringExportAdditions::deleteLevelMark(t, view(level)); }),
                  outcome(text, [&](std::u16string &t) { reference::deleteLevelMark(t, level); }))
            << "text " << printed(text) << "\nlevel string " << printed(level);
    });
}

TEST(TaggedSpansProperty, DeleteLevelMarkOfAttributedText)
{
    forEachCase([](Random &random) {
        const std::u16string_view level = random.oneOf(marks());
        const NaiveAttributedString text = property::randomAttributedText(random, piecesAroundMark(level));

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::deleteLevelMark(t, view(level));
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::deleteLevelMark(t, level); }))
            << "text " << printed(text) << "\nlevel string " << printed(level);
    });
}

TEST(TaggedSpansProperty, DeleteParagraphMark)
{
    forEachCase([](Random &random) {
        const std::u16string_view mark = random.oneOf(marks());
        const NaiveAttributedString text = property::randomAttributedText(random, piecesAroundMark(mark));
        const RangeList ranges = random.chance(30)
                                     ? reference::lineRangesForLevelString(text.units, random.oneOf({mark, u"#"sv}))
                                     : property::randomRanges(random, text.units.size());

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::deleteParagraphMark(t, view(mark), ranges);
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::deleteParagraphMark(t, mark, ranges); }))
            << "text " << printed(text) << "\nmark " << printed(mark) << "\nranges " << printed(ranges);
    });
}

TEST(TaggedSpansProperty, RangesForStartTag)
{
    forEachCase([](Random &random) {
        const std::u16string_view start = random.oneOf(tags());
        const std::u16string_view stop = random.chance(40) ? start : random.oneOf(tags());
        const std::u16string text = property::randomText(random, piecesAroundTags(start, stop));

        EXPECT_EQ(KZStringExportAdditions::rangesForStartTag(view(text), view(start), view(stop)),
                  reference::rangesForStartTag(text, start, stop))
            << "text " << printed(text) << "\nstart tag " << printed(start) << "\nstop tag " << printed(stop);
    });
}

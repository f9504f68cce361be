#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/TextUnits.h>
#include <tests/support/LineTerminators.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

using namespace Qt::Literals::StringLiterals;
using platform::isLineTerminator;
using platform::lineEnd;
using platform::lineRangeForRange;
using platform::Range;
using platform::units;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();

TEST(IsLineTerminator, HoldsForFiveUnitsAndNoOther)
{
    std::u16string terminators;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        if (isLineTerminator(static_cast<char16_t>(unit))) {
            terminators += static_cast<char16_t>(unit);
        }
    }
    EXPECT_EQ(terminators, u"\n\r\u0085\u2028\u2029");
}

TEST(LineEnd, LiesBehindEachOfTheSixTerminators)
{
    for (const QString &terminator : support::lineTerminators) {
        const QString text = u"ab"_s + terminator + u"c"_s;
        const std::size_t lineLength = units(text).size() - 1;
        EXPECT_EQ(lineEnd(units(text), 0), lineLength);
        EXPECT_EQ(lineEnd(units(text), 1), lineLength);
        EXPECT_EQ(lineEnd(units(text), 2), lineLength);
        EXPECT_EQ(lineEnd(units(text), lineLength), lineLength + 1);
    }
}

TEST(LineEnd, IsTheTextsEndForALastLineWithoutTerminator)
{
    EXPECT_EQ(lineEnd(u"one\ntwo", 4), 7u);
    EXPECT_EQ(lineEnd(u"one\ntwo", 7), 7u);
    EXPECT_EQ(lineEnd(u"", 0), 0u);
}

TEST(LineEnd, BetweenCarriageReturnAndLineFeedLiesBehindThePair)
{
    EXPECT_EQ(lineEnd(u"a\r\nb", 2), 3u);
}

TEST(LineEnd, KeepsTerminatorsInTheOtherOrderApart)
{
    EXPECT_EQ(lineEnd(u"a\n\rb", 0), 2u);
    EXPECT_EQ(lineEnd(u"a\n\rb", 2), 3u);
    EXPECT_EQ(lineEnd(u"a\r\r\nb", 0), 2u);
    EXPECT_EQ(lineEnd(u"a\r\r\nb", 2), 4u);
}

TEST(LineRangeForRange, IsTheSingleLineThatHoldsAPosition)
{
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\n", {5, 0}), (Range{4, 4}));
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\n", {3, 0}), (Range{0, 4}));
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\n", {4, 0}), (Range{4, 4}));
}

TEST(LineRangeForRange, KnowsSixTerminators)
{
    for (const QString &terminator : support::lineTerminators) {
        const QString text = u"ab"_s + terminator + u"cd"_s + terminator + u"ef"_s;
        const std::size_t lineLength = 2 + units(terminator).size();
        EXPECT_EQ(lineRangeForRange(units(text), {1, 0}), (Range{0, lineLength}));
        EXPECT_EQ(lineRangeForRange(units(text), {lineLength + 1, 0}), (Range{lineLength, lineLength}));
        EXPECT_EQ(lineRangeForRange(units(text), {2 * lineLength, 2}), (Range{2 * lineLength, 2}));
    }
}

TEST(LineRangeForRange, HoldsAllLinesThatTheRangeTouches)
{
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\nsix\n", {2, 3}), (Range{0, 8}));
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\nsix\n", {0, 12}), (Range{0, 12}));
}

TEST(LineRangeForRange, LeavesOutTheLineThatBeginsAtTheEndOfTheRange)
{
    EXPECT_EQ(lineRangeForRange(u"one\ntwo\n", {0, 4}), (Range{0, 4}));
    EXPECT_EQ(lineRangeForRange(u"one\r\ntwo", {1, 4}), (Range{0, 5}));
}

TEST(LineRangeForRange, CountsAPositionInsideCarriageReturnLineFeedToTheLineThatThePairEnds)
{
    EXPECT_EQ(lineRangeForRange(u"a\r\nb", {2, 0}), (Range{0, 3}));
    EXPECT_EQ(lineRangeForRange(u"a\r\nb", {2, 1}), (Range{0, 3}));
    EXPECT_EQ(lineRangeForRange(u"a\r\nb", {2, 2}), (Range{0, 4}));
}

TEST(LineRangeForRange, TakesTheLineFeedAlongWhenTheRangeEndsBehindTheCarriageReturn)
{
    EXPECT_EQ(lineRangeForRange(u"a\r\nb", {0, 2}), (Range{0, 3}));
}

TEST(LineRangeForRange, IsEmptyAtTheEndOfATextThatEndsWithATerminator)
{
    EXPECT_EQ(lineRangeForRange(u"one\n", {4, 0}), (Range{4, 0}));
    EXPECT_EQ(lineRangeForRange(u"one\r\n", {5, 0}), (Range{5, 0}));
    EXPECT_EQ(lineRangeForRange(u"", {0, 0}), (Range{0, 0}));
}

TEST(LineRangeForRange, IsTheLastLineAtTheEndOfATextWithoutTerminator)
{
    EXPECT_EQ(lineRangeForRange(u"one\ntwo", {7, 0}), (Range{4, 3}));
}

TEST(LineRangeForRange, GivesAnEmptyLineItsTerminatorAlone)
{
    EXPECT_EQ(lineRangeForRange(u"a\n\nb", {2, 0}), (Range{2, 1}));
    EXPECT_EQ(lineRangeForRange(u"\n", {0, 0}), (Range{0, 1}));
}

TEST(LineRangeForRange, ThrowsForARangePastTheEnd)
{
    for (const Range range : {Range{3, 0}, Range{1, 2}, Range{1, largest}, Range{largest, 1}}) {
        EXPECT_TRUE(throwsRangeException([&] { lineRangeForRange(u"ab", range); }, "lineRangeForRange", range, 2));
    }
}

} // namespace

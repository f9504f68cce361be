#include <OrvaneExportKit/text/RangeLists.h>
#include <tests/support/BothTexts.h>
#include <tests/support/LineTerminators.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace KZArrayExportAdditions;
using namespace KZAttributedStringExportAdditions;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;
using support::plain;
using support::styled;
using support::styleName;
using support::stylesOf;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();
const QVariantMap newStyle{{styleName, u"x"_s}};

TEST(AscendingSortedRanges, OfNoRangesAreNone)
{
    EXPECT_EQ(ascendingSortedRanges({}), RangeList());
}

TEST(AscendingSortedRanges, AscendByLocation)
{
    EXPECT_EQ(ascendingSortedRanges({{7, 1}, {2, 5}, {4, 0}}), (RangeList{{2, 5}, {4, 0}, {7, 1}}));
}

TEST(AscendingSortedRanges, KeepTheOrderOfEqualLocations)
{
    EXPECT_EQ(ascendingSortedRanges({{5, 10}, {1, 2}, {5, 1}, {1, 0}, {5, 4}}),
              (RangeList{{1, 2}, {1, 0}, {5, 10}, {5, 1}, {5, 4}}));
}

TEST(AscendingSortedRanges, KeepTheOrderOfEqualLocationsInALongList)
{
    RangeList ranges;
    RangeList expected;
    for (const std::size_t location : {std::size_t{1}, std::size_t{0}}) {
        for (std::size_t length = 0; length < 1000; ++length) {
            ranges.push_back({location, length});
            expected.push_back({1 - location, length});
        }
    }
    EXPECT_EQ(ascendingSortedRanges(ranges), expected);
}

TEST(AscendingSortedRanges, KeepDuplicates)
{
    EXPECT_EQ(ascendingSortedRanges({{3, 1}, {0, 1}, {3, 1}}), (RangeList{{0, 1}, {3, 1}, {3, 1}}));
}

TEST(AscendingSortedRanges, CompareLocationsAsUnsignedNumbers)
{
    EXPECT_EQ(ascendingSortedRanges({{largest, 0}, {platform::notFound, 0}, {0, 0}}),
              (RangeList{{0, 0}, {platform::notFound, 0}, {largest, 0}}));
}

TEST(AscendingSortedRanges, LeaveTheGivenListAlone)
{
    const RangeList ranges{{7, 1}, {2, 5}};
    EXPECT_EQ(ascendingSortedRanges(ranges).size(), 2u);
    EXPECT_EQ(ranges, (RangeList{{7, 1}, {2, 5}}));
}

template <typename Text>
struct DeleteCharactersInRanges : testing::Test {
    /// What the deletion makes of a text.
    static QString cut(const QString &units, const RangeList &ranges)
    {
        Text text(units);
        deleteCharactersInRanges(text, ranges);
        return plain(text);
    }
};
TYPED_TEST_SUITE(DeleteCharactersInRanges, support::BothTexts, support::TextNames);

TYPED_TEST(DeleteCharactersInRanges, TakesTheRangesInAnyOrder)
{
    EXPECT_EQ(this->cut(u"abcdefgh"_s, {{5, 1}, {0, 2}}), u"cdegh"_s);
    EXPECT_EQ(this->cut(u"abcdefgh"_s, {{0, 2}, {5, 1}}), u"cdegh"_s);
}

TYPED_TEST(DeleteCharactersInRanges, CutsTheLaterOfOverlappingRangesFirst)
{
    EXPECT_EQ(this->cut(u"abcdefghij"_s, {{2, 4}, {4, 4}}), u"ab"_s);
}

TYPED_TEST(DeleteCharactersInRanges, CutsARepeatedRangeAgainFromTheShortenedText)
{
    EXPECT_EQ(this->cut(u"abcdef"_s, {{1, 2}, {1, 2}}), u"af"_s);
}

TYPED_TEST(DeleteCharactersInRanges, CutsAnOuterRangeWithItsFullLengthAfterTheInnerOne)
{
    EXPECT_EQ(this->cut(u"abcdefghij"_s, {{1, 5}, {2, 2}}), u"aij"_s);
    EXPECT_EQ(this->cut(u"abcdefghij"_s, {{1, 3}, {1, 1}, {2, 2}, {3, 1}}), u"aij"_s);
}

TYPED_TEST(DeleteCharactersInRanges, LeavesTheTextAloneForAnEmptyList)
{
    EXPECT_EQ(this->cut(u"abc"_s, {}), u"abc"_s);
    EXPECT_EQ(this->cut(u""_s, {}), u""_s);
}

TYPED_TEST(DeleteCharactersInRanges, DeletesNothingForEmptyRanges)
{
    EXPECT_EQ(this->cut(u"abc"_s, {{3, 0}, {0, 0}, {1, 0}}), u"abc"_s);
    EXPECT_EQ(this->cut(u""_s, {{0, 0}}), u""_s);
}

TYPED_TEST(DeleteCharactersInRanges, MayDeleteTheWholeText)
{
    EXPECT_EQ(this->cut(u"abc"_s, {{1, 2}, {0, 1}}), u""_s);
}

TYPED_TEST(DeleteCharactersInRanges, ChangesNothingWhenTheHighestRangeLiesPastTheEnd)
{
    for (const Range range : {Range{9, 1}, Range{9, 0}, Range{7, 2}, Range{7, largest}, Range{largest, 1}}) {
        TypeParam text(u"abcdefgh"_s);
        EXPECT_TRUE(throwsRangeException(
            [&] {
                deleteCharactersInRanges(text, {range, {0, 2}});
            },
            "deleteCharactersInRanges", range, 8));
        EXPECT_EQ(plain(text), u"abcdefgh"_s);
    }
}

TYPED_TEST(DeleteCharactersInRanges, KeepsTheDeletionsMadeBeforeARangePastTheEnd)
{
    TypeParam text(u"abcdefgh"_s);
    EXPECT_TRUE(throwsRangeException(
        [&] {
            deleteCharactersInRanges(text, {{0, 1}, {2, 7}, {6, 1}, {4, 1}});
        },
        "deleteCharactersInRanges", {2, 7}, 6));
    EXPECT_EQ(plain(text), u"abcdfh"_s);
}

TYPED_TEST(DeleteCharactersInRanges, ThrowsWhenLaterDeletionsLeaveTooLittleForARange)
{
    TypeParam text(u"abcd"_s);
    EXPECT_TRUE(throwsRangeException(
        [&] {
            deleteCharactersInRanges(text, {{0, 4}, {2, 2}});
        },
        "deleteCharactersInRanges", {0, 4}, 2));
    EXPECT_EQ(plain(text), u"ab"_s);
}

TYPED_TEST(DeleteCharactersInRanges, KeepsTheDeletionsMadeBeforeARangeWhoseEndOverflows)
{
    TypeParam text(u"abcd"_s);
    EXPECT_TRUE(throwsRangeException(
        [&] {
            deleteCharactersInRanges(text, {{1, largest}, {3, 1}});
        },
        "deleteCharactersInRanges", {1, largest}, 3));
    EXPECT_EQ(plain(text), u"abc"_s);
}

TEST(DeleteCharactersInRangesOfAttributedText, TakesTheAttributesAlong)
{
    AttributedString text = styled(u"abcdefgh"_s, u"12345678");
    deleteCharactersInRanges(text, {{5, 1}, {0, 2}});
    EXPECT_EQ(stylesOf(text), u"34578"_s);
}

/// What enclosing makes of a text.
QString enclosed(QString text, const RangeList &ranges, QStringView string)
{
    encloseRanges(text, ranges, string);
    return text;
}

TEST(EncloseRanges, PutsTheStringOnBothSidesOfEveryRange)
{
    EXPECT_EQ(enclosed(u"abcdef"_s, {{4, 2}, {0, 2}}, u"*"), u"*ab*cd*ef*"_s);
}

TEST(EncloseRanges, PutsTheStringTwiceAtAnEmptyRange)
{
    EXPECT_EQ(enclosed(u"abcdef"_s, {{3, 0}}, u"**"), u"abc****def"_s);
    EXPECT_EQ(enclosed(u""_s, {{0, 0}}, u"<>"), u"<><>"_s);
}

TEST(EncloseRanges, CountsUnitsThatTheInnerInsertionsHaveMoved)
{
    EXPECT_EQ(enclosed(u"abcd"_s, {{0, 4}, {1, 2}}, u"*"), u"*a*bc**d"_s);
}

TEST(EncloseRanges, LeavesTheTextAloneForAnEmptyList)
{
    EXPECT_EQ(enclosed(u"abc"_s, {}, u"*"), u"abc"_s);
    EXPECT_EQ(enclosed(u""_s, {}, u"*"), u""_s);
}

TEST(EncloseRanges, LeavesTheTextAloneForAnEmptyString)
{
    EXPECT_EQ(enclosed(u"abc"_s, {{0, 2}, {1, 2}}, u""), u"abc"_s);
}

TEST(EncloseRanges, EnclosesRangesThatTouch)
{
    EXPECT_EQ(enclosed(u"abcd"_s, {{0, 2}, {2, 2}}, u"*"), u"*ab**cd*"_s);
}

TEST(EncloseRanges, EnclosesTheLaterOfTwoRangesAtOneLocationFirst)
{
    EXPECT_EQ(enclosed(u"abcd"_s, {{1, 1}, {1, 2}}, u"-+"), u"a-+--++bc-+d"_s);
    EXPECT_EQ(enclosed(u"abcd"_s, {{1, 2}, {1, 1}}, u"-+"), u"a-+-+-+b-+cd"_s);
}

TEST(EncloseRanges, ChangesNothingWhenTheHighestRangeLiesPastTheEnd)
{
    for (const Range range : {Range{5, 0}, Range{3, 2}, Range{3, largest}, Range{largest, largest}}) {
        QString text = u"abcd"_s;
        EXPECT_TRUE(throwsRangeException(
            [&] {
                encloseRanges(text, {{0, 1}, range}, u"*");
            },
            "encloseRanges", range, 4));
        EXPECT_EQ(text, u"abcd"_s);
    }
}

TEST(EncloseRanges, KeepsTheInsertionsMadeBeforeARangePastTheEnd)
{
    QString text = u"abcdef"_s;
    EXPECT_TRUE(throwsRangeException(
        [&] {
            encloseRanges(text, {{0, 1}, {1, 99}, {2, 1}, {4, 1}}, u"*");
        },
        "encloseRanges", {1, 99}, 10));
    EXPECT_EQ(text, u"ab*c*d*e*f"_s);
}

TEST(EncloseRanges, AcceptsARangeThatFitsBecauseOfEarlierInsertions)
{
    EXPECT_EQ(enclosed(u"abcd"_s, {{0, 6}, {1, 2}}, u"*"), u"*a*bc*d*"_s);
}

TEST(AddAttributesInRanges, AddsToEveryRange)
{
    AttributedString text = styled(u"abcdefgh"_s, u"11223344");
    addAttributes(text, newStyle, {{5, 2}, {0, 1}, {3, 0}});
    EXPECT_EQ(stylesOf(text), u"x1223xx4"_s);
}

TEST(AddAttributesInRanges, KeepsTheOtherAttributes)
{
    AttributedString text(u"abc"_s, {{u"weight"_s, u"bold"_s}});
    addAttributes(text, newStyle, {{1, 1}});
    EXPECT_EQ(text.attributesAtIndex(0), (QVariantMap{{u"weight"_s, u"bold"_s}}));
    EXPECT_EQ(text.attributesAtIndex(1), (QVariantMap{{u"weight"_s, u"bold"_s}, {styleName, u"x"_s}}));
}

TEST(AddAttributesInRanges, TakesOverlappingAndRepeatedRanges)
{
    AttributedString text = styled(u"abcdefgh"_s, u"11223344");
    addAttributes(text, newStyle, {{4, 2}, {1, 4}, {2, 1}, {4, 2}, {1, 2}});
    EXPECT_EQ(stylesOf(text), u"1xxxxx44"_s);
}

TEST(AddAttributesInRanges, ChangesNothingForAnEmptyList)
{
    AttributedString text = styled(u"ab"_s, u"12");
    addAttributes(text, newStyle, {});
    EXPECT_EQ(text, styled(u"ab"_s, u"12"));
}

TEST(AddAttributesInRanges, KeepsTheChangesMadeBeforeARangePastTheEnd)
{
    for (const Range range : {Range{2, 99}, Range{2, largest}}) {
        AttributedString text = styled(u"abcdef"_s, u"112233");
        EXPECT_TRUE(throwsRangeException(
            [&] {
                addAttributes(text, newStyle, {{0, 1}, range, {5, 1}, {3, 1}});
            },
            "addAttributes", range, 6));
        EXPECT_EQ(stylesOf(text), u"112x3x"_s);
    }
}

TEST(AddAttributesInRanges, ChangesNothingWhenTheHighestRangeLiesPastTheEnd)
{
    AttributedString text = styled(u"abc"_s, u"123");
    EXPECT_TRUE(throwsRangeException(
        [&] {
            addAttributes(text, newStyle, {{0, 1}, {4, 0}});
        },
        "addAttributes", {4, 0}, 3));
    EXPECT_EQ(stylesOf(text), u"123"_s);
}

TEST(RemoveAttributeInRanges, RemovesFromEveryRange)
{
    AttributedString text = styled(u"abcdefgh"_s, u"11223344");
    removeAttribute(text, styleName, {{5, 2}, {0, 1}, {3, 0}});
    EXPECT_EQ(stylesOf(text), u".1223..4"_s);
}

TEST(RemoveAttributeInRanges, KeepsTheOtherAttributes)
{
    AttributedString text(u"ab"_s, {{u"weight"_s, u"bold"_s}, {styleName, u"x"_s}});
    removeAttribute(text, styleName, {{0, 2}});
    EXPECT_EQ(text, AttributedString(u"ab"_s, {{u"weight"_s, u"bold"_s}}));
}

TEST(RemoveAttributeInRanges, TakesOverlappingAndRepeatedRanges)
{
    AttributedString text = styled(u"abcdefgh"_s, u"11223344");
    removeAttribute(text, styleName, {{4, 2}, {1, 4}, {2, 1}, {4, 2}});
    EXPECT_EQ(stylesOf(text), u"1.....44"_s);
}

TEST(RemoveAttributeInRanges, ChangesNothingForAnEmptyList)
{
    AttributedString text = styled(u"ab"_s, u"12");
    removeAttribute(text, styleName, {});
    EXPECT_EQ(text, styled(u"ab"_s, u"12"));
}

TEST(RemoveAttributeInRanges, KeepsTheChangesMadeBeforeARangePastTheEnd)
{
    for (const Range range : {Range{2, 99}, Range{2, largest}}) {
        AttributedString text = styled(u"abcdef"_s, u"112233");
        EXPECT_TRUE(throwsRangeException(
            [&] {
                removeAttribute(text, styleName, {{0, 1}, range, {5, 1}, {3, 1}});
            },
            "removeAttribute", range, 6));
        EXPECT_EQ(stylesOf(text), u"112.3."_s);
    }
}

TEST(RangesForAttribute, OfAnEmptyTextAreNone)
{
    EXPECT_EQ(rangesForAttribute(AttributedString(), styleName, u"V"_s), RangeList());
}

TEST(RangesForAttribute, AreTheWholeLinesOfMatchingRuns)
{
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo\n"_s, u".VV..V.."), styleName, u"V"_s), (RangeList{{0, 4}, {4, 4}}));
}

TEST(RangesForAttribute, HoldALineOnceForEachOfItsSeparateRuns)
{
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo\n"_s, u"VxV....."), styleName, u"V"_s), (RangeList{{0, 4}, {0, 4}}));
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo\n"_s, u"V.V....."), styleName, u"V"_s), (RangeList{{0, 4}, {0, 4}}));
}

TEST(RangesForAttribute, EndAtTheTextsEndOnALastLineWithoutTerminator)
{
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo"_s, u".....V."), styleName, u"V"_s), (RangeList{{4, 3}}));
}

TEST(RangesForAttribute, HoldEveryLineOfARunOverSeveralLines)
{
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo\nsix\n"_s, u"..VVVVVVV..."), styleName, u"V"_s),
              (RangeList{{0, 4}, {4, 4}, {8, 4}}));
}

TEST(RangesForAttribute, LeaveOutTheLineThatBeginsAtTheEndOfARun)
{
    EXPECT_EQ(rangesForAttribute(styled(u"one\ntwo\n"_s, u"..VV...."), styleName, u"V"_s), (RangeList{{0, 4}}));
}

TEST(RangesForAttribute, HoldTheLinesOfNeighbouringRunsWithEqualValuesOnce)
{
    AttributedString text = styled(u"one\ntwo\n"_s, u"VVVVVVVV");
    text.addAttributes({{u"weight"_s, u"bold"_s}}, {1, 1});
    text.addAttributes({{u"weight"_s, u"bold"_s}}, {5, 2});
    EXPECT_EQ(rangesForAttribute(text, styleName, u"V"_s), (RangeList{{0, 4}, {4, 4}}));
}

TEST(RangesForAttribute, KnowSixTerminators)
{
    for (const QString &terminator : support::lineTerminators) {
        const QString units = u"ab"_s + terminator + u"cd"_s + terminator;
        const std::size_t lineLength = 2 + static_cast<std::size_t>(terminator.size());
        EXPECT_EQ(rangesForAttribute(AttributedString(units, {{styleName, u"V"_s}}), styleName, u"V"_s),
                  (RangeList{{0, lineLength}, {lineLength, lineLength}}));
    }
}

TEST(RangesForAttribute, KeepCarriageReturnLineFeedTogetherWhereARunBoundarySplitsThem)
{
    EXPECT_EQ(rangesForAttribute(styled(u"a\r\nb\n"_s, u"VV..."), styleName, u"V"_s), (RangeList{{0, 3}}));
    EXPECT_EQ(rangesForAttribute(styled(u"a\r\nb\n"_s, u"..V.."), styleName, u"V"_s), (RangeList{{0, 3}}));
    EXPECT_EQ(rangesForAttribute(styled(u"a\r\nb\n"_s, u"..VV."), styleName, u"V"_s), (RangeList{{0, 3}, {3, 2}}));
}

TEST(RangesForAttribute, MatchValuesUnitByUnit)
{
    EXPECT_EQ(rangesForAttribute(styled(u"a\nb\n"_s, u"v.V."), styleName, u"V"_s), (RangeList{{2, 2}}));
}

TEST(RangesForAttribute, MatchOnlyTheNamedAttribute)
{
    EXPECT_EQ(rangesForAttribute(styled(u"a\n"_s, u"VV"), u"Style"_s, u"V"_s), RangeList());
}

TEST(RangesForAttribute, NeverMatchAValueThatIsNoString)
{
    AttributedString text(u"a\nb\nc\nd\n"_s);
    text.addAttributes({{styleName, 1}}, {0, 2});
    text.addAttributes({{styleName, QByteArray("1")}}, {2, 2});
    text.addAttributes({{styleName, true}}, {4, 2});
    text.addAttributes({{styleName, QVariant()}}, {6, 2});
    EXPECT_EQ(rangesForAttribute(text, styleName, u"1"_s), RangeList());
    EXPECT_EQ(rangesForAttribute(text, styleName, u"true"_s), RangeList());
    EXPECT_EQ(rangesForAttribute(text, styleName, u""_s), RangeList());
}

TEST(RangesForAttribute, MatchAnEmptyStringButNoAbsentValue)
{
    AttributedString text(u"a\nb\n"_s);
    text.addAttributes({{styleName, u""_s}}, {2, 1});
    EXPECT_EQ(rangesForAttribute(text, styleName, u""_s), (RangeList{{2, 2}}));
}

} // namespace

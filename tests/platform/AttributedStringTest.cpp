#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/text/RangeLists.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::InvalidArgumentException;
using platform::Range;
using platform::RangeException;
using platform::RangeList;
using platform::TextEdits;
using support::styled;
using support::styleName;
using support::stylesOf;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();
const QVariantMap bold{{u"weight"_s, u"bold"_s}};
const QVariantMap italic{{u"slant"_s, u"italic"_s}};
const QVariantMap boldItalic{{u"weight"_s, u"bold"_s}, {u"slant"_s, u"italic"_s}};

/// The ranges of the runs from the first to the last.
RangeList runsOf(const AttributedString &text)
{
    RangeList runs;
    Range run;
    for (std::size_t index = 0; index < text.length(); index = run.end()) {
        text.attributesAtIndex(index, &run);
        runs.push_back(run);
    }
    return runs;
}

TEST(AttributedString, IsEmptyByDefault)
{
    const AttributedString text;
    EXPECT_EQ(text.string(), u""_s);
    EXPECT_EQ(text.length(), 0u);
}

TEST(AttributedString, CarriesTheGivenAttributesOnEveryUnit)
{
    const AttributedString text(u"abc"_s, bold);
    EXPECT_EQ(text.string(), u"abc"_s);
    EXPECT_EQ(text.length(), 3u);
    Range run;
    EXPECT_EQ(text.attributesAtIndex(2, &run), bold);
    EXPECT_EQ(run, (Range{0, 3}));
}

TEST(AttributedString, CountsUtf16Units)
{
    EXPECT_EQ(AttributedString(u"\U0001F600"_s).length(), 2u);
}

TEST(AttributedString, LeavesItsCopiesAloneWhenItChanges)
{
    AttributedString text = styled(u"abcd"_s, u"11..");
    const AttributedString original = styled(u"abcd"_s, u"11..");
    const std::vector<void (*)(AttributedString &)> changes{
        [](AttributedString &changed) {
            changed.addAttributes(bold, {1, 2});
        },
        [](AttributedString &changed) {
            changed.setAttributes(bold, {1, 2});
        },
        [](AttributedString &changed) {
            changed.removeAttribute(styleName, {0, 1});
        },
        [](AttributedString &changed) {
            changed.replaceCharacters({1, 2}, u"xyz");
        },
        [](AttributedString &changed) {
            edit(changed, {{{0, 1}, u""}});
        },
        [](AttributedString &changed) {
            changed.changeAttributes({{0, 1}}, [](QVariantMap &attributes) { attributes.clear(); });
        },
    };
    for (const auto change : changes) {
        AttributedString changed = text;
        change(changed);
        EXPECT_NE(changed, original);
        EXPECT_EQ(text, original);
    }
}

TEST(AttributedString, KeepsItsContentWhenTheOriginalOfACopyChanges)
{
    AttributedString text = styled(u"abcd"_s, u"11..");
    const AttributedString copy = text;
    text.setAttributes({}, {0, 4});
    text.replaceCharacters({0, 4}, u"");
    EXPECT_EQ(copy, styled(u"abcd"_s, u"11.."));
}

TEST(AttributedString, IsEqualWhenUnitsAndAttributesAre)
{
    AttributedString built = styled(u"abc"_s, u"1.1");
    built.addAttributes({{styleName, u"1"_s}}, {1, 1});
    EXPECT_EQ(built, AttributedString(u"abc"_s, {{styleName, u"1"_s}}));
    EXPECT_NE(built, AttributedString(u"abd"_s, {{styleName, u"1"_s}}));
    EXPECT_NE(built, styled(u"abc"_s, u"112"));
    EXPECT_NE(built, styled(u"abc"_s, u"11."));
}

TEST(AttributesAtIndex, AnswersTheRunAroundTheIndex)
{
    const AttributedString text = styled(u"aabbb.c"_s, u"11222.1");
    for (const auto &[index, run] : std::vector<std::pair<std::size_t, Range>>{
             {0, {0, 2}}, {1, {0, 2}}, {2, {2, 3}}, {4, {2, 3}}, {5, {5, 1}}, {6, {6, 1}}}) {
        Range effective;
        text.attributesAtIndex(index, &effective);
        EXPECT_EQ(effective, run) << index;
    }
    EXPECT_EQ(stylesOf(text), u"11222.1"_s);
}

TEST(AttributesAtIndex, IsEmptyForAUnitWithoutAttributes)
{
    Range run;
    EXPECT_EQ(AttributedString(u"ab"_s).attributesAtIndex(1, &run), QVariantMap());
    EXPECT_EQ(run, (Range{0, 2}));
}

TEST(AttributesAtIndex, NeedsNoPlaceForTheRange)
{
    EXPECT_EQ(AttributedString(u"ab"_s, bold).attributesAtIndex(1), bold);
}

TEST(AttributesAtIndex, ThrowsFromTheEndOfTheTextOn)
{
    const AttributedString text(u"ab"_s, bold);
    for (const std::size_t index : {std::size_t(2), largest}) {
        EXPECT_TRUE(throwsRangeException([&] { text.attributesAtIndex(index); }, "attributesAtIndex", {index, 1}, 2));
    }
    EXPECT_THROW(AttributedString().attributesAtIndex(0), RangeException);
}

TEST(Attribute, AnswersTheValueAtTheIndex)
{
    const AttributedString text = styled(u"abc"_s, u"12.");
    EXPECT_EQ(text.attribute(styleName, 0, nullptr, {0, 3}), QVariant(u"1"_s));
    EXPECT_EQ(text.attribute(styleName, 1, nullptr, {0, 3}), QVariant(u"2"_s));
    EXPECT_FALSE(text.attribute(styleName, 2, nullptr, {0, 3}).isValid());
    EXPECT_FALSE(text.attribute(u"colour"_s, 0, nullptr, {0, 3}).isValid());
}

TEST(Attribute, CountsNeighbouringRunsWithEqualValuesAsOne)
{
    AttributedString text = styled(u"abcdef"_s, u"211112");
    text.addAttributes(bold, {2, 1});
    text.addAttributes(italic, {3, 3});
    for (const std::size_t index : {1u, 2u, 3u, 4u}) {
        Range longest;
        EXPECT_EQ(text.attribute(styleName, index, &longest, {0, 6}), QVariant(u"1"_s));
        EXPECT_EQ(longest, (Range{1, 4})) << index;
    }
}

TEST(Attribute, CountsNeighbouringRunsThatLackItAsOne)
{
    AttributedString text = styled(u"abcdef"_s, u"1....1");
    text.addAttributes(bold, {2, 1});
    Range longest;
    EXPECT_FALSE(text.attribute(styleName, 3, &longest, {0, 6}).isValid());
    EXPECT_EQ(longest, (Range{1, 4}));
}

TEST(Attribute, LimitsTheLongestRange)
{
    const AttributedString text = styled(u"abcdef"_s, u"111112");
    Range longest;
    text.attribute(styleName, 2, &longest, {1, 3});
    EXPECT_EQ(longest, (Range{1, 3}));
    text.attribute(styleName, 2, &longest, {2, 4});
    EXPECT_EQ(longest, (Range{2, 3}));
    text.attribute(styleName, 2, &longest, {0, 3});
    EXPECT_EQ(longest, (Range{0, 3}));
}

TEST(Attribute, ThrowsForALimitPastTheEnd)
{
    const AttributedString text(u"abc"_s, bold);
    for (const Range limit : {Range{0, 4}, Range{1, largest}}) {
        EXPECT_TRUE(
            throwsRangeException([&] { text.attribute(u"weight"_s, 1, nullptr, limit); }, "attribute", limit, 3));
    }
    EXPECT_THROW(AttributedString().attribute(u"weight"_s, 0, nullptr, {0, 0}), RangeException);
}

TEST(Attribute, ThrowsForAnIndexOutsideTheLimit)
{
    const AttributedString text(u"abc"_s, bold);
    for (const auto &[index, limit] :
         std::vector<std::pair<std::size_t, Range>>{{0, {1, 2}}, {2, {0, 2}}, {3, {0, 3}}, {1, {1, 0}}}) {
        EXPECT_TRUE(
            throwsRangeException([&, at = index, within = limit] { text.attribute(u"weight"_s, at, nullptr, within); },
                                 "attribute", {index, 1}, 3));
    }
}

TEST(AddAttributesToARange, KeepsTheOthersAndReplacesValuesThatAreThere)
{
    AttributedString text(u"abc"_s, boldItalic);
    text.addAttributes({{u"weight"_s, u"light"_s}, {u"size"_s, 12}}, {1, 1});
    EXPECT_EQ(text.attributesAtIndex(0), boldItalic);
    EXPECT_EQ(text.attributesAtIndex(1),
              (QVariantMap{{u"weight"_s, u"light"_s}, {u"slant"_s, u"italic"_s}, {u"size"_s, 12}}));
    EXPECT_EQ(text.attributesAtIndex(2), boldItalic);
}

TEST(AddAttributesToARange, ReachesOverSeveralRuns)
{
    AttributedString text = styled(u"abcdef"_s, u"112233");
    text.addAttributes(bold, {1, 4});
    EXPECT_EQ(stylesOf(text), u"112233"_s);
    EXPECT_EQ(runsOf(text), (RangeList{{0, 1}, {1, 1}, {2, 2}, {4, 1}, {5, 1}}));
}

TEST(AddAttributesToARange, MergesWithEqualNeighbours)
{
    AttributedString text = styled(u"abcdef"_s, u"11..11");
    text.addAttributes({{styleName, u"1"_s}}, {2, 2});
    EXPECT_EQ(runsOf(text), (RangeList{{0, 6}}));
}

TEST(AddAttributesToARange, DoesNothingForAnEmptyRange)
{
    AttributedString text = styled(u"ab"_s, u"12");
    for (const std::size_t location : {0u, 1u, 2u}) {
        text.addAttributes(bold, {location, 0});
        EXPECT_EQ(text, styled(u"ab"_s, u"12"));
    }
}

TEST(SetAttributes, ReplacesAllAttributesOfTheRange)
{
    AttributedString text(u"abc"_s, boldItalic);
    text.setAttributes({{u"size"_s, 12}}, {1, 2});
    EXPECT_EQ(text.attributesAtIndex(0), boldItalic);
    EXPECT_EQ(text.attributesAtIndex(1), (QVariantMap{{u"size"_s, 12}}));
    EXPECT_EQ(text.attributesAtIndex(2), (QVariantMap{{u"size"_s, 12}}));
}

TEST(SetAttributes, RemovesAllWhenGivenNone)
{
    AttributedString text(u"abc"_s, boldItalic);
    text.setAttributes({}, {0, 3});
    EXPECT_EQ(text, AttributedString(u"abc"_s));
}

TEST(SetAttributes, MergesTheRunsThatItMakesEqual)
{
    AttributedString text = styled(u"abcdef"_s, u"112233");
    text.setAttributes({{styleName, u"3"_s}}, {1, 3});
    EXPECT_EQ(stylesOf(text), u"133333"_s);
    EXPECT_EQ(runsOf(text), (RangeList{{0, 1}, {1, 5}}));
}

TEST(RemoveAttributeFromARange, TakesTheNamedOneAlone)
{
    AttributedString text(u"abc"_s, boldItalic);
    text.removeAttribute(u"weight"_s, {1, 1});
    EXPECT_EQ(text.attributesAtIndex(0), boldItalic);
    EXPECT_EQ(text.attributesAtIndex(1), italic);
    EXPECT_EQ(text.attributesAtIndex(2), boldItalic);
}

TEST(RemoveAttributeFromARange, LeavesUnitsThatLackItAsTheyAre)
{
    AttributedString text = styled(u"abcd"_s, u"1..2");
    text.removeAttribute(u"weight"_s, {0, 4});
    EXPECT_EQ(text, styled(u"abcd"_s, u"1..2"));
    EXPECT_EQ(runsOf(text), (RangeList{{0, 1}, {1, 2}, {3, 1}}));
}

TEST(RemoveAttributeFromARange, MergesTheRunsThatItMakesEqual)
{
    AttributedString text = styled(u"abcd"_s, u".12.");
    text.removeAttribute(styleName, {1, 2});
    EXPECT_EQ(runsOf(text), (RangeList{{0, 4}}));
}

TEST(ReplaceCharacters, GivesNewUnitsTheAttributesOfTheFirstUnitThatTheyReplace)
{
    AttributedString text = styled(u"abcd"_s, u"1234");
    text.replaceCharacters({1, 2}, u"xyz");
    EXPECT_EQ(text.string(), u"axyzd"_s);
    EXPECT_EQ(stylesOf(text), u"12224"_s);
}

TEST(ReplaceCharacters, GivesUnitsInsertedInTheMiddleTheAttributesOfTheUnitBefore)
{
    AttributedString text = styled(u"ab"_s, u"12");
    text.replaceCharacters({1, 0}, u"xy");
    EXPECT_EQ(text.string(), u"axyb"_s);
    EXPECT_EQ(stylesOf(text), u"1112"_s);
}

TEST(ReplaceCharacters, GivesUnitsInsertedAtTheVeryStartTheAttributesOfTheFirstUnit)
{
    AttributedString text = styled(u"ab"_s, u"12");
    text.replaceCharacters({0, 0}, u"xy");
    EXPECT_EQ(text.string(), u"xyab"_s);
    EXPECT_EQ(stylesOf(text), u"1112"_s);
}

TEST(ReplaceCharacters, GivesUnitsAppendedTheAttributesOfTheLastUnit)
{
    AttributedString text = styled(u"ab"_s, u"12");
    text.replaceCharacters({2, 0}, u"xy");
    EXPECT_EQ(text.string(), u"abxy"_s);
    EXPECT_EQ(stylesOf(text), u"1222"_s);
}

TEST(ReplaceCharacters, GivesUnitsOfAnEmptyTextNoAttributes)
{
    AttributedString text;
    text.replaceCharacters({0, 0}, u"xy");
    EXPECT_EQ(text, AttributedString(u"xy"_s));
}

TEST(ReplaceCharacters, DeletesWithTheAttributesAndMergesEqualNeighbours)
{
    AttributedString text = styled(u"abcd"_s, u"1231");
    text.replaceCharacters({1, 2}, u"");
    EXPECT_EQ(text.string(), u"ad"_s);
    EXPECT_EQ(runsOf(text), (RangeList{{0, 2}}));
}

TEST(ReplaceCharacters, MayEmptyTheText)
{
    AttributedString text = styled(u"abcd"_s, u"1231");
    text.replaceCharacters({0, 4}, u"");
    EXPECT_EQ(text, AttributedString());
}

TEST(ReplaceCharacters, TakesAViewOfTheTextItself)
{
    AttributedString text = styled(u"abcd"_s, u"1234");
    text.replaceCharacters({0, 1}, QStringView(text.string()).mid(2));
    EXPECT_EQ(text.string(), u"cdbcd"_s);
    text.replaceCharacters({0, 4}, QStringView(text.string()).mid(3));
    EXPECT_EQ(text.string(), u"cdd"_s);
}

TEST(ChangingOperations, ThrowForARangePastTheEndBeforeAnyChange)
{
    AttributedString text = styled(u"abc"_s, u"123");
    const AttributedString before = text;
    for (const Range range : {Range{2, 2}, Range{4, 0}, Range{1, largest}, Range{largest, 2}}) {
        EXPECT_TRUE(throwsRangeException([&] { text.addAttributes(bold, range); }, "addAttributes", range, 3));
        EXPECT_TRUE(throwsRangeException([&] { text.setAttributes(bold, range); }, "setAttributes", range, 3));
        EXPECT_TRUE(throwsRangeException([&] { text.removeAttribute(styleName, range); }, "removeAttribute", range, 3));
        EXPECT_TRUE(throwsRangeException([&] { text.replaceCharacters(range, u"x"); }, "replaceCharacters", range, 3));
        EXPECT_EQ(text, before);
    }
}

TEST(ChangeAttributes, ChangesEveryUnitOfEveryRange)
{
    AttributedString text = styled(u"abcdefgh"_s, u"11223344");
    text.changeAttributes({{1, 2}, {3, 0}, {5, 3}}, [](QVariantMap &attributes) {
        attributes[styleName] = QString(attributes.value(styleName).toString() == u"4"_s ? u'.' : u'x');
    });
    EXPECT_EQ(stylesOf(text), u"1xx23x.."_s);
}

TEST(ChangeAttributes, TreatsRangesThatTouchAsSeparate)
{
    AttributedString text(u"abcd"_s);
    text.changeAttributes({{0, 2}, {2, 2}}, [](QVariantMap &attributes) { attributes = bold; });
    EXPECT_EQ(text, AttributedString(u"abcd"_s, bold));
    EXPECT_EQ(runsOf(text), (RangeList{{0, 4}}));
}

TEST(ChangeAttributes, DoesNothingWithoutRanges)
{
    AttributedString text = styled(u"ab"_s, u"12");
    text.changeAttributes({}, [](QVariantMap &) { FAIL() << "nothing to change"; });
    EXPECT_EQ(text, styled(u"ab"_s, u"12"));
}

TEST(ChangeAttributes, ThrowsBeforeAnyChange)
{
    AttributedString text = styled(u"abcd"_s, u"1234");
    const AttributedString before = text;
    const auto clear = [](QVariantMap &attributes) {
        attributes.clear();
    };
    EXPECT_TRUE(throwsRangeException(
        [&] {
            text.changeAttributes({{0, 1}, {3, 2}}, clear);
        },
        "changeAttributes", {3, 2}, 4));
    EXPECT_THROW(text.changeAttributes({{0, 1}, {1, largest}}, clear), RangeException);
    EXPECT_THROW(text.changeAttributes({{0, 2}, {1, 2}}, clear), InvalidArgumentException);
    EXPECT_THROW(text.changeAttributes({{2, 1}, {0, 1}}, clear), InvalidArgumentException);
    EXPECT_EQ(text, before);
}

TEST(AttributeValues, KeepTheirTypesNextToValuesThatCompareEqual)
{
    AttributedString text(u"abcd"_s);
    text.addAttributes({{u"size"_s, 1}}, {0, 1});
    text.addAttributes({{u"size"_s, 1.0}}, {1, 1});
    text.addAttributes({{u"size"_s, u"1"_s}}, {2, 1});
    text.addAttributes({{u"size"_s, true}}, {3, 1});
    EXPECT_EQ(text.attributesAtIndex(0).value(u"size"_s).typeId(), QMetaType::Int);
    EXPECT_EQ(text.attributesAtIndex(1).value(u"size"_s).typeId(), QMetaType::Double);
    EXPECT_EQ(text.attributesAtIndex(2).value(u"size"_s).typeId(), QMetaType::QString);
    EXPECT_EQ(text.attributesAtIndex(3).value(u"size"_s).typeId(), QMetaType::Bool);
}

TEST(AttributeValues, TakeTheNewTypeWhenAnEqualValueReplacesThem)
{
    AttributedString text(u"abc"_s, {{u"size"_s, 1}});
    text.addAttributes({{u"size"_s, 1.0}}, {0, 3});
    EXPECT_EQ(text.attributesAtIndex(1).value(u"size"_s).typeId(), QMetaType::Double);
}

TEST(AttributeValues, KeepTheirTypesInsideListsAndMaps)
{
    AttributedString text(u"abcd"_s);
    text.addAttributes({{u"sizes"_s, QVariantList{1}}}, {0, 1});
    text.addAttributes({{u"sizes"_s, QVariantList{1.0}}}, {1, 1});
    text.addAttributes({{u"sizes"_s, QVariantMap{{u"x"_s, 1}}}}, {2, 1});
    text.addAttributes({{u"sizes"_s, QVariantMap{{u"x"_s, 1.0}}}}, {3, 1});
    const auto sizes = [&](std::size_t index) {
        return text.attributesAtIndex(index).value(u"sizes"_s);
    };
    EXPECT_EQ(sizes(0).toList().constFirst().typeId(), QMetaType::Int);
    EXPECT_EQ(sizes(1).toList().constFirst().typeId(), QMetaType::Double);
    EXPECT_EQ(sizes(2).toMap().first().typeId(), QMetaType::Int);
    EXPECT_EQ(sizes(3).toMap().first().typeId(), QMetaType::Double);
}

TEST(AttributeValues, DistinguishAnInvalidValueFromNone)
{
    AttributedString text(u"ab"_s);
    text.addAttributes({{u"size"_s, QVariant()}}, {0, 1});
    EXPECT_TRUE(text.attributesAtIndex(0).contains(u"size"_s));
    EXPECT_FALSE(text.attributesAtIndex(1).contains(u"size"_s));
}

/// Four million units in a million runs of four, every second one bold.
class LargeAttributedString : public testing::Test
{
protected:
    static constexpr std::size_t runLength = 4;
    static constexpr std::size_t runCount = 1'000'000;

    static AttributedString text()
    {
        AttributedString text(QString(runLength * runCount, u'a'));
        RangeList ranges;
        for (std::size_t run = 0; run < runCount; run += 2) {
            ranges.push_back({run * runLength, runLength});
        }
        KZMutableAttributedStringExportAdditions::addAttributes(text, bold, ranges);
        return text;
    }
};

TEST_F(LargeAttributedString, AnswersLookUpsInEveryRun)
{
    const AttributedString large = text();
    ASSERT_EQ(large.length(), runLength * runCount);
    for (std::size_t run = 0; run < runCount; ++run) {
        Range effective;
        const QVariantMap attributes = large.attributesAtIndex(run * runLength + run % runLength, &effective);
        ASSERT_EQ(attributes, run % 2 == 0 ? bold : QVariantMap());
        ASSERT_EQ(effective, (Range{run * runLength, runLength}));
    }
}

TEST_F(LargeAttributedString, FindsTheLongestRangeOfAnAttributeOverAllRuns)
{
    AttributedString large = text();
    large.addAttributes(italic, {0, large.length()});
    Range longest;
    EXPECT_EQ(large.attribute(u"slant"_s, large.length() / 2, &longest, {1, large.length() - 2}),
              QVariant(u"italic"_s));
    EXPECT_EQ(longest, (Range{1, large.length() - 2}));
}

TEST_F(LargeAttributedString, CarriesOutEditsInEveryTenRuns)
{
    // Of every ten runs: a unit gives way to two, a whole bold run goes with two units on either side, and a unit is
    // inserted behind a bold run.
    AttributedString large = text();
    constexpr std::size_t period = 10 * runLength;
    TextEdits edits;
    for (std::size_t start = 0; start < large.length(); start += period) {
        edits.replace({start + 4, 1}, u"xy");
        edits.remove({start + 6, 8});
        edits.insert(start + 20, u"z");
    }
    ASSERT_EQ(edits.size(), 300'000u);
    edit(large, edits);

    QString weights;
    Range run;
    for (std::size_t index = 0; index < large.length(); index = run.end()) {
        const bool isBold = large.attributesAtIndex(index, &run) == bold;
        weights += QString(static_cast<qsizetype>(run.length), isBold ? u'b' : u'.');
    }
    EXPECT_TRUE(large.string() == u"aaaaxyaaaaaaazaaaaaaaaaaaaaaaaaaaa"_s.repeated(100'000));
    EXPECT_TRUE(weights == u"bbbb.....bbbbb....bbbb....bbbb...."_s.repeated(100'000));
}

} // namespace

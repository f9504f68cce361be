#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <tests/support/BothTexts.h>
#include <tests/support/Printers.h>
#include <tests/support/RangeErrors.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::edit;
using platform::InvalidArgumentException;
using platform::Range;
using platform::requireEdits;
using platform::TextEdits;
using support::plain;
using support::styled;
using support::stylesOf;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();

template <typename Text>
struct Edit : testing::Test {
    /// What the edits make of a text.
    static QString edited(const QString &units, const TextEdits &edits)
    {
        Text text(units);
        edit(text, edits);
        return plain(text);
    }
};
TYPED_TEST_SUITE(Edit, support::BothTexts, support::TextNames);

TYPED_TEST(Edit, ReplacesInsertsAndDeletes)
{
    EXPECT_EQ(this->edited(u"a...b"_s, {{{1, 3}, u"\u2026"}}), u"a\u2026b"_s);
    EXPECT_EQ(this->edited(u"ab"_s, {{{1, 0}, u"123"}}), u"a123b"_s);
    EXPECT_EQ(this->edited(u"abc"_s, {{{1, 1}, u""}}), u"ac"_s);
}

TYPED_TEST(Edit, DoesNothingForAnEmptyList)
{
    EXPECT_EQ(this->edited(u"abc"_s, {}), u"abc"_s);
    EXPECT_EQ(this->edited(u""_s, {}), u""_s);
}

TYPED_TEST(Edit, DoesNothingForAnEditThatIsEmptyOnBothSides)
{
    EXPECT_EQ(this->edited(u"abc"_s, {{{1, 0}, u""}, {{3, 0}, u""}}), u"abc"_s);
}

TYPED_TEST(Edit, TakesEveryRangeInTheTextAsGiven)
{
    EXPECT_EQ(this->edited(u"0123456789"_s, {{{1, 2}, u"xyz"}, {{4, 3}, u""}, {{8, 1}, u"_"}}), u"0xyz37_9"_s);
}

TYPED_TEST(Edit, ReachesBothEndsOfTheText)
{
    EXPECT_EQ(this->edited(u"abc"_s, {{{0, 0}, u"<"}, {{3, 0}, u">"}}), u"<abc>"_s);
    EXPECT_EQ(this->edited(u"abc"_s, {{{0, 3}, u""}}), u""_s);
    EXPECT_EQ(this->edited(u"abc"_s, {{{0, 3}, u"longer"}}), u"longer"_s);
    EXPECT_EQ(this->edited(u""_s, {{{0, 0}, u"new"}}), u"new"_s);
}

TYPED_TEST(Edit, CarriesOutEditsThatMeetInTheOrderOfTheList)
{
    EXPECT_EQ(this->edited(u"ab"_s, {{{1, 0}, u"1"}, {{1, 0}, u"2"}, {{1, 1}, u"3"}, {{2, 0}, u"4"}}), u"a1234"_s);
}

TYPED_TEST(Edit, ShortensATextAlsoWhenAnEarlyEditIsLonger)
{
    EXPECT_EQ(this->edited(u"abcdefgh"_s, {{{0, 1}, u"123"}, {{2, 5}, u""}}), u"123bh"_s);
    EXPECT_EQ(this->edited(u"abcd"_s, {{{0, 0}, u"12"}, {{2, 2}, u""}}), u"12ab"_s);
}

TYPED_TEST(Edit, KeepsUnpairedSurrogatesAndNullUnits)
{
    const QString units = QString(QChar(0xD800)) + QChar(0) + u"a"_s + QChar(0xDC00);
    EXPECT_EQ(this->edited(units, {{{2, 1}, u""}}), QString(QChar(0xD800)) + QChar(0) + QChar(0xDC00));
}

TYPED_TEST(Edit, LeavesCopiesOfTheTextAlone)
{
    TypeParam text(u"abc"_s);
    const TypeParam copy = text;
    edit(text, {{{0, 1}, u""}});
    EXPECT_EQ(plain(text), u"bc"_s);
    EXPECT_EQ(plain(copy), u"abc"_s);
}

TYPED_TEST(Edit, ThrowsForARangePastTheEndBeforeAnyChange)
{
    TypeParam text(u"abc"_s);
    for (const Range range : {Range{3, 1}, Range{4, 0}, Range{2, largest}, Range{largest, 1}}) {
        const TextEdits edits{{{0, 1}, u"x"}, {range, u"y"}};
        EXPECT_TRUE(throwsRangeException([&] { edit(text, edits); }, "edit", range, 3));
        EXPECT_EQ(plain(text), u"abc"_s);
    }
}

TYPED_TEST(Edit, ThrowsForAListThatIsNotAscendingBeforeAnyChange)
{
    TypeParam text(u"abc"_s);
    EXPECT_THROW(edit(text, {{{2, 1}, u"x"}, {{0, 1}, u"y"}}), InvalidArgumentException);
    EXPECT_THROW(edit(text, {{{2, 0}, u"x"}, {{1, 0}, u"y"}}), InvalidArgumentException);
    EXPECT_EQ(plain(text), u"abc"_s);
}

TYPED_TEST(Edit, ThrowsForOverlappingEditsBeforeAnyChange)
{
    TypeParam text(u"abc"_s);
    EXPECT_THROW(edit(text, {{{0, 2}, u"x"}, {{1, 1}, u"y"}}), InvalidArgumentException);
    EXPECT_THROW(edit(text, {{{0, 2}, u"x"}, {{0, 2}, u"y"}}), InvalidArgumentException);
    EXPECT_THROW(edit(text, {{{0, 2}, u"x"}, {{1, 0}, u"y"}}), InvalidArgumentException);
    EXPECT_EQ(plain(text), u"abc"_s);
}

TYPED_TEST(Edit, CarriesOutAHundredThousandEditsOfEveryKind)
{
    constexpr std::size_t count = 100'000;
    QString units;
    QString expected;
    TextEdits edits;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t location = 4 * i;
        units += u"abcd"_s;
        switch (i % 4) {
        case 0:
            edits.remove({location + 1, 2});
            expected += u"ad"_s;
            break;
        case 1:
            edits.insert(location + 1, u"123");
            expected += u"a123bcd"_s;
            break;
        case 2:
            edits.replace({location, 4}, u"-");
            expected += u"-"_s;
            break;
        default:
            edits.replace({location + 3, 1}, u"D!");
            expected += u"abcD!"_s;
        }
    }
    EXPECT_TRUE(this->edited(units, edits) == expected);
}

TEST(EditPlainText, DoesNotWriteIntoALiteral)
{
    const auto shortened = [] {
        QString text = u"literal"_s;
        edit(text, {{{0, 3}, u""}});
        return text;
    };
    EXPECT_EQ(shortened(), u"eral"_s);
    EXPECT_EQ(shortened(), u"eral"_s);
}

TEST(EditAttributedText, GivesNewUnitsTheAttributesOfTheFirstUnitThatTheyReplace)
{
    AttributedString text = styled(u"abcd"_s, u"1234");
    edit(text, {{{1, 2}, u"xyz"}});
    EXPECT_EQ(text.string(), u"axyzd"_s);
    EXPECT_EQ(stylesOf(text), u"12224"_s);
}

TEST(EditAttributedText, GivesInsertedUnitsTheAttributesOfTheUnitBefore)
{
    AttributedString text = styled(u"abc"_s, u"123");
    edit(text, {{{1, 0}, u"x"}, {{2, 0}, u"y"}, {{3, 0}, u"z"}});
    EXPECT_EQ(text.string(), u"axbycz"_s);
    EXPECT_EQ(stylesOf(text), u"112233"_s);
}

TEST(EditAttributedText, GivesUnitsInsertedAtTheVeryStartTheAttributesOfTheFirstUnit)
{
    AttributedString text = styled(u"ab"_s, u"12");
    edit(text, {{{0, 0}, u"x"}, {{0, 0}, u"y"}});
    EXPECT_EQ(text.string(), u"xyab"_s);
    EXPECT_EQ(stylesOf(text), u"1112"_s);
}

TEST(EditAttributedText, TakesTheAttributesOfInsertedUnitsFromTheTextAsGiven)
{
    AttributedString text = styled(u"abc"_s, u"123");
    edit(text, {{{1, 1}, u""}, {{2, 0}, u"x"}});
    EXPECT_EQ(text.string(), u"axc"_s);
    EXPECT_EQ(stylesOf(text), u"123"_s);
}

TEST(EditAttributedText, SwallowsWholeRunsInADeletion)
{
    AttributedString text = styled(u"aabbccddee"_s, u"1122334455");
    edit(text, {{{1, 6}, u""}, {{8, 1}, u""}});
    EXPECT_EQ(text.string(), u"ade"_s);
    EXPECT_EQ(stylesOf(text), u"145"_s);
}

TEST(EditAttributedText, MergesEqualNeighboursThatADeletionBringsTogether)
{
    AttributedString text = styled(u"aabbaa"_s, u"112211");
    edit(text, {{{2, 2}, u""}});
    Range run;
    text.attributesAtIndex(0, &run);
    EXPECT_EQ(run, (Range{0, 4}));
}

TEST(EditAttributedText, LeavesNoAttributesBehindInAnEmptiedText)
{
    AttributedString text = styled(u"ab"_s, u"12");
    edit(text, {{{0, 2}, u""}});
    EXPECT_EQ(text, AttributedString());
    edit(text, {{{0, 0}, u"new"}});
    EXPECT_EQ(stylesOf(text), u"..."_s);
}

TEST(EditAttributedText, LeavesAnEmptyTextEqualToAnotherWhenItPutsNothingIn)
{
    AttributedString text;
    edit(text, {{{0, 0}, u""}});
    EXPECT_EQ(text, AttributedString());
}

TEST(EditAttributedText, KeepsTheAttributesWhenItThrows)
{
    AttributedString text = styled(u"abc"_s, u"123");
    const AttributedString before = text;
    EXPECT_THROW(edit(text, {{{0, 2}, u""}, {{3, 1}, u"x"}}), platform::RangeException);
    EXPECT_THROW(edit(text, {{{0, 2}, u""}, {{1, 1}, u"x"}}), InvalidArgumentException);
    EXPECT_EQ(text, before);
}

TEST(RequireEdits, AcceptsAscendingListsInsideTheText)
{
    EXPECT_NO_THROW(requireEdits({}, 0));
    EXPECT_NO_THROW(requireEdits({{{0, 0}, u"x"}}, 0));
    EXPECT_NO_THROW(requireEdits({{{0, 1}, u""}, {{1, 0}, u""}, {{1, 0}, u""}, {{1, 2}, u""}}, 3));
}

TEST(RequireEdits, ThrowsWhatEditThrows)
{
    EXPECT_THROW(requireEdits({{{0, 4}, u""}}, 3), platform::RangeException);
    EXPECT_THROW(requireEdits({{{1, largest}, u""}}, 3), platform::RangeException);
    EXPECT_THROW(requireEdits({{{1, 0}, u""}, {{0, 0}, u""}}, 3), InvalidArgumentException);
    EXPECT_THROW(requireEdits({{{0, 2}, u""}, {{1, 1}, u""}}, 3), InvalidArgumentException);
}

} // namespace

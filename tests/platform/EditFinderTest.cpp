#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <tests/support/BothTexts.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using platform::edit;
using platform::TextEdit;
using platform::TextEdits;
using support::plain;

namespace {

void findCommas(std::u16string_view text, TextEdits &edits)
{
    for (std::size_t at = text.find(u','); at != text.npos; at = text.find(u',', at + 1)) {
        edits.replace({at, 1}, u" and");
    }
}

const auto commasAtOnce = [](std::u16string_view text, TextEdits &edits) {
    findCommas(text, edits);
};

/// The same a part at a time, and says of which parts.
struct CommasInBlocks {
    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)
    {
        ++calls;
        for (std::size_t at = from; at < until; ++at) {
            if (text[at] == u',') {
                edits.replace({at, 1}, u" and");
            }
        }
        return until;
    }

    int calls = 0;
};

/// Finds two edits and then a range that does not fit.
const auto failing = [](std::u16string_view text, TextEdits &edits) {
    edits.replace({0, 1}, u"X");
    edits.remove({2, 1});
    throw platform::RangeException("failing", {text.size(), 1}, text.size());
};

/// Fails in the second block.
const auto failingInBlocks = [](std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) {
    edits.replace({from, 1}, u"[]");
    if (from > 0) {
        throw platform::RangeException("failing", {text.size(), 1}, text.size());
    }
    return until;
};

template <typename Text>
struct EditFinder : testing::Test {
};
TYPED_TEST_SUITE(EditFinder, support::BothTexts, support::TextNames);

TYPED_TEST(EditFinder, WhatAFunctionFindsIsCarriedOut)
{
    TypeParam text(u"a, b, c"_s);
    edit(text, commasAtOnce);
    EXPECT_EQ(plain(text), u"a and b and c"_s);
    CommasInBlocks inBlocks;
    TypeParam again(u"a, b, c"_s);
    edit(again, inBlocks);
    EXPECT_EQ(plain(again), u"a and b and c"_s);
    EXPECT_GE(inBlocks.calls, 1);
}

TYPED_TEST(EditFinder, ALongTextIsEditedLikeAShortOne)
{
    const QString units = u"0123456789,"_s.repeated(10'000);
    QString expected = units;
    expected.replace(u","_s, u" and"_s);
    TypeParam text(units);
    edit(text, CommasInBlocks());
    EXPECT_TRUE(plain(text) == expected);
    TypeParam again(units);
    edit(again, commasAtOnce);
    EXPECT_TRUE(plain(again) == expected);
}

TYPED_TEST(EditFinder, WhatWasFoundBeforeAFailureIsCarriedOut)
{
    TypeParam text(u"abcd"_s);
    EXPECT_THROW(edit(text, failing), platform::RangeException);
    EXPECT_EQ(plain(text), u"Xbd"_s);
}

TYPED_TEST(EditFinder, AnEmptyTextHasEditsToo)
{
    TypeParam text(u""_s);
    edit(text, [](std::u16string_view, TextEdits &edits) { edits.insert(0, u"new"); });
    EXPECT_EQ(plain(text), u"new"_s);
}

TEST(EditFinderOnPlainText, BlocksEditedBeforeAFailureStayEdited)
{
    QString text(40'000, u'a');
    EXPECT_THROW(edit(text, failingInBlocks), platform::RangeException);
    EXPECT_EQ(text.size(), 40'002);
    EXPECT_EQ(text.count(u"[]"_s), 2);
    EXPECT_EQ(text.count(u'a'), 39'998);
}

TEST(EditFinderOnACopy, LeavesTheTextAloneAndReturnsTheEditedOne)
{
    const QString text = u"a, b"_s;
    EXPECT_EQ(edit(QStringView(text), commasAtOnce), u"a and b"_s);
    EXPECT_EQ(edit(QStringView(text), CommasInBlocks()), u"a and b"_s);
    EXPECT_EQ(edit(QStringView(text), {{{1, 1}, u";"}}), u"a; b"_s);
    EXPECT_EQ(text, u"a, b"_s);
}

TEST(EditFinderOnACopy, CarriesOutOnceWhatIsFoundAtOnceInALongText)
{
    const QString units = u"0123456789,"_s.repeated(10'000);
    QString expected = units;
    expected.replace(u","_s, u" and"_s);
    EXPECT_TRUE(edit(QStringView(units), commasAtOnce) == expected);
}

TEST(EditFinderOnACopy, ThrowsForEditsThatDoNotSuitTheText)
{
    EXPECT_THROW(static_cast<void>(edit(QStringView(u"abc"), {{{2, 2}, u""}})), platform::RangeException);
    EXPECT_THROW(static_cast<void>(edit(QStringView(u"abc"), failing)), platform::RangeException);
}

TEST(TextEdits, KeepsAReplacementThatWouldBeGone)
{
    TextEdits edits;
    for (int number = 0; number < 100; ++number) {
        const auto at = static_cast<std::size_t>(number);
        edits.replace({at, 1}, u"a rather long replacement, number "_s + QString::number(number) + u';');
    }
    edits.insert(100, u"the "_s + u"end"_s);
    const TextEdits copy = edits;
    edits.clear();
    QString text(100, u'-');
    edit(text, copy);
    EXPECT_TRUE(text.startsWith(u"a rather long replacement, number 0;a rather"_s));
    EXPECT_TRUE(text.endsWith(u"number 99;the end"_s));
    EXPECT_TRUE(edits.empty());
}

template <typename String>
concept CanBeViewed = requires(String &&string)
{
    platform::units(std::forward<String>(string));
};

TEST(TextEdits, TextThatWouldBeGoneIsRefusedByTheCompiler)
{
    static_assert(!std::is_constructible_v<TextEdit, platform::Range, QString>);
    static_assert(!std::is_constructible_v<TextEdit, platform::Range, std::u16string>);
    static_assert(std::is_constructible_v<TextEdit, platform::Range, std::u16string &>);
    static_assert(std::is_constructible_v<TextEdit, platform::Range, const char16_t *>);
    static_assert(!CanBeViewed<QString>);
    static_assert(CanBeViewed<QString &>);
    static_assert(CanBeViewed<const QString &>);
    static_assert(CanBeViewed<QStringView>);
}

} // namespace

#include <tests/reference/Generators.h>
#include <tests/reference/PropertyTesting.h>
#include <tests/reference/RangeLists.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/RangeLists.h>

#include <gtest/gtest.h>

using platform::AttributedString;
using platform::RangeList;
using property::asLibrary;
using property::forEachCase;
using property::outcome;
using property::printed;
using property::Random;
using reference::NaiveAttributedString;

namespace {

const property::Pieces &pieces()
{
    static const property::Pieces result{u"a", u"b", u"c", u"\n", u" "};
    return result;
}

} // namespace

TEST(RangeListsProperty, AscendingSortedRanges)
{
    forEachCase([](Random &random) {
        const RangeList ranges = property::randomRanges(random, random.between(0, 60));

        EXPECT_EQ(KZArrayExportAdditions::ascendingSortedRanges(ranges), reference::ascendingSortedRanges(ranges))
            << "ranges " << printed(ranges);
    });
}

TEST(RangeListsProperty, DeleteCharactersInRanges)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, pieces());
        const RangeList ranges = property::randomRanges(random, text.size());

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) { KZMutableStringExportAdditions::deleteCharactersInRanges(t, ranges); }),
                  outcome(text, [&](std::u16string &t) { reference::deleteCharactersInRanges(t, ranges); }))
            << "text " << printed(text) << "\nranges " << printed(ranges);
    });
}

TEST(RangeListsProperty, DeleteCharactersInRangesOfAttributedText)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, pieces());
        const RangeList ranges = property::randomRanges(random, text.units.size());

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::deleteCharactersInRanges(t, ranges);
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::deleteCharactersInRanges(t, ranges); }))
            << "text " << printed(text) << "\nranges " << printed(ranges);
    });
}

TEST(RangeListsProperty, EncloseRanges)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, pieces());
        const RangeList ranges = property::randomRanges(random, text.size());
        const std::u16string string = property::randomString(random, {u"*", u"<", u"\U0001F600"}, 3);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](QString &t) {
                              KZMutableStringExportAdditions::encloseRanges(t, ranges, property::view(string));
                          }),
                  outcome(text, [&](std::u16string &t) { reference::encloseRanges(t, ranges, string); }))
            << "text " << printed(text) << "\nranges " << printed(ranges) << "\nstring " << printed(string);
    });
}

TEST(RangeListsProperty, AddAttributes)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, pieces());
        const RangeList ranges = property::randomRanges(random, text.units.size());
        const QVariantMap attributes = property::randomAttributes(random);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::addAttributes(t, attributes, ranges);
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::addAttributes(t, attributes, ranges); }))
            << "text " << printed(text) << "\nranges " << printed(ranges) << "\nattributes "
            << testing::PrintToString(attributes);
    });
}

TEST(RangeListsProperty, RemoveAttribute)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, pieces());
        const RangeList ranges = property::randomRanges(random, text.units.size());
        const QString name = property::randomAttributeName(random);

        EXPECT_EQ(outcome(asLibrary(text),
                          [&](AttributedString &t) {
                              KZMutableAttributedStringExportAdditions::removeAttribute(t, name, ranges);
                          }),
                  outcome(text, [&](NaiveAttributedString &t) { reference::removeAttribute(t, name, ranges); }))
            << "text " << printed(text) << "\nranges " << printed(ranges) << "\nname " << testing::PrintToString(name);
    });
}

TEST(RangeListsProperty, RangesForAttribute)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text =
            property::randomAttributedText(random, {u"a", u"\n", u"\r", u"\r\n", u"\u0085", u"\u2028", u"\u2029"});
        const QString name = property::randomAttributeName(random);
        const QString value = property::randomAttributeValue(random).toString();

        EXPECT_EQ(KZAttributedStringExportAdditions::rangesForAttribute(asLibrary(text), name, value),
                  reference::rangesForAttribute(text, name, value))
            << "text " << printed(text) << "\nname " << testing::PrintToString(name) << "\nvalue "
            << testing::PrintToString(value);
    });
}

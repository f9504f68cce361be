#include <tests/reference/Generators.h>
#include <tests/reference/NaiveAttributedString.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/TextEdits.h>

#include <gtest/gtest.h>

#include <functional>
#include <string>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;
using property::asLibrary;
using property::asReference;
using property::errorOf;
using property::forEachCase;
using property::Pieces;
using property::printed;
using property::Random;
using reference::Edit;
using reference::NaiveAttributedString;

namespace {

const Pieces &pieces()
{
    static const Pieces result{u"a", u"b", u"\n", u"\U0001F600"};
    return result;
}

/// One change of a text, for both sides.
struct Change {
    std::string description;
    std::function<void(AttributedString &)> ofLibrary;
    std::function<void(NaiveAttributedString &)> ofReference;
};

Change randomAddition(Random &random, std::size_t textLength)
{
    const QVariantMap attributes = property::randomAttributes(random);
    const Range range = property::randomRange(random, textLength);
    return {"addAttributes " + testing::PrintToString(attributes) + " to " + testing::PrintToString(range),
            [=](AttributedString &text) { text.addAttributes(attributes, range); },
            [=](NaiveAttributedString &text) {
                reference::addAttributes(text, attributes, range);
            }};
}

Change randomSetting(Random &random, std::size_t textLength)
{
    const QVariantMap attributes = property::randomAttributes(random);
    const Range range = property::randomRange(random, textLength);
    return {"setAttributes " + testing::PrintToString(attributes) + " of " + testing::PrintToString(range),
            [=](AttributedString &text) { text.setAttributes(attributes, range); },
            [=](NaiveAttributedString &text) {
                reference::setAttributes(text, attributes, range);
            }};
}

Change randomRemoval(Random &random, std::size_t textLength)
{
    const QString name = property::randomAttributeName(random);
    const Range range = property::randomRange(random, textLength);
    return {"removeAttribute " + testing::PrintToString(name) + " from " + testing::PrintToString(range),
            [=](AttributedString &text) { text.removeAttribute(name, range); },
            [=](NaiveAttributedString &text) {
                reference::removeAttribute(text, name, range);
            }};
}

Change randomReplacement(Random &random, std::size_t textLength)
{
    const Range range = property::randomRange(random, textLength);
    const std::u16string string = property::randomString(random, pieces(), 6);
    return {"replaceCharacters " + testing::PrintToString(range) + " by " + printed(string),
            [=](AttributedString &text) { text.replaceCharacters(range, property::view(string)); },
            [=](NaiveAttributedString &text) {
                reference::replaceCharactersInRange(text, range, string);
            }};
}

Change randomEditList(Random &random, std::size_t textLength)
{
    const std::vector<Edit> edits = property::randomEdits(random, textLength);
    return {"edit " + printed(edits), [=](AttributedString &text) { edit(text, property::asLibrary(edits)); },
            [=](NaiveAttributedString &text) {
                reference::applyEdits(text, edits);
            }};
}

Change randomChangeOfRanges(Random &random, std::size_t textLength)
{
    RangeList ranges;
    for (const Edit &edit : property::randomEdits(random, textLength)) {
        ranges.push_back(edit.range);
    }
    const auto swapStyleAndWeight = [](QVariantMap &attributes) {
        const QVariant style = attributes.take(u"style"_s);
        const QVariant weight = attributes.take(u"weight"_s);
        if (style.isValid()) {
            attributes.insert(u"weight"_s, style);
        }
        if (weight.isValid()) {
            attributes.insert(u"style"_s, weight);
        }
    };
    return {"changeAttributes in " + printed(ranges),
            [=](AttributedString &text) { text.changeAttributes(ranges, swapStyleAndWeight); },
            [=](NaiveAttributedString &text) {
                reference::requireAscendingRanges(ranges, text.units.size());
                for (const Range range : ranges) {
                    reference::changeAttributes(text, range, swapStyleAndWeight);
                }
            }};
}

Change randomChange(Random &random, std::size_t textLength)
{
    return random.oneOf({randomAddition, randomSetting, randomRemoval, randomReplacement, randomEditList,
                         randomChangeOfRanges})(random, textLength);
}

} // namespace

TEST(AttributedStringProperty, SequencesOfChanges)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString original = property::randomAttributedText(random, pieces());
        const AttributedString copy = asLibrary(original);
        NaiveAttributedString expected = original;
        AttributedString text = copy;
        for (std::size_t steps = random.between(1, 5); steps > 0; --steps) {
            const NaiveAttributedString before = expected;
            const Change change = randomChange(random, before.units.size());
            const std::string expectedError = errorOf([&] { change.ofReference(expected); });

            ASSERT_EQ(errorOf([&] { change.ofLibrary(text); }), expectedError) << "text " << printed(before) << '\n'
                                                                               << change.description;
            ASSERT_EQ(asReference(text), expected) << "text " << printed(before) << '\n' << change.description;
        }
        EXPECT_EQ(asReference(copy), original) << "the copy of " << printed(original) << " changed with the text";
    });
}

TEST(AttributedStringProperty, AttributesAtIndex)
{
    forEachCase([](Random &random) {
        NaiveAttributedString expected = property::randomAttributedText(random, pieces());
        AttributedString text = asLibrary(expected);
        const Change change = randomChange(random, expected.units.size());
        errorOf([&] { change.ofReference(expected); });
        errorOf([&] { change.ofLibrary(text); });
        const std::size_t index = property::randomRange(random, expected.units.size()).location;

        QVariantMap attributes;
        Range run;
        QVariantMap expectedAttributes;
        Range expectedRun;
        EXPECT_EQ(errorOf([&] { attributes = text.attributesAtIndex(index, &run); }),
                  errorOf([&] { expectedAttributes = reference::attributesAtIndex(expected, index, expectedRun); }))
            << "text " << printed(expected) << "\nindex " << index;
        EXPECT_EQ(attributes, expectedAttributes) << "text " << printed(expected) << "\nindex " << index;
        EXPECT_EQ(run, expectedRun) << "text " << printed(expected) << "\nindex " << index;
    });
}

TEST(AttributedStringProperty, Attribute)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString text = property::randomAttributedText(random, pieces());
        const QString name = property::randomAttributeName(random);
        const Range within = property::randomRange(random, text.units.size());
        const std::size_t index = random.chance(80) ? within.location + random.between(0, within.length / 2)
                                                    : property::randomRange(random, text.units.size()).location;

        QVariant value;
        Range longest;
        QVariant expectedValue;
        Range expectedLongest;
        EXPECT_EQ(errorOf([&] { value = asLibrary(text).attribute(name, index, &longest, within); }),
                  errorOf([&] { expectedValue = reference::attribute(text, name, index, expectedLongest, within); }))
            << "text " << printed(text) << "\nname " << testing::PrintToString(name) << "\nindex " << index
            << "\nwithin " << testing::PrintToString(within);
        EXPECT_EQ(value, expectedValue) << "text " << printed(text) << "\nname " << testing::PrintToString(name)
                                        << "\nindex " << index;
        EXPECT_EQ(longest, expectedLongest) << "text " << printed(text) << "\nname " << testing::PrintToString(name)
                                            << "\nindex " << index << "\nwithin " << testing::PrintToString(within);
    });
}

TEST(AttributedStringProperty, Equality)
{
    forEachCase([](Random &random) {
        const NaiveAttributedString a = property::randomAttributedText(random, pieces());
        NaiveAttributedString b = a;
        AttributedString changed = asLibrary(a);
        const Change change = randomChange(random, a.units.size());
        errorOf([&] { change.ofReference(b); });
        errorOf([&] { change.ofLibrary(changed); });

        EXPECT_EQ(asLibrary(a) == changed, a == b) << "text " << printed(a) << '\n' << change.description;
        EXPECT_TRUE(asLibrary(b) == changed) << "text " << printed(a) << '\n' << change.description;
    });
}

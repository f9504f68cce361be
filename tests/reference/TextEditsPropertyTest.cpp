#include <tests/reference/Generators.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/platform/TextUnits.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using property::asLibrary;
using property::asReference;
using property::forEachCase;
using property::outcome;
using property::Pieces;
using property::printed;
using property::Random;
using reference::Edit;

namespace {

const Pieces &pieces()
{
    static const Pieces result{u"a", u"b", u"\n", u"\U0001F600"};
    return result;
}

} // namespace

TEST(TextEditsProperty, Edit)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, pieces());
        const std::vector<Edit> edits = property::randomEdits(random, text.size());

        EXPECT_EQ(outcome(asLibrary(text), [&](QString &t) { platform::edit(t, asLibrary(edits)); }),
                  outcome(text, [&](std::u16string &t) { reference::applyEdits(t, edits); }))
            << "text " << printed(text) << "\nedits " << printed(edits);
    });
}

TEST(TextEditsProperty, EditLeavesSharedDataAlone)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, pieces());
        const std::vector<Edit> edits = property::randomEdits(random, text.size());
        const auto expected = outcome(text, [&](std::u16string &t) { reference::applyEdits(t, edits); });
        const QString original = random.chance(50)
                                     ? asLibrary(text)
                                     : QString::fromRawData(property::view(text).data(), property::view(text).size());

        EXPECT_EQ(outcome(original, [&](QString &t) { platform::edit(t, asLibrary(edits)); }), expected)
            << "text " << printed(text) << "\nedits " << printed(edits);
        EXPECT_EQ(asReference(original), text) << "edits " << printed(edits);
    });
}

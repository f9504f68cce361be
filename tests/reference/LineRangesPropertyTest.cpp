#include <tests/reference/Generators.h>
#include <tests/reference/PlainText.h>
#include <tests/reference/PropertyTesting.h>

#include <OrvaneExportKit/platform/LineRanges.h>

#include <gtest/gtest.h>

using platform::Range;
using property::errorOf;
using property::forEachCase;
using property::Pieces;
using property::printed;
using property::Random;

namespace {

const Pieces &linePieces()
{
    static const Pieces result{u"\n", u"\r",     u"\r\n",   u"\u0085", u"\u2028", u"\u2029", u"\u000B",
                               u"\f", u"\u0084", u"\u2027", u"a",      u"a",      u" "};
    return result;
}

} // namespace

TEST(LineRangesProperty, LineRangeForRange)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, linePieces());
        const Range range = property::randomRange(random, text.size());

        Range found;
        Range expected;
        EXPECT_EQ(errorOf([&] { found = platform::lineRangeForRange(text, range); }),
                  errorOf([&] { expected = reference::lineRangeForRange(text, range); }))
            << "text " << printed(text) << "\nrange " << testing::PrintToString(range);
        EXPECT_EQ(found, expected) << "text " << printed(text) << "\nrange " << testing::PrintToString(range);
    });
}

TEST(LineRangesProperty, LineEnd)
{
    forEachCase([](Random &random) {
        const std::u16string text = property::randomText(random, linePieces());
        const std::size_t index = random.between(0, text.size());

        EXPECT_EQ(platform::lineEnd(text, index), reference::lineRangeForRange(text, {index, 0}).end())
            << "text " << printed(text) << "\nindex " << index;
    });
}

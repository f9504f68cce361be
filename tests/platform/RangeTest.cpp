#include <OrvaneExportKit/platform/Range.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

using platform::Range;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();

TEST(Range, IsEmptyAtTheStartByDefault)
{
    constexpr Range range;
    EXPECT_EQ(range.location, 0u);
    EXPECT_EQ(range.length, 0u);
}

TEST(Range, EndsBehindItsLastUnit)
{
    EXPECT_EQ((Range{4, 3}.end()), 7u);
    EXPECT_EQ((Range{4, 0}.end()), 4u);
}

TEST(Range, IsEqualWhenLocationAndLengthAre)
{
    EXPECT_TRUE((Range{1, 2} == Range{1, 2}));
    EXPECT_FALSE((Range{1, 2} == Range{1, 3}));
    EXPECT_FALSE((Range{1, 2} == Range{0, 2}));
}

TEST(Range, FitsATextThatHoldsAllItsUnits)
{
    EXPECT_TRUE((Range{0, 5}.fits(5)));
    EXPECT_TRUE((Range{4, 1}.fits(5)));
    EXPECT_FALSE((Range{4, 2}.fits(5)));
    EXPECT_FALSE((Range{5, 1}.fits(5)));
}

TEST(Range, FitsAsAnEmptyRangeUpToTheEndOfTheText)
{
    EXPECT_TRUE((Range{5, 0}.fits(5)));
    EXPECT_TRUE((Range{0, 0}.fits(0)));
    EXPECT_FALSE((Range{6, 0}.fits(5)));
    EXPECT_FALSE((Range{1, 0}.fits(0)));
}

TEST(Range, DoesNotFitWhenItsEndOverflows)
{
    EXPECT_FALSE((Range{1, largest}.fits(5)));
    EXPECT_FALSE((Range{3, largest - 2}.fits(5)));
    EXPECT_FALSE((Range{largest, 1}.fits(5)));
    EXPECT_FALSE((Range{largest, largest}.fits(5)));
    EXPECT_FALSE((Range{platform::notFound, 0}.fits(5)));
}

TEST(Range, FitsTheLargestTextExactly)
{
    EXPECT_TRUE((Range{0, largest}.fits(largest)));
    EXPECT_TRUE((Range{largest, 0}.fits(largest)));
    EXPECT_FALSE((Range{1, largest}.fits(largest)));
}

TEST(Range, CanBeUsedInConstantExpressions)
{
    static_assert(Range{2, 3}.end() == 5);
    static_assert(Range{2, 3}.fits(5) && !Range{2, 3}.fits(4));
    static_assert(Range{2, 3} != Range{3, 2});
    SUCCEED();
}

TEST(NotFound, IsTheLargestSignedWord)
{
    EXPECT_EQ(platform::notFound, static_cast<std::size_t>(INTPTR_MAX));
}

} // namespace

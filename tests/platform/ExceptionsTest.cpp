#include <OrvaneExportKit/platform/Exceptions.h>
#include <tests/support/RangeErrors.h>

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>

using platform::Exception;
using platform::InvalidArgumentException;
using platform::RangeException;
using platform::requireIndex;
using platform::requireRange;
using support::throwsIndexException;
using support::throwsRangeException;

namespace {

constexpr std::size_t largest = std::numeric_limits<std::size_t>::max();

TEST(RangeException, KeepsTheRangeAndTheTextLength)
{
    const RangeException exception("cutUnits", {31, 47}, 52);
    EXPECT_EQ(exception.range(), (platform::Range{31, 47}));
    EXPECT_EQ(exception.textLength(), 52u);
}

TEST(RangeException, NamesOperationRangeAndTextLengthInItsText)
{
    const std::string text = RangeException("cutUnits", {31, 47}, 52).what();
    for (const char *part : {"cutUnits", "31", "47", "52"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part << " in: " << text;
    }
}

TEST(RangeException, WritesHugeNumbersInFull)
{
    const std::string text = RangeException("cutUnits", {largest, largest - 1}, 0).what();
    EXPECT_NE(text.find(std::to_string(largest)), std::string::npos) << text;
    EXPECT_NE(text.find(std::to_string(largest - 1)), std::string::npos) << text;
}

TEST(RangeException, KeepsItsContentWhenCopied)
{
    const RangeException original("cutUnits", {31, 47}, 52);
    RangeException copy("another", {0, 1}, 0);
    copy = original;
    EXPECT_STREQ(copy.what(), original.what());
    EXPECT_EQ(copy.range(), original.range());
    EXPECT_EQ(copy.textLength(), original.textLength());
}

TEST(RangeException, IsCaughtByEachOfItsBases)
{
    EXPECT_THROW(throw RangeException("cutUnits", {1, 2}, 2), Exception);
    EXPECT_THROW(throw RangeException("cutUnits", {1, 2}, 2), std::runtime_error);
}

TEST(InvalidArgumentException, KeepsItsTextAndIsCaughtByEachOfItsBases)
{
    EXPECT_STREQ(InvalidArgumentException("cutUnits: no mark").what(), "cutUnits: no mark");
    EXPECT_THROW(throw InvalidArgumentException("cutUnits: no mark"), Exception);
    EXPECT_THROW(throw InvalidArgumentException("cutUnits: no mark"), std::runtime_error);
}

TEST(InvalidArgumentException, IsNoRangeException)
{
    try {
        throw InvalidArgumentException("cutUnits: no mark");
    } catch (const RangeException &) {
        FAIL() << "caught as a RangeException";
    } catch (const InvalidArgumentException &exception) {
        EXPECT_STREQ(exception.what(), "cutUnits: no mark");
    }
}

TEST(RequireRange, AcceptsRangesInsideTheText)
{
    EXPECT_NO_THROW(requireRange("cutUnits", {0, 0}, 0));
    EXPECT_NO_THROW(requireRange("cutUnits", {0, 9}, 9));
    EXPECT_NO_THROW(requireRange("cutUnits", {9, 0}, 9));
}

TEST(RequireRange, ThrowsForRangesPastTheEnd)
{
    EXPECT_TRUE(throwsRangeException([] { requireRange("cutUnits", {8, 2}, 9); }, "cutUnits", {8, 2}, 9));
    EXPECT_TRUE(throwsRangeException([] { requireRange("cutUnits", {10, 0}, 9); }, "cutUnits", {10, 0}, 9));
}

TEST(RequireRange, ThrowsForRangesWhoseEndOverflows)
{
    EXPECT_TRUE(throwsRangeException([] { requireRange("cutUnits", {3, largest}, 9); }, "cutUnits", {3, largest}, 9));
    EXPECT_TRUE(throwsRangeException(
        [] {
            requireRange("cutUnits", {largest, largest}, 9);
        },
        "cutUnits", {largest, largest}, 9));
}

TEST(RequireIndex, AcceptsWhatTheListHolds)
{
    EXPECT_NO_THROW(requireIndex("takeElement", 0, 1));
    EXPECT_NO_THROW(requireIndex("takeElement", 8, 9));
}

TEST(RequireIndex, ThrowsOutsideTheListAndSpeaksOfAList)
{
    EXPECT_TRUE(throwsIndexException([] { requireIndex("takeElement", 0, 0); }, "takeElement", 0, 0));
    EXPECT_TRUE(throwsIndexException([] { requireIndex("takeElement", 9, 9); }, "takeElement", 9, 9));
    EXPECT_TRUE(throwsIndexException([] { requireIndex("takeElement", -1, 9); }, "takeElement", -1, 9));
}

} // namespace

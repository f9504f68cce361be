#pragma once

#include <OrvaneExportKit/platform/Exceptions.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <string>

namespace support {

/// Succeeds when `call` throws a `RangeException` with this range and text length, and when its text names the
/// operation, both numbers of the range and the text's length.
///
///     EXPECT_TRUE(throwsRangeException([&] { requireRange("take", {4, 2}, 5); }, "take", {4, 2}, 5));
template <typename Call>
testing::AssertionResult throwsRangeException(const Call &call, const std::string &operation, platform::Range range,
                                              std::size_t textLength)
{
    try {
        call();
    } catch (const platform::RangeException &exception) {
        if (exception.range() != range || exception.textLength() != textLength) {
            return testing::AssertionFailure()
                   << "threw range " << testing::PrintToString(exception.range()) << ", text length "
                   << exception.textLength() << ": " << exception.what();
        }
        const std::string text = exception.what();
        for (const std::string &part :
             {operation, std::to_string(range.location), std::to_string(range.length), std::to_string(textLength)}) {
            if (text.find(part) == std::string::npos) {
                return testing::AssertionFailure() << "\"" << text << "\" lacks \"" << part << "\"";
            }
        }
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "threw nothing";
}

/// The same for an index outside a list.
///
///     EXPECT_TRUE(throwsIndexException([&] { requireIndex("take", 5, 5); }, "take", 5, 5));
template <typename Call>
testing::AssertionResult throwsIndexException(const Call &call, const std::string &operation, std::ptrdiff_t index,
                                              std::size_t listLength)
{
    try {
        call();
    } catch (const platform::RangeException &exception) {
        const std::string expected = operation + ": the index " + std::to_string(index) + " lies outside a list of " +
                                     std::to_string(listLength);
        const platform::Range element{static_cast<std::size_t>(index), 1};
        if (exception.what() != expected || exception.range() != element || exception.textLength() != listLength) {
            return testing::AssertionFailure() << "threw range " << testing::PrintToString(exception.range())
                                               << ", length " << exception.textLength() << ": " << exception.what();
        }
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "threw nothing";
}

} // namespace support

#pragma once

#include <tests/reference/NaiveAttributedString.h>

#include <OrvaneExportKit/platform/Range.h>

#include <string_view>

/// \file
/// `Text` is a plain `std::u16string` or a `NaiveAttributedString`.

namespace reference {

platform::RangeList lineRangesForLevelString(std::u16string_view text, std::u16string_view levelString);

template <typename Text>
void deleteLevelMark(Text &text, std::u16string_view levelString);

void deleteParagraphMark(NaiveAttributedString &text, std::u16string_view mark, const platform::RangeList &ranges);

platform::RangeList rangesForStartTag(std::u16string_view text, std::u16string_view startTag,
                                      std::u16string_view stopTag);

} // namespace reference

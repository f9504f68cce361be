#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>

#include <string_view>

namespace platform {

/// Finds the stretches that deleting the paragraph mark from the ranges, last to first in the order given, takes out of
/// the text. Throws `RangeException` behind those that come before a range that does not fit.
void findParagraphMarks(std::u16string_view text, std::u16string_view mark, const RangeList &ranges, TextEdits &edits);

} // namespace platform

#pragma once

#include <OrvaneExportKit/text/FoundEdits.h>

#include <string_view>

namespace platform {

/// The stretches that deleting the paragraph mark from the ranges, last to first in the order given, takes out of the
/// text.
FoundEdits findParagraphMarkDeletions(std::u16string_view text, std::u16string_view mark, const RangeList &ranges);

} // namespace platform

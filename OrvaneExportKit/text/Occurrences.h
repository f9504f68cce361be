#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>

#include <string_view>

namespace platform {

/// The first place, not before `from`, at which `literal` stands in the text, unit by unit; `notFound` when there is
/// none. An empty literal is never found.
std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from);

/// The edits that put `replacement` in the place of every occurrence of `literal`, found from the left without overlap.
TextEdits findReplacements(std::u16string_view text, std::u16string_view literal, std::u16string_view replacement);

} // namespace platform

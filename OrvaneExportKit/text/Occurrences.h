#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>

#include <string_view>

namespace platform {

/// The first place, not before `from`, at which `literal` stands in the text, unit by unit; `notFound` when there is
/// none. An empty literal is never found.
std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from);

/// Finds the edits that put `replacement` in the place of every occurrence of `literal`, from the left without overlap.
struct Replacements {
    std::u16string_view literal;
    std::u16string_view replacement;

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) const;
};

} // namespace platform

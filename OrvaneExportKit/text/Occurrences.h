#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>

#include <string_view>

namespace platform {

/// Finds the edits that put `replacement` in the place of every occurrence of `literal`, from the left without overlap.
struct Replacements {
    std::u16string_view literal;
    std::u16string_view replacement;

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) const;
};

} // namespace platform

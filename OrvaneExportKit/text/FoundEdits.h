#pragma once

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEdits.h>

#include <optional>

namespace platform {

/// What was found for an operation that may fail on its way: the edits that take effect before it fails, all of them
/// when it does not, and the failure.
struct FoundEdits {
    TextEdits edits;
    std::optional<RangeException> failure;
};

/// Applies the edits to a text of either kind, then throws the failure if there is one.
template <typename Text>
void carryOut(Text &text, const FoundEdits &found)
{
    applyEdits(text, found.edits);
    if (found.failure) {
        throw RangeException(*found.failure);
    }
}

} // namespace platform

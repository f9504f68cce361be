#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEditor.h>

#include <optional>

namespace platform {

/// Makes the edits that `find` finds, as `editInBlocks` calls it.
template <typename Find>
void carryOutFound(QString &text, Find &&find)
{
    editInBlocks(text, find);
}

template <typename Find>
void carryOutFound(AttributedString &text, Find &&find)
{
    editAtOnce(text, find);
}

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

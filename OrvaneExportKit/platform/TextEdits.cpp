#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEditor.h>
#include <OrvaneExportKit/platform/TextUnits.h>

namespace platform {

namespace {

bool makesShorter(const TextEdit &edit)
{
    return edit.replacement.size() < edit.range.length;
}

/// Edits that make nothing shorter, made from the end of the text to its start: then no unit is moved twice.
void applyBackwards(QString &text, const TextEdits &edits, std::size_t growth)
{
    std::size_t position = units(text).size();
    const std::size_t size = position + growth;
    resizeExactly(text, size);
    auto *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *target = start + size;
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        target = std::copy_backward(start + edit->range.end(), start + position, target);
        target = std::copy_backward(edit->replacement.begin(), edit->replacement.end(), target);
        position = edit->range.location;
    }
}

} // namespace

void requireEdits(const TextEdits &edits, std::size_t textLength)
{
    std::size_t position = 0;
    for (const TextEdit &edit : edits) {
        requireRange("applyEdits", edit.range, textLength);
        if (edit.range.location < position) {
            throw InvalidArgumentException("applyEdits: the edit at " + std::to_string(edit.range.location) +
                                           " begins before the end of the one before it");
        }
        position = edit.range.end();
    }
}

void applyEdits(QString &text, const TextEdits &edits)
{
    if (edits.empty()) {
        return;
    }
    requireEdits(edits, units(text).size());
    const std::size_t growth = growthByEdits(edits);
    if (growth > 0 && std::none_of(edits.begin(), edits.end(), makesShorter)) {
        applyBackwards(text, edits, growth);
        return;
    }
    TextEditor editor(text, growth);
    editor.apply(edits, editor.given().size());
}

} // namespace platform

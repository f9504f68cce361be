#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEdits.h>
#include <OrvaneExportKit/platform/TextUnits.h>

#include <algorithm>

namespace platform {

namespace {

bool makesLonger(const TextEdit &edit)
{
    return edit.replacement.size() > edit.range.length;
}

std::size_t lengthAfterEdits(std::size_t length, const TextEdits &edits)
{
    for (const TextEdit &edit : edits) {
        length = length - edit.range.length + edit.replacement.size();
    }
    return length;
}

/// Writes the edited text to `target` and returns the end of what was written. `target` may be the text itself when
/// no edit makes it longer: what is written then never overtakes what is still to be read.
char16_t *writeEdited(char16_t *target, std::u16string_view text, const TextEdits &edits)
{
    std::size_t position = 0;
    for (const TextEdit &edit : edits) {
        target = std::copy(text.data() + position, text.data() + edit.range.location, target);
        target = std::copy(edit.replacement.begin(), edit.replacement.end(), target);
        position = edit.range.end();
    }
    return std::copy(text.data() + position, text.data() + text.size(), target);
}

char16_t *mutableUnits(QString &text)
{
    return reinterpret_cast<char16_t *>(text.data());
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
    if (text.isDetached() && std::none_of(edits.begin(), edits.end(), makesLonger)) {
        char16_t *const start = mutableUnits(text);
        text.truncate(writeEdited(start, units(text), edits) - start);
        return;
    }
    QString edited(static_cast<qsizetype>(lengthAfterEdits(units(text).size(), edits)), Qt::Uninitialized);
    writeEdited(mutableUnits(edited), units(text), edits);
    text.swap(edited);
}

} // namespace platform

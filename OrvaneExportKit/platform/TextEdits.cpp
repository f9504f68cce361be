#include <OrvaneExportKit/platform/TextEdits.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/TextEditor.h>

#include <algorithm>

namespace platform {

namespace {

bool makesShorter(const TextEdit &change)
{
    return change.replacement.size() < change.range.length;
}

/// Edits that make nothing shorter, made from the end of the text to its start: then no unit is moved twice.
void applyBackwards(QString &text, const TextEdits &edits, std::size_t growth)
{
    std::size_t position = units(text).size();
    const std::size_t size = position + growth;
    resizeExactly(text, size);
    auto *const start = reinterpret_cast<char16_t *>(text.data());
    char16_t *target = start + size;
    for (auto change = edits.rbegin(); change != edits.rend(); ++change) {
        target = std::copy_backward(start + change->range.end(), start + position, target);
        target = std::copy_backward(change->replacement.begin(), change->replacement.end(), target);
        position = change->range.location;
    }
}

/// Lets an editor carry out what the finder finds, a block at a time where it works in blocks.
template <typename Editor>
void runEditor(Editor &editor, const EditFinder &find)
{
    const std::size_t length = editor.given().size();
    TextEdits edits;
    for (bool atEnd = false; !atEnd;) {
        const std::size_t from = editor.position();
        const std::size_t until = find.worksInBlocks() ? std::min(length, from + unitsEditedAtOnce) : length;
        atEnd = until == length;
        edits.clear();
        std::size_t next = 0;
        try {
            next = find(editor.given(), from, until, edits);
        } catch (const RangeException &) {
            editor.apply(edits, edits.empty() ? from : edits.back().range.end());
            throw;
        }
        editor.apply(edits, next);
    }
}

/// Finds all before anything is changed.
template <typename Text>
void editAtOnce(Text &text, const EditFinder &find)
{
    TextEdits edits;
    const std::u16string_view given = units(text);
    try {
        find(given, 0, given.size(), edits);
    } catch (const RangeException &) {
        edit(text, edits);
        throw;
    }
    edit(text, edits);
}

} // namespace

void requireEdits(const TextEdits &edits, std::size_t textLength)
{
    std::size_t position = 0;
    for (const TextEdit &change : edits) {
        requireRange("edit", change.range, textLength);
        if (change.range.location < position) {
            throw InvalidArgumentException("edit: the edit at " + std::to_string(change.range.location) +
                                           " begins before the end of the one before it");
        }
        position = change.range.end();
    }
}

void edit(QString &text, const TextEdits &edits)
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

QString edit(QStringView text, const TextEdits &edits)
{
    requireEdits(edits, units(text).size());
    CopyEditor editor(units(text));
    editor.apply(edits, editor.given().size());
    return editor.takeCopy();
}

void edit(QString &text, Deletions deletions)
{
    TextEditor editor(text);
    editor.apply(deletions, editor.given().size());
}

void edit(QString &text, const EditFinder &find)
{
    if (!find.worksInBlocks()) {
        editAtOnce(text, find);
        return;
    }
    TextEditor editor(text);
    runEditor(editor, find);
}

void edit(AttributedString &text, const EditFinder &find)
{
    editAtOnce(text, find);
}

QString edit(QStringView text, const EditFinder &find)
{
    CopyEditor editor(units(text));
    runEditor(editor, find);
    return editor.takeCopy();
}

} // namespace platform

#include <OrvaneExportKit/platform/TextEditor.h>

#include <algorithm>

namespace platform {

namespace {

/// Moves the units to `target`, which is not behind `first`, and returns the end of where they stand now.
char16_t *moved(const char16_t *first, const char16_t *last, char16_t *target)
{
    return target == first ? target + (last - first) : std::copy(first, last, target);
}

/// Writes what takes the place of the range at `target` and returns its end. Most replacements are a single unit, for
/// which a call would cost more than the copy.
char16_t *writeReplacement(const TextEdit &change, char16_t *target)
{
    const std::u16string_view replacement = change.replacement;
    if (replacement.size() == 1) {
        *target = replacement.front();
        return target + 1;
    }
    return std::copy(replacement.begin(), replacement.end(), target);
}

char16_t *writeReplacement(const Range &, char16_t *target)
{
    return target;
}

/// Writes the units of `given` from `from` to before `next`, edited, at `target` and returns its end.
template <typename Edits>
char16_t *writeEdited(const char16_t *given, std::size_t from, std::size_t next, const Edits &edits, char16_t *target)
{
    for (const auto &change : edits) {
        target = writeReplacement(change, moved(given + from, given + rangeOf(change).location, target));
        from = rangeOf(change).end();
    }
    return moved(given + from, given + next, target);
}

/// How much longer the `rest` of a text becomes if it grows as the `length` units before it did, at most by its length.
std::size_t expectedGrowth(std::size_t growth, std::size_t length, std::size_t rest)
{
    const double ratio = static_cast<double>(growth) / static_cast<double>(std::max<std::size_t>(length, 1));
    return static_cast<std::size_t>(std::min(ratio, 1.0) * static_cast<double>(rest));
}

} // namespace

void resizeExactly(QString &text, std::size_t size)
{
    text.reserve(static_cast<qsizetype>(size));
    text.resize(static_cast<qsizetype>(size));
}

std::size_t growthByEdits(const TextEdits &edits)
{
    std::ptrdiff_t growth = 0;
    std::ptrdiff_t most = 0;
    for (const TextEdit &change : edits) {
        growth += static_cast<std::ptrdiff_t>(change.replacement.size() - change.range.length);
        most = std::max(most, growth);
    }
    return static_cast<std::size_t>(most);
}

TextEditor::TextEditor(QString &text, std::size_t growth) : m_text(text), m_length(units(text).size())
{
    if (growth > 0) {
        widenGap(growth);
    }
}

TextEditor::~TextEditor()
{
    apply(Deletions{{}}, m_length);
    m_text.truncate(static_cast<qsizetype>(m_done));
}

void TextEditor::apply(const TextEdits &edits, std::size_t next)
{
    makeRoom(growthByEdits(edits), next);
    write(edits, next);
}

void TextEditor::apply(Deletions deletions, std::size_t next)
{
    write(deletions, next);
}

template <typename Edits>
void TextEditor::write(const Edits &edits, std::size_t next)
{
    const bool hasGap = m_done != m_shift + m_position;
    if (edits.empty() && !hasGap) {
        m_done += next - m_position;
        m_position = next;
        return;
    }
    char16_t *const start = buffer();
    char16_t *const target = writeEdited(start + m_shift, m_position, next, edits, start + m_done);
    m_done = static_cast<std::size_t>(target - start);
    m_position = next;
}

/// Makes the gap wide enough for edits before `next`, and for the rest of the text if it grows likewise. It at least
/// doubles what was there, so that the text is moved only a few times however it grows.
void TextEditor::makeRoom(std::size_t growth, std::size_t next)
{
    const std::size_t gap = m_shift + m_position - m_done;
    if (growth > gap) {
        const std::size_t expected = expectedGrowth(growth, next - m_position, m_length - next);
        widenGap(growth - gap + (next == m_length ? 0 : std::max(expected, m_shift)));
    }
}

void TextEditor::widenGap(std::size_t growth)
{
    const std::size_t kept = units(m_text).size();
    resizeExactly(m_text, kept + growth);
    char16_t *const start = buffer();
    std::copy_backward(start + m_shift + m_position, start + kept, start + kept + growth);
    m_shift += growth;
}

void CopyEditor::apply(const TextEdits &edits, std::size_t next)
{
    const auto done = static_cast<std::size_t>(m_copy.size());
    std::size_t size = done + next - m_position;
    for (const TextEdit &change : edits) {
        size = size - change.range.length + change.replacement.size();
    }
    makeRoom(size, next);
    m_copy.resize(static_cast<qsizetype>(size));
    writeEdited(m_given.data(), m_position, next, edits, reinterpret_cast<char16_t *>(m_copy.data()) + done);
    m_position = next;
}

/// Makes room for `size` units up to `next`, and for the rest of the text if it grows likewise.
void CopyEditor::makeRoom(std::size_t size, std::size_t next)
{
    if (m_copy.capacity() < static_cast<qsizetype>(size)) {
        const std::size_t unedited = static_cast<std::size_t>(m_copy.size()) + next - m_position;
        const std::size_t rest = m_given.size() - next;
        const std::size_t growth = expectedGrowth(size - std::min(size, unedited), next - m_position, rest);
        const std::size_t whole = size + rest + growth;
        m_copy.reserve(static_cast<qsizetype>(whole));
    }
}

} // namespace platform

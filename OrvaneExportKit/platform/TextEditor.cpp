#include <OrvaneExportKit/platform/TextEditor.h>

namespace platform {

namespace {

/// Moves the units to `target`, which is not behind `first`, and returns the end of where they stand now.
char16_t *moved(const char16_t *first, const char16_t *last, char16_t *target)
{
    return target == first ? target + (last - first) : std::copy(first, last, target);
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
    for (const TextEdit &edit : edits) {
        growth += static_cast<std::ptrdiff_t>(edit.replacement.size() - edit.range.length);
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
    apply({}, m_length);
    m_text.truncate(static_cast<qsizetype>(m_done));
}

void TextEditor::apply(const TextEdits &edits, std::size_t next)
{
    const bool hasGap = m_done != m_shift + m_position;
    if (edits.empty() && !hasGap) {
        m_done += next - m_position;
        m_position = next;
        return;
    }
    makeRoom(growthByEdits(edits), next);
    char16_t *const start = buffer();
    const char16_t *source = start + m_shift + m_position;
    char16_t *target = start + m_done;
    for (const TextEdit &edit : edits) {
        target = moved(source, start + m_shift + edit.range.location, target);
        target = std::copy(edit.replacement.begin(), edit.replacement.end(), target);
        source = start + m_shift + edit.range.end();
    }
    m_done = static_cast<std::size_t>(moved(source, start + m_shift + next, target) - start);
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

void appendEdited(QString &copy, std::u16string_view text, std::size_t position, std::size_t next,
                  const TextEdits &edits)
{
    const auto done = static_cast<std::size_t>(copy.size());
    std::size_t size = done + next - position;
    for (const TextEdit &edit : edits) {
        size = size - edit.range.length + edit.replacement.size();
    }
    if (copy.capacity() < static_cast<qsizetype>(size)) {
        const std::size_t unedited = done + next - position;
        const std::size_t rest = text.size() - next;
        const std::size_t growth = expectedGrowth(size - std::min(size, unedited), next - position, rest);
        const std::size_t whole = size + rest + growth;
        copy.reserve(static_cast<qsizetype>(whole));
    }
    copy.resize(static_cast<qsizetype>(size));
    char16_t *target = reinterpret_cast<char16_t *>(copy.data()) + done;
    for (const TextEdit &edit : edits) {
        target = std::copy(text.data() + position, text.data() + edit.range.location, target);
        target = std::copy(edit.replacement.begin(), edit.replacement.end(), target);
        position = edit.range.end();
    }
    std::copy(text.data() + position, text.data() + next, target);
}

} // namespace platform

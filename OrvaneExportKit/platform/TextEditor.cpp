#include <OrvaneExportKit/platform/TextEditor.h>

namespace platform {

namespace {

/// Moves the units to `target`, which is not behind `first`, and returns the end of where they stand now.
char16_t *moved(const char16_t *first, const char16_t *last, char16_t *target)
{
    return target == first ? target + (last - first) : std::copy(first, last, target);
}

} // namespace

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
    if (growth <= gap) {
        return;
    }
    const std::size_t missing = growth - gap;
    if (next == m_length) {
        widenGap(missing);
        return;
    }
    const double rest = static_cast<double>(m_length - next) / static_cast<double>(next - m_position);
    const double expected = std::min(static_cast<double>(growth) * rest, static_cast<double>(m_length));
    widenGap(missing + std::max(static_cast<std::size_t>(expected), m_shift));
}

void TextEditor::widenGap(std::size_t growth)
{
    const std::size_t kept = units(m_text).size();
    const auto size = static_cast<qsizetype>(kept + growth);
    m_text.reserve(size); // exactly, where resizing alone would take more
    m_text.resize(size);
    char16_t *const start = buffer();
    std::copy_backward(start + m_shift + m_position, start + kept, start + kept + growth);
    m_shift += growth;
}

} // namespace platform

#pragma once

#include <OrvaneExportKit/platform/TextEdits.h>

namespace platform {

/// A list of edits that only deletes: ranges that are ascending, do not overlap and lie inside the text, which is not
/// checked.
struct Deletions {
    const RangeList &ranges;

    auto begin() const { return ranges.begin(); }
    auto end() const { return ranges.end(); }
    bool empty() const { return ranges.empty(); }
};

void edit(QString &text, Deletions deletions);
void edit(AttributedString &text, Deletions deletions);

/// What an edit of either list replaces.
inline const Range &rangeOf(const TextEdit &change)
{
    return change.range;
}

inline const Range &rangeOf(const Range &deleted)
{
    return deleted;
}

/// What it puts there.
inline std::u16string_view replacementOf(const TextEdit &change)
{
    return change.replacement;
}

inline std::u16string_view replacementOf(const Range &)
{
    return {};
}

/// Edits a text in place, from its start to its end. The buffer holds what is done at its front and what is still to
/// come at its back; the gap between them takes up what edits make longer. Its destructor closes the gap, so the text
/// is whole again, with the edits made so far, also when something throws on the way. A text that shares its storage is
/// copied by the first edit.
class TextEditor
{
public:
    /// Begins at the start of `text`. `growth` is how much longer than the units before them edited ones may become at
    /// any place, as far as that is known.
    explicit TextEditor(QString &text, std::size_t growth = 0);
    TextEditor(const TextEditor &) = delete;
    TextEditor &operator=(const TextEditor &) = delete;
    ~TextEditor();

    /// The text as it was given. Only the units from `position()` on may be read, and only until the next `apply`.
    std::u16string_view given() const { return {units(m_text).data() + m_shift, m_length}; }

    /// Up to where the text is done, in units of the text as given.
    std::size_t position() const { return m_position; }

    /// Makes the edits that lie between `position()` and `next`, which becomes the position.
    void apply(const TextEdits &edits, std::size_t next);

    /// The same for edits that only delete.
    void apply(Deletions deletions, std::size_t next);

private:
    template <typename Edits>
    void write(const Edits &edits, std::size_t next);
    char16_t *buffer() { return reinterpret_cast<char16_t *>(m_text.data()); }
    void makeRoom(std::size_t growth, std::size_t next);
    void widenGap(std::size_t growth);

    QString &m_text;
    std::size_t m_length;       // of the text as given
    std::size_t m_shift = 0;    // how far behind its first place each unit still to come stands
    std::size_t m_position = 0; // of the first unit still to come, in the text as given
    std::size_t m_done = 0;     // how many units at the front are done
};

/// Makes an edited copy of a text, from its start to its end.
class CopyEditor
{
public:
    explicit CopyEditor(std::u16string_view given) : m_given(given) {}

    std::u16string_view given() const { return m_given; }

    /// Up to where the text is copied, in units of the text as given.
    std::size_t position() const { return m_position; }

    /// Appends the units from `position()` to before `next`, which becomes the position, edited.
    void apply(const TextEdits &edits, std::size_t next);

    QString takeCopy() { return std::move(m_copy); }

private:
    void makeRoom(std::size_t size, std::size_t next);

    std::u16string_view m_given;
    std::size_t m_position = 0;
    QString m_copy;
};

/// How many units are searched before what was found in them is edited: few enough to be still in the cache.
#if defined(FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
inline constexpr std::size_t unitsEditedAtOnce = 64; // short inputs are to reach over the ends of blocks
#else
inline constexpr std::size_t unitsEditedAtOnce = 1 << 14;
#endif

/// Makes the text `size` units long and lets it take no more memory than that needs, as growing alone would.
void resizeExactly(QString &text, std::size_t size);

/// How much longer edits make what stands before any place, at most.
std::size_t growthByEdits(const TextEdits &edits);

} // namespace platform

#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Range.h>
#include <OrvaneExportKit/platform/TextUnits.h>

#include <QtCore/QString>

#include <concepts>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// \file
/// One verb changes text at many places: `edit(text, edits)`, or `edit(text, find)` with a function that finds the
/// edits. The cost is one pass however many places there are. It works on plain text, on attributed text, and on a
/// copy.
///
/// For use on any thread, with objects of its own.

namespace platform {

struct AttributedString;
class EditFinder;

/// A string that owns its units.
template <typename String>
concept GoneWithTheStatement = std::same_as<String, QString> || std::same_as<String, std::u16string>;

/// One replacement: the units of `range` give way to `replacement`. An empty range inserts, an empty replacement
/// deletes.
///
/// The replacement is not owned and has to outlive the call that carries out the edit, so that one which would be gone
/// at the end of the statement is refused by the compiler; `TextEdits::replace` keeps it instead.
struct TextEdit {
    /// Puts `by` in the place of the units of a range, or deletes them.
    TextEdit(Range replaced, std::u16string_view by = {}) noexcept : range(replaced), replacement(by) {}

    template <GoneWithTheStatement Temporary>
    TextEdit(Range, Temporary &&) = delete;

    Range range;                     ///< in units of the text before any edit of the list
    std::u16string_view replacement; ///< not owned
};

/// A list of edits: ascending and not overlapping, every range in the coordinates of the text as given. Edits that
/// meet at one position take effect in the order of the list.
///
///     TextEdits edits;
///     edits.replace({1, 3}, u"\u2026");
///     edits.insert(5, QString(3, u'-') + u"x"_s);   // keeps the text
class TextEdits
{
public:
    /// For loops over the edits, in their order.
    using const_iterator = std::vector<TextEdit>::const_iterator;

    /// An empty list.
    TextEdits() = default;

    /// The list of these edits.
    TextEdits(std::initializer_list<TextEdit> edits) : m_edits(edits) {}

    /// Appends an edit. A `QString` is kept, as one that shares its units; a view has to last until the list is carried
    /// out.
    void replace(Range range, std::u16string_view replacement) { m_edits.emplace_back(range, replacement); }
    void replace(Range range, const QString &replacement) { replace(range, kept(replacement)); }

    /// Appends an edit that inserts before the unit at `index`, or at the end of the text.
    void insert(std::size_t index, std::u16string_view inserted) { m_edits.emplace_back(Range{index, 0}, inserted); }
    void insert(std::size_t index, const QString &inserted) { insert(index, kept(inserted)); }

    /// Appends an edit that deletes the units of the range.
    void remove(Range range) { m_edits.emplace_back(range); }

    /// Makes room for so many edits in all.
    void reserve(std::size_t count) { m_edits.reserve(count); }

    /// Forgets all edits, and the texts that were kept for them.
    void clear()
    {
        m_edits.clear();
        m_texts.clear();
    }

    /// The edits, in their order; an index counts them from 0 and is below the size.
    bool empty() const noexcept { return m_edits.empty(); }
    std::size_t size() const noexcept { return m_edits.size(); }
    const TextEdit &operator[](std::size_t index) const { return m_edits[index]; }
    const TextEdit &back() const { return m_edits.back(); }
    const_iterator begin() const noexcept { return m_edits.begin(); }
    const_iterator end() const noexcept { return m_edits.end(); }
    auto rbegin() const noexcept { return m_edits.rbegin(); }
    auto rend() const noexcept { return m_edits.rend(); }

private:
    std::u16string_view kept(const QString &text)
    {
        m_texts.push_back(text);
        return units(m_texts.back());
    }

    std::vector<TextEdit> m_edits;
    std::vector<QString> m_texts; // what edits view; a string that is moved leaves its units where they are
};

/// A function object that finds all edits of a text.
template <typename Find>
concept FindsEdits = std::invocable<Find &, std::u16string_view, TextEdits &>;

/// A function object that finds the edits of a part of a text.
template <typename Find>
concept FindsEditsOfParts =
    !std::same_as<std::remove_cvref_t<Find>, EditFinder> &&
    std::is_invocable_r_v<std::size_t, Find &, std::u16string_view, std::size_t, std::size_t, TextEdits &>;

/// A function that finds the edits of a text, as a parameter of `edit`: it only refers to the function object. One of
///
/// - `void find(std::u16string_view text, TextEdits &edits)`, which appends all edits of the text;
/// - `std::size_t find(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)`, which appends
///   the edits that begin from `from` to before `until`, those at the very end of the text included, and returns from
///   where the next call goes on, `until` or behind it. It may look at units behind `until` but not at units before
///   `from`. Plain text is then edited a block at a time, while the block is in the processor's cache; other text gets
///   one call.
///
/// A finder that cannot go on throws a `RangeException`: what it has appended until then is carried out, and the
/// exception goes on to the caller of `edit`.
class EditFinder
{
public:
    /// Refers to a function object that finds all edits of a text.
    template <typename Find, std::enable_if_t<FindsEdits<Find>, int> = 0>
    EditFinder(Find &&find) noexcept
        : m_find(addressOf(find)),
          m_call([](void *called, std::u16string_view text, std::size_t, std::size_t, TextEdits &edits) {
              (*static_cast<std::remove_reference_t<Find> *>(called))(text, edits);
              return text.size();
          })
    {
    }

    /// Refers to a function object that finds the edits of a part of a text.
    template <typename Find, std::enable_if_t<FindsEditsOfParts<Find>, int> = 0>
    EditFinder(Find &&find) noexcept
        : m_find(addressOf(find)),
          m_call([](void *called, std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) {
              return (*static_cast<std::remove_reference_t<Find> *>(called))(text, from, until, edits);
          }),
          m_worksInBlocks(true)
    {
    }

    /// Whether it finds the edits of a part of a text as well.
    bool worksInBlocks() const noexcept { return m_worksInBlocks; }

    /// Calls the function. One that finds all edits takes no notice of `from` and `until`, and answers the length.
    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) const
    {
        return m_call(m_find, text, from, until, edits);
    }

private:
    template <typename Find>
    static void *addressOf(Find &find) noexcept
    {
        return const_cast<std::remove_const_t<Find> *>(std::addressof(find));
    }

    void *m_find;
    std::size_t (*m_call)(void *find, std::u16string_view, std::size_t, std::size_t, TextEdits &);
    bool m_worksInBlocks = false;
};

/// Carries out a whole list in one pass, in place. The storage of a text that becomes longer on the way grows once, by
/// just what is missing.
///
/// The replacements must not view `text` itself. Throws `RangeException` when an edit reaches past the end and
/// `InvalidArgumentException` when the list is not ascending or overlaps, both before anything is changed; throws
/// `std::bad_alloc` when the result does not fit into memory, leaving the text as it was.
///
///     QString text = u"a...b"_s;
///     edit(text, {{{1, 3}, u"\u2026"}});   // "a…b"
ORVANE_CORE_EXPORT void edit(QString &text, const TextEdits &edits);

/// The same on attributed text. New units take the attributes of the first unit that they replace; units put into an
/// empty range take those of the unit before it, at the very start those of the first unit (of the text before any
/// edit of the list).
ORVANE_CORE_EXPORT void edit(AttributedString &text, const TextEdits &edits);

/// The same into a copy, which is returned.
[[nodiscard]] ORVANE_CORE_EXPORT QString edit(QStringView text, const TextEdits &edits);

/// Carries out what `find` finds. A finder that works in blocks changes plain text a block at a time: it is trusted to
/// keep to the order and the text, and a `std::bad_alloc` may leave the first blocks edited. Anything else is done as
/// with a list.
///
///     edit(text, [](std::u16string_view units, TextEdits &edits) {
///         for (std::size_t at = units.find(u'\t'); at != units.npos; at = units.find(u'\t', at + 1)) {
///             edits.replace({at, 1}, u"    ");
///         }
///     });
ORVANE_CORE_EXPORT void edit(QString &text, const EditFinder &find);
ORVANE_CORE_EXPORT void edit(AttributedString &text, const EditFinder &find);

/// The same into a copy, which is returned. Nothing is when the finder throws.
[[nodiscard]] ORVANE_CORE_EXPORT QString edit(QStringView text, const EditFinder &find);

/// Throws what `edit` throws for a list that does not suit a text of `textLength` units.
ORVANE_CORE_EXPORT void requireEdits(const TextEdits &edits, std::size_t textLength);

} // namespace platform

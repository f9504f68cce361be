#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Range.h>

#include <QtCore/QString>

#include <string_view>
#include <vector>

/// \file
/// For use on any thread, with objects of its own.

namespace platform {

struct AttributedString;

/// One replacement: the units of `range` give way to `replacement`. An empty range inserts, an empty replacement
/// deletes.
struct TextEdit {
    Range range;                       ///< in units of the text before any edit of the list
    std::u16string_view replacement{}; ///< not owned; must outlive the call that applies the edit
};

/// A list of edits: ascending and not overlapping, every range in the coordinates of the text as given. Edits that
/// meet at one position take effect in the order of the list.
///
/// An operation that changes text at many places first finds its edit list and then applies it at once, so that its
/// cost is one pass however many places there are.
using TextEdits = std::vector<TextEdit>;

/// Carries out a whole edit list in one pass, in place. The storage of a text that becomes longer on the way grows
/// once, by just what is missing.
///
/// The replacements must not view `text` itself. Throws `RangeException` when an edit reaches past the end and
/// `InvalidArgumentException` when the list is not ascending or overlaps, both before anything is changed; throws
/// `std::bad_alloc` when the result does not fit into memory, leaving the text as it was.
///
///     QString text = u"a...b"_s;
///     applyEdits(text, {{{1, 3}, u"\u2026"}});   // "a…b"
ORVANE_CORE_EXPORT void applyEdits(QString &text, const TextEdits &edits);

/// Throws what `applyEdits` throws for a list that does not suit a text of `textLength` units.
ORVANE_CORE_EXPORT void requireEdits(const TextEdits &edits, std::size_t textLength);

/// The same on attributed text. New units take the attributes of the first unit that they replace; units put into an
/// empty range take those of the unit before it, at the very start those of the first unit (of the text before any
/// edit of the list).
ORVANE_CORE_EXPORT void applyEdits(AttributedString &text, const TextEdits &edits);

} // namespace platform

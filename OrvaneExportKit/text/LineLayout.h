#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Exceptions.h>

#include <QtCore/QString>

/// \file
/// The line layout that plain-text formats want: no leading tabs, no empty lines, no line beyond a limit.
/// Lengths and limits count UTF-16 code units.
///
/// For use on any thread, with objects of its own.

namespace KZMutableStringExportAdditions {

/// Replaces each tab (U+0009) in the unbroken run of tabs at the start of a line by `spaces` spaces; 0 removes them.
/// A line starts at index 0 and after U+000A. Tabs behind any other unit stay.
/// Throws `std::bad_alloc` when the result does not fit into memory.
///
///     QString text = u"\t\tA\n B\tC\n"_s;
///     convertStartTabsToSpace(text, 2);   // "    A\n B\tC\n"
ORVANE_CORE_EXPORT void convertStartTabsToSpace(QString &text, quint32 spaces);

/// Collapses every run of U+000A into a single one. A line that holds blanks or tabs is not empty, and U+000D U+000A
/// twice in a row is left alone.
///
///     QString text = u"A\n\n\nB\n"_s;
///     deleteEmptyLines(text);   // "A\nB\n"
ORVANE_CORE_EXPORT void deleteEmptyLines(QString &text);

/// Breaks every line that is longer than `limit` units by a line feed, behind the last break character among its
/// first `limit` units; spaces around the break vanish. The limit 4294967295 means no limit.
///
/// Break characters are the units up to U+002F except U+0022, U+0027 and U+0028 (the straight quotation marks and the
/// opening parenthesis), those from U+003A to U+0040, U+005C, U+005D and U+007C to U+007E. What follows a break is
/// looked at again as a line of its own. Three properties to know:
/// - A space right behind `limit` units is no place to break: at 3, "one two" becomes "o", "ne", "two".
/// - A line without a break character among its first `limit` units is broken behind its first unit.
/// - U+000D U+000A is two units, so a line that ends with it fits with one unit less.
///
/// Throws `platform::RangeException` when the text begins with a space and its first line is too long but has no break
/// character behind the leading spaces among its first `limit` units, for limit 0 always; it then only gets a line feed
/// appended. Throws `std::bad_alloc` when the result does not fit into memory, perhaps with the first lines broken.
///
///     QString text = u"well-known words here"_s;
///     setMaxLineLength(text, 8);   // "well-\nknown\nwords\nhere"
ORVANE_CORE_EXPORT void setMaxLineLength(QString &text, quint32 limit);

} // namespace KZMutableStringExportAdditions

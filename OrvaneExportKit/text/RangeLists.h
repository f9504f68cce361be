#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/Range.h>

/// \file
/// Range lists: sort them, cut, enclose or restyle the text at all their ranges, and find lines by an attribute.
///
/// All operations count UTF-16 code units. Those that change a text sort their list first (equal locations keep their
/// order) and take effect from the last range to the first, each range exactly as it stands: ranges are neither
/// merged nor clipped. A range that reaches past the end of the text, as it is when the range's turn comes, makes the
/// operation throw `platform::RangeException`; the ranges behind it have taken effect by then and keep it. An empty
/// list changes nothing. The cost is linear for sorted lists and adds the sorting of the others.
///
/// For use on any thread, with objects of its own.

namespace KZArrayExportAdditions {

/// The same ranges in ascending order of their locations. Lengths are not looked at; ranges with equal locations keep
/// their order.
///
///     ascendingSortedRanges({{7, 1}, {2, 5}, {4, 0}});   // {{2, 5}, {4, 0}, {7, 1}}
ORVANE_CORE_EXPORT platform::RangeList ascendingSortedRanges(const platform::RangeList &ranges);

} // namespace KZArrayExportAdditions

namespace KZMutableStringExportAdditions {

/// Deletes the units of every range.
///
/// Where two ranges overlap, the later one is cut first, and the earlier one then with its full length from the
/// shortened text, so it also takes units that stood behind the later one.
///
///     QString text = u"abcdefgh"_s;
///     deleteCharactersInRanges(text, {{5, 1}, {0, 2}});   // "cdegh"
ORVANE_CORE_EXPORT void deleteCharactersInRanges(QString &text, const platform::RangeList &ranges);

/// Inserts `string` after and before every range; an empty range receives it twice at its position.
///
/// An outer range is enclosed after the ranges inside it, counting the units that these insertions have moved.
///
///     QString text = u"abcdef"_s;
///     encloseRanges(text, {{4, 2}, {0, 2}}, u"*");   // "*ab*cd*ef*"
ORVANE_CORE_EXPORT void encloseRanges(QString &text, const platform::RangeList &ranges, QStringView string);

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

/// The same as on plain text; the attributes of the deleted units go with them.
ORVANE_CORE_EXPORT void deleteCharactersInRanges(platform::AttributedString &text, const platform::RangeList &ranges);

/// Adds the attributes to the units of every range, replacing values that are there already.
///
///     addAttributes(text, {{u"style"_s, u"quote"_s}}, ranges);
ORVANE_CORE_EXPORT void addAttributes(platform::AttributedString &text, const QVariantMap &attributes,
                                      const platform::RangeList &ranges);

/// Removes the named attribute from the units of every range.
ORVANE_CORE_EXPORT void removeAttribute(platform::AttributedString &text, const QString &name,
                                        const platform::RangeList &ranges);

} // namespace KZMutableAttributedStringExportAdditions

namespace KZAttributedStringExportAdditions {

/// The lines that hold units whose attribute `name` is the string `value`, in ascending order, terminators included.
///
/// A run that begins or ends inside a line contributes the whole line. A line with several such runs, separated by
/// units with another value, stands in the list once for each of them. A value that is not a string never matches.
/// Lines end at any of the terminators of `platform::lineRangeForRange`.
///
///     rangesForAttribute(text, u"style"_s, u"heading"_s);
ORVANE_CORE_EXPORT platform::RangeList rangesForAttribute(const platform::AttributedString &text, const QString &name,
                                                          const QString &value);

} // namespace KZAttributedStringExportAdditions

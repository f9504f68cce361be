#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// Converted copies of a text: backslash escapes turned into control characters, and strings replaced by a table.
///
/// For use on any thread, with objects of its own.

namespace KZStringExportAdditions {

/// The text with `\f`, `\n` and `\t`, typed as two characters each, turned into form feed, line feed and tab.
///
/// A backslash before the sequence keeps it as typed: `\\n` becomes `\n` in two characters. A control character of
/// these three that already stood right behind a backslash becomes its letter. Other sequences stay as they are.
///
///     stringWithConvertedEscSequences(uR"(a\nb)");   // "a", line feed, "b"
ORVANE_CORE_EXPORT QString stringWithConvertedEscSequences(QStringView text);

/// The text with every occurrence of `from[i]` replaced by `to[i]`, pair by pair **from the last pair to the first**,
/// each on the result of the pairs before it.
///
/// Occurrences are found from the left, do not overlap and compare code unit by code unit. Surplus entries of the
/// longer list are ignored, and an empty string to find matches nothing. Costs at most one pass over the text a pair.
///
///     stringWithConvertedStringsFromArray(u"ab", {u"a"_s, u"b"_s}, {u"b"_s, u"c"_s});   // "bc"
ORVANE_CORE_EXPORT QString stringWithConvertedStringsFromArray(QStringView text, const QStringList &from,
                                                               const QStringList &to);

} // namespace KZStringExportAdditions

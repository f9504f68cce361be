#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

/// \file
/// The quotation table: a property list "Quotes.plist" among the resources of a bundle. Its root is a dictionary from
/// language codes to arrays. The first element of an array is a dictionary with the marks, the strings "begin" and
/// "end"; more elements do not count.
///
///     <key>de</key>
///     <array><dict><key>begin</key><string>„</string><key>end</key><string>“</string></dict></array>
///
/// The table is read anew by every call. One that is missing or is no such property list reads like an empty one. A
/// value of the wrong kind is a mistake that a table's author has to hear of: whoever asks for that language gets an
/// exception.

namespace platform {

class Bundle;

/// What a table holds for a language.
struct QuotationMarks {
    std::optional<QString> begin; ///< the opening mark, any number of units
    std::optional<QString> end;   ///< the closing mark
};

/// The nine languages of the samples: "af", "de", "sv", "en_US", "en_UK", "de_CH", "it", "fr", "ja". British English is
/// spelt as saved settings spell it.
ORVANE_CORE_EXPORT QStringList sampleLanguages();

/// The marks that the table of a bundle holds for a language; both missing for a language that is not in the table.
///
/// Throws `RangeException` when the array is empty, and `UnrecognisedOperationException` when the language's value is
/// no array, its first element no dictionary, or a mark no string.
ORVANE_CORE_EXPORT QuotationMarks quotationMarks(const Bundle &bundle, const QString &language);

/// A sample of the marks of each of the `sampleLanguages()`, around the letters abc; a missing mark reads "(null)".
/// Throws what `quotationMarks` throws.
///
///     quotationSamples(Bundle::kitBundle())   // "“abc”", "„abc“", "”abc”", ...
ORVANE_CORE_EXPORT QStringList quotationSamples(const Bundle &bundle);

} // namespace platform

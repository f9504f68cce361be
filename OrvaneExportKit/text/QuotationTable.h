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
/// The codes of the kit's table are those of Unicode's locale data (CLDR): a language ("de"), with a region behind "_"
/// where the marks differ there ("de_CH"). British English is "en_UK", as saved settings spell it. A code is matched
/// exactly: "DE", "de-CH" and "de_AT" find nothing, and there is no falling back from "de_AT" to "de".
/// `quotationLanguages` lists them.
///
/// The table is read anew by every call. One that is missing or is no such property list reads like an empty one. A
/// value of the wrong kind is a mistake that a table's author has to hear of: whoever asks for that language gets an
/// exception. A mark that is no string is shown by the samples as it is, and gives an exception where a text is to
/// be converted with it.
///
/// For use on any thread, while no bundle is registered or removed.

namespace platform {

class Bundle;

/// What a table holds for a language.
struct QuotationMarks {
    std::optional<QString> begin; ///< the opening mark, any number of units
    std::optional<QString> end;   ///< the closing mark
};

/// The codes of all languages that the table of a bundle holds, sorted; none when there is no table.
///
///     quotationLanguages(Bundle::kitBundle())   // "af", "ar", "be", ... "zh_TW"
ORVANE_CORE_EXPORT QStringList quotationLanguages(const Bundle &bundle);

/// The nine languages of the samples: "af", "de", "sv", "en_US", "en_UK", "de_CH", "it", "fr", "ja". British English is
/// spelt as saved settings spell it.
ORVANE_CORE_EXPORT QStringList sampleLanguages();

/// The marks that the table of a bundle holds for a language; both missing for a language that is not in the table.
///
/// Throws `RangeException` when the array is empty, and `UnrecognisedOperationException` when the language's value is
/// no array, its first element no dictionary, or a mark no string.
ORVANE_CORE_EXPORT QuotationMarks quotationMarks(const Bundle &bundle, const QString &language);

/// A sample of the marks of each of the `sampleLanguages()`, around the letters abc. A missing mark reads "(null)", one
/// that is no string as `componentTexts` writes it ("8222" for a number).
///
/// Throws `RangeException` for a language whose array is empty, and `UnrecognisedOperationException` for one whose
/// value is no array or has no dictionary as its first element.
///
///     quotationSamples(Bundle::kitBundle())   // "“abc”", "„abc“", "”abc”", ...
ORVANE_CORE_EXPORT QStringList quotationSamples(const Bundle &bundle);

} // namespace platform

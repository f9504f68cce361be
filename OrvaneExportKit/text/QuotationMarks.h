#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QString>

/// \file
/// Straight double quotation marks (U+0022) turned into typographic ones.
///
/// Marks alternate opening, closing, opening ... from the first one on. The alternation starts anew with an opening
/// mark at a line feed, and at a mark before which only white space stands since the last one. White space that
/// directly follows a mark or such a line feed is skipped, a line feed among it included, unless a mark follows it.
/// White space is what Unicode calls separators, with U+0009 to U+000D and U+0085; U+200B is none. The text is walked
/// as it was, so marks of any length, empty ones included, stand exactly where a straight mark stood.
///
/// For use on any thread, with objects of its own. `convertQuotationsToLanguage` looks for its table among the
/// bundles, of which none may be registered or removed meanwhile.

namespace KZMutableStringExportAdditions {

/// Replaces every straight mark by `start` or `stop`.
///
///     QString text = u"\"Yes\", she said"_s;
///     convertQuotationsToStart(text, u"\u00BB", u"\u00AB");   // "»Yes«, she said"
ORVANE_CORE_EXPORT void convertQuotationsToStart(QString &text, QStringView start, QStringView stop);

/// Replaces every straight mark by those of a numbered style; any other number leaves the text as it is.
///
/// | style | opening | closing |
/// |-------|---------|---------|
/// | 0     | U+201E  | U+201C  |
/// | 1     | U+00BB  | U+00AB  |
/// | 2     | U+00AB  | U+00BB  |
/// | 3     | U+201C  | U+201D  |
/// | 4     | U+2018  | U+2019  |
/// | 5     | U+201D  | U+201D  |
///
///     QString text = u"\"Ja\""_s;
///     convertQuotationsToType(text, 0);   // "„Ja“"
ORVANE_CORE_EXPORT void convertQuotationsToType(QString &text, qint32 style);

/// Replaces every straight mark by those that the kit's quotation table (text/QuotationTable.h) holds for a language.
///
/// Where the table lacks one of the two marks, that side stays straight; for a language that it does not hold, the text
/// stays as it is. The table is read anew by every call. Where it is malformed for this language, throws what
/// `platform::quotationMarks` throws, before anything is changed.
///
///     QString text = u"\"Oui\""_s;
///     convertQuotationsToLanguage(text, u"fr"_s);   // "«Oui»"
ORVANE_CORE_EXPORT void convertQuotationsToLanguage(QString &text, const QString &language);

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

/// The same as on plain text; each mark takes the attributes of the straight mark that it replaces.
ORVANE_CORE_EXPORT void convertQuotationsToType(platform::AttributedString &text, qint32 style);
ORVANE_CORE_EXPORT void convertQuotationsToLanguage(platform::AttributedString &text, const QString &language);

} // namespace KZMutableAttributedStringExportAdditions

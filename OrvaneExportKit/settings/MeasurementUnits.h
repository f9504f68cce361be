#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QDateTime>
#include <QtCore/QSizeF>
#include <QtCore/QString>

/// \file
/// Lengths, dates and outline levels as the user expects to see them.
///
/// The unit is inches when the user's default `AppleMeasurementUnits` is exactly "Inches", otherwise centimetres. Every
/// call reads the user's defaults anew.
///
/// For use on the application's main thread.

namespace platform {

/// The user's units per point: 1/72 for inches, 2.54/72 for centimetres.
ORVANE_CORE_EXPORT float measurementUnitFactor();

} // namespace platform

namespace KZStringExportAdditions {

/// The sign of the user's unit, "in" or "cm".
ORVANE_CORE_EXPORT QString measurementUnitString();

/// A label for a page size, width first, given in points. The numbers have two decimals, a half rounded to even, and
/// are written as `QLocale()` writes them, but without group separators.
///
///     pageSizeStringWithSize({595, 842});   // "20.99 cm x 29.70 cm"
ORVANE_CORE_EXPORT QString pageSizeStringWithSize(QSizeF size);

/// The date in local time, in the user's short format: the calendar format that the user's default
/// `NSShortTimeDateFormatString` holds, with the names that the user's defaults give (`platform::calendarDescription`).
/// Where the defaults hold no such text, it is the short format for date and time of `QLocale()`, which is the user's
/// unless the program has chosen another. The empty string for an invalid date.
///
///     timestampStringWithDate(QDateTime::currentDateTime());   // in Germany "07.03.09 14:05" unless a format is set
ORVANE_CORE_EXPORT QString timestampStringWithDate(const QDateTime &date);

/// A label for an outline level, in the user's language.
///
///     localizedStringForLevel(2, u"##"_s);   // "Level 2 (##)"
ORVANE_CORE_EXPORT QString localizedStringForLevel(qint32 level, const QString &levelString);

} // namespace KZStringExportAdditions

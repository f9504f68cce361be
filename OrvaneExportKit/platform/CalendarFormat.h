#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QVariantMap>

namespace platform {

/// The date in local time, as the format describes it; the empty string for an invalid date.
///
/// A conversion in the format stands for a part of the date. All else, with conversions that are not listed and a `%`
/// at the end, stays as it is. An empty format stands for "%Y-%m-%d %H:%M:%S %z".
///
/// | conversion | gives                                                                                       |
/// |------------|---------------------------------------------------------------------------------------------|
/// | `%%`       | a percent sign                                                                              |
/// | `%a` `%A`  | the weekday's name, short or full                                                           |
/// | `%b` `%B`  | the month's name, short or full                                                             |
/// | `%c`       | time and date, in the locale's format or as `%X %x`                                         |
/// | `%d` `%e`  | the day of the month, 01 to 31, or without leading zero                                     |
/// | `%F`       | the milliseconds, 000 to 999                                                                |
/// | `%H` `%I`  | the hour, 00 to 23, or 01 to 12                                                             |
/// | `%j`       | the day of the year, 001 to 366                                                             |
/// | `%m`       | the month, 01 to 12                                                                         |
/// | `%M`       | the minute, 00 to 59                                                                        |
/// | `%p`       | AM or PM                                                                                    |
/// | `%S`       | the second, 00 to 59                                                                        |
/// | `%w`       | the weekday's number, 0 (Sunday) to 6                                                       |
/// | `%x`       | the date, in the locale's format or as `%a %b %d %Y`                                        |
/// | `%X`       | the time, in the locale's format or as `%H:%M:%S`                                           |
/// | `%y` `%Y`  | the year's last two digits, or the year in four digits or more; -0001 is the year before 1  |
/// | `%Z` `%z`  | the time zone's abbreviation, or its offset from UTC in hours and minutes, as +0130         |
///
/// The locale is a dictionary such as the user's defaults. An entry of these that is missing or of another kind, or an
/// array with too few strings, does not count; names are English then:
///
/// | entry                                           | holds                                                  |
/// |-------------------------------------------------|--------------------------------------------------------|
/// | `NSMonthNameArray`, `NSShortMonthNameArray`     | twelve names from January on                           |
/// | `NSWeekDayNameArray`, `NSShortWeekDayNameArray` | seven names from Sunday on                             |
/// | `NSAMPMDesignation`                             | what stands for AM and for PM                          |
/// | `NSTimeDateFormatString`                        | the format for `%c`; a `%c` in it stays as it is       |
/// | `NSDateFormatString`, `NSTimeFormatString`      | those for `%x` and `%X`; `%c`, `%x`, `%X` in them stay |
///
///     calendarDescription(QDateTime(QDate(2009, 3, 7), QTime(14, 5)), u"%e %B %Y, %H:%M"_s, {});
///         // "7 March 2009, 14:05"
///
/// For use on any thread, with objects of its own.
ORVANE_CORE_EXPORT QString calendarDescription(const QDateTime &date, const QString &format, const QVariantMap &locale);

} // namespace platform

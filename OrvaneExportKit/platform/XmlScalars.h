#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDateTime>
#include <QtCore/QVariant>

#include <charconv>
#include <concepts>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

/// \file
/// How single values stand between the tags of an XML property list. The readers answer nothing for text that is no
/// such value.

namespace platform {

/// The key of the dictionary that stands for a UID.
inline constexpr QLatin1StringView xmlUidKey("CF$UID");

/// White space, a sign, and a decimal or, after `0x`, a hexadecimal number from -2^63 to 2^64-1.
std::optional<QVariant> integerFromXml(std::string_view text);

/// White space and a number as `strtod` reads it, in any case and independent of the locale.
std::optional<double> realFromXml(std::string_view text);

/// `YYYY-MM-DDThh:mm:ssZ`, the year of any length and perhaps negative. Fields beyond their range count on: the 30th
/// of February is the first or second of March. Nothing, too, for dates that a `QDateTime` cannot hold.
std::optional<QDateTime> dateFromXml(std::string_view text);

/// Base64 with anything of ASCII in between; an incomplete group at the end is dropped. Nothing when the text goes
/// beyond ASCII.
std::optional<QByteArray> dataFromXml(std::string_view text);

template <std::integral Number>
void appendXmlInteger(std::string &xml, Number number)
{
    char digits[24];
    xml.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
}

/// The fewest digits that read back as the same number.
void appendXmlReal(std::string &xml, double number);

/// The date in UTC without its milliseconds.
void appendXmlDate(std::string &xml, const QDateTime &date);

} // namespace platform

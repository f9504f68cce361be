#include <OrvaneExportKit/platform/XmlScalars.h>

#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace platform {

namespace {

/// The years that a `QDateTime` holds, with some to spare for fields beyond their range.
constexpr int maximumYear = 292'000'000;

bool isSpace(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

void removeSpace(std::string_view &text)
{
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
}

/// Removes a sign and answers whether it is a minus.
bool removeSign(std::string_view &text)
{
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    return negative;
}

/// Removes `0x` and answers whether it was there.
bool removeHexPrefix(std::string_view &text)
{
    const bool hex = text.starts_with("0x") || text.starts_with("0X");
    if (hex) {
        text.remove_prefix(2);
    }
    return hex;
}

/// Reads the whole text as a number without sign; `form` is the base of an integer or the notation of a real.
template <typename Number, typename Form>
std::errc parseWhole(std::string_view text, Number &number, Form form)
{
    if (text.starts_with('-')) {
        return std::errc::invalid_argument;
    }
    const char *const end = text.data() + text.size();
    const std::from_chars_result result = std::from_chars(text.data(), end, number, form);
    return result.ptr == end ? result.ec : std::errc::invalid_argument;
}

/// Whether the text has the pattern's length, a digit for each of its zeros, and its other characters.
bool matches(std::string_view text, std::string_view pattern)
{
    const auto fits = [](char character, char expected) {
        return expected == '0' ? character >= '0' && character <= '9' : character == expected;
    };
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), fits);
}

/// The years of Qt's calendar have no 0: the year before 1 is -1.
int calendarYear(int year)
{
    return year > 0 ? year : year - 1;
}

int countedYear(int calendarYear)
{
    return calendarYear > 0 ? calendarYear : calendarYear + 1;
}

void appendPadded(std::string &xml, int number, std::size_t digits)
{
    const std::size_t start = xml.size();
    appendXmlInteger(xml, number);
    const std::size_t length = xml.size() - start;
    xml.insert(start, digits - std::min(length, digits), '0');
}

constexpr quint8 notBase64 = 0xFF;

constexpr std::array<quint8, 128> base64Values()
{
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<quint8, 128> values{};
    values.fill(notBase64);
    for (std::size_t i = 0; i < alphabet.size(); ++i) {
        values[static_cast<quint8>(alphabet[i])] = static_cast<quint8>(i);
    }
    values['='] = 0;
    return values;
}

} // namespace

std::optional<QVariant> integerFromXml(std::string_view text)
{
    constexpr quint64 lowest = quint64(1) << 63; // what stands behind the minus of the lowest number
    removeSpace(text);
    const bool negative = removeSign(text);
    const int base = removeHexPrefix(text) ? 16 : 10;
    quint64 number = 0;
    if (parseWhole(text, number, base) != std::errc() || (negative && number > lowest)) {
        return std::nullopt;
    }
    return negative ? QVariant(static_cast<qint64>(0 - number)) : integerValue(number);
}

std::optional<double> realFromXml(std::string_view text)
{
    removeSpace(text);
    const bool negative = removeSign(text);
    const bool hex = removeHexPrefix(text);
    double number = 0;
    std::errc error = parseWhole(text, number, hex ? std::chars_format::hex : std::chars_format::general);
    if (error == std::errc::result_out_of_range && !hex) {
        number = QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size())).toDouble(); // infinity or zero
        error = {};
    }
    if (error != std::errc()) {
        return std::nullopt;
    }
    return negative ? -number : number;
}

std::optional<QDateTime> dateFromXml(std::string_view text)
{
    constexpr std::string_view afterYear = "-00-00T00:00:00Z";
    const bool negative = text.starts_with('-');
    text.remove_prefix(negative ? 1 : 0);
    const std::size_t yearEnd = std::min(text.find('-'), text.size());
    const std::string_view fields = text.substr(yearEnd);
    quint32 year = 0;
    if (parseWhole(text.substr(0, yearEnd), year, 10) != std::errc() || year > maximumYear ||
        !matches(fields, afterYear)) {
        return std::nullopt;
    }
    const auto field = [fields](std::size_t position) {
        return (fields[position] - '0') * 10 + (fields[position + 1] - '0');
    };
    const int signedYear = negative ? -static_cast<int>(year) : static_cast<int>(year);
    const QDate date = QDate(calendarYear(signedYear), 1, 1).addMonths(field(1) - 1).addDays(field(4) - 1);
    return QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(field(7) * 3600 + field(10) * 60 + field(13));
}

std::optional<QByteArray> dataFromXml(std::string_view text)
{
    static constexpr std::array<quint8, 128> values = base64Values();
    QByteArray data;
    data.reserve(static_cast<qsizetype>(text.size()) / 4 * 3);
    quint32 group = 0;
    int charactersInGroup = 0;
    int padding = 0;
    for (const char character : text) {
        const auto byte = static_cast<quint8>(character);
        if (byte >= values.size()) {
            return std::nullopt;
        }
        if (values[byte] == notBase64) {
            continue;
        }
        group = group << 6 | values[byte];
        padding = character == '=' ? padding + 1 : 0;
        if (++charactersInGroup == 4) {
            const char bytes[] = {static_cast<char>(group >> 16), static_cast<char>(group >> 8),
                                  static_cast<char>(group)};
            data.append(bytes, std::max(3 - padding, 0));
            group = 0;
            charactersInGroup = 0;
            padding = 0;
        }
    }
    return data;
}

void appendXmlReal(std::string &xml, double number)
{
    if (std::isnan(number)) {
        xml += "nan";
    } else if (std::isinf(number)) {
        xml += number > 0 ? "+infinity" : "-infinity";
    } else if (number == 0) {
        xml += std::signbit(number) ? "-0.0" : "0.0";
    } else {
        char digits[32];
        xml.append(digits, std::to_chars(std::begin(digits), std::end(digits), number).ptr);
    }
}

void appendXmlDate(std::string &xml, const QDateTime &date)
{
    const QDateTime utc = date.toUTC();
    int year = 0;
    int month = 0;
    int day = 0;
    utc.date().getDate(&year, &month, &day);
    year = countedYear(year);
    if (year < 0) {
        xml += '-';
    }
    appendPadded(xml, std::abs(year), 4);
    const QTime time = utc.time();
    for (const auto &[separator, field] : {std::pair('-', month), std::pair('-', day), std::pair('T', time.hour()),
                                           std::pair(':', time.minute()), std::pair(':', time.second())}) {
        xml += separator;
        appendPadded(xml, field, 2);
    }
    xml += 'Z';
}

} // namespace platform

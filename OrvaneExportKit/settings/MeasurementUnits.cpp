#include <OrvaneExportKit/settings/MeasurementUnits.h>

#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/CalendarFormat.h>
#include <OrvaneExportKit/platform/UserDefaults.h>

#include <QtCore/QLocale>

#include <array>
#include <charconv>
#include <limits>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

struct MeasurementUnit {
    QLatin1StringView sign;
    float unitsPerPoint;
    float pointsPerUnit;
};

constexpr MeasurementUnit inch{QLatin1StringView("in"), 1.0F / 72.0F, 72.0F};
constexpr MeasurementUnit centimetre{QLatin1StringView("cm"), 2.54F / 72.0F, 28.346457F};

MeasurementUnit usersUnit()
{
    const QVariant unit = platform::UserDefaults::standardUserDefaults().objectForKey(u"AppleMeasurementUnits"_s);
    return unit == QVariant(u"Inches"_s) ? inch : centimetre;
}

/// The number with two decimals as the user's locale writes them. The decimals come from `std::to_chars`, since
/// `QLocale::toString` rounds a half up: 25.125 is 25.12 here and 25.13 there.
QString localizedNumber(double number)
{
    constexpr std::size_t longest = std::numeric_limits<double>::max_exponent10 + 8;
    std::array<char, longest> digits{};
    const std::to_chars_result end = std::to_chars(digits.begin(), digits.end(), number, std::chars_format::fixed, 2);
    const QLocale locale;
    QString text;
    for (const char character : std::string_view(digits.begin(), end.ptr)) {
        if (character >= '0' && character <= '9') {
            text += locale.toString(character - '0');
        } else if (character == '.') {
            text += locale.decimalPoint();
        } else if (character == '-') {
            text += locale.negativeSign();
        } else {
            text += QLatin1Char(character); // of "inf" or "nan"
        }
    }
    return text;
}

} // namespace

namespace platform {

float measurementUnitFactor()
{
    return usersUnit().unitsPerPoint;
}

} // namespace platform

namespace KZStringExportAdditions {

QString measurementUnitString()
{
    return usersUnit().sign;
}

QString pageSizeStringWithSize(QSizeF size)
{
    const MeasurementUnit unit = usersUnit();
    return u"%1 %2 x %3 %2"_s.arg(localizedNumber(size.width() / unit.pointsPerUnit), unit.sign,
                                  localizedNumber(size.height() / unit.pointsPerUnit));
}

QString timestampStringWithDate(const QDateTime &date)
{
    const QVariantMap defaults = platform::UserDefaults::standardUserDefaults().dictionaryRepresentation();
    const QVariant format = defaults.value(u"NSShortTimeDateFormatString"_s);
    if (format.typeId() != QMetaType::QString || format.toString().isEmpty()) {
        return QLocale().toString(date.toLocalTime(), QLocale::ShortFormat);
    }
    return platform::calendarDescription(date, format.toString(), defaults);
}

QString localizedStringForLevel(qint32 level, const QString &levelString)
{
    const platform::Bundle bundle = platform::Bundle::bundleWithIdentifier(bndlIdentifier);
    return u"%1 %2 (%3)"_s.arg(bundle.localizedStringForKey(u"Level"_s), QString::number(level), levelString);
}

} // namespace KZStringExportAdditions

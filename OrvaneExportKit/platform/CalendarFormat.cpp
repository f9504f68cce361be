#include <OrvaneExportKit/platform/CalendarFormat.h>

#include <OrvaneExportKit/platform/PropertyListValues.h>

#include <QtCore/QLocale>

#include <cstdlib>

namespace platform {

namespace {

using namespace Qt::Literals::StringLiterals;

QString padded(int number, qsizetype digits)
{
    return QString::number(number).rightJustified(digits, u'0');
}

QString yearText(int year)
{
    return (year < 0 ? u"-"_s : u""_s) + padded(std::abs(year), 4);
}

QString offsetText(int secondsFromUtc)
{
    const int minutes = std::abs(secondsFromUtc) / 60;
    return (secondsFromUtc < 0 ? u"-"_s : u"+"_s) + padded(minutes / 60, 2) + padded(minutes % 60, 2);
}

class CalendarFormatter
{
public:
    CalendarFormatter(const QDateTime &localDate, const QVariantMap &locale)
        : m_zoned(localDate), m_date(localDate.date()), m_time(localDate.time()), m_locale(locale)
    {
    }

    /// `composites` are those of the conversions `c`, `x` and `X` that count. They become fewer from one format to the
    /// format that it names, so that no format can name itself.
    QString formatted(QStringView format, QStringView composites) const;

private:
    QString converted(QChar conversion, QStringView composites) const;
    QString composite(QChar conversion) const;
    QString name(const QString &key, qsizetype count, int index, const QString &english) const;
    QString localeFormat(const QString &key, const QString &standard) const;

    const QDateTime &m_zoned;
    QDate m_date;
    QTime m_time;
    const QVariantMap &m_locale;
};

QString CalendarFormatter::formatted(QStringView format, QStringView composites) const
{
    QString text;
    for (qsizetype i = 0; i < format.size(); ++i) {
        const bool startsConversion = format[i] == u'%' && i + 1 < format.size();
        text += startsConversion ? converted(format[++i], composites) : QString(format[i]);
    }
    return text;
}

QString CalendarFormatter::converted(QChar conversion, QStringView composites) const
{
    const QLocale english = QLocale::c();
    const int weekday = m_date.dayOfWeek() % 7;
    const int month = m_date.month();
    switch (conversion.unicode()) {
    case u'%':
        return u"%"_s;
    case u'a':
        return name(u"NSShortWeekDayNameArray"_s, 7, weekday,
                    english.dayName(m_date.dayOfWeek(), QLocale::ShortFormat));
    case u'A':
        return name(u"NSWeekDayNameArray"_s, 7, weekday, english.dayName(m_date.dayOfWeek()));
    case u'b':
        return name(u"NSShortMonthNameArray"_s, 12, month - 1, english.monthName(month, QLocale::ShortFormat));
    case u'B':
        return name(u"NSMonthNameArray"_s, 12, month - 1, english.monthName(month));
    case u'd':
        return padded(m_date.day(), 2);
    case u'e':
        return QString::number(m_date.day());
    case u'F':
        return padded(m_time.msec(), 3);
    case u'H':
        return padded(m_time.hour(), 2);
    case u'I':
        return padded((m_time.hour() + 11) % 12 + 1, 2);
    case u'j':
        return padded(m_date.dayOfYear(), 3);
    case u'm':
        return padded(month, 2);
    case u'M':
        return padded(m_time.minute(), 2);
    case u'p':
        return m_time.hour() < 12 ? name(u"NSAMPMDesignation"_s, 2, 0, english.amText())
                                  : name(u"NSAMPMDesignation"_s, 2, 1, english.pmText());
    case u'S':
        return padded(m_time.second(), 2);
    case u'w':
        return QString::number(weekday);
    case u'y':
        return padded(std::abs(m_date.year()) % 100, 2);
    case u'Y':
        return yearText(m_date.year());
    case u'Z':
        return m_zoned.timeZoneAbbreviation();
    case u'z':
        return offsetText(m_zoned.offsetFromUtc());
    default:
        return composites.contains(conversion) ? composite(conversion) : u'%' + QString(conversion);
    }
}

QString CalendarFormatter::composite(QChar conversion) const
{
    if (conversion == u'c') {
        return formatted(localeFormat(u"NSTimeDateFormatString"_s, u"%X %x"_s), u"xX");
    }
    if (conversion == u'x') {
        return formatted(localeFormat(u"NSDateFormatString"_s, u"%a %b %d %Y"_s), u"");
    }
    return formatted(localeFormat(u"NSTimeFormatString"_s, u"%H:%M:%S"_s), u"");
}

QString CalendarFormatter::name(const QString &key, qsizetype count, int index, const QString &english) const
{
    const QVariant entry = m_locale.value(key);
    if (propertyListKind(entry) != PropertyListKind::Array) {
        return english;
    }
    const QVariantList names = entry.toList();
    const bool named = names.size() >= count && propertyListKind(names[index]) == PropertyListKind::String;
    return named ? names[index].toString() : english;
}

QString CalendarFormatter::localeFormat(const QString &key, const QString &standard) const
{
    const QVariant entry = m_locale.value(key);
    return propertyListKind(entry) == PropertyListKind::String ? entry.toString() : standard;
}

} // namespace

QString calendarDescription(const QDateTime &date, const QString &format, const QVariantMap &locale)
{
    const QDateTime local = date.toLocalTime();
    if (!local.isValid()) {
        return {};
    }
    return CalendarFormatter(local, locale).formatted(format.isEmpty() ? u"%Y-%m-%d %H:%M:%S %z"_s : format, u"cxX");
}

} // namespace platform

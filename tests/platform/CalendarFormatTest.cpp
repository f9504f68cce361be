#include <OrvaneExportKit/platform/CalendarFormat.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QLocale>

#include <ctime>
#include <ostream>

using namespace Qt::Literals::StringLiterals;
using platform::calendarDescription;

namespace {

/// 7 March 2009, a Saturday and the 66th day of its year, at 14:05:09.042 local time.
const QDateTime saturday(QDate(2009, 3, 7), QTime(14, 5, 9, 42));

QDateTime atHour(int hour)
{
    return QDateTime(QDate(2009, 3, 7), QTime(hour, 0));
}

QDateTime inYear(int year)
{
    return QDateTime(QDate(year, 3, 7), QTime(14, 5));
}

/// Sets the local time zone for its lifetime, by a rule that needs no time-zone database.
class LocalTimeZone
{
public:
    explicit LocalTimeZone(const QByteArray &rule) : m_wasSet(qEnvironmentVariableIsSet("TZ")), m_before(qgetenv("TZ"))
    {
        qputenv("TZ", rule);
        tzset();
    }
    LocalTimeZone(const LocalTimeZone &) = delete;
    LocalTimeZone &operator=(const LocalTimeZone &) = delete;
    ~LocalTimeZone()
    {
        if (m_wasSet) {
            qputenv("TZ", m_before);
        } else {
            qunsetenv("TZ");
        }
        tzset();
    }

private:
    bool m_wasSet;
    QByteArray m_before;
};

const QByteArray centralEurope("CET-1CEST,M3.5.0,M10.5.0/3");

const QVariantMap german = {
    {u"NSMonthNameArray"_s,
     QStringList{u"Januar"_s, u"Februar"_s, u"März"_s, u"April"_s, u"Mai"_s, u"Juni"_s, u"Juli"_s, u"August"_s,
                 u"September"_s, u"Oktober"_s, u"November"_s, u"Dezember"_s}},
    {u"NSShortMonthNameArray"_s, QStringList{u"Jan"_s, u"Feb"_s, u"Mär"_s, u"Apr"_s, u"Mai"_s, u"Jun"_s, u"Jul"_s,
                                             u"Aug"_s, u"Sep"_s, u"Okt"_s, u"Nov"_s, u"Dez"_s}},
    {u"NSWeekDayNameArray"_s, QVariantList{u"Sonntag"_s, u"Montag"_s, u"Dienstag"_s, u"Mittwoch"_s, u"Donnerstag"_s,
                                           u"Freitag"_s, u"Samstag"_s}},
    {u"NSShortWeekDayNameArray"_s, QVariantList{u"So"_s, u"Mo"_s, u"Di"_s, u"Mi"_s, u"Do"_s, u"Fr"_s, u"Sa"_s}},
    {u"NSAMPMDesignation"_s, QStringList{u"vorm."_s, u"nachm."_s}},
};

struct Conversion {
    const char16_t *format;
    const char16_t *expected;
};

void PrintTo(const Conversion &conversion, std::ostream *out)
{
    *out << QString::fromUtf16(conversion.format).toStdString();
}

class CalendarConversion : public testing::TestWithParam<Conversion>
{
};

TEST_P(CalendarConversion, GivesItsPartOfTheDate)
{
    EXPECT_EQ(calendarDescription(saturday, QString::fromUtf16(GetParam().format), {}),
              QString::fromUtf16(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(All, CalendarConversion,
                         testing::Values(Conversion{u"%%", u"%"}, Conversion{u"%a", u"Sat"},
                                         Conversion{u"%A", u"Saturday"}, Conversion{u"%b", u"Mar"},
                                         Conversion{u"%B", u"March"}, Conversion{u"%c", u"14:05:09 Sat Mar 07 2009"},
                                         Conversion{u"%d", u"07"}, Conversion{u"%e", u"7"}, Conversion{u"%F", u"042"},
                                         Conversion{u"%H", u"14"}, Conversion{u"%I", u"02"}, Conversion{u"%j", u"066"},
                                         Conversion{u"%m", u"03"}, Conversion{u"%M", u"05"}, Conversion{u"%p", u"PM"},
                                         Conversion{u"%S", u"09"}, Conversion{u"%w", u"6"},
                                         Conversion{u"%x", u"Sat Mar 07 2009"}, Conversion{u"%X", u"14:05:09"},
                                         Conversion{u"%y", u"09"}, Conversion{u"%Y", u"2009"}));

TEST(CalendarDescription, KeepsTheTextBetweenConversions)
{
    EXPECT_EQ(calendarDescription(saturday, u"%e. %B %Y, um %H:%M Uhr \u2013 \U0001F4DD"_s, {}),
              u"7. March 2009, um 14:05 Uhr \u2013 \U0001F4DD"_s);
    EXPECT_EQ(calendarDescription(saturday, u"no conversion"_s, {}), u"no conversion"_s);
}

TEST(CalendarDescription, DoesNotReadWhatAConversionGives)
{
    EXPECT_EQ(calendarDescription(saturday, u"%%Y %%%Y"_s, {}), u"%Y %2009"_s);
}

TEST(CalendarDescription, KeepsUnknownConversions)
{
    EXPECT_EQ(calendarDescription(saturday, u"%Q %1I %-d % d %\u00E4 %\U0001F4DD"_s, {}),
              u"%Q %1I %-d % d %\u00E4 %\U0001F4DD"_s);
}

TEST(CalendarDescription, KeepsAPercentSignAtTheEnd)
{
    EXPECT_EQ(calendarDescription(saturday, u"%"_s, {}), u"%"_s);
    EXPECT_EQ(calendarDescription(saturday, u"%d%"_s, {}), u"07%"_s);
}

TEST(CalendarDescription, UsesTheDefaultFormatWhenNoneIsSet)
{
    const LocalTimeZone zone("ABC+3:30");
    EXPECT_EQ(calendarDescription(saturday, {}, {}), u"2009-03-07 14:05:09 -0330"_s);
    EXPECT_EQ(calendarDescription(saturday, u""_s, {}), u"2009-03-07 14:05:09 -0330"_s);
}

TEST(CalendarDescription, CountsHoursFromTwelveForAmAndPm)
{
    EXPECT_EQ(calendarDescription(atHour(0), u"%I %p"_s, {}), u"12 AM"_s);
    EXPECT_EQ(calendarDescription(atHour(1), u"%I %p"_s, {}), u"01 AM"_s);
    EXPECT_EQ(calendarDescription(atHour(11), u"%I %p"_s, {}), u"11 AM"_s);
    EXPECT_EQ(calendarDescription(atHour(12), u"%I %p"_s, {}), u"12 PM"_s);
    EXPECT_EQ(calendarDescription(atHour(13), u"%I %p"_s, {}), u"01 PM"_s);
    EXPECT_EQ(calendarDescription(atHour(23), u"%I %p"_s, {}), u"11 PM"_s);
}

TEST(CalendarDescription, NamesEveryWeekday)
{
    const QStringList expected = {u"0 Sun Sunday"_s,   u"1 Mon Monday"_s, u"2 Tue Tuesday"_s, u"3 Wed Wednesday"_s,
                                  u"4 Thu Thursday"_s, u"5 Fri Friday"_s, u"6 Sat Saturday"_s};
    for (int day = 0; day < 7; ++day) {
        const QDateTime date(QDate(2009, 3, 8 + day), QTime(12, 0));
        EXPECT_EQ(calendarDescription(date, u"%w %a %A"_s, {}), expected[day]);
    }
}

TEST(CalendarDescription, NamesEveryMonth)
{
    const QStringList expected = {u"01 Jan January"_s, u"02 Feb February"_s, u"03 Mar March"_s,
                                  u"04 Apr April"_s,   u"05 May May"_s,      u"06 Jun June"_s,
                                  u"07 Jul July"_s,    u"08 Aug August"_s,   u"09 Sep September"_s,
                                  u"10 Oct October"_s, u"11 Nov November"_s, u"12 Dec December"_s};
    for (int month = 1; month <= 12; ++month) {
        const QDateTime date(QDate(2009, month, 1), QTime(12, 0));
        EXPECT_EQ(calendarDescription(date, u"%m %b %B"_s, {}), expected[month - 1]);
    }
}

TEST(CalendarDescription, CountsTheLastDayOfALeapYear)
{
    EXPECT_EQ(calendarDescription(QDateTime(QDate(2008, 12, 31), QTime(12, 0)), u"%j"_s, {}), u"366"_s);
}

TEST(CalendarDescription, WritesYearsInFourDigitsOrMore)
{
    EXPECT_EQ(calendarDescription(inYear(1), u"%Y|%y"_s, {}), u"0001|01"_s);
    EXPECT_EQ(calendarDescription(inYear(987), u"%Y|%y"_s, {}), u"0987|87"_s);
    EXPECT_EQ(calendarDescription(inYear(9999), u"%Y|%y"_s, {}), u"9999|99"_s);
    EXPECT_EQ(calendarDescription(inYear(10000), u"%Y|%y"_s, {}), u"10000|00"_s);
    EXPECT_EQ(calendarDescription(inYear(123456), u"%Y|%y"_s, {}), u"123456|56"_s);
}

TEST(CalendarDescription, WritesYearsBeforeTheFirstWithAMinus)
{
    EXPECT_EQ(calendarDescription(inYear(-1), u"%Y|%y"_s, {}), u"-0001|01"_s);
    EXPECT_EQ(calendarDescription(inYear(-45), u"%Y|%y"_s, {}), u"-0045|45"_s);
    EXPECT_EQ(calendarDescription(inYear(-12345), u"%Y|%y"_s, {}), u"-12345|45"_s);
}

TEST(CalendarDescription, OfAnInvalidDateIsEmpty)
{
    EXPECT_EQ(calendarDescription(QDateTime(), u"%Y"_s, {}), QString());
    EXPECT_EQ(calendarDescription(QDateTime(QDate(2009, 2, 30), QTime(0, 0)), u"no conversion"_s, {}), QString());
}

TEST(CalendarDescription, IsInLocalTime)
{
    const LocalTimeZone zone(centralEurope);
    const QDateTime winter(QDate(2009, 1, 1), QTime(23, 30), Qt::UTC);
    const QDateTime summer(QDate(2009, 7, 1), QTime(23, 30), Qt::UTC);
    EXPECT_EQ(calendarDescription(winter, u"%d %H:%M %Z %z"_s, {}), u"02 00:30 CET +0100"_s);
    EXPECT_EQ(calendarDescription(summer, u"%d %H:%M %Z %z"_s, {}), u"02 01:30 CEST +0200"_s);
}

TEST(CalendarDescription, TakesADateInAnyTimeSpec)
{
    const LocalTimeZone zone(centralEurope);
    const QDateTime date(QDate(2009, 1, 1), QTime(12, 0), Qt::OffsetFromUTC, -5 * 3600);
    EXPECT_EQ(calendarDescription(date, u"%d %H:%M %z"_s, {}), u"01 18:00 +0100"_s);
}

TEST(CalendarDescription, WritesOffsetsToTheMinute)
{
    {
        const LocalTimeZone zone("ABC+0:30");
        EXPECT_EQ(calendarDescription(saturday, u"%z"_s, {}), u"-0030"_s);
    }
    {
        const LocalTimeZone zone("ABC-12:45");
        EXPECT_EQ(calendarDescription(saturday, u"%z"_s, {}), u"+1245"_s);
    }
    {
        const LocalTimeZone zone("ABC0");
        EXPECT_EQ(calendarDescription(saturday, u"%z"_s, {}), u"+0000"_s);
    }
}

TEST(CalendarDescription, TakesNamesFromTheLocale)
{
    EXPECT_EQ(calendarDescription(saturday, u"%A (%a), %e. %B (%b), %I %p"_s, german),
              u"Samstag (Sa), 7. März (Mär), 02 nachm."_s);
    EXPECT_EQ(calendarDescription(atHour(9), u"%I %p"_s, german), u"09 vorm."_s);
}

TEST(CalendarDescription, CountsTheLocalesWeekdaysFromSunday)
{
    const QDateTime sunday(QDate(2009, 3, 8), QTime(12, 0));
    EXPECT_EQ(calendarDescription(sunday, u"%A %a"_s, german), u"Sonntag So"_s);
}

TEST(CalendarDescription, IsEnglishWhereTheLocaleNamesNothing)
{
    QVariantMap halfGerman = german;
    halfGerman.remove(u"NSShortMonthNameArray"_s);
    EXPECT_EQ(calendarDescription(saturday, u"%B %b"_s, halfGerman), u"März Mar"_s);
}

TEST(CalendarDescription, DoesNotFollowTheDefaultLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    EXPECT_EQ(calendarDescription(saturday, u"%A %e %B %Y %p"_s, {}), u"Saturday 7 March 2009 PM"_s);
    QLocale::setDefault(before);
}

TEST(CalendarDescription, IsEnglishWhereALocaleEntryIsNoArray)
{
    for (const QVariant &entry : {QVariant(u"März"_s), QVariant(3), QVariant(QByteArray("March")),
                                  QVariant(QVariantMap{{u"3"_s, u"März"_s}})}) {
        const QVariantMap locale = {{u"NSMonthNameArray"_s, entry}, {u"NSAMPMDesignation"_s, entry}};
        EXPECT_EQ(calendarDescription(saturday, u"%B %p"_s, locale), u"March PM"_s);
    }
}

TEST(CalendarDescription, IsEnglishWhereALocaleArrayIsTooShort)
{
    const QVariantMap locale = {{u"NSMonthNameArray"_s, QStringList{u"Januar"_s, u"Februar"_s, u"März"_s}},
                                {u"NSWeekDayNameArray"_s, QVariantList()},
                                {u"NSAMPMDesignation"_s, QStringList{u"vorm."_s}}};
    EXPECT_EQ(calendarDescription(saturday, u"%B %A %p"_s, locale), u"March Saturday PM"_s);
    EXPECT_EQ(calendarDescription(atHour(9), u"%p"_s, locale), u"AM"_s);
}

TEST(CalendarDescription, IsEnglishWhereALocaleArrayHoldsNoString)
{
    const QVariantMap locale = {{u"NSAMPMDesignation"_s, QVariantList{1, QVariantList{u"nachm."_s}}}};
    EXPECT_EQ(calendarDescription(saturday, u"%p"_s, locale), u"PM"_s);
    EXPECT_EQ(calendarDescription(atHour(9), u"%p"_s, locale), u"AM"_s);
}

TEST(CalendarDescription, TakesFormatsFromTheLocale)
{
    const QVariantMap locale = {{u"NSTimeDateFormatString"_s, u"%d.%m.%Y %H:%M"_s},
                                {u"NSDateFormatString"_s, u"%d.%m.%Y"_s},
                                {u"NSTimeFormatString"_s, u"%H.%M"_s}};
    EXPECT_EQ(calendarDescription(saturday, u"%c|%x|%X"_s, locale), u"07.03.2009 14:05|07.03.2009|14.05"_s);
}

TEST(CalendarDescription, TakesTheLocalesDateAndTimeIntoBoth)
{
    const QVariantMap locale = {{u"NSDateFormatString"_s, u"%d.%m."_s}, {u"NSTimeFormatString"_s, u"%H.%M"_s}};
    EXPECT_EQ(calendarDescription(saturday, u"%c"_s, locale), u"14.05 07.03."_s);
}

TEST(CalendarDescription, KeepsItsFormatsWhereTheLocaleHoldsNoString)
{
    const QVariantMap locale = {{u"NSTimeDateFormatString"_s, 1},
                                {u"NSDateFormatString"_s, QStringList{u"%d"_s}},
                                {u"NSTimeFormatString"_s, QByteArray("%H")}};
    EXPECT_EQ(calendarDescription(saturday, u"%c"_s, locale), u"14:05:09 Sat Mar 07 2009"_s);
}

TEST(CalendarDescription, EndsWhereAFormatOfTheLocaleNamesItself)
{
    const QVariantMap locale = {{u"NSTimeDateFormatString"_s, u"<%c %x %X>"_s},
                                {u"NSDateFormatString"_s, u"[%c %x %X %d]"_s},
                                {u"NSTimeFormatString"_s, u"(%c %x %X %H)"_s}};
    EXPECT_EQ(calendarDescription(saturday, u"%x"_s, locale), u"[%c %x %X 07]"_s);
    EXPECT_EQ(calendarDescription(saturday, u"%X"_s, locale), u"(%c %x %X 14)"_s);
    EXPECT_EQ(calendarDescription(saturday, u"%c"_s, locale), u"<%c [%c %x %X 07] (%c %x %X 14)>"_s);
}

} // namespace

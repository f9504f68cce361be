#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <tests/support/Application.h>
#include <tests/support/Printers.h>
#include <tests/support/TemporaryDefaults.h>

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtCore/QTranslator>

#include <limits>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using KZStringExportAdditions::localizedStringForLevel;
using KZStringExportAdditions::measurementUnitString;
using KZStringExportAdditions::pageSizeStringWithSize;
using KZStringExportAdditions::timestampStringWithDate;
using platform::measurementUnitFactor;

namespace {

/// A user with the defaults that a test sets, and English number formats unless the test chooses others.
class DisplayStrings : public support::TemporaryDefaults
{
protected:
    DisplayStrings() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~DisplayStrings() override { QLocale::setDefault(m_localeBefore); }

    static void setDefaults(const QVariantMap &values)
    {
        ASSERT_TRUE(defaults().setPersistentDomain(values, platform::UserDefaults::globalDomain()));
    }

    static void setUnit(const QVariant &unit) { setDefaults({{u"AppleMeasurementUnits"_s, unit}}); }

    static void setFormat(const QVariant &format) { setDefaults({{u"NSShortTimeDateFormatString"_s, format}}); }

private:
    QLocale m_localeBefore;
};

using MeasurementUnit = DisplayStrings;
using PageSizeString = DisplayStrings;
using TimestampString = DisplayStrings;
using LevelString = DisplayStrings;

/// Points that are so many units; for inches the result is exact.
QSizeF inches(double width, double height)
{
    return QSizeF(width, height) * 72.0;
}

TEST_F(MeasurementUnit, IsCentimetresWhenTheUserHasChosenNone)
{
    EXPECT_EQ(measurementUnitString(), u"cm"_s);
    EXPECT_EQ(measurementUnitFactor(), 0.035277776F);
}

TEST_F(MeasurementUnit, IsInchesWhenTheUserHasChosenThem)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(measurementUnitString(), u"in"_s);
    EXPECT_EQ(measurementUnitFactor(), 0.013888889F);
}

TEST_F(MeasurementUnit, IsCentimetresForTheLowerCaseWordInches)
{
    setUnit(u"inches"_s);
    EXPECT_EQ(measurementUnitString(), u"cm"_s);
    EXPECT_EQ(measurementUnitFactor(), 0.035277776F);
}

TEST_F(MeasurementUnit, IsCentimetresForAnyOtherValue)
{
    for (const QVariant &value :
         {QVariant(u"Centimeters"_s), QVariant(u"Inches "_s), QVariant(u""_s), QVariant(1), QVariant(true),
          QVariant(QByteArray("Inches")), QVariant(QVariantList{u"Inches"_s})}) {
        setUnit(value);
        EXPECT_EQ(measurementUnitString(), u"cm"_s) << testing::PrintToString(value);
    }
}

TEST_F(MeasurementUnit, IsReadAnewEveryTime)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(measurementUnitString(), u"in"_s);
    setUnit(u"Centimeters"_s);
    EXPECT_EQ(measurementUnitString(), u"cm"_s);
}

TEST_F(MeasurementUnit, MayComeFromTheRegisteredDefaults)
{
    defaults().registerDefaults({{u"AppleMeasurementUnits"_s, u"Inches"_s}});
    EXPECT_EQ(measurementUnitString(), u"in"_s);
    defaults().registerDefaults({{u"AppleMeasurementUnits"_s, QVariant()}});
    EXPECT_EQ(measurementUnitString(), u"cm"_s);
}

TEST_F(PageSizeString, IsInCentimetres)
{
    EXPECT_EQ(pageSizeStringWithSize({595, 842}), u"20.99 cm x 29.70 cm"_s);
}

TEST_F(PageSizeString, IsInInches)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(pageSizeStringWithSize({612, 792}), u"8.50 in x 11.00 in"_s);
}

TEST_F(PageSizeString, PutsTheWidthFirst)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(pageSizeStringWithSize({792, 612}), u"11.00 in x 8.50 in"_s);
}

TEST_F(PageSizeString, RoundsAHalfToEven)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(pageSizeStringWithSize(inches(25.125, 25.375)), u"25.12 in x 25.38 in"_s);
    EXPECT_EQ(pageSizeStringWithSize(inches(-0.125, 0.625)), u"-0.12 in x 0.62 in"_s);
}

TEST_F(PageSizeString, RoundsWhatTheBinaryNumberIs)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(pageSizeStringWithSize(inches(1.005, 2.675)), u"1.00 in x 2.67 in"_s) << "both lie below the half";
    EXPECT_EQ(pageSizeStringWithSize(inches(9.996, 0.001)), u"10.00 in x 0.00 in"_s);
}

TEST_F(PageSizeString, DividesByTheSinglePrecisionDivisor)
{
    EXPECT_EQ(pageSizeStringWithSize({28.346457e8, 28.34645652770996e8}), u"100000001.67 cm x 100000000.00 cm"_s);
}

TEST_F(PageSizeString, FollowsTheUsersDecimalSeparator)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(pageSizeStringWithSize({595, 842}), u"20,99 cm x 29,70 cm"_s);
}

TEST_F(PageSizeString, FollowsTheUsersDigits)
{
    QLocale::setDefault(QLocale(QLocale::Persian, QLocale::Iran));
    EXPECT_EQ(pageSizeStringWithSize({595, 842}), u"۲۰٫۹۹ cm x ۲۹٫۷۰ cm"_s);
    QLocale::setDefault(QLocale(QLocale::Chakma, QLocale::Bangladesh)); // digits outside the first plane
    EXPECT_EQ(pageSizeStringWithSize({595, 842}), u"𑄸𑄶.𑄿𑄿 cm x 𑄸𑄿.𑄽𑄶 cm"_s);
}

TEST_F(PageSizeString, FollowsTheUsersMinusSign)
{
    setUnit(u"Inches"_s);
    QLocale::setDefault(QLocale(QLocale::Swedish, QLocale::Sweden));
    EXPECT_EQ(pageSizeStringWithSize(inches(-1, 2)), u"\u22121,00 in x 2,00 in"_s);
}

TEST_F(PageSizeString, HasNoGroupSeparators)
{
    setUnit(u"Inches"_s);
    EXPECT_EQ(pageSizeStringWithSize(inches(1234567, 1000)), u"1234567.00 in x 1000.00 in"_s);
}

TEST_F(PageSizeString, WritesTheLargestNumbersInFull)
{
    setUnit(u"Inches"_s);
    const double huge = -std::numeric_limits<double>::max();
    const QString text = pageSizeStringWithSize({huge, 0});
    EXPECT_EQ(text.size(), QStringView(u"-.00 in x 0.00 in").size() + 307);
    EXPECT_TRUE(text.startsWith(u"-24967960206421052888")) << text.toStdString();
}

TEST_F(PageSizeString, NamesNumbersThatAreNotFinite)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(pageSizeStringWithSize({infinity, -infinity}), u"inf cm x -inf cm"_s);
}

const QDateTime saturday(QDate(2009, 3, 7), QTime(14, 5, 9));

TEST_F(TimestampString, UsesTheUsersFormat)
{
    setFormat(u"%d.%m.%y %H:%M"_s);
    EXPECT_EQ(timestampStringWithDate(saturday), u"07.03.09 14:05"_s);
}

TEST_F(TimestampString, LooksForTheFormatInTheApplicationsDomainThenTheGlobalThenTheRegisteredDefaults)
{
    const QString key = u"NSShortTimeDateFormatString"_s;
    const QString applicationDomain = u"org.example.application"_s;
    defaults().registerDefaults({{key, u"%Y"_s}});
    EXPECT_EQ(timestampStringWithDate(saturday), u"2009"_s);
    setFormat(u"%m"_s);
    EXPECT_EQ(timestampStringWithDate(saturday), u"03"_s);
    defaults().setApplicationDomain(applicationDomain);
    ASSERT_TRUE(defaults().setPersistentDomain({{key, u"%d"_s}}, applicationDomain));
    EXPECT_EQ(timestampStringWithDate(saturday), u"07"_s);
    defaults().setApplicationDomain({});
    defaults().registerDefaults({{key, QVariant()}});
}

TEST_F(TimestampString, IsThatOfTheUsersLocaleWhenTheUserHasSetNoFormat)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(timestampStringWithDate(saturday), u"07.03.09 14:05"_s);
    EXPECT_EQ(timestampStringWithDate(saturday.toOffsetFromUtc(5 * 3600)), u"07.03.09 14:05"_s);
    QLocale::setDefault(QLocale(QLocale::Swedish, QLocale::Sweden));
    EXPECT_EQ(timestampStringWithDate(saturday), u"2009-03-07 14:05"_s);
}

TEST_F(TimestampString, IsThatOfTheUsersLocaleWhenTheFormatIsNoString)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    for (const QVariant &format :
         {QVariant(12), QVariant(QByteArray("%d")), QVariant(QVariantList{u"%d"_s}), QVariant(u""_s)}) {
        setFormat(format);
        EXPECT_EQ(timestampStringWithDate(saturday), u"07.03.09 14:05"_s) << testing::PrintToString(format);
    }
}

TEST_F(TimestampString, TakesNamesFromTheUsersDefaults)
{
    setDefaults({{u"NSShortTimeDateFormatString"_s, u"%A %H:%M"_s},
                 {u"NSWeekDayNameArray"_s, QVariantList{u"Sonntag"_s, u"Montag"_s, u"Dienstag"_s, u"Mittwoch"_s,
                                                        u"Donnerstag"_s, u"Freitag"_s, u"Samstag"_s}}});
    EXPECT_EQ(timestampStringWithDate(saturday), u"Samstag 14:05"_s);
}

TEST_F(TimestampString, IsInLocalTime)
{
    setFormat(u"%Y-%m-%d %H:%M:%S"_s);
    EXPECT_EQ(timestampStringWithDate(saturday.toUTC()), u"2009-03-07 14:05:09"_s);
    EXPECT_EQ(timestampStringWithDate(saturday.toOffsetFromUtc(5 * 3600)), u"2009-03-07 14:05:09"_s);
}

TEST_F(TimestampString, OfAnInvalidDateIsEmpty)
{
    EXPECT_EQ(timestampStringWithDate(QDateTime()), QString());
}

TEST_F(LevelString, NamesTheLevelAndItsString)
{
    EXPECT_EQ(localizedStringForLevel(2, u"##"_s), u"Level 2 (##)"_s);
}

TEST_F(LevelString, FormatsLevelZero)
{
    EXPECT_EQ(localizedStringForLevel(0, u"#"_s), u"Level 0 (#)"_s);
}

TEST_F(LevelString, FormatsANegativeLevel)
{
    EXPECT_EQ(localizedStringForLevel(-1, u"#"_s), u"Level -1 (#)"_s);
    EXPECT_EQ(localizedStringForLevel(std::numeric_limits<qint32>::min(), u"#"_s), u"Level -2147483648 (#)"_s);
}

TEST_F(LevelString, KeepsEmptyParenthesesForAnEmptyString)
{
    EXPECT_EQ(localizedStringForLevel(3, u""_s), u"Level 3 ()"_s);
}

/// Translates the key "Level" into a text that names the bundle it was asked for.
class LevelTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *disambiguation, int) const override
    {
        const bool isLevel = qstrcmp(context, "Localizable") == 0 && qstrcmp(sourceText, "Level") == 0;
        return isLevel ? u"Ebene in "_s + QString::fromUtf8(disambiguation) : QString();
    }
};

TEST_F(LevelString, TakesTheLabelFromTheTextsOfTheKitsBundle)
{
    const support::Application application;
    LevelTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(localizedStringForLevel(2, u"##"_s), u"Ebene in org.orvane.ExportKit 2 (##)"_s);
}

TEST_F(LevelString, TakesTheLabelFromTheBundleThatAHostHasNamed)
{
    const support::Application application;
    LevelTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    const platform::BundleRegistration hostBundle(u"org.example.host"_s, u":/org.example.host"_s);
    const QString identifier = std::exchange(bndlIdentifier, u"org.example.host"_s);
    EXPECT_EQ(localizedStringForLevel(2, u"##"_s), u"Ebene in org.example.host 2 (##)"_s);
    bndlIdentifier = identifier;
}

TEST_F(LevelString, IsTheKeyWhenTheBundleIsUnknown)
{
    const QString identifier = std::exchange(bndlIdentifier, u"com.example.unknown"_s);
    EXPECT_EQ(localizedStringForLevel(2, u"##"_s), u"Level 2 (##)"_s);
    bndlIdentifier = identifier;
}

TEST_F(LevelString, TakesTheStringLiterally)
{
    EXPECT_EQ(localizedStringForLevel(4, u"%1 %@ %2"_s), u"Level 4 (%1 %@ %2)"_s);
}

TEST_F(LevelString, HasNoGroupSeparatorsInTheNumber)
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(localizedStringForLevel(12345, u"#"_s), u"Level 12345 (#)"_s);
}

} // namespace

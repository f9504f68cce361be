#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>

#include <gtest/gtest.h>

#include <QtCore/QSize>
#include <QtCore/QUrl>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;

namespace {

/// The list without the lines that stand around every value.
std::string writeXml(const QVariant &value)
{
    const PropertyList::WriteResult result = PropertyList::write(value, PropertyList::Format::Xml);
    if (!result.data) {
        return "error: " + result.error.toStdString();
    }
    const std::string start = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                              "<plist version=\"1.0\">\n";
    const std::string end = "</plist>\n";
    const std::string xml = result.data->toStdString();
    if (!xml.starts_with(start) || !xml.ends_with(end)) {
        return xml;
    }
    return xml.substr(start.size(), xml.size() - start.size() - end.size());
}

QVariant nested(int arrays)
{
    QVariant value = true;
    for (int i = 0; i < arrays; ++i) {
        value = QVariantList{value};
    }
    return value;
}

TEST(PropertyListXmlWrite, String)
{
    EXPECT_EQ(writeXml(u"some text"_s), "<string>some text</string>\n");
    EXPECT_EQ(writeXml(u""_s), "<string></string>\n");
    EXPECT_EQ(writeXml(QVariant(QString())), "<string></string>\n");
}

TEST(PropertyListXmlWrite, StringEscapesMarkupButNoQuotes)
{
    EXPECT_EQ(writeXml(u"<a href=\"b\">'c' & d</a>"_s), "<string>&lt;a href=\"b\"&gt;'c' &amp; d&lt;/a&gt;</string>\n");
}

TEST(PropertyListXmlWrite, StringKeepsWhiteSpaceAndWritesCarriageReturnsAsReferences)
{
    EXPECT_EQ(writeXml(u" \t\n\r\n\r"_s), "<string> \t\n&#13;\n&#13;</string>\n");
}

TEST(PropertyListXmlWrite, StringHasControlCharactersAsTheyAre)
{
    EXPECT_EQ(writeXml(u"\u0001\u0008\u001F\u007F"_s), "<string>\x01\x08\x1F\x7F</string>\n");
}

TEST(PropertyListXmlWrite, StringIsUtf8)
{
    EXPECT_EQ(writeXml(u"äö€\U0001F600\uFFFF"_s), "<string>äö€\xF0\x9F\x98\x80\xEF\xBF\xBF</string>\n");
}

TEST(PropertyListXmlWrite, IntegersOfEveryType)
{
    EXPECT_EQ(writeXml(QVariant::fromValue('\x05')), "<integer>5</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<signed char>(-5)), "<integer>-5</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<uchar>(200)), "<integer>200</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<short>(-5)), "<integer>-5</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<ushort>(65535)), "<integer>65535</integer>\n");
    EXPECT_EQ(writeXml(-5), "<integer>-5</integer>\n");
    EXPECT_EQ(writeXml(4294967295U), "<integer>4294967295</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<long>(-5)), "<integer>-5</integer>\n");
    EXPECT_EQ(writeXml(QVariant::fromValue<ulong>(5)), "<integer>5</integer>\n");
    EXPECT_EQ(writeXml(std::numeric_limits<qint64>::min()), "<integer>-9223372036854775808</integer>\n");
    EXPECT_EQ(writeXml(std::numeric_limits<quint64>::max()), "<integer>18446744073709551615</integer>\n");
}

TEST(PropertyListXmlWrite, RealsWithTheFewestDigitsThatComeBack)
{
    EXPECT_EQ(writeXml(0.1), "<real>0.1</real>\n");
    EXPECT_EQ(writeXml(1.0 / 3), "<real>0.3333333333333333</real>\n");
    EXPECT_EQ(writeXml(-1e300), "<real>-1e+300</real>\n");
    EXPECT_EQ(writeXml(0.0), "<real>0.0</real>\n");
    EXPECT_EQ(writeXml(-0.0), "<real>-0.0</real>\n");
}

TEST(PropertyListXmlWrite, FloatsAsTheDoubleOfTheSameValue)
{
    EXPECT_EQ(writeXml(1.5F), "<real>1.5</real>\n");
    EXPECT_EQ(writeXml(0.1F), "<real>0.10000000149011612</real>\n");
}

TEST(PropertyListXmlWrite, RealsThatAreNoNumbers)
{
    EXPECT_EQ(writeXml(std::numeric_limits<double>::infinity()), "<real>+infinity</real>\n");
    EXPECT_EQ(writeXml(-std::numeric_limits<double>::infinity()), "<real>-infinity</real>\n");
    EXPECT_EQ(writeXml(std::numeric_limits<double>::quiet_NaN()), "<real>nan</real>\n");
}

TEST(PropertyListXmlWrite, Booleans)
{
    EXPECT_EQ(writeXml(true), "<true/>\n");
    EXPECT_EQ(writeXml(false), "<false/>\n");
}

TEST(PropertyListXmlWrite, DatesInUtcWithoutMilliseconds)
{
    const QDateTime date(QDate(2024, 2, 29), QTime(1, 2, 3, 999), Qt::UTC);
    EXPECT_EQ(writeXml(date), "<date>2024-02-29T01:02:03Z</date>\n");
    EXPECT_EQ(writeXml(date.toOffsetFromUtc(7200)), "<date>2024-02-29T01:02:03Z</date>\n");
    EXPECT_EQ(writeXml(date.toLocalTime()), "<date>2024-02-29T01:02:03Z</date>\n");
    EXPECT_EQ(writeXml(QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC)), "<date>1969-12-31T23:59:59Z</date>\n");
}

TEST(PropertyListXmlWrite, DatesFarAway)
{
    EXPECT_EQ(writeXml(QDateTime(QDate(33, 4, 3), QTime(0, 0), Qt::UTC)), "<date>0033-04-03T00:00:00Z</date>\n");
    EXPECT_EQ(writeXml(QDateTime(QDate(12024, 1, 1), QTime(0, 0), Qt::UTC)), "<date>12024-01-01T00:00:00Z</date>\n");
    EXPECT_EQ(writeXml(QDateTime(QDate(-1, 1, 1), QTime(0, 0), Qt::UTC)), "<date>0000-01-01T00:00:00Z</date>\n");
    EXPECT_EQ(writeXml(QDateTime(QDate(-45, 3, 15), QTime(0, 0), Qt::UTC)), "<date>-0044-03-15T00:00:00Z</date>\n");
}

TEST(PropertyListXmlWrite, Data)
{
    EXPECT_EQ(writeXml("hello"_ba), "<data>\naGVsbG8=\n</data>\n");
    EXPECT_EQ(writeXml(QByteArray()), "<data>\n</data>\n");
    EXPECT_EQ(writeXml("\xFB\xFF"_ba), "<data>\n+/8=\n</data>\n");
}

TEST(PropertyListXmlWrite, DataOnLinesThatGetShorterWithTheIndentation)
{
    EXPECT_EQ(writeXml(QByteArray(58, '\0')), "<data>\n" + std::string(76, 'A') + "\nAA==\n</data>\n");
    EXPECT_EQ(writeXml(QVariantList{QVariant(QVariantList{QByteArray(46, '\0')})}),
              "<array>\n\t<array>\n\t\t<data>\n\t\t" + std::string(60, 'A') +
                  "\n\t\tAA==\n\t\t</data>\n\t</array>\n</array>\n");
}

TEST(PropertyListXmlWrite, DataIsIndentedToTheEighthLevelAtMost)
{
    QVariant value = QByteArray(10, '\0');
    for (int i = 0; i < 9; ++i) {
        value = QVariantList{value};
    }
    const std::string lines = "\t\t\t\t\t\t\t\t\t<data>\n\t\t\t\t\t\t\t\tAAAAAAAAAAAA\n\t\t\t\t\t\t\t\tAA==\n"
                              "\t\t\t\t\t\t\t\t\t</data>\n";
    EXPECT_NE(writeXml(value).find("\n" + lines), std::string::npos) << writeXml(value);
}

TEST(PropertyListXmlWrite, Arrays)
{
    EXPECT_EQ(writeXml(QVariantList{}), "<array/>\n");
    EXPECT_EQ(writeXml(QVariantList{true, QVariantList{1}}),
              "<array>\n\t<true/>\n\t<array>\n\t\t<integer>1</integer>\n\t</array>\n</array>\n");
    EXPECT_EQ(writeXml(QStringList{u"a"_s, u"b"_s}), "<array>\n\t<string>a</string>\n\t<string>b</string>\n</array>\n");
}

TEST(PropertyListXmlWrite, DictionariesInTheOrderOfTheirKeys)
{
    EXPECT_EQ(writeXml(QVariantMap{}), "<dict/>\n");
    const std::string expected = "<dict>\n\t<key>B</key>\n\t<true/>\n\t<key>a</key>\n\t<integer>1</integer>\n"
                                 "\t<key>ä &amp; c</key>\n\t<dict/>\n</dict>\n";
    EXPECT_EQ(writeXml(QVariantMap{{u"ä & c"_s, QVariantMap()}, {u"a"_s, 1}, {u"B"_s, true}}), expected);
    EXPECT_EQ(writeXml(QVariantHash{{u"ä & c"_s, QVariantHash()}, {u"a"_s, 1}, {u"B"_s, true}}), expected);
}

TEST(PropertyListXmlWrite, Uid)
{
    EXPECT_EQ(writeXml(QVariantList{QVariant::fromValue(PropertyList::Uid{4294967295})}),
              "<array>\n\t<dict>\n\t\t<key>CF$UID</key>\n\t\t<integer>4294967295</integer>\n\t</dict>\n</array>\n");
}

struct Unwritable {
    const char *name;
    QVariant value;
    std::string error;
};

void PrintTo(const Unwritable &unwritable, std::ostream *out)
{
    *out << unwritable.name;
}

class PropertyListWriteError : public testing::TestWithParam<Unwritable>
{
};

TEST_P(PropertyListWriteError, NamesTheKeys)
{
    EXPECT_EQ(writeXml(GetParam().value), "error: " + GetParam().error);
}

const QString halfAPair = u"a"_s + QChar(0xD800);
const QString withNull = QString(QChar::Null) + u"a"_s;

const Unwritable unwritables[] = {
    {"Null", QVariant(), "a null value is not a property-list value"},
    {"NullPointer", QVariant::fromValue(nullptr), "a null value is not a property-list value"},
    {"NullInDictionary", QVariantMap{{u"a"_s, QVariant()}}, "a: a null value is not a property-list value"},
    {"OtherType", QVariantMap{{u"settings"_s, QVariantMap{{u"paper"_s, QSize(1, 2)}}}},
     "settings.paper: a value of type QSize is not a property-list value"},
    {"NullOfOtherType", QVariant(QDate()), "a value of type QDate is not a property-list value"},
    {"Url", QVariantList{1, QVariant::fromValue(QUrl())}, "[1]: a value of type QUrl is not a property-list value"},
    {"InArrayInDictionary", QVariantMap{{u"a"_s, QVariantList{1, 2, QVariantMap{{u"b"_s, QChar(u'c')}}}}},
     "a[2].b: a value of type QChar is not a property-list value"},
    {"InvalidDate", QVariantMap{{u"a"_s, QDateTime()}}, "a: an invalid date is not a property-list value"},
    {"NullCharacter", QVariantMap{{u"a"_s, withNull}}, "a: the string holds U+0000, which XML cannot hold"},
    {"NullCharacterInKey", QVariantMap{{withNull, 1}}, "\uFFFDa: the key holds U+0000, which XML cannot hold"},
    {"HalfAPair", QVariantList{halfAPair}, "[0]: the string holds half a surrogate pair, which XML cannot hold"},
    {"HalfAPairInKey", QVariantMap{{u"b"_s, QVariantMap{{halfAPair, 1}}}},
     "b.a?: the key holds half a surrogate pair, which XML cannot hold"},
    {"LongKey", QVariantMap{{QString(1000, u'k'), QVariant()}},
     std::string(40, 'k') + ": a null value is not a property-list value"},
    {"NestingBeyondTheLimit", nested(513),
     "[0][0][0][0][0][0][0][0]...[0][0][0][0][0][0][0][0]: more than 512 containers stand inside each other"},
};
INSTANTIATE_TEST_SUITE_P(Xml, PropertyListWriteError, testing::ValuesIn(unwritables),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(PropertyListWriteErrorOfBinary, IsTheSameExceptForStrings)
{
    const auto writeBinary = [](const QVariant &value) {
        return PropertyList::write(value, PropertyList::Format::Binary);
    };
    EXPECT_EQ(writeBinary(QVariantMap{{u"a"_s, QSize()}}).error.toStdString(),
              "a: a value of type QSize is not a property-list value");
    EXPECT_FALSE(writeBinary(nested(513)).data);
    EXPECT_TRUE(writeBinary(nested(512)).data);
    EXPECT_TRUE(writeBinary(QVariantMap{{withNull, halfAPair}}).data);
}

TEST(PropertyListWriteLimit, NestingCanBeReadAgain)
{
    const auto written = PropertyList::write(nested(512), PropertyList::Format::Xml);
    ASSERT_TRUE(written.data) << written.error.toStdString();
    EXPECT_EQ(dump(PropertyList::read(*written.data)), dump(nested(512)));
}

TEST(PropertyListWriteLimit, RefusesSharedContainersThatWouldExpandWithoutEnd)
{
    QVariantList list{true};
    for (int i = 0; i < 100; ++i) {
        list = QVariantList{QVariant(list), QVariant(list)};
    }
    for (const auto format : {PropertyList::Format::Xml, PropertyList::Format::Binary}) {
        const auto written = PropertyList::write(list, format);
        EXPECT_FALSE(written.data);
        EXPECT_TRUE(written.error.endsWith(u": the values up to here would take more than 1073741824 bytes"))
            << written.error.toStdString();
    }
}

TEST(PropertyListWriteLimit, RefusesDataSharedTooOften)
{
    const QVariantList list(2000, QByteArray(1'000'000, 'a'));
    const auto written = PropertyList::write(list, PropertyList::Format::Xml);
    EXPECT_FALSE(written.data);
    EXPECT_EQ(written.error.toStdString(), "[1073]: the values up to here would take more than 1073741824 bytes");
}

} // namespace

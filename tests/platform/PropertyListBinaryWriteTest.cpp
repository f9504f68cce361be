#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;

namespace {

QByteArray writeBinary(const QVariant &value)
{
    return PropertyList::write(value, PropertyList::Format::Binary).data.value_or(QByteArray());
}

/// The object area of a list in hexadecimal.
std::string objects(const QVariant &value)
{
    const QByteArray list = writeBinary(value);
    const auto table = list.last(8).toHex().toLongLong(nullptr, 16);
    return list.sliced(8, table - 8).toHex().toStdString();
}

TEST(PropertyListBinaryWrite, WholeList)
{
    EXPECT_EQ(writeBinary(QVariantMap{{u"b"_s, true}, {u"a"_s, 5}}).toHex(' '),
              "62 70 6c 69 73 74 30 30 "             // header
              "d2 01 02 03 04 51 61 51 62 10 05 09 " // dictionary, both keys, both values
              "08 0d 0f 11 13 "                      // positions
              "00 00 00 00 00 00 01 01 "             // sizes
              "00 00 00 00 00 00 00 05 "             // count
              "00 00 00 00 00 00 00 00 "             // outermost object
              "00 00 00 00 00 00 00 14"_ba);         // position of the table
}

TEST(PropertyListBinaryWrite, Integers)
{
    EXPECT_EQ(objects(0), "1000");
    EXPECT_EQ(objects(255), "10ff");
    EXPECT_EQ(objects(256), "110100");
    EXPECT_EQ(objects(65536), "1200010000");
    EXPECT_EQ(objects(Q_INT64_C(4294967296)), "130000000100000000");
    EXPECT_EQ(objects(std::numeric_limits<qint64>::max()), "137fffffffffffffff");
    EXPECT_EQ(objects(-1), "13ffffffffffffffff");
    EXPECT_EQ(objects(QVariant::fromValue<signed char>(-128)), "13ffffffffffffff80");
    EXPECT_EQ(objects(std::numeric_limits<qint64>::min()), "138000000000000000");
    EXPECT_EQ(objects(quint64(5)), "1005");
    EXPECT_EQ(objects(quint64(1) << 63), "1400000000000000008000000000000000");
    EXPECT_EQ(objects(std::numeric_limits<quint64>::max()), "140000000000000000ffffffffffffffff");
}

TEST(PropertyListBinaryWrite, RealsOfBothSizes)
{
    EXPECT_EQ(objects(0.1), "233fb999999999999a");
    EXPECT_EQ(objects(1.5F), "223fc00000");
}

TEST(PropertyListBinaryWrite, Booleans)
{
    EXPECT_EQ(objects(false), "08");
    EXPECT_EQ(objects(true), "09");
}

TEST(PropertyListBinaryWrite, DatesWithMilliseconds)
{
    EXPECT_EQ(objects(QDateTime(QDate(2001, 1, 1), QTime(0, 0, 1, 500), Qt::UTC)), "333ff8000000000000");
    EXPECT_EQ(objects(QDateTime(QDate(2000, 12, 31), QTime(23, 59, 59), Qt::UTC)), "33bff0000000000000");
    EXPECT_EQ(objects(QDateTime(QDate(2001, 1, 1), QTime(1, 0), Qt::OffsetFromUTC, 3600)), "330000000000000000");
}

TEST(PropertyListBinaryWrite, Data)
{
    EXPECT_EQ(objects(QByteArray()), "40");
    EXPECT_EQ(objects("\xFF\x00"_ba), "42ff00");
    EXPECT_EQ(objects(QByteArray(14, 'a')), "4e" + support::hex(QByteArray(14, 'a')));
    EXPECT_EQ(objects(QByteArray(15, 'a')), "4f100f" + support::hex(QByteArray(15, 'a')));
    EXPECT_EQ(objects(QByteArray(256, 'a')), "4f110100" + support::hex(QByteArray(256, 'a')));
}

TEST(PropertyListBinaryWrite, StringsAsAsciiOrUtf16)
{
    EXPECT_EQ(objects(u""_s), "50");
    EXPECT_EQ(objects(u"a\u007F\r"_s), "53617f0d");
    EXPECT_EQ(objects(u"aä"_s), "62006100e4");
    EXPECT_EQ(objects(u"\U0001F600"_s), "62d83dde00");
    EXPECT_EQ(objects(QString(QChar(0xD800))), "61d800");
    EXPECT_EQ(objects(QString(QChar(u'\0'))), "5100");
    EXPECT_EQ(objects(QString(15, u'ä')), "6f100f" + support::hexUnits(QString(15, u'ä')));
}

TEST(PropertyListBinaryWrite, Uids)
{
    EXPECT_EQ(objects(QVariant::fromValue(PropertyList::Uid{5})), "8005");
    EXPECT_EQ(objects(QVariant::fromValue(PropertyList::Uid{256})), "810100");
    EXPECT_EQ(objects(QVariant::fromValue(PropertyList::Uid{65536})), "8300010000");
}

TEST(PropertyListBinaryWrite, Arrays)
{
    EXPECT_EQ(objects(QVariantList{}), "a0");
    EXPECT_EQ(objects(QVariantList{QVariantList{true}, QVariantList{}}), "a20103a10209a0");
    EXPECT_EQ(objects(QStringList{u"a"_s}), "a1015161");
    EXPECT_EQ(objects(QVariantList(15, true)),
              "af100f" + std::string("01010101010101010101010101010109").substr(0, 30) + "09");
}

TEST(PropertyListBinaryWrite, DictionariesInTheOrderOfTheirKeys)
{
    EXPECT_EQ(objects(QVariantMap{}), "d0");
    EXPECT_EQ(objects(QVariantHash{{u"b"_s, 2}, {u"a"_s, 1}}), "d2010203045161516210011002");
}

TEST(PropertyListBinaryWrite, EqualScalarsOnce)
{
    EXPECT_EQ(objects(QVariantList{u"a"_s, u"a"_s}), "a201015161");
    EXPECT_EQ(objects(QVariantMap{{u"a"_s, u"a"_s}}), "d101015161");
    EXPECT_EQ(objects(QVariantList{5, quint64(5), 5}), "a30101011005");
    EXPECT_EQ(objects(QVariantList{"a"_ba, "a"_ba}), "a201014161");
}

TEST(PropertyListBinaryWrite, ScalarsOfDifferentKindsApart)
{
    EXPECT_EQ(objects(QVariantList{true, 1, 1.0, 1.0F}), "a4010203040910012"
                                                         "33ff0000000000000"
                                                         "223f800000");
    EXPECT_EQ(objects(QVariantList{u"a"_s, "a"_ba}), "a2010251614161");
    EXPECT_EQ(objects(QVariantList{0.0, -0.0}), "a20102230000000000000000"
                                                "238000000000000000");
}

QVariantList numbers(int count)
{
    QVariantList list;
    for (int i = 0; i < count; ++i) {
        list.append(i);
    }
    return list;
}

struct Sizes {
    int objects;
    char positionSize;
    char referenceSize;
};

class PropertyListBinarySizes : public testing::TestWithParam<Sizes>
{
};

TEST_P(PropertyListBinarySizes, AreTheSmallestThatFit)
{
    const QVariantList value = numbers(GetParam().objects - 1);
    const QByteArray list = writeBinary(value);
    const QByteArray trailer = list.last(32);
    EXPECT_EQ(trailer[6], GetParam().positionSize);
    EXPECT_EQ(trailer[7], GetParam().referenceSize);
    const auto result = PropertyList::read(list);
    ASSERT_TRUE(result.value) << result.error.toStdString();
    EXPECT_EQ(*result.value, QVariant(value));
}

// Readers that compare the count itself with the size of a reference refuse one byte for 256 objects.
INSTANTIATE_TEST_SUITE_P(Bytes, PropertyListBinarySizes,
                         testing::Values(Sizes{2, 1, 1}, Sizes{82, 1, 1}, Sizes{83, 2, 1}, Sizes{255, 2, 1},
                                         Sizes{256, 2, 2}, Sizes{257, 2, 2}, Sizes{65535, 4, 2}, Sizes{65536, 4, 4}));

} // namespace

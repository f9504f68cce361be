#include <OrvaneExportKit/platform/Archiver.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QSize>

#include <functional>
#include <limits>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::Archiver;
using platform::Coder;
using platform::KeyedArchiver;
using platform::KeyedUnarchiver;
using platform::Unarchiver;

template <typename Value>
void encode(Coder &coder, const char *code, Value value)
{
    coder.encodeValueOfObjCType(code, &value);
}

template <typename Value>
Value decode(Coder &coder, const char *code)
{
    Value value{};
    coder.decodeValueOfObjCType(code, &value);
    return value;
}

template <typename Value>
constexpr Value lowest = std::numeric_limits<Value>::lowest();

template <typename Value>
constexpr Value highest = std::numeric_limits<Value>::max();

void encodeOneOfEach(Coder &coder)
{
    encode(coder, "c", lowest<qint8>);
    encode(coder, "s", lowest<qint16>);
    encode(coder, "i", lowest<qint32>);
    encode(coder, "q", lowest<qint64>);
    encode(coder, "C", highest<quint8>);
    encode(coder, "S", highest<quint16>);
    encode(coder, "I", highest<quint32>);
    encode(coder, "Q", highest<quint64>);
    encode(coder, "f", 0.1F);
    encode(coder, "d", 0.1);
    encode(coder, "B", true);
    coder.encodeObject(u"text"_s);
    coder.encodeObject(QVariant());
    encode(coder, "B", false);
}

void expectOneOfEach(Coder &coder)
{
    EXPECT_EQ(decode<qint8>(coder, "c"), lowest<qint8>);
    EXPECT_EQ(decode<qint16>(coder, "s"), lowest<qint16>);
    EXPECT_EQ(decode<qint32>(coder, "i"), lowest<qint32>);
    EXPECT_EQ(decode<qint64>(coder, "q"), lowest<qint64>);
    EXPECT_EQ(decode<quint8>(coder, "C"), highest<quint8>);
    EXPECT_EQ(decode<quint16>(coder, "S"), highest<quint16>);
    EXPECT_EQ(decode<quint32>(coder, "I"), highest<quint32>);
    EXPECT_EQ(decode<quint64>(coder, "Q"), highest<quint64>);
    EXPECT_EQ(decode<float>(coder, "f"), 0.1F);
    EXPECT_EQ(decode<double>(coder, "d"), 0.1);
    EXPECT_TRUE(decode<bool>(coder, "B"));
    EXPECT_EQ(coder.decodeObject(), QVariant(u"text"_s));
    EXPECT_FALSE(coder.decodeObject().isValid());
    EXPECT_FALSE(decode<bool>(coder, "B"));
}

std::string complaint(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const platform::Exception &exception) {
        return exception.what();
    }
    return "nothing is wrong";
}

TEST(Coder, KeyedArchivesHoldFieldsWithoutNames)
{
    KeyedArchiver archiver;
    encodeOneOfEach(archiver);
    KeyedUnarchiver unarchiver(archiver.encodedData());
    expectOneOfEach(unarchiver);
}

TEST(Coder, ArchivesWithoutNamesHoldFieldsInTheirOrder)
{
    Archiver archiver;
    EXPECT_FALSE(archiver.allowsKeyedCoding());
    encodeOneOfEach(archiver);
    archiver.encodeObject(QVariantList{QSize(1, 2)});
    Unarchiver unarchiver(archiver.archivedData());
    EXPECT_FALSE(unarchiver.allowsKeyedCoding());
    expectOneOfEach(unarchiver);
    EXPECT_EQ(unarchiver.decodeObject(), QVariant(QVariantList{QSize(1, 2)}));
}

TEST(Coder, RefusesOtherTypeCodes)
{
    KeyedArchiver keyed;
    Archiver plain;
    KeyedUnarchiver keyedReader(keyed.encodedData());
    Unarchiver plainReader(plain.archivedData());
    double number = 0;
    for (const char *code : {"", "x", "@", "ff", "*"}) {
        const std::string what = std::string(": `") + code + "` is no type code";
        for (Coder *coder : {static_cast<Coder *>(&keyed), static_cast<Coder *>(&plain)}) {
            EXPECT_EQ(complaint([&] { coder->encodeValueOfObjCType(code, &number); }), "encodeValueOfObjCType" + what);
        }
        for (Coder *coder : {static_cast<Coder *>(&keyedReader), static_cast<Coder *>(&plainReader)}) {
            EXPECT_EQ(complaint([&] { coder->decodeValueOfObjCType(code, &number); }), "decodeValueOfObjCType" + what);
        }
    }
}

TEST(Coder, ArchivesWithoutNamesAreReadWithTheCodesOfWriting)
{
    Archiver archiver;
    encode(archiver, "f", 1.5F);
    archiver.encodeObject(u"text"_s);
    const QByteArray data = archiver.archivedData();
    float number = 0;
    {
        Unarchiver unarchiver(data);
        EXPECT_EQ(complaint([&] { unarchiver.decodeValueOfObjCType("d", &number); }),
                  "decodeValueOfObjCType: here stands a value of type code `f`");
        EXPECT_EQ(number, 0.0F);
    }
    {
        Unarchiver unarchiver(data);
        EXPECT_EQ(complaint([&] { unarchiver.decodeObject(); }), "decodeObject: here stands no object");
    }
    Unarchiver unarchiver(data);
    EXPECT_EQ(decode<float>(unarchiver, "f"), 1.5F);
    EXPECT_EQ(complaint([&] { unarchiver.decodeValueOfObjCType("f", &number); }),
              "decodeValueOfObjCType: here stands an object");
}

TEST(Coder, NothingIsReadBehindTheEnd)
{
    Archiver archiver;
    encode(archiver, "i", 3);
    Unarchiver unarchiver(archiver.archivedData());
    EXPECT_EQ(decode<qint32>(unarchiver, "i"), 3);
    EXPECT_EQ(complaint([&] { unarchiver.decodeObject(); }), "decodeObject: the archive ends too early");
    EXPECT_EQ(complaint([&] { decode<qint32>(unarchiver, "i"); }), "decodeValueOfObjCType: the archive ends too early");

    KeyedArchiver keyed;
    encode(keyed, "i", 3);
    KeyedUnarchiver keyedReader(keyed.encodedData());
    EXPECT_EQ(decode<qint32>(keyedReader, "i"), 3);
    EXPECT_EQ(complaint([&] { keyedReader.decodeObject(); }), "the outermost fields: `$1` is missing");
    EXPECT_EQ(complaint([&] { decode<qint32>(keyedReader, "i"); }), "the outermost fields: `$1` is missing");
}

TEST(Coder, KeyedArchivesAreReadInTheOrderOfWriting)
{
    KeyedArchiver archiver;
    archiver.encodeObject(u"text"_s);
    encode(archiver, "i", 3);
    KeyedUnarchiver unarchiver(archiver.encodedData());
    EXPECT_EQ(complaint([&] { decode<qint32>(unarchiver, "i"); }), "the outermost fields: `$0` is no number");
    EXPECT_EQ(unarchiver.decodeObject(), QVariant(u"text"_s));
    EXPECT_EQ(complaint([&] { unarchiver.decodeObject(); }),
              "the outermost fields: `$1` holds something that is no reference");
    EXPECT_EQ(decode<qint32>(unarchiver, "i"), 3);
}

TEST(Coder, ArchivesWithoutNamesServeNoKeys)
{
    Archiver archiver;
    Coder &coder = archiver;
    const std::string what = ": this coder does not serve the operation";
    EXPECT_EQ(complaint([&] { coder.encodeObject(1, u"a"_s); }), "encodeObject" + what);
    EXPECT_EQ(complaint([&] { coder.encodeFloat(1, u"a"_s); }), "encodeFloat" + what);
    EXPECT_EQ(complaint([&] { coder.encodeDouble(1, u"a"_s); }), "encodeDouble" + what);
    EXPECT_EQ(complaint([&] { coder.encodeInt64(1, u"a"_s); }), "encodeInt64" + what);
    EXPECT_EQ(complaint([&] { coder.encodeBool(true, u"a"_s); }), "encodeBool" + what);
    EXPECT_EQ(complaint([&] { coder.encodeBytes("a", u"a"_s); }), "encodeBytes" + what);
    EXPECT_EQ(complaint([&] { coder.decodeObject(); }), "decodeObject" + what);
    Unarchiver unarchiver(archiver.archivedData());
    EXPECT_EQ(complaint([&] { static_cast<void>(unarchiver.containsValueForKey(u"a"_s)); }),
              "containsValueForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeObjectForKey(u"a"_s); }), "decodeObjectForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeFloatForKey(u"a"_s); }), "decodeFloatForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeDoubleForKey(u"a"_s); }), "decodeDoubleForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeInt64ForKey(u"a"_s); }), "decodeInt64ForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeBoolForKey(u"a"_s); }), "decodeBoolForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.decodeBytesForKey(u"a"_s); }), "decodeBytesForKey" + what);
    EXPECT_EQ(complaint([&] { unarchiver.encodeObject(1); }), "encodeObject" + what);
    EXPECT_THROW(unarchiver.encodeObject(1), platform::UnrecognisedOperationException);
}

TEST(Coder, DataThatIsNoArchiveIsRefused)
{
    EXPECT_EQ(complaint([] { Unarchiver unarchiver("text"); }), "Unarchiver: the data is not a whole archive");
    EXPECT_EQ(complaint([] { KeyedUnarchiver unarchiver("<plist><true/></plist>"); }), "the archive: is no dictionary");
}

} // namespace

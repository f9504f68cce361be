#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedArchiver.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <tests/support/HandMadeArchives.h>
#include <tests/support/Printers.h>
#include <tests/support/PropertyListDump.h>
#include <tests/support/SharingArchives.h>

#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QMarginsF>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

#include <functional>
#include <limits>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::ArchivedClassRegistration;
using platform::AttributedString;
using platform::Coder;
using platform::KeyedArchiver;
using platform::KeyedObject;
using platform::KeyedUnarchiver;
using platform::PropertyList;
using platform::Range;
using support::binaryArchive;
using support::dump;
using support::keyedArchive;
using support::object;
using support::uid;
using support::uids;

constexpr PropertyList::Format formats[] = {PropertyList::Format::Binary, PropertyList::Format::Xml};

QVariant restored(const QVariant &value, PropertyList::Format format = PropertyList::Format::Binary)
{
    return KeyedUnarchiver::unarchiveObjectWithData(KeyedArchiver::archivedDataWithRootObject(value, format));
}

QVariantMap classEntry(const QStringList &names)
{
    return {{u"$classname"_s, names.first()}, {u"$classes"_s, QVariantList(names.begin(), names.end())}};
}

AttributedString styledText()
{
    return AttributedString::fromStretches(u"0123456"_s,
                                           {{1, {{u"s"_s, u"a"_s}}}, {4, {{u"s"_s, u"b"_s}}}, {2, {{u"s"_s, u"a"_s}}}});
}

/// A value, and the objects of its archive from index 1 on.
struct Layout {
    const char *name;
    QVariant value;
    QVariantList objects;
};

void PrintTo(const Layout &layout, std::ostream *out)
{
    PrintTo(layout.value, out);
}

class KeyedArchiverLayout : public testing::TestWithParam<Layout>
{
};

TEST_P(KeyedArchiverLayout, IsThatOfOtherArchivers)
{
    for (const PropertyList::Format format : formats) {
        const QByteArray data = KeyedArchiver::archivedDataWithRootObject(GetParam().value, format);
        const PropertyList::ReadResult list = PropertyList::read(data);
        EXPECT_EQ(list.format, format);
        EXPECT_EQ(dump(list), dump(keyedArchive(GetParam().objects)));
    }
}

const QVariantMap arrayClass = classEntry({u"NSArray"_s, u"NSObject"_s});
const QVariantMap dictionaryClass = classEntry({u"NSDictionary"_s, u"NSObject"_s});
const QVariantMap valueClass = classEntry({u"NSValue"_s, u"NSObject"_s});

const Layout layouts[] = {
    {"String", u"text"_s, {u"text"_s}},
    {"StringThatIsTheNameOfNothing",
     u"$null"_s,
     {QVariantMap{{u"$class"_s, uid(2)}, {u"NS.string"_s, u"$null"_s}}, classEntry({u"NSString"_s, u"NSObject"_s})}},
    {"Integer", 42, {qint64{42}}},
    {"LargestInteger", quint64{18446744073709551615U}, {quint64{18446744073709551615U}}},
    {"Real", 0.1, {0.1}},
    {"Boolean", true, {true}},
    {"Data", "\x00\xFF"_ba, {"\x00\xFF"_ba}},
    {"Null",
     QVariant::fromValue(nullptr),
     {QVariantMap{{u"$class"_s, uid(2)}}, classEntry({u"NSNull"_s, u"NSObject"_s})}},
    {"Date",
     QDateTime::fromMSecsSinceEpoch(978307201500, Qt::UTC),
     {QVariantMap{{u"$class"_s, uid(2)}, {u"NS.time"_s, 1.5}}, classEntry({u"NSDate"_s, u"NSObject"_s})}},
    {"Url",
     QUrl(u"https://example.org/a b"_s),
     {QVariantMap{{u"$class"_s, uid(3)}, {u"NS.base"_s, uid(0)}, {u"NS.relative"_s, uid(2)}},
      u"https://example.org/a%20b"_s, classEntry({u"NSURL"_s, u"NSObject"_s})}},
    {"Uuid",
     QUuid(u"00112233-4455-6677-8899-aabbccddeeff"_s),
     {QVariantMap{{u"$class"_s, uid(2)}, {u"NS.uuidbytes"_s, QByteArray::fromHex("00112233445566778899aabbccddeeff")}},
      classEntry({u"NSUUID"_s, u"NSObject"_s})}},
    {"Point",
     QPointF(1.5, -2),
     {QVariantMap{{u"$class"_s, uid(3)}, {u"NS.special"_s, qint64{1}}, {u"NS.pointval"_s, uid(2)}}, u"{1.5, -2}"_s,
      valueClass}},
    {"Size",
     QSizeF(595.25, 842),
     {QVariantMap{{u"$class"_s, uid(3)}, {u"NS.special"_s, qint64{2}}, {u"NS.sizeval"_s, uid(2)}}, u"{595.25, 842}"_s,
      valueClass}},
    {"Rectangle",
     QRectF(1, 9, 480, 270),
     {QVariantMap{{u"$class"_s, uid(3)}, {u"NS.special"_s, qint64{3}}, {u"NS.rectval"_s, uid(2)}},
      u"{{1, 9}, {480, 270}}"_s, valueClass}},
    {"Range",
     QVariant::fromValue(Range{5, 7}),
     {QVariantMap{{u"$class"_s, uid(4)},
                  {u"NS.special"_s, qint64{4}},
                  {u"NS.rangeval.location"_s, uid(2)},
                  {u"NS.rangeval.length"_s, uid(3)}},
      qint64{5}, qint64{7}, valueClass}},
    {"EdgeInsets",
     QVariant::fromValue(QMarginsF(2, 1, 4.5, 3)),
     {QVariantMap{{u"$class"_s, uid(2)},
                  {u"NS.special"_s, qint64{12}},
                  {u"NS.edgeval.top"_s, 1.0},
                  {u"NS.edgeval.left"_s, 2.0},
                  {u"NS.edgeval.bottom"_s, 3.0},
                  {u"NS.edgeval.right"_s, 4.5}},
      valueClass}},
    {"ListThatHoldsAStringTwice",
     QVariantList{u"a"_s, u"b"_s, u"a"_s},
     {QVariantMap{{u"$class"_s, uid(4)}, {u"NS.objects"_s, uids({2, 3, 2})}}, u"a"_s, u"b"_s, arrayClass}},
    {"ListOfNumbersOfDifferentTypes",
     QVariantList{1, 1.0, true},
     {QVariantMap{{u"$class"_s, uid(5)}, {u"NS.objects"_s, uids({2, 3, 4})}}, qint64{1}, 1.0, true, arrayClass}},
    {"ListThatHoldsAListTwice",
     QVariantList(2, QVariantList{u"a"_s}),
     {QVariantMap{{u"$class"_s, uid(4)}, {u"NS.objects"_s, uids({2, 2})}},
      QVariantMap{{u"$class"_s, uid(4)}, {u"NS.objects"_s, uids({3})}}, u"a"_s, arrayClass}},
    {"Map",
     QVariantMap{{u"a"_s, 1}, {u"b"_s, u"a"_s}},
     {QVariantMap{{u"$class"_s, uid(5)}, {u"NS.keys"_s, uids({2, 3})}, {u"NS.objects"_s, uids({4, 2})}}, u"a"_s, u"b"_s,
      qint64{1}, dictionaryClass}},
    {"Dictionary",
     QVariant::fromValue(platform::ObjectDictionary{{1}, {u"a"_s}}),
     {QVariantMap{{u"$class"_s, uid(4)}, {u"NS.keys"_s, uids({2})}, {u"NS.objects"_s, uids({3})}}, qint64{1}, u"a"_s,
      dictionaryClass}},
    {"Set",
     QVariant::fromValue(platform::ObjectSet{{u"a"_s}}),
     {QVariantMap{{u"$class"_s, uid(3)}, {u"NS.objects"_s, uids({2})}}, u"a"_s,
      classEntry({u"NSSet"_s, u"NSObject"_s})}},
    {"OrderedSet",
     QVariant::fromValue(platform::OrderedObjectSet{{u"a"_s, u"b"_s}}),
     {QVariantMap{{u"$class"_s, uid(4)}, {u"NS.object.0"_s, uid(2)}, {u"NS.object.1"_s, uid(3)}}, u"a"_s, u"b"_s,
      classEntry({u"NSOrderedSet"_s, u"NSObject"_s})}},
    {"CountedSet",
     QVariant::fromValue(platform::CountedObjectSet{{u"a"_s}, {3}}),
     {QVariantMap{
          {u"$class"_s, uid(3)}, {u"NS.count"_s, qint64{1}}, {u"NS.object0"_s, uid(2)}, {u"NS.count0"_s, qint64{3}}},
      u"a"_s, classEntry({u"NSCountedSet"_s, u"NSMutableSet"_s, u"NSSet"_s, u"NSObject"_s})}},
    {"IndexSetOfOneRange",
     QVariant::fromValue(platform::RangeList{{3, 2}}),
     {QVariantMap{{u"$class"_s, uid(2)},
                  {u"NSRangeCount"_s, qint64{1}},
                  {u"NSLocation"_s, qint64{3}},
                  {u"NSLength"_s, qint64{2}}},
      classEntry({u"NSIndexSet"_s, u"NSObject"_s})}},
    {"IndexSetOfTwoRanges",
     QVariant::fromValue(platform::RangeList{{1, 2}, {516, 1}}),
     {QVariantMap{{u"$class"_s, uid(2)}, {u"NSRangeCount"_s, qint64{2}}, {u"NSRangeData"_s, "\1\2\x84\4\1"_ba}},
      classEntry({u"NSIndexSet"_s, u"NSObject"_s})}},
    {"IndexPath",
     QVariant::fromValue(platform::IndexPath{{1, 516}}),
     {QVariantMap{{u"$class"_s, uid(2)}, {u"NSIndexPathLength"_s, qint64{2}}, {u"NSIndexPathData"_s, "\1\x84\4"_ba}},
      classEntry({u"NSIndexPath"_s, u"NSObject"_s})}},
    {"TextOfOneRun",
     QVariant::fromValue(AttributedString(u"ab"_s, {{u"s"_s, u"x"_s}})),
     {QVariantMap{{u"$class"_s, uid(7)}, {u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}}, u"ab"_s,
      QVariantMap{{u"$class"_s, uid(6)}, {u"NS.keys"_s, uids({4})}, {u"NS.objects"_s, uids({5})}}, u"s"_s, u"x"_s,
      dictionaryClass, classEntry({u"NSAttributedString"_s, u"NSObject"_s})}},
    {"TextOfSeveralRuns",
     QVariant::fromValue(styledText()),
     {QVariantMap{{u"$class"_s, uid(12)},
                  {u"NSString"_s, uid(2)},
                  {u"NSAttributes"_s, uid(9)},
                  {u"NSAttributeInfo"_s, uid(11)}},
      u"0123456"_s, QVariantMap{{u"$class"_s, uid(6)}, {u"NS.keys"_s, uids({4})}, {u"NS.objects"_s, uids({5})}}, u"s"_s,
      u"a"_s, dictionaryClass,
      QVariantMap{{u"$class"_s, uid(6)}, {u"NS.keys"_s, uids({4})}, {u"NS.objects"_s, uids({8})}}, u"b"_s,
      QVariantMap{{u"$class"_s, uid(10)}, {u"NS.objects"_s, uids({3, 7})}},
      classEntry({u"NSMutableArray"_s, u"NSArray"_s, u"NSObject"_s}), QByteArray("\1\0\4\1\2\0", 6),
      classEntry({u"NSAttributedString"_s, u"NSObject"_s})}},
};
INSTANTIATE_TEST_SUITE_P(Values, KeyedArchiverLayout, testing::ValuesIn(layouts),
                         [](const auto &info) { return std::string(info.param.name); });

TEST(KeyedArchiver, RestoresEveryType)
{
    const QVariantList values{
        u"text"_s,
        u""_s,
        u"$null"_s,
        qint64{-9},
        std::numeric_limits<qint64>::min(),
        quint64{18446744073709551615U},
        0.1,
        std::numeric_limits<double>::infinity(),
        true,
        false,
        QVariant::fromValue(nullptr),
        "\x00\xFF"_ba,
        QByteArray(),
        QDateTime::fromMSecsSinceEpoch(1'234'567'890'123, Qt::UTC),
        QVariantList(),
        QVariantList{u"a"_s, QVariantList{true, 1.5}, QVariantMap()},
        QVariantMap{{u"$a"_s, u"b"_s}, {u""_s, qint64{1}}},
        QVariant::fromValue(platform::ObjectDictionary{{qint64{1}, u"a"_s}, {u"a"_s, false}}),
        QVariant::fromValue(platform::ObjectSet{{u"a"_s, qint64{1}}}),
        QVariant::fromValue(platform::OrderedObjectSet{{u"b"_s, u"a"_s}}),
        QVariant::fromValue(platform::CountedObjectSet{{u"b"_s, u"a"_s}, {2, 1}}),
        QUrl(u"https://example.org/a%20b?c=d#e"_s),
        QVariant::fromValue(platform::ArchivedUrl{u"item://F1B2C3D4/a b"_s, {}}),
        QVariant::fromValue(platform::ArchivedUrl{u"../C"_s, QUrl(u"https://example.org/a/b/"_s)}),
        QUuid(u"00112233-4455-6677-8899-aabbccddeeff"_s),
        QPointF(0.1, -1e20),
        QSizeF(595.25, 842),
        QRectF(-1, 0.5, 480, 270),
        QVariant::fromValue(QMarginsF(1, 2, 3, 4.5)),
        QVariant::fromValue(Range{3, 4}),
        QVariant::fromValue(Range{platform::notFound, 0}),
        QVariant::fromValue(platform::RangeList{}),
        QVariant::fromValue(platform::RangeList{{3, 2}}),
        QVariant::fromValue(platform::RangeList{{3, 2}, {700, 1}}),
        QVariant::fromValue(platform::IndexPath{}),
        QVariant::fromValue(platform::IndexPath{{4}}),
        QVariant::fromValue(platform::IndexPath{{4, 0, 1000000}}),
        QVariant::fromValue(AttributedString()),
        QVariant::fromValue(AttributedString(u"plain"_s)),
        QVariant::fromValue(AttributedString(u"bold"_s, {{u"s"_s, u"b"_s}})),
        QVariant::fromValue(styledText()),
    };
    for (const PropertyList::Format format : formats) {
        for (const QVariant &value : values) {
            const QVariant back = restored(value, format);
            EXPECT_STREQ(back.typeName(), value.typeName());
            EXPECT_EQ(back, value) << value.typeName();
        }
        EXPECT_EQ(restored(values, format), QVariant(values));
        EXPECT_FALSE(restored(QVariant(), format).isValid());
    }
}

TEST(KeyedArchiver, WritesOtherTypesAsThoseThatAreRead)
{
    EXPECT_EQ(restored(QStringList{u"a"_s, u"b"_s}), QVariant(QVariantList{u"a"_s, u"b"_s}));
    EXPECT_EQ(restored(QVariantHash{{u"a"_s, 1}}), QVariant(QVariantMap{{u"a"_s, qint64{1}}}));
    EXPECT_STREQ(restored(QVariant::fromValue<qint8>(-1)).typeName(), "qlonglong");
    EXPECT_EQ(restored(QVariant::fromValue<quint16>(65535)), QVariant(qint64{65535}));
    EXPECT_STREQ(restored(1.5F).typeName(), "double");
    EXPECT_EQ(restored(QPoint(1, -2)), QVariant(QPointF(1, -2)));
    EXPECT_EQ(restored(QSize(3, 4)), QVariant(QSizeF(3, 4)));
    EXPECT_EQ(restored(QRect(1, 2, 3, 4)), QVariant(QRectF(1, 2, 3, 4)));
    EXPECT_EQ(restored(QVariant::fromValue(QMargins(1, 2, 3, 4))), QVariant::fromValue(QMarginsF(1, 2, 3, 4)));
    EXPECT_EQ(restored(QDate(2024, 2, 29)), QVariant(QDateTime(QDate(2024, 2, 29), QTime(0, 0), Qt::UTC)));
    EXPECT_EQ(restored(QVariant::fromValue(QList<int>{1, -2})), QVariant(QVariantList{qint64{1}, qint64{-2}}));
    EXPECT_EQ(restored(QVariant::fromValue(QList<quint64>{1})), QVariant(QVariantList{qint64{1}}));
    EXPECT_EQ(restored(QVariant::fromValue(QList<double>{0.5})), QVariant(QVariantList{0.5}));
    EXPECT_EQ(restored(QVariant::fromValue(QList<QByteArray>{"a"_ba})), QVariant(QVariantList{"a"_ba}));
    EXPECT_EQ(restored(QVariant::fromValue(QList<QList<int>>{{1}, {}})),
              QVariant(QVariantList{QVariantList{qint64{1}}, QVariantList()}));
    EXPECT_EQ(restored(QVariant::fromValue(QMap<QString, QString>{{u"a"_s, u"b"_s}})),
              QVariant(QVariantMap{{u"a"_s, u"b"_s}}));
    EXPECT_EQ(restored(QVariant::fromValue(QHash<QString, int>{{u"a"_s, 1}})),
              QVariant(QVariantMap{{u"a"_s, qint64{1}}}));
}

TEST(KeyedArchiver, SharesEqualTextsAfterReading)
{
    const QVariantList texts =
        restored(QVariantList{QVariant::fromValue(styledText()), QVariant::fromValue(styledText()), u"0123456"_s})
            .toList();
    EXPECT_EQ(texts[0].value<AttributedString>().string().constData(),
              texts[1].value<AttributedString>().string().constData());
    EXPECT_EQ(texts[0].value<AttributedString>().string().constData(), texts[2].toString().constData());
}

TEST(KeyedArchiver, WritesListsThatDoubleAtEveryLevel)
{
    QVariantList list;
    for (int level = 1; level < 500; ++level) {
        list = QVariantList(2, list);
    }
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(list);
    EXPECT_LT(data.size(), 50'000);
    EXPECT_TRUE(KeyedUnarchiver::unarchiveObjectWithData(data).isValid());
}

struct Unarchivable {
    int value = 0;
};

std::string complaint(const QVariant &value, PropertyList::Format format = PropertyList::Format::Binary)
{
    try {
        KeyedArchiver::archivedDataWithRootObject(value, format);
    } catch (const platform::InvalidArgumentException &exception) {
        return exception.what();
    }
    return "nothing is wrong";
}

QVariantList nested(int depth)
{
    QVariantList list;
    for (int level = 1; level < depth; ++level) {
        list = QVariantList{QVariant(list)};
    }
    return list;
}

TEST(KeyedArchiver, RefusesWhatCannotBeArchived)
{
    EXPECT_EQ(complaint(QVariant::fromValue(Unarchivable())), std::string("encodeObject: a value of type ") +
                                                                  QMetaType::fromType<Unarchivable>().name() +
                                                                  " cannot be archived");
    EXPECT_EQ(complaint(QVariantList{QVariant()}),
              "encodeObject: a list, a dictionary or a set holds nothing in the place of a value");
    EXPECT_EQ(complaint(QVariantMap{{u"a"_s, QVariant()}}),
              "encodeObject: a list, a dictionary or a set holds nothing in the place of a value");
    EXPECT_EQ(complaint(QDateTime()), "encodeObject: a date is not valid");
    EXPECT_EQ(complaint(QDate()), "encodeObject: a date is not valid");
    EXPECT_EQ(complaint(QVariant::fromValue(QMap<int, QString>{{1, u"a"_s}})),
              "encodeObject: a value of type QMap<int,QString> cannot be archived");
    EXPECT_EQ(complaint(QVariant::fromValue(platform::ObjectDictionary{{1}, {}})),
              "encodeObject: a dictionary has 1 keys and 0 objects");
    EXPECT_EQ(complaint(QVariant::fromValue(platform::CountedObjectSet{{1}, {}})),
              "encodeObject: a counted set has 1 elements and 0 counts");
    EXPECT_EQ(complaint(nested(512)), "nothing is wrong");
    EXPECT_EQ(complaint(nested(513)), "encodeObject: more than 512 values are inside each other");
    const QString withNull = u"a"_s + QChar::Null + u"b"_s;
    EXPECT_EQ(complaint(withNull), "nothing is wrong");
    EXPECT_EQ(complaint(withNull, PropertyList::Format::Xml),
              "KeyedArchiver: $objects[1]: the string holds U+0000, which XML cannot hold");
}

TEST(KeyedArchiver, GoesOnAfterAFailure)
{
    KeyedArchiver archiver;
    EXPECT_THROW(archiver.encodeObject(QVariantList{u"a"_s, QVariant()}, u"bad"_s), platform::InvalidArgumentException);
    archiver.encodeObject(QVariantList{u"a"_s, u"b"_s}, u"root"_s);
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(archiver.encodedData()), QVariant(QVariantList{u"a"_s, u"b"_s}));
}

const QVariantList viewAndCell{
    QVariantMap{{u"$class"_s, uid(4)}, {u"cell"_s, uid(2)}, {u"parts"_s, uids({2, 3, 0})}, {u"$$tag"_s, qint64{3}}},
    QVariantMap{{u"$class"_s, uid(5)}, {u"view"_s, uid(1)}, {u"title"_s, uid(3)}, {u"$0"_s, 1.5}}, u"Title"_s,
    classEntry({u"View"_s, u"Responder"_s, u"NSObject"_s}), QVariantMap{{u"$classname"_s, u"Cell"_s}}};

TEST(KeyedArchiver, CopiesObjectsOfUnknownClassesWithTheirCircles)
{
    const QVariant view = KeyedUnarchiver::unarchiveObjectWithData(binaryArchive(keyedArchive(viewAndCell)));
    for (const PropertyList::Format format : formats) {
        const QVariantList copies = restored(QVariantList{u"Title"_s, view, view}, format).toList();
        ASSERT_EQ(copies.size(), 3);
        EXPECT_EQ(copies[1], copies[2]);
        const auto copy = copies[1].value<KeyedObject>();
        EXPECT_EQ(copy.classNames(), QStringList({u"View"_s, u"Responder"_s, u"NSObject"_s}));
        EXPECT_EQ(copy.keys(), QStringList({u"$$tag"_s, u"cell"_s, u"parts"_s}));
        EXPECT_EQ(copy.value(u"$$tag"_s), QVariant(qint64{3}));
        const QVariant cell = copy.value(u"cell"_s);
        EXPECT_EQ(copy.value(u"parts"_s), QVariant(QVariantList{cell, u"Title"_s, QVariant()}));
        EXPECT_EQ(cell.value<KeyedObject>().className(), u"Cell");
        EXPECT_EQ(cell.value<KeyedObject>().value(u"view"_s), copies[1]);
        EXPECT_EQ(cell.value<KeyedObject>().value(u"$0"_s), QVariant(1.5));
    }
}

TEST(KeyedArchiver, CopiesNoMoreClassEntriesThanClasses)
{
    const QByteArray source = binaryArchive(keyedArchive(viewAndCell));
    const QVariantList views{KeyedUnarchiver::unarchiveObjectWithData(source),
                             KeyedUnarchiver::unarchiveObjectWithData(source)};
    const QByteArray data = KeyedArchiver::archivedDataWithRootObject(views);
    int viewClasses = 0;
    const QVariantList objects = PropertyList::read(data).value->toMap().value(u"$objects"_s).toList();
    for (const QVariant &entry : objects) {
        viewClasses += entry.toMap().value(u"$classname"_s) == u"View"_s ? 1 : 0;
    }
    EXPECT_EQ(viewClasses, 1);
}

/// Fields that a known class does not read are copied, too, so what is malformed behind them shows.
TEST(KeyedArchiver, RefusesToCopyAnObjectThatRefersToABrokenOne)
{
    for (const QVariant &brokenClass : {QVariant(u""_s), uid(99), uid(0), QVariant(qint64{1})}) {
        const QVariantMap broken{{u"$class"_s, brokenClass.typeId() == QMetaType::QString ? uid(3) : brokenClass}};
        const QVariant note = KeyedUnarchiver::unarchiveObjectWithData(binaryArchive(
            keyedArchive({object(u"Note"_s, {{u"text"_s, uid(2)}}),
                          object(u"NSString"_s, {{u"NS.string"_s, u"a"_s}, {u"more"_s, uid(4)}}), u"b"_s, broken})));
        ASSERT_TRUE(note.isValid());
        KeyedArchiver archiver;
        EXPECT_THROW(archiver.encodeObject(note, u"root"_s), platform::ArchiveException);
        EXPECT_THROW(archiver.encodeObject(note, u"root"_s), platform::ArchiveException);
        archiver.encodeObject(u"sound"_s, u"root"_s);
        EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(archiver.encodedData()), QVariant(u"sound"_s));
    }
}

TEST(KeyedArchiver, RefusesToCopyMoreThanTheArchiveIsWorth)
{
    constexpr quint16 count = 5000;
    support::BinaryList list;
    const quint16 elements = list.addArray(QList<quint16>(count, list.addString("a")));
    const QByteArray data = support::manyOfOne(list, count, "NSNull", "unread", elements, "Note");
    EXPECT_EQ(complaint(KeyedUnarchiver::unarchiveObjectWithData(data)),
              "encodeObject: an object's archive holds too much for its " + std::to_string(data.size()) + " bytes");
}

TEST(KeyedArchiver, WritesNoObjectForAnEmptyKeyedObject)
{
    EXPECT_FALSE(restored(QVariant::fromValue(KeyedObject())).isValid());
}

/// A node of a graph that an application keeps by pointers.
struct Node {
    QString name;
    Node *next = nullptr;
    bool fails = false;
};

platform::ArchivedClass nodeClass()
{
    return {{u"Node"_s, u"NSObject"_s},
            QMetaType::fromType<Node *>(),
            [](const QVariant &node, Coder &coder) {
                coder.encodeObject(node.value<Node *>()->name, u"name"_s);
                coder.encodeObject(QVariant::fromValue(node.value<Node *>()->next), u"next"_s);
                if (node.value<Node *>()->fails) {
                    throw platform::InvalidArgumentException("this node fails");
                }
            },
            {}};
}

TEST(KeyedArchiver, WritesCirclesOfPointers)
{
    const ArchivedClassRegistration registration(nodeClass());
    Node first{u"first"_s};
    Node second{u"second"_s, &first};
    first.next = &second;
    const auto node = restored(QVariant::fromValue(&first)).value<KeyedObject>();
    EXPECT_EQ(node.className(), u"Node");
    EXPECT_EQ(node.value(u"name"_s), QVariant(u"first"_s));
    const auto next = node.value(u"next"_s).value<KeyedObject>();
    EXPECT_EQ(next.value(u"name"_s), QVariant(u"second"_s));
    EXPECT_EQ(next.value(u"next"_s).value<KeyedObject>(), node);
}

TEST(KeyedArchiver, WritesNoObjectForAPointerToNothing)
{
    const ArchivedClassRegistration registration(nodeClass());
    EXPECT_FALSE(restored(QVariant::fromValue<Node *>(nullptr)).isValid());
}

TEST(KeyedArchiver, WritesAPointerAnewWhenItsEncoderFailed)
{
    const ArchivedClassRegistration registration(nodeClass());
    Node node{u"node"_s};
    node.fails = true;
    KeyedArchiver archiver;
    EXPECT_THROW(archiver.encodeObject(QVariant::fromValue(&node), u"root"_s), platform::InvalidArgumentException);
    node.fails = false;
    archiver.encodeObject(QVariant::fromValue(&node), u"root"_s);
    const QVariant back = KeyedUnarchiver::unarchiveObjectWithData(archiver.encodedData());
    EXPECT_EQ(back.value<KeyedObject>().value(u"name"_s), QVariant(u"node"_s));
}

TEST(KeyedArchiver, WritesValuesOfRegisteredClassesInTheirLatestForm)
{
    const auto sizeClass = [](const QString &name) {
        return platform::ArchivedClass{
            {name},
            QMetaType::fromType<QSizeF>(),
            [](const QVariant &size, Coder &coder) { coder.encodeDouble(size.toSizeF().width(), u"$width"_s); },
            {}};
    };
    const ArchivedClassRegistration first(sizeClass(u"First"_s));
    const ArchivedClassRegistration second(sizeClass(u"Second"_s));
    const auto size = restored(QSizeF(3, 4)).value<KeyedObject>();
    EXPECT_EQ(size.className(), u"Second");
    EXPECT_EQ(size.value(u"$$width"_s), QVariant(3.0));
}

TEST(KeyedArchiver, WritesTheOutermostFields)
{
    for (const PropertyList::Format format : formats) {
        KeyedArchiver archiver(format);
        EXPECT_TRUE(archiver.allowsKeyedCoding());
        archiver.encodeObject(u"Title"_s, u"title"_s);
        archiver.encodeObject(QVariant(), u"nothing"_s);
        archiver.encodeFloat(0.1F, u"float"_s);
        archiver.encodeDouble(0.1, u"double"_s);
        archiver.encodeInt64(-7, u"$price"_s);
        archiver.encodeBool(true, u"yes"_s);
        archiver.encodeBytes("abc", u"bytes"_s);
        archiver.encodeObject(u"Title"_s);
        const quint8 byte = 200;
        archiver.encodeValueOfObjCType("C", &byte);
        EXPECT_EQ(dump(PropertyList::read(archiver.encodedData())),
                  dump(keyedArchive({u"Title"_s}, {{u"title"_s, uid(1)},
                                                   {u"nothing"_s, uid(0)},
                                                   {u"float"_s, double{0.1F}},
                                                   {u"double"_s, 0.1},
                                                   {u"$$price"_s, qint64{-7}},
                                                   {u"yes"_s, true},
                                                   {u"bytes"_s, "abc"_ba},
                                                   {u"$0"_s, uid(1)},
                                                   {u"$1"_s, qint64{200}}})));
    }
}

} // namespace

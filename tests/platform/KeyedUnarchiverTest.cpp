#include <OrvaneExportKit/platform/ArchivedTypes.h>
#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <tests/support/HandMadeArchives.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QDateTime>
#include <QtCore/QMarginsF>
#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::ArchivedUrl;
using platform::AttributedString;
using platform::KeyedObject;
using platform::KeyedUnarchiver;
using platform::Range;
using support::binaryArchive;
using support::keyedArchive;
using support::object;
using support::uid;
using support::uids;
using support::xmlArchive;

QVariant decoded(const QVariantMap &archive)
{
    return KeyedUnarchiver::unarchiveObjectWithData(binaryArchive(archive));
}

/// An archive's objects, the root first, and what the root becomes.
struct Case {
    const char *name;
    QVariantList objects;
    QVariant expected;
};

void PrintTo(const Case &valueCase, std::ostream *out)
{
    *out << xmlArchive(keyedArchive(valueCase.objects)).toStdString();
}

std::string caseName(const testing::TestParamInfo<Case> &info)
{
    return info.param.name;
}

class KeyedUnarchiverValue : public testing::TestWithParam<Case>
{
};

TEST_P(KeyedUnarchiverValue, IsReadFromXml)
{
    const QVariant root = KeyedUnarchiver::unarchiveObjectWithData(xmlArchive(keyedArchive(GetParam().objects)));
    EXPECT_STREQ(root.typeName(), GetParam().expected.typeName());
    EXPECT_EQ(root, GetParam().expected);
}

TEST_P(KeyedUnarchiverValue, IsReadFromBinary)
{
    const QVariant root = decoded(keyedArchive(GetParam().objects));
    EXPECT_STREQ(root.typeName(), GetParam().expected.typeName());
    EXPECT_EQ(root, GetParam().expected);
}

QVariantMap numbered(const QString &className, const QStringList &prefixes, std::initializer_list<quint32> indices)
{
    QVariantMap fields;
    for (qsizetype i = 0; const quint32 index : indices) {
        fields.insert(prefixes[i % prefixes.size()] + QString::number(i / prefixes.size()), uid(index));
        ++i;
    }
    return object(className, fields);
}

QDateTime date(qint64 millisecondsSince2001)
{
    return QDateTime::fromMSecsSinceEpoch(978307200000 + millisecondsSince2001, Qt::UTC);
}

const QVariantList ab{u"a"_s, u"b"_s};

const Case strings[] = {
    {"PlainString", {u"Chapter 1"_s}, u"Chapter 1"_s},
    {"EmptyString", {u""_s}, u""_s},
    {"StringObject", {object(u"NSString"_s, {{u"NS.string"_s, u"a < b & ä"_s}})}, u"a < b & ä"_s},
    {"StringObjectMayBeTheNameOfNothing", {object(u"NSString"_s, {{u"NS.string"_s, u"$null"_s}})}, u"$null"_s},
    {"StringAsBytes", {object(u"NSString"_s, {{u"NS.bytes"_s, "gr\xC3\xBC\xC3\x9F"_ba}})}, u"grüß"_s},
    {"StringAsBytesThatBeginWithAByteOrderMark",
     {object(u"NSString"_s, {{u"NS.bytes"_s, "\xEF\xBB\xBF"
                                             "a"_ba}})},
     u"\uFEFFa"_s},
    {"MutableString", {object(u"NSMutableString"_s, {{u"NS.string"_s, u"text"_s}})}, u"text"_s},
};
INSTANTIATE_TEST_SUITE_P(Strings, KeyedUnarchiverValue, testing::ValuesIn(strings), caseName);

/// A decimal of the words of a mantissa, the least significant byte first, and an exponent.
QVariantMap decimal(const QByteArray &words, int exponent, bool isNegative = false)
{
    return object(u"NSDecimalNumber"_s, {{u"NS.mantissa"_s, words + QByteArray(16 - words.size(), '\0')},
                                         {u"NS.mantissa.bo"_s, qint64{1}},
                                         {u"NS.length"_s, qint64{words.size() / 2}},
                                         {u"NS.exponent"_s, qint64{exponent}},
                                         {u"NS.negative"_s, isNegative},
                                         {u"NS.compact"_s, true}});
}

const Case numbers[] = {
    {"PlainInteger", {qint64{42}}, qint64{42}},
    {"NegativeInteger", {qint64{-9}}, qint64{-9}},
    {"LargestInteger", {quint64{18446744073709551615U}}, quint64{18446744073709551615U}},
    {"PlainReal", {0.1}, 0.1},
    {"PlainTrue", {true}, true},
    {"PlainFalse", {false}, false},
    {"NumberObjectWithBoolean", {object(u"NSNumber"_s, {{u"NS.boolval"_s, true}})}, true},
    {"NumberObjectWithBooleanAsInteger", {object(u"NSNumber"_s, {{u"NS.boolval"_s, qint64{1}}})}, true},
    {"NumberObjectWithInteger", {object(u"NSNumber"_s, {{u"NS.intval"_s, qint64{7}}})}, qint64{7}},
    {"NumberObjectWithReal", {object(u"NSNumber"_s, {{u"NS.dblval"_s, 2.5}})}, 2.5},
    {"NumberObjectWithRealAsInteger", {object(u"NSNumber"_s, {{u"NS.dblval"_s, qint64{2}}})}, 2.0},
    {"NumberObjectWithNumber", {object(u"NSNumber"_s, {{u"NS.number"_s, 1.5}})}, 1.5},
    {"Decimal", {decimal("\x39\x30"_ba, -2)}, 123.45},
    {"NegativeDecimal", {decimal("\x0F\x00"_ba, -1, true)}, -1.5},
    {"DecimalThatIsAnInteger", {decimal("\x0C\x00"_ba, 2)}, qint64{1200}},
    {"DecimalWithAFractionOfZeros", {decimal("\xE8\x03"_ba, -2)}, qint64{10}},
    {"DecimalOf64Bits", {decimal(QByteArray(8, '\xFF'), 0)}, quint64{18446744073709551615U}},
    {"DecimalOf128Bits", {decimal(QByteArray(16, '\xFF'), 0)}, 3.4028236692093846e38},
    {"DecimalOfABigEndianMachine",
     {object(u"NSDecimalNumber"_s, {{u"NS.exponent"_s, qint64{-2}},
                                    {u"NS.length"_s, qint64{1}},
                                    {u"NS.mantissa.bo"_s, qint64{2}},
                                    {u"NS.mantissa"_s, "\x30\x39"_ba + QByteArray(14, '\0')}})},
     123.45},
    {"DecimalZero", {object(u"NSDecimalNumber"_s, {{u"NS.length"_s, qint64{0}}})}, qint64{0}},
    {"Null", {object(u"NSNull"_s)}, QVariant::fromValue(nullptr)},
};
INSTANTIATE_TEST_SUITE_P(Numbers, KeyedUnarchiverValue, testing::ValuesIn(numbers), caseName);

const Case scalars[] = {
    {"PlainData", {"\x00\xFF"_ba}, "\x00\xFF"_ba},
    {"DataObject", {object(u"NSData"_s, {{u"NS.data"_s, "abc"_ba}})}, "abc"_ba},
    {"MutableData", {object(u"NSMutableData"_s, {{u"NS.data"_s, "abc"_ba}})}, "abc"_ba},
    {"MutableDataAsAReference", {object(u"NSMutableData"_s, {{u"NS.data"_s, uid(2)}}), "abc"_ba}, "abc"_ba},
    {"DataOfOtherCoders", {object(u"NSData"_s, {{u"NS.bytes"_s, "abc"_ba}})}, "abc"_ba},
    {"DataWithoutField", {object(u"NSData"_s)}, QByteArray()},
    {"PlainDate", {date(1000)}, date(1000)},
    {"Date", {object(u"NSDate"_s, {{u"NS.time"_s, 1.5}})}, date(1500)},
    {"DateBeforeTheOrigin", {object(u"NSDate"_s, {{u"NS.time"_s, -86400.0}})}, date(-86400000)},
    {"DateAsInteger", {object(u"NSDate"_s, {{u"NS.time"_s, qint64{60}}})}, date(60000)},
    {"DateWithoutField", {object(u"NSDate"_s)}, date(0)},
    {"Url",
     {object(u"NSURL"_s, {{u"NS.base"_s, uid(0)}, {u"NS.relative"_s, uid(2)}}), u"https://example.org/a%20b"_s},
     QUrl(u"https://example.org/a%20b"_s)},
    {"UrlWithoutBaseField",
     {object(u"NSURL"_s, {{u"NS.relative"_s, uid(2)}}), u"file:///a/b"_s},
     QUrl(u"file:///a/b"_s)},
    {"UrlWithBase",
     {object(u"NSURL"_s, {{u"NS.base"_s, uid(2)}, {u"NS.relative"_s, uid(3)}}),
      object(u"NSURL"_s, {{u"NS.base"_s, uid(0)}, {u"NS.relative"_s, uid(4)}}), u"../c"_s,
      u"https://example.org/a/b/"_s},
     QVariant::fromValue(ArchivedUrl{u"../c"_s, QUrl(u"https://example.org/a/b/"_s)})},
    {"UrlThatQtSpellsOtherwise",
     {object(u"NSURL"_s, {{u"NS.base"_s, uid(0)}, {u"NS.relative"_s, uid(2)}}), u"item://F1B2C3D4/a b"_s},
     QVariant::fromValue(ArchivedUrl{u"item://F1B2C3D4/a b"_s, {}})},
    {"Uuid",
     {object(u"NSUUID"_s, {{u"NS.uuidbytes"_s, QByteArray::fromHex("00112233445566778899aabbccddeeff")}})},
     QUuid(u"00112233-4455-6677-8899-aabbccddeeff"_s)},
    {"UuidOfOtherCoders",
     {object(u"NSUUID"_s, {{u"uuid"_s, QByteArray::fromHex("00112233445566778899aabbccddeeff")}})},
     QUuid(u"00112233-4455-6677-8899-aabbccddeeff"_s)},
};
INSTANTIATE_TEST_SUITE_P(Scalars, KeyedUnarchiverValue, testing::ValuesIn(scalars), caseName);

const Case boxedValues[] = {
    {"Point",
     {object(u"NSValue"_s, {{u"NS.special"_s, qint64{1}}, {u"NS.pointval"_s, uid(2)}}), u"{1.5, -2}"_s},
     QPointF(1.5, -2)},
    {"Size",
     {object(u"NSValue"_s, {{u"NS.special"_s, qint64{2}}, {u"NS.sizeval"_s, uid(2)}}), u"{595.25, 842}"_s},
     QSizeF(595.25, 842)},
    {"Rectangle",
     {object(u"NSValue"_s, {{u"NS.special"_s, qint64{3}}, {u"NS.rectval"_s, uid(2)}}), u"{{1, 9}, {480, 270}}"_s},
     QRectF(1, 9, 480, 270)},
    {"Range",
     {object(u"NSValue"_s,
             {{u"NS.special"_s, qint64{4}}, {u"NS.rangeval.location"_s, uid(2)}, {u"NS.rangeval.length"_s, uid(3)}}),
      qint64{5}, qint64{7}},
     QVariant::fromValue(Range{5, 7})},
    {"EdgeInsets",
     {object(u"NSValue"_s, {{u"NS.special"_s, qint64{12}},
                            {u"NS.edgeval.top"_s, 1.0},
                            {u"NS.edgeval.left"_s, 2.0},
                            {u"NS.edgeval.bottom"_s, 3.0},
                            {u"NS.edgeval.right"_s, 4.5}})},
     QVariant::fromValue(QMarginsF(2, 1, 4.5, 3))},
    {"EdgeInsetsWithoutFields",
     {object(u"NSValue"_s, {{u"NS.special"_s, qint64{12}}})},
     QVariant::fromValue(QMarginsF())},
};
INSTANTIATE_TEST_SUITE_P(BoxedValues, KeyedUnarchiverValue, testing::ValuesIn(boxedValues), caseName);

const Case collections[] = {
    {"Array", {object(u"NSArray"_s, {{u"NS.objects"_s, uids({2, 3})}}), u"a"_s, u"b"_s}, ab},
    {"MutableArray", {object(u"NSMutableArray"_s, {{u"NS.objects"_s, uids({2, 3})}}), u"a"_s, u"b"_s}, ab},
    {"EmptyArray", {object(u"NSArray"_s, {{u"NS.objects"_s, QVariantList()}})}, QVariantList()},
    {"ArrayWithNumberedElements", {numbered(u"NSArray"_s, {u"NS.object."_s}, {2, 3}), u"a"_s, u"b"_s}, ab},
    {"NumberedElementsEndAtTheFirstGap",
     {object(u"NSArray"_s, {{u"NS.object.0"_s, uid(2)}, {u"NS.object.2"_s, uid(3)}}), u"a"_s, u"b"_s},
     QVariantList{u"a"_s}},
    {"MoreThanTenNumberedElements",
     {numbered(u"NSArray"_s, {u"NS.object."_s}, {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 3}), u"a"_s, u"b"_s},
     QVariantList(10, u"a"_s) + QVariantList{u"b"_s}},
    {"Set",
     {object(u"NSSet"_s, {{u"NS.objects"_s, uids({2, 3})}}), u"a"_s, u"b"_s},
     QVariant::fromValue(platform::ObjectSet{ab})},
    {"MutableSetWithNumberedElements",
     {numbered(u"NSMutableSet"_s, {u"NS.object."_s}, {2, 3}), u"a"_s, u"b"_s},
     QVariant::fromValue(platform::ObjectSet{ab})},
    {"SetWithEqualElements",
     {object(u"NSSet"_s, {{u"NS.objects"_s, uids({2, 3, 2, 4, 5, 6})}}), u"a"_s, u"b"_s, u"a"_s,
      object(u"NSArray"_s, {{u"NS.objects"_s, uids({2})}}), object(u"NSArray"_s, {{u"NS.objects"_s, uids({4})}})},
     QVariant::fromValue(platform::ObjectSet{{u"a"_s, u"b"_s, QVariantList{u"a"_s}}})},
    {"SetWithNumbersOfDifferentTypes",
     {object(u"NSSet"_s, {{u"NS.objects"_s, uids({2, 3, 4})}}), qint64{1}, 1.0, true},
     QVariant::fromValue(platform::ObjectSet{{qint64{1}, 1.0, true}})},
    {"OrderedSetWithEqualElements",
     {numbered(u"NSOrderedSet"_s, {u"NS.object."_s}, {3, 2, 4}), u"b"_s, u"a"_s, u"b"_s},
     QVariant::fromValue(platform::OrderedObjectSet{{u"a"_s, u"b"_s}})},
    {"OrderedSet",
     {numbered(u"NSOrderedSet"_s, {u"NS.object."_s}, {3, 2}), u"b"_s, u"a"_s},
     QVariant::fromValue(platform::OrderedObjectSet{ab})},
    {"EmptyOrderedSet", {object(u"NSOrderedSet"_s)}, QVariant::fromValue(platform::OrderedObjectSet{})},
    {"MutableOrderedSetOfOtherCoders",
     {object(u"NSMutableOrderedSet"_s, {{u"NS.objects"_s, uids({2, 3})}}), u"a"_s, u"b"_s},
     QVariant::fromValue(platform::OrderedObjectSet{ab})},
    {"CountedSet",
     {object(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{2}},
                                 {u"NS.object0"_s, uid(2)},
                                 {u"NS.count0"_s, qint64{3}},
                                 {u"NS.object1"_s, uid(3)},
                                 {u"NS.count1"_s, qint64{1}}}),
      u"a"_s, u"b"_s},
     QVariant::fromValue(platform::CountedObjectSet{ab, {3, 1}})},
    {"CountedSetWithoutCounts",
     {object(u"NSCountedSet"_s, {{u"NS.objects"_s, uids({2, 3, 2})}}), u"a"_s, u"b"_s},
     QVariant::fromValue(platform::CountedObjectSet{ab, {2, 1}})},
    {"CountedSetWithNumberedElementsWithoutCounts",
     {numbered(u"NSCountedSet"_s, {u"NS.object"_s}, {2, 3}), u"a"_s, u"b"_s},
     QVariant::fromValue(platform::CountedObjectSet{ab, {1, 1}})},
    {"CountedSetWithEqualElements",
     {object(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{2}},
                                 {u"NS.object0"_s, uid(2)},
                                 {u"NS.count0"_s, qint64{3}},
                                 {u"NS.object1"_s, uid(3)},
                                 {u"NS.count1"_s, qint64{4}}}),
      u"a"_s, u"a"_s},
     QVariant::fromValue(platform::CountedObjectSet{{u"a"_s}, {7}})},
    {"EmptyCountedSet",
     {object(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{0}}})},
     QVariant::fromValue(platform::CountedObjectSet{})},
    {"Dictionary",
     {object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2, 3})}, {u"NS.objects"_s, uids({4, 2})}}), u"a"_s, u"b"_s,
      qint64{1}},
     QVariantMap{{u"a"_s, qint64{1}}, {u"b"_s, u"a"_s}}},
    {"EmptyMutableDictionary",
     {object(u"NSMutableDictionary"_s, {{u"NS.keys"_s, QVariantList()}, {u"NS.objects"_s, QVariantList()}})},
     QVariantMap()},
    {"DictionaryWithNumberedEntries",
     {numbered(u"NSDictionary"_s, {u"NS.key."_s, u"NS.object."_s}, {2, 4, 3, 5}), u"a"_s, u"b"_s, qint64{1}, true},
     QVariantMap{{u"a"_s, qint64{1}}, {u"b"_s, true}}},
    {"DictionaryWithKeysThatAreNoStrings",
     {object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2, 3})}, {u"NS.objects"_s, uids({3, 3})}}), qint64{1}, u"a"_s},
     QVariant::fromValue(platform::ObjectDictionary{{qint64{1}, u"a"_s}, {u"a"_s, u"a"_s}})},
    {"DictionaryWithEqualKeysThatAreNoStrings",
     {object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2, 3, 4})}, {u"NS.objects"_s, uids({3, 3, 5})}}), qint64{1},
      u"a"_s, qint64{1}, u"b"_s},
     QVariant::fromValue(platform::ObjectDictionary{{qint64{1}, u"a"_s}, {u"b"_s, u"a"_s}})},
    {"EmptyIndexSet", {object(u"NSIndexSet"_s)}, QVariant::fromValue(platform::RangeList{})},
    {"IndexSetOfOneRange",
     {object(u"NSIndexSet"_s,
             {{u"NSRangeCount"_s, qint64{1}}, {u"NSLocation"_s, qint64{3}}, {u"NSLength"_s, qint64{2}}})},
     QVariant::fromValue(platform::RangeList{{3, 2}})},
    {"MutableIndexSetOfSeveralRanges",
     {object(u"NSMutableIndexSet"_s, {{u"NSRangeCount"_s, qint64{2}}, {u"NSRangeData"_s, uid(2)}}),
      "\x01\x02\x84\x04\x01"_ba},
     QVariant::fromValue(platform::RangeList{{1, 2}, {516, 1}})},
    {"IndexSetWithRangesInTheField",
     {object(u"NSIndexSet"_s, {{u"NSRangeCount"_s, qint64{2}}, {u"NSRangeData"_s, "\x01\x02\x04\x01"_ba}})},
     QVariant::fromValue(platform::RangeList{{1, 2}, {4, 1}})},
    {"EmptyIndexPath", {object(u"NSIndexPath"_s)}, QVariant::fromValue(platform::IndexPath{})},
    {"IndexPathOfOneLevel",
     {object(u"NSIndexPath"_s, {{u"NSIndexPathLength"_s, qint64{1}}, {u"NSIndexPathValue"_s, qint64{4}}})},
     QVariant::fromValue(platform::IndexPath{{4}})},
    {"IndexPathOfSeveralLevels",
     {object(u"NSIndexPath"_s, {{u"NSIndexPathLength"_s, qint64{3}}, {u"NSIndexPathData"_s, "\x01\x84\x04\x00"_ba}})},
     QVariant::fromValue(platform::IndexPath{{1, 516, 0}})},
};
INSTANTIATE_TEST_SUITE_P(Collections, KeyedUnarchiverValue, testing::ValuesIn(collections), caseName);

/// The dictionary that attributes `style` with the string at an index.
QVariantMap styleDictionary(quint32 name, quint32 value)
{
    return object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({name})}, {u"NS.objects"_s, uids({value})}});
}

AttributedString textWithRuns(const QString &string, const std::vector<std::pair<std::size_t, QString>> &runs)
{
    QList<AttributedString::Stretch> stretches;
    for (const auto &[length, style] : runs) {
        stretches.append({length, {{u"style"_s, style}}});
    }
    return AttributedString::fromStretches(string, stretches);
}

const QVariantMap severalRuns = object(
    u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}, {u"NSAttributeInfo"_s, uid(4)}});
const QVariantMap fourDictionaries = object(u"NSMutableArray"_s, {{u"NS.objects"_s, uids({5, 6, 7, 8})}});

/// Object 1, a text with runs over four styles `a` to `d`, and what it refers to.
QVariantList textObjects(const QString &string, const QByteArray &runs)
{
    return {severalRuns,
            string,
            fourDictionaries,
            runs,
            styleDictionary(9, 10),
            styleDictionary(9, 11),
            styleDictionary(9, 12),
            styleDictionary(9, 13),
            u"style"_s,
            u"a"_s,
            u"b"_s,
            u"c"_s,
            u"d"_s};
}

const QByteArray exampleRuns("\1\0\1\1\4\2\2\1\1\3\1\0", 12);

const Case texts[] = {
    {"TextWithoutAttributes",
     {object(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}}), u"plain"_s},
     QVariant::fromValue(AttributedString(u"plain"_s))},
    {"EmptyText",
     {object(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}}), u""_s},
     QVariant::fromValue(AttributedString())},
    {"EmptyTextWithAttributes",
     {object(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}}), u""_s,
      styleDictionary(2, 2)},
     QVariant::fromValue(AttributedString())},
    {"TextOfOneRun",
     {object(u"NSMutableAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}}),
      object(u"NSMutableString"_s, {{u"NS.string"_s, u"bold"_s}}), styleDictionary(4, 5), u"style"_s, u"b"_s},
     QVariant::fromValue(textWithRuns(u"bold"_s, {{4, u"b"_s}}))},
    {"TextStorage",
     {object(u"NSTextStorage"_s, {{u"NSString"_s, uid(2)}}), u"plain"_s},
     QVariant::fromValue(AttributedString(u"plain"_s))},
    {"TextOfSeveralRuns", textObjects(u"0123456789"_s, exampleRuns),
     QVariant::fromValue(textWithRuns(u"0123456789"_s,
                                      {{1, u"a"_s}, {1, u"b"_s}, {4, u"c"_s}, {2, u"b"_s}, {1, u"d"_s}, {1, u"a"_s}}))},
    {"TextOfLongRuns", textObjects(QString(20000, u'x'), "\x84\x04\x01\x9C\x98\x01\x00"_ba),
     QVariant::fromValue(textWithRuns(QString(20000, u'x'), {{516, u"b"_s}, {19484, u"a"_s}}))},
    {"NeighbouringRunsWithTheSameAttributes", textObjects(u"0123"_s, "\x01\x02\x01\x02\x02\x00"_ba),
     QVariant::fromValue(textWithRuns(u"0123"_s, {{2, u"c"_s}, {2, u"a"_s}}))},
    {"EmptyRuns", textObjects(u"01"_s, "\x00\x01\x01\x02\x00\x00\x01\x02"_ba),
     QVariant::fromValue(textWithRuns(u"01"_s, {{2, u"c"_s}}))},
    {"RunsCountUnitsNotCharacters", textObjects(u"\U0001F600x"_s, "\x02\x00\x01\x01"_ba),
     QVariant::fromValue(textWithRuns(u"\U0001F600x"_s, {{2, u"a"_s}, {1, u"b"_s}}))},
};
INSTANTIATE_TEST_SUITE_P(Texts, KeyedUnarchiverValue, testing::ValuesIn(texts), caseName);

TEST(KeyedUnarchiver, AnswersTheUrlOfEverySpelling)
{
    const QVariant spelled = QVariant::fromValue(ArchivedUrl{u"item://F1B2C3D4"_s, {}});
    EXPECT_EQ(spelled.toUrl(), QUrl(u"item://f1b2c3d4"_s));
    EXPECT_EQ(spelled.toString(), u"item://F1B2C3D4"_s);
    const QVariant relative = QVariant::fromValue(ArchivedUrl{u"../c"_s, QUrl(u"https://example.org/a/b/"_s)});
    EXPECT_EQ(relative.toUrl(), QUrl(u"https://example.org/a/c"_s));
    EXPECT_EQ(relative.toString(), u"https://example.org/a/c"_s);
}

TEST(KeyedUnarchiver, KeepsWhatNoValueOfQtCanHoldAsAnObjectInsideItsText)
{
    const auto url = [](const QString &string) {
        return QVariantList{object(u"NSURL"_s, {{u"NS.base"_s, uid(0)}, {u"NS.relative"_s, uid(7)}}), string};
    };
    const auto withBase = QVariantList{object(u"NSURL"_s, {{u"NS.base"_s, uid(8)}, {u"NS.relative"_s, uid(7)}}), u"b"_s,
                                       object(u"NSURL"_s, {{u"NS.relative"_s, uid(9)}}), u"http://a..b/"_s};
    for (const QVariantList &odd :
         {url(u"http://example.com:99999/"_s), url(u"http://a..b/"_s), url(u"http://-bad-.com/"_s),
          url(u"http://[bad"_s), withBase, QVariantList{object(u"NSDate"_s, {{u"NS.time"_s, qQNaN()}})},
          QVariantList{object(u"NSDate"_s, {{u"NS.time"_s, -qInf()}})}}) {
        const QVariantList objects{
            object(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}}), u"text"_s,
            styleDictionary(4, 6), u"style"_s, u"unused"_s};
        const QVariant root = decoded(keyedArchive(objects + odd));
        const auto text = root.value<AttributedString>();
        EXPECT_EQ(text.string(), u"text");
        const QVariantMap fields = odd.first().toMap();
        const auto kept = text.attributesAtIndex(0).value(u"style"_s).value<KeyedObject>();
        EXPECT_EQ(kept.className(), fields.value(u"$class"_s));
        EXPECT_EQ(kept.keys().size(), fields.size() - 1);
        if (fields.contains(u"NS.relative"_s)) {
            EXPECT_EQ(kept.value(u"NS.relative"_s), odd[1]);
        }
    }
}

TEST(KeyedUnarchiver, FindsEqualElementsOfALargeSetAtOnce)
{
    constexpr quint32 count = 50'000;
    QVariantList references;
    QVariantList objects;
    for (quint32 i = 0; i < count; ++i) {
        references.append(uid(2 + 2 * i));
        objects << object(u"NSArray"_s, {{u"NS.objects"_s, uids({3 + 2 * i})}}) << qint64{i % 100};
    }
    const QVariantList all = QVariantList{object(u"NSSet"_s, {{u"NS.objects"_s, references}})} + objects;
    EXPECT_EQ(decoded(keyedArchive(all)).value<platform::ObjectSet>().elements.size(), 100);
}

TEST(KeyedUnarchiver, ReadsAnArchiveAsAnotherProgramWroteIt)
{
    const QByteArray archive = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>$archiver</key>
	<string>NSKeyedArchiver</string>
	<key>$objects</key>
	<array>
		<string>$null</string>
		<dict>
			<key>$class</key>
			<dict>
				<key>CF$UID</key>
				<integer>4</integer>
			</dict>
			<key>NS.objects</key>
			<array>
				<dict>
					<key>CF$UID</key>
					<integer>2</integer>
				</dict>
				<dict>
					<key>CF$UID</key>
					<integer>3</integer>
				</dict>
			</array>
		</dict>
		<string>Chapter &lt;1&gt;</string>
		<real>1.5</real>
		<dict>
			<key>$classes</key>
			<array>
				<string>NSArray</string>
				<string>NSObject</string>
			</array>
			<key>$classname</key>
			<string>NSArray</string>
		</dict>
	</array>
	<key>$top</key>
	<dict>
		<key>root</key>
		<dict>
			<key>CF$UID</key>
			<integer>1</integer>
		</dict>
	</dict>
	<key>$version</key>
	<integer>100000</integer>
</dict>
</plist>
)";
    EXPECT_EQ(KeyedUnarchiver::unarchiveObjectWithData(archive), QVariant(QVariantList{u"Chapter <1>"_s, 1.5}));
}

TEST(KeyedUnarchiver, ReadsReferencesToNothingAsNoObject)
{
    EXPECT_FALSE(decoded(keyedArchive({}, {{u"root"_s, uid(0)}})).isValid());
    EXPECT_FALSE(decoded(keyedArchive({u"$null"_s})).isValid());
}

TEST(KeyedUnarchiver, ReadsAClassWithoutItsChain)
{
    const QVariantList objects{QVariantMap{{u"$class"_s, uid(2)}, {u"NS.objects"_s, uids({3})}},
                               QVariantMap{{u"$classname"_s, u"NSArray"_s}}, u"a"_s};
    EXPECT_EQ(decoded(keyedArchive(objects)), QVariant(QVariantList{u"a"_s}));
}

TEST(KeyedUnarchiver, SharesWhatSeveralObjectsReferTo)
{
    const QVariantList root =
        decoded(keyedArchive({object(u"NSArray"_s, {{u"NS.objects"_s, uids({2, 2, 3, 3, 4, 4})}}),
                              object(u"NSArray"_s, {{u"NS.objects"_s, uids({5})}}), styleDictionary(5, 5),
                              object(u"NSMutableString"_s, {{u"NS.string"_s, u"text"_s}}), u"a"_s}))
            .toList();
    ASSERT_EQ(root.size(), 6);
    EXPECT_EQ(root[0].toList().constData(), root[1].toList().constData());
    EXPECT_TRUE(root[2].toMap().isSharedWith(root[3].toMap()));
    EXPECT_EQ(root[4].toString().constData(), root[5].toString().constData());
}

TEST(KeyedUnarchiver, ReadsTheOutermostFields)
{
    const QVariantMap top{{u"number"_s, 2.75},    {u"large"_s, 1e30},          {u"yes"_s, true},
                          {u"bytes"_s, "abc"_ba}, {u"title"_s, uid(1)},        {u"$$price"_s, qint64{3}},
                          {u"$0"_s, uid(1)},      {u"$1"_s, qint64{300}},      {u"$2"_s, 0.5},
                          {u"nothing"_s, uid(0)}, {u"negative"_s, qint64{-3}}, {u"most"_s, quint64(1) << 63}};
    for (const QByteArray &data :
         {xmlArchive(keyedArchive({u"Title"_s}, top)), binaryArchive(keyedArchive({u"Title"_s}, top))}) {
        KeyedUnarchiver unarchiver(data);
        EXPECT_TRUE(unarchiver.allowsKeyedCoding());
        EXPECT_EQ(unarchiver.decodeInt64ForKey(u"number"_s), 2);
        EXPECT_EQ(unarchiver.decodeFloatForKey(u"number"_s), 2.75F);
        EXPECT_TRUE(unarchiver.decodeBoolForKey(u"number"_s));
        EXPECT_EQ(unarchiver.decodeInt64ForKey(u"large"_s), std::numeric_limits<qint64>::max());
        EXPECT_EQ(unarchiver.decodeInt64ForKey(u"most"_s), std::numeric_limits<qint64>::max());
        EXPECT_EQ(unarchiver.decodeDoubleForKey(u"yes"_s), 1.0);
        EXPECT_EQ(unarchiver.decodeDoubleForKey(u"negative"_s), -3.0);
        EXPECT_EQ(unarchiver.decodeBytesForKey(u"bytes"_s), "abc");
        EXPECT_EQ(unarchiver.decodeObjectForKey(u"title"_s), QVariant(u"Title"_s));
        EXPECT_EQ(unarchiver.decodeInt64ForKey(u"$price"_s), 3);
        EXPECT_TRUE(unarchiver.containsValueForKey(u"nothing"_s));
        EXPECT_FALSE(unarchiver.decodeObjectForKey(u"nothing"_s).isValid());
        EXPECT_EQ(unarchiver.decodeObject(), QVariant(u"Title"_s));
        quint8 byte = 0;
        unarchiver.decodeValueOfObjCType("C", &byte);
        EXPECT_EQ(byte, 255);
        float half = 0;
        unarchiver.decodeValueOfObjCType("f", &half);
        EXPECT_EQ(half, 0.5F);
    }
}

TEST(KeyedUnarchiver, ReadsMissingFieldsAsNothing)
{
    KeyedUnarchiver unarchiver(binaryArchive(keyedArchive({}, {})));
    EXPECT_FALSE(unarchiver.containsValueForKey(u"a"_s));
    EXPECT_FALSE(unarchiver.decodeObjectForKey(u"a"_s).isValid());
    EXPECT_EQ(unarchiver.decodeFloatForKey(u"a"_s), 0.0F);
    EXPECT_EQ(unarchiver.decodeDoubleForKey(u"a"_s), 0.0);
    EXPECT_EQ(unarchiver.decodeInt64ForKey(u"a"_s), 0);
    EXPECT_FALSE(unarchiver.decodeBoolForKey(u"a"_s));
    EXPECT_TRUE(unarchiver.decodeBytesForKey(u"a"_s).isEmpty());
    EXPECT_THROW(unarchiver.decodeObject(), platform::ArchiveException);
    double number = 0;
    EXPECT_THROW(unarchiver.decodeValueOfObjCType("d", &number), platform::ArchiveException);
}

TEST(KeyedUnarchiver, DoesNotEncode)
{
    KeyedUnarchiver unarchiver(binaryArchive(keyedArchive({}, {})));
    EXPECT_THROW(unarchiver.encodeBool(true, u"a"_s), platform::UnrecognisedOperationException);
    EXPECT_THROW(unarchiver.encodeObject(u"a"_s), platform::UnrecognisedOperationException);
}

} // namespace

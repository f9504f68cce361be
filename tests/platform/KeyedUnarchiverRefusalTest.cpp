#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedUnarchiver.h>
#include <tests/support/HandMadeArchives.h>
#include <tests/support/SharingArchives.h>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::KeyedUnarchiver;
using support::addClass;
using support::addObject;
using support::binaryArchive;
using support::BinaryList;
using support::finished;
using support::keyedArchive;
using support::manyOfOne;
using support::object;
using support::uid;
using support::uids;
using support::xmlArchive;

/// What the exception says that reading the data throws.
std::string complaint(const QByteArray &data)
{
    try {
        KeyedUnarchiver::unarchiveObjectWithData(data);
    } catch (const platform::ArchiveException &exception) {
        const std::string text = exception.what();
        const std::string operation = "unarchiveObjectWithData: ";
        EXPECT_TRUE(text.starts_with(operation)) << text;
        return text.substr(std::min(text.size(), operation.size()));
    }
    return "nothing is wrong";
}

struct Case {
    const char *name;
    QVariantMap archive;
    std::string expected;
};

void PrintTo(const Case &refusal, std::ostream *out)
{
    *out << xmlArchive(refusal.archive).toStdString();
}

class KeyedUnarchiverRefusal : public testing::TestWithParam<Case>
{
};

TEST_P(KeyedUnarchiverRefusal, NamesThePlaceAndWhatIsWrong)
{
    EXPECT_EQ(complaint(xmlArchive(GetParam().archive)), GetParam().expected);
    EXPECT_EQ(complaint(binaryArchive(GetParam().archive)), GetParam().expected);
}

std::string caseName(const testing::TestParamInfo<Case> &info)
{
    return info.param.name;
}

/// A sound archive of a string, but for one entry: one of another value, or none for an invalid one.
QVariantMap with(const QString &key, const QVariant &value)
{
    QVariantMap archive = keyedArchive({u"text"_s});
    archive.insert(key, value);
    if (!value.isValid()) {
        archive.remove(key);
    }
    return archive;
}

const Case archives[] = {
    {"NoArchiver", with(u"$archiver"_s, {}), "the archive: `$archiver` is missing"},
    {"OtherArchiver", with(u"$archiver"_s, u"NSArchiver"_s),
     "the archive: `$archiver` is `NSArchiver`, not `NSKeyedArchiver`"},
    {"ArchiverIsNoString", with(u"$archiver"_s, qint64{1}), "the archive: `$archiver` is of the wrong type"},
    {"NoVersion", with(u"$version"_s, {}), "the archive: `$version` is missing"},
    {"OtherVersion", with(u"$version"_s, qint64{100001}), "the archive: `$version` is 100001, not 100000"},
    {"VersionIsNoInteger", with(u"$version"_s, u"100000"_s), "the archive: `$version` is of the wrong type"},
    {"NoTop", with(u"$top"_s, {}), "the archive: `$top` is missing"},
    {"TopIsNoDictionary", with(u"$top"_s, uid(1)), "the archive: `$top` is of the wrong type"},
    {"NoObjects", with(u"$objects"_s, {}), "the archive: `$objects` is missing"},
    {"ObjectsAreNoArray", with(u"$objects"_s, QVariantMap()), "the archive: `$objects` is of the wrong type"},
    {"NoRoot", with(u"$top"_s, QVariantMap{{u"$0"_s, uid(1)}}), "the outermost fields: `root` is missing"},
    {"RootIsNoReference", with(u"$top"_s, QVariantMap{{u"root"_s, u"text"_s}}),
     "the outermost fields: `root` holds something that is no reference"},
    {"RootOutOfRange", with(u"$top"_s, QVariantMap{{u"root"_s, uid(2)}}),
     "the outermost fields: `root` refers to object 2; the archive has 2"},
    {"RootFarOutOfRange", with(u"$top"_s, QVariantMap{{u"root"_s, uid(4294967295)}}),
     "the outermost fields: `root` refers to object 4294967295; the archive has 2"},
    {"NoObjectsAtAll", with(u"$objects"_s, QVariantList()),
     "the outermost fields: `root` refers to object 1; the archive has 0"},
};
INSTANTIATE_TEST_SUITE_P(Archives, KeyedUnarchiverRefusal, testing::ValuesIn(archives), caseName);

const QVariantMap classEntry{{u"$classname"_s, u"NSArray"_s}};

const Case classes[] = {
    {"NoClass", keyedArchive({QVariantMap{{u"NS.objects"_s, uids({})}}}), "object 1: `$class` is missing"},
    {"ClassIsNoReference", keyedArchive({QVariantMap{{u"$class"_s, qint64{2}}}, classEntry}),
     "object 1: `$class` is no reference"},
    {"ClassOutOfRange", keyedArchive({QVariantMap{{u"$class"_s, uid(2)}}}),
     "object 1: `$class` refers to object 2; the archive has 2"},
    {"ClassIsNoDictionary", keyedArchive({QVariantMap{{u"$class"_s, uid(2)}}, u"NSArray"_s}),
     "object 2 (a class): is no dictionary"},
    {"ClassIsNothing", keyedArchive({QVariantMap{{u"$class"_s, uid(0)}}}), "object 0 (a class): is no dictionary"},
    {"ClassWithoutName", keyedArchive({QVariantMap{{u"$class"_s, uid(2)}}, QVariantMap()}),
     "object 2 (a class): `$classname` is missing, empty or no string"},
    {"ClassWithEmptyName", keyedArchive({QVariantMap{{u"$class"_s, uid(2)}}, QVariantMap{{u"$classname"_s, u""_s}}}),
     "object 2 (a class): `$classname` is missing, empty or no string"},
    {"ClassNameIsNoString",
     keyedArchive({QVariantMap{{u"$class"_s, uid(2)}}, QVariantMap{{u"$classname"_s, qint64{5}}}}),
     "object 2 (a class): `$classname` is missing, empty or no string"},
    {"ChainIsNoArray",
     keyedArchive({QVariantMap{{u"$class"_s, uid(2)}},
                   QVariantMap{{u"$classname"_s, u"NSArray"_s}, {u"$classes"_s, u"NSArray"_s}}}),
     "object 2 (a class): `$classes` is no array"},
    {"ChainHoldsNoString",
     keyedArchive({QVariantMap{{u"$class"_s, uid(2)}},
                   QVariantMap{{u"$classname"_s, u"NSArray"_s}, {u"$classes"_s, QVariantList{qint64{1}}}}}),
     "object 2 (a class): `$classes` holds something that is no string"},
    {"ClassAsAnObject", keyedArchive({classEntry}), "object 1: `$class` is missing"},
    {"ObjectIsAnArray", keyedArchive(QVariantList(1, QVariantList())),
     "object 1: is neither a plain value nor a dictionary with a class"},
    {"ObjectIsAReference", keyedArchive({uid(1)}), "object 1: is neither a plain value nor a dictionary with a class"},
};
INSTANTIATE_TEST_SUITE_P(Classes, KeyedUnarchiverRefusal, testing::ValuesIn(classes), caseName);

QVariantMap oneObject(const QString &className, const QVariantMap &fields, const QVariantList &others = {})
{
    return keyedArchive(QVariantList{object(className, fields)} + others);
}

const Case collections[] = {
    {"ElementsAreNoArray", oneObject(u"NSArray"_s, {{u"NS.objects"_s, uid(0)}}),
     "object 1 (NSArray): `NS.objects` is no array"},
    {"ElementIsNoReference", oneObject(u"NSArray"_s, {{u"NS.objects"_s, QVariantList{u"a"_s}}}),
     "object 1 (NSArray): `NS.objects` holds something that is no reference"},
    {"ElementOutOfRange", oneObject(u"NSArray"_s, {{u"NS.objects"_s, uids({99})}}),
     "object 1 (NSArray): `NS.objects` refers to object 99; the archive has 3"},
    {"ElementIsNothing", oneObject(u"NSMutableArray"_s, {{u"NS.objects"_s, uids({0})}}),
     "object 1 (NSMutableArray): `NS.objects` refers to nothing"},
    {"ElementIsTheNameOfNothing", oneObject(u"NSSet"_s, {{u"NS.objects"_s, uids({2})}}, {u"$null"_s}),
     "object 1 (NSSet): `NS.objects` refers to nothing"},
    {"NumberedElementIsNothing", oneObject(u"NSOrderedSet"_s, {{u"NS.object.0"_s, uid(0)}}),
     "object 1 (NSOrderedSet): `NS.object.0` refers to nothing"},
    {"KeyIsNothing", oneObject(u"NSDictionary"_s, {{u"NS.keys"_s, uids({0})}, {u"NS.objects"_s, uids({1})}}),
     "object 1 (NSDictionary): `NS.keys` refers to nothing"},
    {"ValueIsNothing",
     oneObject(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2})}, {u"NS.objects"_s, uids({0})}}, {u"a"_s}),
     "object 1 (NSDictionary): `NS.objects` refers to nothing"},
    {"MoreKeysThanObjects",
     oneObject(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2, 3})}, {u"NS.objects"_s, uids({2})}}, {u"a"_s, u"b"_s}),
     "object 1 (NSDictionary): there are 2 keys and 1 objects"},
    {"ObjectsWithoutKeys", oneObject(u"NSDictionary"_s, {{u"NS.objects"_s, uids({2})}}, {u"a"_s}),
     "object 1 (NSDictionary): there are 0 keys and 1 objects"},
    {"CountBeyondTheElements",
     oneObject(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{2}}, {u"NS.object0"_s, uid(2)}, {u"NS.count0"_s, qint64{1}}},
               {u"a"_s}),
     "object 1 (NSCountedSet): `NS.count` is not the number of elements, 1"},
    {"HugeCount", oneObject(u"NSCountedSet"_s, {{u"NS.count"_s, quint64(1) << 63}}),
     "object 1 (NSCountedSet): `NS.count` is not the number of elements, 0"},
    {"CountBeyond32Bits",
     oneObject(u"NSCountedSet"_s, {{u"NS.count"_s, (qint64{1} << 32) + 1}, {u"NS.object0"_s, uid(2)}}, {u"a"_s}),
     "object 1 (NSCountedSet): `NS.count` is not the number of elements, 1"},
    {"NegativeCount", oneObject(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{-1}}}),
     "object 1 (NSCountedSet): `NS.count` is no integer of 0 or more"},
    {"NegativeCountOfAnElement",
     oneObject(u"NSCountedSet"_s, {{u"NS.count"_s, qint64{1}}, {u"NS.object0"_s, uid(2)}, {u"NS.count0"_s, qint64{-2}}},
               {u"a"_s}),
     "object 1 (NSCountedSet): `NS.count0` is no integer of 0 or more"},
    {"FewerRangesThanSaid",
     oneObject(u"NSIndexSet"_s, {{u"NSRangeCount"_s, qint64{3}}, {u"NSRangeData"_s, "\1\1\3\1"_ba}}),
     "object 1 (NSIndexSet): `NSRangeData` does not hold the 3 ranges that `NSRangeCount` says"},
    {"HalfARange", oneObject(u"NSIndexSet"_s, {{u"NSRangeCount"_s, qint64{2}}, {u"NSRangeData"_s, "\1\1\3"_ba}}),
     "object 1 (NSIndexSet): `NSRangeData` does not hold the 2 ranges that `NSRangeCount` says"},
    {"HugeRangeCount",
     oneObject(u"NSIndexSet"_s, {{u"NSRangeCount"_s, quint64{18446744073709551615U}}, {u"NSRangeData"_s, ""_ba}}),
     "object 1 (NSIndexSet): `NSRangeData` does not hold the 18446744073709551615 ranges that `NSRangeCount` says"},
    {"RangeDataCutOff",
     oneObject(u"NSIndexSet"_s, {{u"NSRangeCount"_s, qint64{2}}, {u"NSRangeData"_s, "\1\1\3\x81"_ba}}),
     "object 1 (NSIndexSet): `NSRangeData` holds a number that is cut off or too large"},
    {"NegativeLocation",
     oneObject(u"NSIndexSet"_s,
               {{u"NSRangeCount"_s, qint64{1}}, {u"NSLocation"_s, qint64{-1}}, {u"NSLength"_s, qint64{1}}}),
     "object 1 (NSIndexSet): `NSLocation` is no integer of 0 or more"},
    {"FewerIndicesThanSaid",
     oneObject(u"NSIndexPath"_s, {{u"NSIndexPathLength"_s, qint64{2}}, {u"NSIndexPathData"_s, "\1"_ba}}),
     "object 1 (NSIndexPath): `NSIndexPathData` does not hold the 2 indices that `NSIndexPathLength` says"},
};
INSTANTIATE_TEST_SUITE_P(Collections, KeyedUnarchiverRefusal, testing::ValuesIn(collections), caseName);

const Case scalars[] = {
    {"StringWithoutField", oneObject(u"NSString"_s, {}), "object 1 (NSString): `NS.string` is missing"},
    {"StringOfAnotherType", oneObject(u"NSString"_s, {{u"NS.string"_s, qint64{1}}}),
     "object 1 (NSString): `NS.string` is no string"},
    {"StringBytesAreNoData", oneObject(u"NSString"_s, {{u"NS.bytes"_s, u"a"_s}}),
     "object 1 (NSString): `NS.bytes` is no data"},
    {"StringBytesAreNotUtf8", oneObject(u"NSString"_s, {{u"NS.bytes"_s, "a\xFF"_ba}}),
     "object 1 (NSString): `NS.bytes` is not UTF-8"},
    {"NumberWithoutField", oneObject(u"NSNumber"_s, {}), "object 1 (NSNumber): `NS.number` is missing"},
    {"NumberIsNoNumber", oneObject(u"NSNumber"_s, {{u"NS.intval"_s, u"1"_s}}),
     "object 1 (NSNumber): `NS.intval` is no number"},
    {"DataIsNoData", oneObject(u"NSData"_s, {{u"NS.data"_s, u"a"_s}}), "object 1 (NSData): `NS.data` is no data"},
    {"TimeIsNoNumber", oneObject(u"NSDate"_s, {{u"NS.time"_s, u"now"_s}}), "object 1 (NSDate): `NS.time` is no number"},
    {"DataIsAReferenceToNoData", oneObject(u"NSMutableData"_s, {{u"NS.data"_s, uid(2)}}, {u"a"_s}),
     "object 1 (NSMutableData): `NS.data` is not data"},
    {"DecimalWithLessThanItsLength",
     oneObject(u"NSDecimalNumber"_s, {{u"NS.length"_s, qint64{2}}, {u"NS.mantissa"_s, "\1\0\1"_ba}}),
     "object 1 (NSDecimalNumber): `NS.mantissa` has 3 bytes; `NS.length` says 2 words"},
    {"DecimalWithAHugeLength",
     oneObject(u"NSDecimalNumber"_s, {{u"NS.length"_s, qint64{9}}, {u"NS.mantissa"_s, QByteArray(18, '\1')}}),
     "object 1 (NSDecimalNumber): `NS.mantissa` has 18 bytes; `NS.length` says 9 words"},
    {"DecimalWithAHugeExponent", oneObject(u"NSDecimalNumber"_s, {{u"NS.exponent"_s, qint64{1} << 40}}),
     "object 1 (NSDecimalNumber): `NS.exponent` is 1099511627776, which is none"},
    {"UrlWithoutString", oneObject(u"NSURL"_s, {{u"NS.base"_s, uid(0)}}),
     "object 1 (NSURL): `NS.relative` is not a string"},
    {"BaseIsNoUrl", oneObject(u"NSURL"_s, {{u"NS.base"_s, uid(2)}, {u"NS.relative"_s, uid(2)}}, {u"a"_s}),
     "object 1 (NSURL): `NS.base` is no URL"},
    {"UuidOfOtherLength", oneObject(u"NSUUID"_s, {{u"NS.uuidbytes"_s, "0123456789abcde"_ba}}),
     "object 1 (NSUUID): `NS.uuidbytes` has 15 bytes, not 16"},
    {"UuidWithoutField", oneObject(u"NSUUID"_s, {}), "object 1 (NSUUID): `uuid` has 0 bytes, not 16"},
    {"PointIsNoReference", oneObject(u"NSValue"_s, {{u"NS.special"_s, qint64{1}}, {u"NS.pointval"_s, u"{1, 2}"_s}}),
     "object 1 (NSValue): `NS.pointval` holds something that is no reference"},
    {"PointIsNoPoint",
     oneObject(u"NSValue"_s, {{u"NS.special"_s, qint64{1}}, {u"NS.pointval"_s, uid(2)}}, {u"{1, 2, 3}"_s}),
     "object 1 (NSValue): `NS.pointval` does not hold the numbers that it should, as in `{1, 2}`"},
    {"SizeIsMissing", oneObject(u"NSValue"_s, {{u"NS.special"_s, qint64{2}}}),
     "object 1 (NSValue): `NS.sizeval` is not a string"},
    {"RectangleIsASize",
     oneObject(u"NSValue"_s, {{u"NS.special"_s, qint64{3}}, {u"NS.rectval"_s, uid(2)}}, {u"{1, 2}"_s}),
     "object 1 (NSValue): `NS.rectval` does not hold the numbers that it should, as in `{1, 2}`"},
    {"RangeWithNegativeLocation",
     oneObject(u"NSValue"_s, {{u"NS.special"_s, qint64{4}}, {u"NS.rangeval.location"_s, uid(2)}}, {qint64{-1}}),
     "object 1 (NSValue): `NS.rangeval.location` is no integer of 0 or more"},
};
INSTANTIATE_TEST_SUITE_P(Scalars, KeyedUnarchiverRefusal, testing::ValuesIn(scalars), caseName);

/// A text of ten units with two dictionaries of attributes and these bytes for its runs.
QVariantMap text(const QByteArray &runs)
{
    const QVariantMap empty = object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({})}, {u"NS.objects"_s, uids({})}});
    return keyedArchive({object(u"NSAttributedString"_s,
                                {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}, {u"NSAttributeInfo"_s, uid(6)}}),
                         u"0123456789"_s, object(u"NSArray"_s, {{u"NS.objects"_s, uids({4, 5})}}), empty, empty, runs});
}

const std::string cutOff =
    "object 1 (NSAttributedString): `NSAttributeInfo` holds a number that is cut off or too large";

const Case texts[] = {
    {"TextWithoutString", oneObject(u"NSAttributedString"_s, {}),
     "object 1 (NSAttributedString): `NSString` is not a string"},
    {"TextWhoseStringIsANumber", oneObject(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}}, {qint64{1}}),
     "object 1 (NSAttributedString): `NSString` is not a string"},
    {"AttributesAreAString",
     oneObject(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(2)}}, {u"a"_s}),
     "object 1 (NSAttributedString): `NSAttributes` is neither a dictionary of attributes nor an array of them"},
    {"AttributesHoldAString",
     oneObject(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}},
               {u"a"_s, object(u"NSArray"_s, {{u"NS.objects"_s, uids({2})}})}),
     "object 1 (NSAttributedString): `NSAttributes` holds something that is no dictionary of attributes"},
    {"RunsAreMissing",
     oneObject(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}},
               {u"a"_s, object(u"NSArray"_s, {{u"NS.objects"_s, uids({})}})}),
     "object 1 (NSAttributedString): `NSAttributeInfo` ends 1 units before the end of the text"},
    {"RunsAreNoData",
     oneObject(u"NSAttributedString"_s,
               {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}, {u"NSAttributeInfo"_s, uid(2)}},
               {u"a"_s, object(u"NSArray"_s, {{u"NS.objects"_s, uids({})}})}),
     "object 1 (NSAttributedString): `NSAttributeInfo` is not data"},
    {"RunsBeyondTheText", text("\x0B\x00"_ba),
     "object 1 (NSAttributedString): `NSAttributeInfo` goes beyond the 10 units of the text"},
    {"RunsThatAddUpToTooMuch", text("\x09\x00\x02\x01"_ba),
     "object 1 (NSAttributedString): `NSAttributeInfo` goes beyond the 10 units of the text"},
    {"RunsThatOverflow", text("\x01\x00"_ba + QByteArray(9, '\x80') + "\x01\x00"_ba),
     "object 1 (NSAttributedString): `NSAttributeInfo` goes beyond the 10 units of the text"},
    {"RunsThatAddUpToTooLittle", text("\x07\x00\x01\x01"_ba),
     "object 1 (NSAttributedString): `NSAttributeInfo` ends 2 units before the end of the text"},
    {"AttributesOutOfRange", text("\x0A\x02"_ba),
     "object 1 (NSAttributedString): `NSAttributeInfo` names attributes 2; there are 2"},
    {"LengthWithoutAttributes", text("\x0A"_ba), cutOff},
    {"LengthEndsInAContinuation", text("\x8A"_ba), cutOff},
    {"AttributesEndInAContinuation", text("\x0A\x80"_ba), cutOff},
    {"LengthAbove63Bits", text("\x81" + QByteArray(8, '\x80') + "\x01\x00"_ba), cutOff},
    {"LengthOfMoreThan64Bits", text(QByteArray(20, '\x80') + "\x00\x00"_ba), cutOff},
};
INSTANTIATE_TEST_SUITE_P(Texts, KeyedUnarchiverRefusal, testing::ValuesIn(texts), caseName);

const Case circles[] = {
    {"ArrayInsideItself", oneObject(u"NSArray"_s, {{u"NS.objects"_s, uids({1})}}), "object 1: is inside itself"},
    {"DictionaryAsItsOwnKey", oneObject(u"NSDictionary"_s, {{u"NS.keys"_s, uids({1})}, {u"NS.objects"_s, uids({1})}}),
     "object 1: is inside itself"},
    {"ArrayInsideItsSet",
     oneObject(u"NSArray"_s, {{u"NS.objects"_s, uids({2})}}, {object(u"NSSet"_s, {{u"NS.objects"_s, uids({1})}})}),
     "object 1: is inside itself"},
    {"UrlAsItsOwnBase", oneObject(u"NSURL"_s, {{u"NS.base"_s, uid(1)}, {u"NS.relative"_s, uid(2)}}, {u"a"_s}),
     "object 1: is inside itself"},
    {"TextInItsAttributes",
     oneObject(u"NSAttributedString"_s, {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}},
               {u"a"_s, object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({2})}, {u"NS.objects"_s, uids({1})}})}),
     "object 1: is inside itself"},
    {"CircleInAFieldOfAnUnknownClass",
     oneObject(u"Note"_s, {{u"list"_s, uid(2)}}, {object(u"NSArray"_s, {{u"NS.objects"_s, uids({2})}})}),
     "object 2: is inside itself"},
};
INSTANTIATE_TEST_SUITE_P(Circles, KeyedUnarchiverRefusal, testing::ValuesIn(circles), caseName);

const Case unknownClasses[] = {
    {"FieldOfAnUnknownClassOutOfRange", oneObject(u"Note"_s, {{u"title"_s, uid(9)}}),
     "object 1 (Note): `title` refers to object 9; the archive has 3"},
    {"MalformedBehindAnUnknownClass", oneObject(u"Note"_s, {{u"parts"_s, uids({2})}}, {object(u"NSString"_s)}),
     "object 2 (NSString): `NS.string` is missing"},
};
INSTANTIATE_TEST_SUITE_P(UnknownClasses, KeyedUnarchiverRefusal, testing::ValuesIn(unknownClasses), caseName);

TEST(KeyedUnarchiverRefuses, DataThatIsNoPropertyList)
{
    EXPECT_EQ(complaint("<plist><dict>"),
              "the archive is no property list: line 1, column 14: the text ends before `</dict>`");
    EXPECT_EQ(complaint("bplist00"), "the archive is no property list: byte 8: the list ends before its trailer");
    EXPECT_EQ(complaint(xmlArchive(QVariantList())), "the archive: is no dictionary");
}

TEST(KeyedUnarchiverRefuses, TypedstreamsByTheirName)
{
    for (const QByteArray &start : {"\x04\x0Bstreamtyped\x81\xE8\x03"_ba, "\x04\x0Btypedstream\x81\x03\xE8"_ba}) {
        EXPECT_EQ(complaint(start + "\x84\x01@"), "the archive: is a typedstream, an archive without keys that another "
                                                  "program wrote, which is not read here");
    }
}

TEST(KeyedUnarchiverRefuses, UidsInXmlThatAreNoUid)
{
    for (const char *number : {"-1", "4294967296", "18446744073709551615"}) {
        QByteArray archive = xmlArchive(keyedArchive({u"text"_s}));
        archive.replace("<key>CF$UID</key><integer>1", QByteArray("<key>CF$UID</key><integer>") + number);
        EXPECT_NE(complaint(archive).find("a UID is a number from 0 to 4294967295"), std::string::npos) << number;
    }
}

/// Objects 1 to `count`, each an array of the objects whose indices `elements` gives for it; the last one is empty.
QVariantList arrays(quint32 count, const std::function<QVariantList(quint32 index)> &elements)
{
    QVariantList objects;
    for (quint32 index = 1; index <= count; ++index) {
        objects.append(object(u"NSArray"_s, {{u"NS.objects"_s, index < count ? elements(index) : QVariantList()}}));
    }
    return objects;
}

TEST(KeyedUnarchiverRefuses, MoreThan512ObjectsInsideEachOther)
{
    const auto nested = [](quint32 count) {
        return binaryArchive(keyedArchive(arrays(count, [](quint32 index) { return uids({index + 1}); })));
    };
    EXPECT_EQ(complaint(nested(512)), "nothing is wrong");
    EXPECT_EQ(complaint(nested(513)), "object 513 (NSArray): more than 512 objects are inside each other");
    EXPECT_EQ(complaint(nested(100'000)), "object 513 (NSArray): more than 512 objects are inside each other");
}

/// An array of arrays, each of which holds the one before it: none is deep where it is met first.
TEST(KeyedUnarchiverRefuses, NestingThatGrowsFromTheInside)
{
    const auto growing = [](quint32 count) {
        QVariantList all;
        QVariantList objects;
        for (quint32 index = 2; index <= count; ++index) {
            all.append(uid(index));
            objects.append(object(u"NSArray"_s, {{u"NS.objects"_s, index == 2 ? uids({}) : uids({index - 1})}}));
        }
        return binaryArchive(keyedArchive(QVariantList{object(u"NSArray"_s, {{u"NS.objects"_s, all}})} + objects));
    };
    EXPECT_EQ(complaint(growing(512)), "nothing is wrong");
    EXPECT_EQ(complaint(growing(513)), "object 1 (NSArray): more than 512 objects are inside each other");
    EXPECT_EQ(complaint(growing(50'000)), "object 514 (NSArray): more than 512 objects are inside each other");
}

TEST(KeyedUnarchiver, ReadsArraysThatDoubleAtEveryLevel)
{
    const QByteArray data = binaryArchive(keyedArchive(arrays(500, [](quint32 i) { return uids({i + 1, i + 1}); })));
    QVariant value = KeyedUnarchiver::unarchiveObjectWithData(data);
    int depth = 0;
    for (; !value.toList().isEmpty(); value = value.toList().last()) {
        ++depth;
    }
    EXPECT_EQ(depth, 499);
}

std::string tooMuch(const QByteArray &data)
{
    return "the archive: its objects hold too much for its " + std::to_string(data.size()) + " bytes";
}

constexpr quint16 many = 5000;

TEST(KeyedUnarchiverRefuses, ObjectsThatAllHaveTheSameLongArray)
{
    BinaryList list;
    const quint16 elements = list.addArray(QList<quint16>(many, list.addUid(4 + many)));
    const QByteArray data = manyOfOne(list, many, "NSArray", "NS.objects", elements);
    EXPECT_EQ(complaint(data), tooMuch(data));
}

TEST(KeyedUnarchiverRefuses, ObjectsThatAllHaveTheSameLongBytes)
{
    BinaryList list;
    const quint16 bytes = list.add("\x4F\x12" + QByteArray::fromHex("000f4240") + QByteArray(1'000'000, 'a'));
    const QByteArray data = manyOfOne(list, many, "NSString", "NS.bytes", bytes);
    EXPECT_EQ(complaint(data), tooMuch(data));
}

TEST(KeyedUnarchiverRefuses, UnknownObjectsThatAllHaveTheSameLongArray)
{
    BinaryList list;
    const quint16 elements = list.addArray(QList<quint16>(many, list.addString("a")));
    const QByteArray data = manyOfOne(list, many, "Note", "parts", elements);
    EXPECT_EQ(complaint(data), tooMuch(data));
}

TEST(KeyedUnarchiverRefuses, AFieldOfArraysThatDoubleAtEveryLevel)
{
    BinaryList list;
    quint16 array = list.addArray({});
    for (int level = 0; level < 400; ++level) {
        array = list.addArray({array, array});
    }
    const quint16 note = addObject(list, "parts", array);
    const QByteArray data = finished(list, {note, addClass(list, "Note")});
    EXPECT_EQ(complaint(data), tooMuch(data));
}

/// A text of two units whose attributes are equal graphs, doubling at every level.
QVariantMap textWithDoublingAttributes(quint32 levels)
{
    const quint32 left = 9;
    const quint32 right = left + levels;
    QVariantList objects{object(u"NSAttributedString"_s,
                                {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}, {u"NSAttributeInfo"_s, uid(4)}}),
                         u"ab"_s,
                         object(u"NSArray"_s, {{u"NS.objects"_s, uids({5, 6})}}),
                         QByteArray("\1\0\1\1", 4),
                         object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({7})}, {u"NS.objects"_s, uids({left})}}),
                         object(u"NSDictionary"_s, {{u"NS.keys"_s, uids({7})}, {u"NS.objects"_s, uids({right})}}),
                         u"graph"_s,
                         u"unused"_s};
    for (const quint32 start : {left, right}) {
        for (quint32 level = 0; level < levels; ++level) {
            const quint32 next = start + level + 1;
            objects.append(
                object(u"NSArray"_s, {{u"NS.objects"_s, level + 1 < levels ? uids({next, next}) : uids({})}}));
        }
    }
    return keyedArchive(objects);
}

TEST(KeyedUnarchiverRefuses, AttributesThatCannotBeCompared)
{
    EXPECT_EQ(complaint(binaryArchive(textWithDoublingAttributes(16))), "nothing is wrong");
    const std::string expected = "object 1 (NSAttributedString): `NSAttributes` has a dictionary with more than "
                                 "1048576 values inside each other";
    EXPECT_EQ(complaint(binaryArchive(textWithDoublingAttributes(22))), expected);
    EXPECT_EQ(complaint(binaryArchive(textWithDoublingAttributes(400))), expected);
}

/// Runs over two equal dictionaries of a thousand entries in turn: every comparison goes to the end.
TEST(KeyedUnarchiverRefuses, MoreComparisonsOfAttributesThanAnybodyWaitsFor)
{
    const auto alternating = [](int pairs) {
        QVariantList keys;
        QVariantList names;
        for (quint32 index = 0; index < 1000; ++index) {
            keys.append(uid(7 + index));
            names.append(QString::number(index));
        }
        const QVariantMap dictionary = object(u"NSDictionary"_s, {{u"NS.keys"_s, keys}, {u"NS.objects"_s, keys}});
        return binaryArchive(keyedArchive(
            QVariantList{object(u"NSAttributedString"_s,
                                {{u"NSString"_s, uid(2)}, {u"NSAttributes"_s, uid(3)}, {u"NSAttributeInfo"_s, uid(4)}}),
                         QString(2 * pairs, u'x'), object(u"NSArray"_s, {{u"NS.objects"_s, uids({5, 6})}}),
                         QByteArray("\1\0\1\1", 4).repeated(pairs), dictionary, dictionary} +
            names));
    };
    EXPECT_EQ(complaint(alternating(1000)), "nothing is wrong");
    EXPECT_EQ(complaint(alternating(50'000)), "the archive: its attributes hold too much to be compared");
}

} // namespace

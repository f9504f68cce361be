#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>

#include <gtest/gtest.h>

#include <QtCore/QStringList>

#include <limits>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;

namespace {

QByteArray unsignedBytes(quint64 number, int size)
{
    QByteArray bytes;
    for (int i = size - 1; i >= 0; --i) {
        bytes += i < 8 ? static_cast<char>(number >> (8 * i)) : '\0';
    }
    return bytes;
}

/// A binary list put together from its objects in hexadecimal, each with what of it differs from a sound list.
struct List {
    QStringList objects;
    quint64 top = 0;
    int positionSize = 1;
    int referenceSize = 1;
    QByteArray header = "bplist00";
    QByteArray behindTable = {};
    std::optional<quint64> count = {};
    std::optional<quint64> tablePosition = {};
    std::vector<quint64> positions = {}; ///< of the objects, where they are not those at which they stand

    QByteArray bytes() const
    {
        QByteArray list = header;
        std::vector<quint64> positionsInTable;
        for (const QString &object : objects) {
            positionsInTable.push_back(static_cast<quint64>(list.size()));
            list += QByteArray::fromHex(object.toLatin1());
        }
        const auto table = static_cast<quint64>(list.size());
        for (const quint64 position : positions.empty() ? positionsInTable : positions) {
            list += unsignedBytes(position, positionSize);
        }
        return list + behindTable + QByteArray(6, '\0') + static_cast<char>(positionSize) +
               static_cast<char>(referenceSize) + unsignedBytes(count.value_or(positionsInTable.size()), 8) +
               unsignedBytes(top, 8) + unsignedBytes(tablePosition.value_or(table), 8);
    }
};

std::string readBinary(const List &list)
{
    return dump(PropertyList::read(list.bytes()));
}

struct Case {
    const char *name;
    List list;
    std::string expected;
};

void PrintTo(const Case &readCase, std::ostream *out)
{
    *out << readCase.list.bytes().toHex(' ').toStdString();
}

std::string caseName(const testing::TestParamInfo<Case> &info)
{
    return info.param.name;
}

class PropertyListBinaryValue : public testing::TestWithParam<Case>
{
};

TEST_P(PropertyListBinaryValue, IsRead)
{
    EXPECT_EQ(readBinary(GetParam().list), GetParam().expected);
}

const Case scalars[] = {
    {"False", {{u"08"_s}}, "false"},
    {"True", {{u"09"_s}}, "true"},
    {"OneByteInteger", {{u"10ff"_s}}, "i255"},
    {"TwoByteInteger", {{u"11ffff"_s}}, "i65535"},
    {"FourByteInteger", {{u"12ffffffff"_s}}, "i4294967295"},
    {"EightByteInteger", {{u"137fffffffffffffff"_s}}, "i9223372036854775807"},
    {"NegativeInteger", {{u"13ffffffffffffffff"_s}}, "i-1"},
    {"LowestInteger", {{u"138000000000000000"_s}}, "i-9223372036854775808"},
    {"SixteenByteInteger", {{u"140000000000000000ffffffffffffffff"_s}}, "i18446744073709551615"},
    {"SmallSixteenByteInteger", {{u"1400000000000000000000000000000005"_s}}, "i5"},
    {"UpperHalfOfSixteenByteIntegerIsIgnored", {{u"14123456789abcdef00000000000000005"_s}}, "i5"},
    {"FourByteReal", {{u"223fc00000"_s}}, dump(1.5)},
    {"EightByteReal", {{u"233fb999999999999a"_s}}, dump(0.1)},
    {"InfiniteReal", {{u"237ff0000000000000"_s}}, dump(std::numeric_limits<double>::infinity())},
    {"NotANumber", {{u"227fc00000"_s}}, "rnan"},
    {"Date", {{u"330000000000000000"_s}}, "d978307200000"},
    {"DateBeforeTheOrigin", {{u"33bff0000000000000"_s}}, "d978307199000"},
    {"DateWithFraction", {{u"333ff8000000000000"_s}}, "d978307201500"},
    {"Data", {{u"42fffe"_s}}, "xfffe"},
    {"EmptyData", {{u"40"_s}}, "x"},
    {"LongData", {{u"4f1010"_s + u"ab"_s.repeated(16)}}, dump(QByteArray(16, '\xAB'))},
    {"AsciiString", {{u"536162 63"_s}}, dump(u"abc"_s)},
    {"EmptyString", {{u"50"_s}}, "s"},
    {"AsciiStringHoldsControlCharacters", {{u"53000d7f"_s}}, "s0000000d007f"},
    {"Utf16String", {{u"6300e4d83dde00"_s}}, dump(u"ä\U0001F600"_s)},
    {"Utf16StringMayHoldHalfAPair", {{u"62d800dc41"_s}}, "sd800dc41"},
    {"CountOfOneByte", {{u"5f100161"_s}}, dump(u"a"_s)},
    {"CountOfTwoBytes", {{u"5f11000161"_s}}, dump(u"a"_s)},
    {"CountOfEightBytes", {{u"5f13000000000000000161"_s}}, dump(u"a"_s)},
    {"CountOfSixteenBytes", {{u"5f140000000000000000000000000000000161"_s}}, dump(u"a"_s)},
    {"Uid", {{u"8005"_s}}, "u5"},
    {"UidOfThreeBytes", {{u"82010203"_s}}, "u66051"},
    {"UidOfSixteenBytes", {{u"8f000000000000000000000000ffffffff"_s}}, "u4294967295"},
};
INSTANTIATE_TEST_SUITE_P(Scalars, PropertyListBinaryValue, testing::ValuesIn(scalars), caseName);

const Case containers[] = {
    {"Array", {{u"a20102"_s, u"09"_s, u"08"_s}}, "[true,false,]"},
    {"EmptyArray", {{u"a0"_s}}, "[]"},
    {"ArrayWithLongCount", {{u"af100101"_s, u"09"_s}}, "[true,]"},
    {"Set", {{u"c20102"_s, u"09"_s, u"08"_s}}, "[true,false,]"},
    {"Dictionary", {{u"d201020304"_s, u"5162"_s, u"5161"_s, u"09"_s, u"08"_s}}, "{0061=false,0062=true,}"},
    {"EmptyDictionary", {{u"d0"_s}}, "{}"},
    {"DictionaryWithUtf16Key", {{u"d10102"_s, u"6100e4"_s, u"09"_s}}, "{00e4=true,}"},
    {"RepeatedKeyKeepsItsFirstValue", {{u"d201020304"_s, u"5161"_s, u"5161"_s, u"09"_s, u"08"_s}}, "{0061=true,}"},
    {"SharedObjects", {{u"a3010101"_s, u"a102"_s, u"09"_s}}, "[[true,],[true,],[true,],]"},
    {"OutermostObjectNeedNotBeTheFirst", {.objects = {u"09"_s, u"a100"_s}, .top = 1}, "[true,]"},
    {"ObjectsThatNobodyRefersTo", {{u"09"_s, u"ff"_s, u"5f"_s}}, "true"},
    {"AnyEighthByteOfTheHeader", {.objects = {u"09"_s}, .header = "bplist0?"}, "true"},
    {"GapsBetweenObjects", {{u"a1010f0f"_s, u"090f"_s}}, "[true,]"},
    {"OddSizes",
     {.objects = {u"a2000001000002"_s, u"09"_s, u"08"_s}, .positionSize = 5, .referenceSize = 3},
     "[true,false,]"},
    {"HugeSizes",
     {.objects = {u"a1"_s + u"00"_s.repeated(254) + u"01"_s, u"09"_s}, .positionSize = 9, .referenceSize = 255},
     "[true,]"},
};
INSTANTIATE_TEST_SUITE_P(Containers, PropertyListBinaryValue, testing::ValuesIn(containers), caseName);

TEST(PropertyListBinaryDocument, IsFoundToBeBinary)
{
    EXPECT_EQ(PropertyList::read(List{{u"09"_s}}.bytes()).format, PropertyList::Format::Binary);
    EXPECT_EQ(PropertyList::read("bplist00").format, PropertyList::Format::Binary);
}

TEST(PropertyListBinaryDocument, MayHave256ObjectsAndReferencesOfOneByte)
{
    List list{{u"af10ff"_s}};
    for (int i = 1; i < 256; ++i) {
        list.objects[0] += QString::number(i, 16).rightJustified(2, u'0');
        list.objects += u"09"_s;
    }
    list.positionSize = 2;
    std::string expected = "[";
    for (int i = 1; i < 256; ++i) {
        expected += "true,";
    }
    EXPECT_EQ(readBinary(list), expected + "]");
}

/// Arrays of one element each, the last one empty.
List nested(int arrays)
{
    List list{{}, 0, 4, 2};
    for (int i = 1; i < arrays; ++i) {
        list.objects += u"a1%1"_s.arg(i, 4, 16, QChar(u'0'));
    }
    list.objects += u"a0"_s;
    return list;
}

TEST(PropertyListBinaryDocument, NestsToTheLimit)
{
    EXPECT_TRUE(PropertyList::read(nested(512).bytes()).value);
    EXPECT_EQ(readBinary(nested(513)), "error: byte 1544: more than 512 containers stand inside each other");
}

TEST(PropertyListBinaryDocument, NestingCountsWhereObjectsAreReadBeforeTheyAreReachedFromOutside)
{
    // Object 0 refers to all others, the innermost first; object i refers to object i + 1.
    constexpr int arrays = 600;
    List list{{u"af11%1"_s.arg(arrays - 1, 4, 16, QChar(u'0'))}, 0, 4, 2};
    for (int i = 1; i < arrays; ++i) {
        list.objects[0] += u"%1"_s.arg(arrays - i, 4, 16, QChar(u'0'));
        list.objects += i + 1 < arrays ? u"a1%1"_s.arg(i + 1, 4, 16, QChar(u'0')) : u"a0"_s;
    }
    const std::string error = readBinary(list);
    EXPECT_TRUE(error.ends_with("more than 512 containers stand inside each other")) << error;
}

TEST(PropertyListBinaryDocument, DoublingArraysTakeNoMoreThanTheirObjects)
{
    List list{{}, 0, 2, 2};
    for (int i = 1; i <= 100; ++i) {
        list.objects += u"a2%1%1"_s.arg(i, 4, 16, QChar(u'0'));
    }
    list.objects += u"a0"_s;
    const auto result = PropertyList::read(list.bytes());
    ASSERT_TRUE(result.value) << result.error.toStdString();
    QVariant value = *result.value;
    for (int depth = 0; depth < 100; ++depth) {
        ASSERT_EQ(value.toList().size(), 2);
        value = value.toList().at(depth % 2);
    }
    EXPECT_EQ(value.toList(), QVariantList());
}

class PropertyListBinaryError : public testing::TestWithParam<Case>
{
};

TEST_P(PropertyListBinaryError, NamesThePlace)
{
    EXPECT_EQ(readBinary(GetParam().list), "error: " + GetParam().expected);
}

constexpr quint64 huge = std::numeric_limits<quint64>::max();

const std::string noObject = "this is no object of a property list";
const std::string tooLong = "this object is longer than the room that it has";
const std::string noTable = "the table of positions does not lie between header and trailer";
const std::string wrongCount = "the table of positions has not one entry for each object";
const std::string fewPositionBytes = "positions have too few bytes for this list";
const std::string fewReferenceBytes = "references have too few bytes for this list";

// The trailer of a list with one object of one byte begins at byte 10.
const Case trailers[] = {
    {"OtherVersion",
     {.objects = {u"09"_s}, .header = "bplist15"},
     "byte 0: this version of the binary format is not known"},
    {"NoObjects", {.objects = {u"09"_s}, .count = 0}, "byte 18: the list has no objects"},
    {"OutermostObjectBeyondTheCount",
     {.objects = {u"09"_s}, .top = 1},
     "byte 26: the outermost object is none of the list's objects"},
    {"OutermostObjectFarBeyondTheCount",
     {.objects = {u"09"_s}, .top = huge},
     "byte 26: the outermost object is none of the list's objects"},
    {"TableInTheHeader", {.objects = {u"09"_s}, .tablePosition = 8}, "byte 34: " + noTable},
    {"TableInTheTrailer", {.objects = {u"09"_s}, .tablePosition = 10}, "byte 34: " + noTable},
    {"TableFarBehindTheEnd", {.objects = {u"09"_s}, .tablePosition = huge}, "byte 34: " + noTable},
    {"PositionsWithoutSize",
     {.objects = {u"09"_s}, .positionSize = 0, .behindTable = "a"},
     "byte 16: " + fewPositionBytes},
    {"ReferencesWithoutSize", {.objects = {u"09"_s}, .referenceSize = 0}, "byte 17: " + fewReferenceBytes},
    {"PositionsTooSmallForTheTable", {{u"4f10f0"_s + u"00"_s.repeated(245)}}, "byte 263: " + fewPositionBytes},
    {"CountTooSmall", {.objects = {u"09"_s, u"09"_s}, .count = 1}, "byte 20: " + wrongCount},
    {"CountTooLarge", {.objects = {u"09"_s}, .count = 2}, "byte 18: " + wrongCount},
    {"CountTooLargeForReferences", {.objects = {u"09"_s}, .count = 257}, "byte 17: " + fewReferenceBytes},
    {"CountThatOverflowsTheTable",
     {.objects = {u"09"_s}, .positionSize = 8, .referenceSize = 8, .count = (quint64(1) << 61) + 1},
     "byte 25: " + wrongCount},
    {"CountBeyondAllBounds", {.objects = {u"09"_s}, .referenceSize = 8, .count = huge}, "byte 18: " + wrongCount},
    {"BytesBehindTheTable", {.objects = {u"09"_s}, .behindTable = "a"}, "byte 19: " + wrongCount},
    {"HalfAnEntryBehindTheTable",
     {.objects = {u"09"_s}, .positionSize = 2, .behindTable = "a"},
     "byte 20: " + wrongCount},
    {"MoreObjectsThanBytes",
     {.objects = {u"09"_s, u""_s}},
     "byte 19: there are more objects than bytes that they could stand in"},
    {"PositionInTheHeader", {.objects = {u"09"_s}, .positions = {7}}, "byte 9: this position lies outside the objects"},
    {"PositionInTheTable",
     {.objects = {u"09"_s, u"09"_s}, .positions = {8, 10}},
     "byte 11: this position lies outside the objects"},
    {"PositionBeyondAllBounds",
     {.objects = {u"09"_s}, .positionSize = 8, .positions = {huge}},
     "byte 9: this position lies outside the objects"},
};
INSTANTIATE_TEST_SUITE_P(Trailers, PropertyListBinaryError, testing::ValuesIn(trailers), caseName);

const Case objects[] = {
    {"Fill", {{u"0f"_s}}, "byte 8: " + noObject},
    {"UnknownSimple", {{u"01"_s}}, "byte 8: " + noObject},
    {"LongInteger", {{u"15"_s + u"00"_s.repeated(32)}}, "byte 8: " + noObject},
    {"ShortReal", {{u"21ffff"_s}}, "byte 8: " + noObject},
    {"LongReal", {{u"24"_s + u"00"_s.repeated(16)}}, "byte 8: " + noObject},
    {"ShortDate", {{u"3200000000"_s}}, "byte 8: " + noObject},
    {"Utf8String", {{u"7161"_s}}, "byte 8: " + noObject},
    {"UnknownType", {{u"9000"_s}}, "byte 8: " + noObject},
    {"OrderedSet", {{u"b0"_s}}, "byte 8: " + noObject},
    {"LastType", {{u"f0"_s}}, "byte 8: " + noObject},
    {"IntegerIsCutShort", {{u"1300"_s}}, "byte 8: " + tooLong},
    {"RealIsCutShort", {{u"2300000000000000"_s}}, "byte 8: " + tooLong},
    {"DateIsCutShort", {{u"33"_s}}, "byte 8: " + tooLong},
    {"UidIsCutShort", {{u"8100"_s}}, "byte 8: " + tooLong},
    {"DataIsCutShort", {{u"4300ff"_s}}, "byte 8: " + tooLong},
    {"StringIsCutShort", {{u"536161"_s}}, "byte 8: " + tooLong},
    {"Utf16StringIsCutShort", {{u"620061 00"_s}}, "byte 8: " + tooLong},
    {"ArrayIsCutShort", {{u"a200"_s}}, "byte 8: " + tooLong},
    {"DictionaryIsCutShort", {{u"d1 00"_s}}, "byte 8: " + tooLong},
    {"CountIsMissing", {{u"5f"_s}}, "byte 8: " + tooLong},
    {"CountIsCutShort", {{u"5f1300"_s}}, "byte 8: " + tooLong},
    {"CountIsNoInteger", {{u"5f5161"_s}}, "byte 9: this count is not an integer"},
    {"CountIsALongInteger", {{u"5f15"_s + u"00"_s.repeated(32)}}, "byte 9: this count is not an integer"},
    {"NegativeCount", {{u"5f13ffffffffffffffff"_s}}, "byte 8: " + tooLong},
    {"CountThatOverflowsForUnits", {{u"6f138000000000000000"_s}}, "byte 8: " + tooLong},
    {"CountThatOverflowsForReferences",
     {.objects = {u"af132000000000000000"_s}, .referenceSize = 8},
     "byte 8: " + tooLong},
    {"CountThatOverflowsForEntries",
     {.objects = {u"df131000000000000000"_s}, .referenceSize = 8},
     "byte 8: " + tooLong},
    {"CountOfSixteenBytesBeyondAllBounds", {{u"4f1400000000000000010000000000000000"_s}}, "byte 8: " + tooLong},
    {"Null", {{u"00"_s}}, "byte 8: a null is not a property-list value"},
    {"NullInAnArray", {{u"a101"_s, u"00"_s}}, "byte 10: a null is not a property-list value"},
    {"StringIsNotAscii", {{u"5361 e4 61"_s}}, "byte 8: this string is not ASCII"},
    {"UidAboveTheRange", {{u"840100000000"_s}}, "byte 8: this UID is above 4294967295"},
    {"UidFarAboveTheRange", {{u"8f01000000000000000000000000000000"_s}}, "byte 8: this UID is above 4294967295"},
    {"DateThatIsNoNumber", {{u"337ff8000000000000"_s}}, "byte 8: this date is out of range"},
    {"InfiniteDate", {{u"337ff0000000000000"_s}}, "byte 8: this date is out of range"},
    {"DateTooLate", {{u"3343605e5e1001c000"_s}}, "byte 8: this date is out of range"},
    {"ReferenceBeyondTheCount", {{u"a101"_s}}, "byte 9: this reference names none of the list's objects"},
    {"LongReferenceThatWraps",
     {.objects = {u"a1010000000000000000"_s}, .referenceSize = 9},
     "byte 9: this reference names none of the list's objects"},
    {"KeyIsNoString", {{u"d10101"_s, u"09"_s}}, "byte 8: a key of this dictionary is not a string"},
    {"ArrayHoldsItself", {{u"a100"_s}}, "byte 8: this container holds itself"},
    {"DictionaryHoldsItself", {{u"d10100"_s, u"5161"_s}}, "byte 8: this container holds itself"},
    {"DictionaryIsItsOwnKey", {{u"d10001"_s, u"5161"_s}}, "byte 8: this container holds itself"},
    {"ArrayHoldsItselfFromAfar", {{u"a101"_s, u"c102"_s, u"a101"_s}}, "byte 10: this container holds itself"},
    {"ObjectsOverlap", {{u"a20102"_s, u"5461"_s, u"1061"_s, u"0909"_s}}, "byte 11: " + tooLong},
    {"ObjectsStandAtTheSamePlace",
     {.objects = {u"a20102"_s, u"09"_s, u"09"_s}, .positions = {8, 11, 11}},
     "byte 11: two objects stand here"},
    {"ObjectStandsInsideAnother",
     {.objects = {u"a20102"_s, u"5109"_s, u"09"_s}, .positions = {8, 11, 12}},
     "byte 11: " + tooLong},
};
INSTANTIATE_TEST_SUITE_P(Objects, PropertyListBinaryError, testing::ValuesIn(objects), caseName);

TEST(PropertyListBinaryCut, AtEveryByteIsRefused)
{
    const QByteArray list = List{{u"d201020304"_s, u"5162"_s, u"5161"_s, u"09"_s, u"a105"_s, u"6100e4"_s}}.bytes();
    ASSERT_TRUE(PropertyList::read(list).value);
    for (qsizetype size = 0; size < list.size(); ++size) {
        const auto result = PropertyList::read(list.first(size));
        EXPECT_FALSE(result.value) << size;
        EXPECT_FALSE(result.error.isEmpty()) << size;
    }
    EXPECT_EQ(dump(PropertyList::read(list.first(40))), "error: byte 40: the list ends before its trailer");
}

} // namespace

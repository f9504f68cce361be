#include <OrvaneExportKit/platform/PropertyList.h>
#include <tests/support/PropertyListDump.h>

#include <gtest/gtest.h>

#include <QtCore/QStringConverter>

using namespace Qt::Literals::StringLiterals;
using platform::PropertyList;
using support::dump;

namespace {

std::string readXml(const QByteArray &xml)
{
    return dump(PropertyList::read(xml));
}

/// A list of one value, as a name for the test and what reading it gives.
struct Case {
    const char *name;
    QByteArray xml;
    std::string expected;
};

void PrintTo(const Case &readCase, std::ostream *out)
{
    *out << readCase.xml.toStdString();
}

std::string caseName(const testing::TestParamInfo<Case> &info)
{
    return info.param.name;
}

std::string text(QStringView string)
{
    return dump(string.toString());
}

std::string date(const char *iso)
{
    return dump(QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODate));
}

class PropertyListXmlValue : public testing::TestWithParam<Case>
{
};

TEST_P(PropertyListXmlValue, IsRead)
{
    const QByteArray &element = GetParam().xml;
    EXPECT_EQ(readXml(element), GetParam().expected);
    EXPECT_EQ(readXml("<?xml version=\"1.0\"?><plist version=\"1.0\">" + element + "</plist>"), GetParam().expected);
}

const Case strings[] = {
    {"Plain", "<string>some text</string>", text(u"some text")},
    {"Empty", "<string></string>", text(u"")},
    {"EmptyElement", "<string/>", text(u"")},
    {"EmptyElementWithSpace", "<string />", text(u"")},
    {"WhiteSpaceIsKept", "<string> \t\n a </string>", text(u" \t\n a ")},
    {"NamedReferences", "<string>&lt;&gt;&amp;&quot;&apos;</string>", text(u"<>&\"'")},
    {"DecimalReference", "<string>a&#228;b</string>", text(u"aäb")},
    {"HexReference", "<string>&#xe4;&#xE4;</string>", text(u"ää")},
    {"ReferenceBeyondTheBasicPlane", "<string>&#x1F600;</string>", text(u"\U0001F600")},
    {"ReferenceOfEightDigits", "<string>&#x0000000d;&#00000013;</string>", text(u"\r\r")},
    {"ReferenceToAControlCharacter", "<string>&#1;</string>", text(u"\u0001")},
    {"Cdata", "<string>a<![CDATA[<b>&amp;]]]>c</string>", text(u"a<b>&amp;]c")},
    {"CdataAlone", "<string><![CDATA[]]></string>", text(u"")},
    {"CdataBetweenReferences", "<string>&lt;<![CDATA[a]]>&gt;<![CDATA[b]]>c</string>", text(u"<a>bc")},
    {"CommentsAndInstructionsAreSkipped", "<string>a<!-- <b> -->b<?c d?>e</string>", text(u"abe")},
    {"ControlCharactersAsTheyAre", "<string>\x01\x08\x0B\x1B\x7F</string>", text(u"\u0001\u0008\u000B\u001B\u007F")},
    {"CarriageReturnsAsTheyAre", "<string>a\rb\r\nc\n</string>", text(u"a\rb\r\nc\n")},
    {"Utf8", "<string>ä€\xF0\x9F\x98\x80</string>", text(u"ä€\U0001F600")},
    {"Noncharacters", "<string>\xEF\xBF\xBE\xEF\xBF\xBF</string>", text(u"\uFFFE\uFFFF")},
    {"ByteOrderMarkAtItsStart",
     "<string>\xEF\xBB\xBF\xEF\xBB\xBF"
     "a</string>",
     text(u"\uFEFF\uFEFFa")},
    {"ByteOrderMarkAsAReference", "<string>&#xFEFF;a</string>", text(u"\uFEFFa")},
    {"ByteOrderMarkAlone", "<string>\xEF\xBB\xBF</string>", text(u"\uFEFF")},
    {"QuotesAndGreaterThan", "<string>\"'>]]></string>", text(u"\"'>]]>")},
    {"Attributes", "<string a=\"x>y\" b='</string>/'>c</string >", text(u"c")},
    {"EmptyElementWithAttributes", "<string a=\"/\" b='c'/>", text(u"")},
};
INSTANTIATE_TEST_SUITE_P(Strings, PropertyListXmlValue, testing::ValuesIn(strings), caseName);

const Case integers[] = {
    {"Zero", "<integer>0</integer>", "i0"},
    {"Decimal", "<integer>1234567890</integer>", "i1234567890"},
    {"LeadingZeros", "<integer>00012</integer>", "i12"},
    {"Minus", "<integer>-12</integer>", "i-12"},
    {"Plus", "<integer>+12</integer>", "i12"},
    {"MinusZero", "<integer>-0</integer>", "i0"},
    {"LeadingWhiteSpace", "<integer> \t\r\n 12</integer>", "i12"},
    {"Hex", "<integer>0xff</integer>", "i255"},
    {"HexUpperCase", "<integer>0XFF</integer>", "i255"},
    {"NegativeHex", "<integer>-0x10</integer>", "i-16"},
    {"Lowest", "<integer>-9223372036854775808</integer>", "i-9223372036854775808"},
    {"HighestSigned", "<integer>9223372036854775807</integer>", "i9223372036854775807"},
    {"LowestUnsigned", "<integer>9223372036854775808</integer>", "i9223372036854775808"},
    {"Highest", "<integer>18446744073709551615</integer>", "i18446744073709551615"},
    {"HighestHex", "<integer>0xFFFFFFFFFFFFFFFF</integer>", "i18446744073709551615"},
    {"WithReference", "<integer>&#49;2</integer>", "i12"},
};
INSTANTIATE_TEST_SUITE_P(Integers, PropertyListXmlValue, testing::ValuesIn(integers), caseName);

constexpr double infinity = std::numeric_limits<double>::infinity();

const Case reals[] = {
    {"Zero", "<real>0.0</real>", dump(0.0)},
    {"MinusZero", "<real>-0.0</real>", dump(-0.0)},
    {"Fraction", "<real>0.1</real>", dump(0.1)},
    {"WholeNumber", "<real>3</real>", dump(3.0)},
    {"BareFraction", "<real>.5</real>", dump(0.5)},
    {"BarePoint", "<real>5.</real>", dump(5.0)},
    {"Exponent", "<real>1.5e+10</real>", dump(1.5e10)},
    {"ExponentUpperCase", "<real>1E-5</real>", dump(1e-5)},
    {"SeventeenDigits", "<real>0.10000000000000001</real>", dump(0.1)},
    {"LeadingWhiteSpaceAndPlus", "<real>\n +2.5</real>", dump(2.5)},
    {"Smallest", "<real>4.9406564584124654e-324</real>", dump(std::numeric_limits<double>::denorm_min())},
    {"Largest", "<real>1.7976931348623157e+308</real>", dump(std::numeric_limits<double>::max())},
    {"BeyondTheLargest", "<real>1e999</real>", dump(infinity)},
    {"BeyondTheLowest", "<real>-1e999</real>", dump(-infinity)},
    {"BelowTheSmallest", "<real>1e-999</real>", dump(0.0)},
    {"Infinity", "<real>+infinity</real>", dump(infinity)},
    {"MinusInfinity", "<real>-infinity</real>", dump(-infinity)},
    {"BareInfinity", "<real>infinity</real>", dump(infinity)},
    {"ShortInfinity", "<real>inf</real>", dump(infinity)},
    {"ShortInfinityWithPlus", "<real>+INF</real>", dump(infinity)},
    {"ShortMinusInfinity", "<real>-Inf</real>", dump(-infinity)},
    {"NotANumber", "<real>nan</real>", "rnan"},
    {"NotANumberInAnyCase", "<real>NaN</real>", "rnan"},
    {"Hex", "<real>0x1.8p1</real>", dump(3.0)},
};
INSTANTIATE_TEST_SUITE_P(Reals, PropertyListXmlValue, testing::ValuesIn(reals), caseName);

const Case booleans[] = {
    {"True", "<true/>", "true"},
    {"False", "<false/>", "false"},
    {"TruePair", "<true></true>", "true"},
    {"FalsePair", "<false> </false>", "false"},
};
INSTANTIATE_TEST_SUITE_P(Booleans, PropertyListXmlValue, testing::ValuesIn(booleans), caseName);

const Case dates[] = {
    {"Plain", "<date>2024-02-29T12:34:56Z</date>", date("2024-02-29T12:34:56Z")},
    {"BeforeTheEpoch", "<date>1969-12-31T23:59:59Z</date>", "d-1000"},
    {"LastCenturyOfFourDigits", "<date>9999-12-31T23:59:59Z</date>", date("9999-12-31T23:59:59Z")},
    {"LongYear", "<date>12024-01-01T00:00:00Z</date>", "d317273587200000"},
    {"ShortYear", "<date>5-01-01T00:00:00Z</date>", "d-62009366400000"},
    {"YearZero", "<date>0000-01-01T00:00:00Z</date>", "d-62167219200000"},
    {"NegativeYear", "<date>-0001-01-01T00:00:00Z</date>", "d-62198755200000"},
    {"DayBeyondTheMonth", "<date>2023-02-30T00:00:00Z</date>", date("2023-03-02T00:00:00Z")},
    {"MonthBeyondTheYear", "<date>2023-14-01T00:00:00Z</date>", date("2024-02-01T00:00:00Z")},
    {"TimeBeyondTheDay", "<date>2023-12-31T24:60:61Z</date>", date("2024-01-01T01:01:01Z")},
};
INSTANTIATE_TEST_SUITE_P(Dates, PropertyListXmlValue, testing::ValuesIn(dates), caseName);

const Case data[] = {
    {"Plain", "<data>aGVsbG8=</data>", dump("hello"_ba)},
    {"Empty", "<data></data>", "x"},
    {"WhiteSpaceAlone", "<data>\n\t</data>", "x"},
    {"Lines", "<data>\n\taGVs\n\t bG8=\r\n</data>", dump("hello"_ba)},
    {"NoPadding", "<data>aGVs</data>", dump("hel"_ba)},
    {"TwoPaddings", "<data>aA==</data>", dump("h"_ba)},
    {"ForeignAsciiIsSkipped", "<data>a-G_V*s.</data>", dump("hel"_ba)},
    {"IncompleteGroupIsDropped", "<data>aGVsbG8</data>", dump("hel"_ba)},
    {"GroupOfPaddingsIsNothing", "<data>aGVs====</data>", dump("hel"_ba)},
    {"TextBehindPadding", "<data>aA==aGVs</data>", dump("hhel"_ba)},
    {"AllSixBits", "<data>+/8A</data>", "xfbff00"},
};
INSTANTIATE_TEST_SUITE_P(Data, PropertyListXmlValue, testing::ValuesIn(data), caseName);

const Case containers[] = {
    {"Array", "<array><true/> <integer>1</integer>\n</array>", "[true,i1,]"},
    {"EmptyArray", "<array></array>", "[]"},
    {"EmptyArrayElement", "<array/>", "[]"},
    {"Dictionary", "<dict><key>a</key><true/><key>b</key><false/></dict>", "{0061=true,0062=false,}"},
    {"EmptyDictionary", "<dict> </dict>", "{}"},
    {"EmptyDictionaryElement", "<dict/>", "{}"},
    {"KeysInAnyOrder", "<dict><key>b</key><true/><key>a</key><false/></dict>", "{0061=false,0062=true,}"},
    {"RepeatedKeyKeepsItsLastValue", "<dict><key>a</key><true/><key>a</key><false/></dict>", "{0061=false,}"},
    {"EmptyKey", "<dict><key/><true/></dict>", "{=true,}"},
    {"KeyWithReference", "<dict><key>&lt;</key><true/></dict>", "{003c=true,}"},
    {"Comments", "<array><!-- <true/> --><true/><!----></array>", "[true,]"},
    {"ProcessingInstructions", "<array><?a <true/> ?><true/></array>", "[true,]"},
    {"Nested", "<dict><key>a</key><array><dict/><array/></array></dict>", "{0061=[{},[],],}"},
};
INSTANTIATE_TEST_SUITE_P(Containers, PropertyListXmlValue, testing::ValuesIn(containers), caseName);

const Case uids[] = {
    {"Zero", "<dict><key>CF$UID</key><integer>0</integer></dict>", "u0"},
    {"Highest", "<dict><key>CF$UID</key><integer>4294967295</integer></dict>", "u4294967295"},
    {"BesideAnotherKey", "<dict><key>CF$UID</key><integer>1</integer><key>a</key><true/></dict>",
     "{004300460024005500490044=i1,0061=true,}"},
    {"NoInteger", "<dict><key>CF$UID</key><true/></dict>", "{004300460024005500490044=true,}"},
};
INSTANTIATE_TEST_SUITE_P(Uids, PropertyListXmlValue, testing::ValuesIn(uids), caseName);

TEST(PropertyListXmlRead, LeavesDictionariesThatWouldBeUidsAsTheyAreWhenAsked)
{
    const auto read = [](const QByteArray &number) {
        const QByteArray xml = "<array><dict><key>CF$UID</key><integer>" + number + "</integer></dict></array>";
        return dump(PropertyList::read(xml, PropertyList::XmlUids::AsDictionaries));
    };
    EXPECT_EQ(read("1"), "[{004300460024005500490044=i1,},]");
    EXPECT_EQ(read("-1"), "[{004300460024005500490044=i-1,},]");
    EXPECT_EQ(read("4294967296"), "[{004300460024005500490044=i4294967296,},]");
}

TEST(PropertyListXmlDocument, MayLackPlistElementAndDeclaration)
{
    EXPECT_EQ(readXml("<true/>"), "true");
    EXPECT_EQ(readXml(" \n<true/>"), "true");
    EXPECT_EQ(readXml("<?xml version=\"1.0\"?><true/>"), "true");
}

TEST(PropertyListXmlDocument, MayHaveADocumentTypeThatOnlyNamesItsDefinition)
{
    EXPECT_EQ(readXml("<!DOCTYPE plist><true/>"), "true");
    EXPECT_EQ(readXml("<!DOCTYPE plist SYSTEM \"file:///[a>b]\"><true/>"), "true");
    EXPECT_EQ(readXml("<?xml version=\"1.0\"?>\n<!-- a --><!DOCTYPE plist PUBLIC 'a' 'b'> <!-- b -->\n<true/>"),
              "true");
}

TEST(PropertyListXmlDocument, MayHaveCommentsAndInstructionsAroundEverything)
{
    EXPECT_EQ(readXml("<!-- <false/> --><?a?><plist><!-- --><?b?><true/><!-- --><?c?></plist><!-- -->"), "true");
}

TEST(PropertyListXmlDocument, IgnoresTextAfterTheFirstElement)
{
    EXPECT_EQ(readXml("<plist><true/></plist> more <false/>"), "true");
    EXPECT_EQ(readXml("<true/> more <false/>"), "true");
    EXPECT_EQ(readXml(QByteArray("<plist><true/></plist>\0\0", 24)), "true");
}

TEST(PropertyListXmlDocument, IsFoundToBeXml)
{
    EXPECT_EQ(PropertyList::read("<true/>").format, PropertyList::Format::Xml);
    EXPECT_EQ(PropertyList::read("neither").format, PropertyList::Format::Xml);
}

QByteArray nestedXml(int arrays)
{
    return QByteArray("<array>").repeated(arrays) + QByteArray("</array>").repeated(arrays);
}

TEST(PropertyListXmlDocument, NestsToTheLimit)
{
    std::string expected = "[]";
    for (int i = 1; i < 512; ++i) {
        expected = "[" + expected + ",]";
    }
    EXPECT_EQ(readXml(nestedXml(512)), expected);
}

const QString sample = u"<string>äöü \u20AC</string>"_s;

QByteArray encodedSample(QStringConverter::Encoding encoding, const QString &text = sample)
{
    return QStringEncoder(encoding).encode(text);
}

struct EncodingCase {
    const char *name;
    QStringConverter::Encoding encoding;
};

class PropertyListXmlEncoding : public testing::TestWithParam<EncodingCase>
{
};

TEST_P(PropertyListXmlEncoding, IsToldByTheByteOrderMark)
{
    EXPECT_EQ(readXml(encodedSample(GetParam().encoding, u'\uFEFF' + sample)), text(u"äöü \u20AC"));
}

TEST_P(PropertyListXmlEncoding, IsToldByTheFirstCharacter)
{
    EXPECT_EQ(readXml(encodedSample(GetParam().encoding)), text(u"äöü \u20AC"));
}

TEST_P(PropertyListXmlEncoding, IsNotChangedByTheDeclaration)
{
    const QString declaration = u"\uFEFF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"_s;
    EXPECT_EQ(readXml(encodedSample(GetParam().encoding, declaration + sample)), text(u"äöü \u20AC"));
}

INSTANTIATE_TEST_SUITE_P(Unicode, PropertyListXmlEncoding,
                         testing::Values(EncodingCase{"Utf8", QStringConverter::Utf8},
                                         EncodingCase{"Utf16Le", QStringConverter::Utf16LE},
                                         EncodingCase{"Utf16Be", QStringConverter::Utf16BE},
                                         EncodingCase{"Utf32Le", QStringConverter::Utf32LE},
                                         EncodingCase{"Utf32Be", QStringConverter::Utf32BE}),
                         [](const auto &info) { return info.param.name; });

TEST(PropertyListXmlDeclaredEncoding, Utf8InAnyCase)
{
    EXPECT_EQ(readXml("<?xml version='1.0' encoding='utf-8'?><string>ä</string>"), text(u"ä"));
}

TEST(PropertyListXmlDeclaredEncoding, Latin1)
{
    EXPECT_EQ(readXml("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><string>\xE4\xFF</string>"), text(u"äÿ"));
}

TEST(PropertyListXmlDeclaredEncoding, EveryOneThatQtKnows)
{
    if (!QStringDecoder("windows-1252").isValid()) {
        GTEST_SKIP() << "this Qt was built without ICU";
    }
    EXPECT_EQ(readXml("<?xml version=\"1.0\" encoding=\"windows-1252\"?><string>\x80</string>"), text(u"\u20AC"));
    EXPECT_EQ(readXml("<?xml version=\"1.0\" encoding=\"macintosh\"?><string>\x8A</string>"), text(u"ä"));
}

TEST(PropertyListXmlDeclaredEncoding, OfAnotherInstructionMeansNothing)
{
    EXPECT_EQ(readXml("<?xml version=\"1.0\"?><?a encoding=\"ISO-8859-1\"?><string>ä</string>"), text(u"ä"));
}

class PropertyListXmlError : public testing::TestWithParam<Case>
{
};

TEST_P(PropertyListXmlError, NamesThePlace)
{
    EXPECT_EQ(readXml(GetParam().xml), "error: " + GetParam().expected);
}

const Case documents[] = {
    {"NoData", "", "line 1, column 1: there is no property list"},
    {"White", " \n\n ", "line 3, column 2: there is no property list"},
    {"OnlyProlog", "<?xml version=\"1.0\"?>\n<!DOCTYPE plist>\n", "line 3, column 1: there is no property list"},
    {"OtherText", "{ a = b; }", "line 1, column 1: this is not a property list"},
    {"OtherXml", "<html><body/></html>", "line 1, column 1: `<html>` is not a property-list element"},
    {"EmptyPlist", "<plist></plist>", "line 1, column 1: this list holds no value"},
    {"EmptyPlistElement", "<plist/>", "line 1, column 1: this list holds no value"},
    {"TwoValues", "<plist>\n<true/>\n<false/></plist>", "line 3, column 1: this value is not the only one of its list"},
    {"TextInPlist", "<plist>text<true/></plist>", "line 1, column 8: `<plist>` holds something other than elements"},
    {"TextBehindTheValue", "<plist><true/>text</plist>",
     "line 1, column 15: `<plist>` holds something other than elements"},
    {"PlistIsCutShort", "<plist><true/>", "line 1, column 15: the text ends before `</plist>`"},
    {"DictionaryIsCutShort", "<plist><dict>", "line 1, column 14: the text ends before `</dict>`"},
    {"StringIsCutShort", "<plist>\n<string>abc", "line 2, column 12: the text ends before `</string>`"},
    {"TagIsCutShort", "<plist>\n<string a='", "line 2, column 1: this tag is not closed"},
    {"TagInTag", "<plist <true/>", "line 1, column 1: this tag is not closed"},
    {"EndTagAlone", "</dict>", "line 1, column 1: there is no element for this end tag to close"},
    {"PlistEndTagAlone", "</plist>", "line 1, column 1: there is no element for this end tag to close"},
    {"WrongEndTag", "<plist><array><true/></dict></plist>", "line 1, column 22: here `</array>` should stand"},
    {"WrongEndOfPlist", "<plist><true/></array>", "line 1, column 15: here `</plist>` should stand"},
    {"WrongEndOfText", "<string>a</key>", "line 1, column 10: here `</string>` should stand"},
    {"UnclosedComment", "<plist>\n <!-- a -> </plist>", "line 2, column 2: this comment is not closed"},
    {"ShortComment", "<plist><!--></plist>", "line 1, column 8: this comment is not closed"},
    {"UnclosedInstruction", "<?xml", "line 1, column 1: this processing instruction is not closed"},
    {"ShortInstruction", "<?><true/>", "line 1, column 1: this processing instruction is not closed"},
    {"UnclosedDocumentType", "<!DOCTYPE plist \"a>", "line 1, column 1: this document type is not closed"},
    {"InternalSubset", "<!DOCTYPE plist [<!ENTITY a \"b\">]><string>&a;</string>",
     "line 1, column 17: a document type with declarations of its own is not read"},
    {"ExternalEntity", "<!DOCTYPE plist SYSTEM \"a\" [<!ENTITY a SYSTEM \"file:///etc/passwd\">]><string>&a;</string>",
     "line 1, column 28: a document type with declarations of its own is not read"},
    {"DocumentTypeInPlist", "<plist><!DOCTYPE plist></plist>",
     "line 1, column 8: `<plist>` holds something other than elements"},
    {"NestingBeyondTheLimit", nestedXml(513), "line 1, column 3585: more than 512 containers stand inside each other"},
};
INSTANTIATE_TEST_SUITE_P(Documents, PropertyListXmlError, testing::ValuesIn(documents), caseName);

const Case elements[] = {
    {"UnknownElement", "<dict>\n\t<key>a</key>\n\t<intger>1</intger></dict>",
     "line 3, column 2: `<intger>` is not a property-list element"},
    {"OtherCase", "<String>a</String>", "line 1, column 1: `<String>` is not a property-list element"},
    {"LongName", "<" + QByteArray("a").repeated(100000) + "/>",
     "line 1, column 1: `<" + std::string(39, 'a') + "...` is not a property-list element"},
    {"NoName", "<>", "line 1, column 1: `<>` is not a property-list element"},
    {"KeyInArray", "<array><key>a</key></array>", "line 1, column 8: `<key>` stands where a value should"},
    {"PlistInArray", "<array><plist/></array>", "line 1, column 8: `<plist/>` stands where a value should"},
    {"TextInArray", "<array>a</array>", "line 1, column 8: `<array>` holds something other than elements"},
    {"CdataInArray", "<array><![CDATA[]]></array>", "line 1, column 8: `<array>` holds something other than elements"},
    {"ReferenceInArray", "<array>&#32;</array>", "line 1, column 8: `<array>` holds something other than elements"},
    {"ValueWithoutKey", "<dict><true/></dict>", "line 1, column 7: this value in a dictionary has no key"},
    {"SecondValueForAKey", "<dict><key>a</key><true/><true/></dict>",
     "line 1, column 26: this value in a dictionary has no key"},
    {"KeyWithoutValue", "<dict><key>a</key></dict>", "line 1, column 7: this key in a dictionary has no value"},
    {"KeyBehindKey", "<dict><key>a</key><key>b</key><true/></dict>",
     "line 1, column 7: this key in a dictionary has no value"},
    {"TextInDictionary", "<dict><key>a</key>b<true/></dict>",
     "line 1, column 19: `<dict>` holds something other than elements"},
    {"TextInTrue", "<true>a</true>", "line 1, column 7: `<true>` holds something other than elements"},
    {"ElementInTrue", "<true><true/></true>", "line 1, column 7: a boolean holds no elements"},
    {"ElementInString", "<string>a<b/></string>", "line 1, column 10: `<string>` holds something other than text"},
    {"UnclosedCdata", "<string>a<![CDATA[b]]</string>", "line 1, column 10: this CDATA section is not closed"},
    {"UnknownReference", "<string>a&nbsp;</string>", "line 1, column 10: `nbsp` after `&` names no character"},
    {"ReferenceWithoutEnd", "<string>a & b</string>", "line 1, column 11: ` b</string>` after `&` names no character"},
    {"ReferenceIsCutShort", "<string>a&lt", "line 1, column 10: `lt` after `&` names no character"},
    {"EmptyReference", "<string>&;</string>", "line 1, column 9: `` after `&` names no character"},
    {"ReferenceToNull", "<string>&#0;</string>", "line 1, column 9: `#0` after `&` names no character"},
    {"ReferenceToHalfAPair", "<string>&#xD800;</string>", "line 1, column 9: `#xD800` after `&` names no character"},
    {"ReferenceBeyondUnicode", "<string>&#x110000;</string>",
     "line 1, column 9: `#x110000` after `&` names no character"},
    {"ReferenceOfNineDigits", "<string>&#000000065;</string>",
     "line 1, column 9: `#000000065` after `&` names no character"},
    {"ReferenceWithoutDigits", "<string>&#x;</string>", "line 1, column 9: `#x` after `&` names no character"},
    {"ReferenceWithSign", "<string>&#-65;</string>", "line 1, column 9: `#-65` after `&` names no character"},
    {"NullInString", QByteArray("<string>a\0b</string>", 20),
     "line 1, column 10: `<string>` holds something other than text"},
    {"NullInCdata", QByteArray("<string><![CDATA[a\0b]]></string>", 32), "line 1, column 19: U+0000 is not text"},
};
INSTANTIATE_TEST_SUITE_P(Elements, PropertyListXmlError, testing::ValuesIn(elements), caseName);

Case refused(const char *name, const QByteArray &element, const std::string &complaint)
{
    return {name, "<array>\n\t" + element + "</array>", "line 2, column 2: " + complaint};
}

const std::string noInteger = " is not an integer from -2^63 to 2^64-1";
const std::string noReal = " is not a real number";
const std::string noDate = " is not a date of the form YYYY-MM-DDThh:mm:ssZ";
const std::string noData = " is not base64 text";

const Case values[] = {
    refused("EmptyInteger", "<integer></integer>", "``" + noInteger),
    refused("EmptyIntegerElement", "<integer/>", "``" + noInteger),
    refused("WordAsInteger", "<integer>one</integer>", "`one`" + noInteger),
    refused("TextBehindInteger", "<integer>1a</integer>", "`1a`" + noInteger),
    refused("SpaceBehindInteger", "<integer>1 </integer>", "`1 `" + noInteger),
    refused("SpaceBehindSign", "<integer>- 1</integer>", "`- 1`" + noInteger),
    refused("TwoSigns", "<integer>--1</integer>", "`--1`" + noInteger),
    refused("SignAlone", "<integer>-</integer>", "`-`" + noInteger),
    refused("FractionAsInteger", "<integer>1.5</integer>", "`1.5`" + noInteger),
    refused("HexPrefixAlone", "<integer>0x</integer>", "`0x`" + noInteger),
    refused("HexWithoutPrefix", "<integer>ff</integer>", "`ff`" + noInteger),
    refused("IntegerAboveTheRange", "<integer>18446744073709551616</integer>", "`18446744073709551616`" + noInteger),
    refused("IntegerBelowTheRange", "<integer>-9223372036854775809</integer>", "`-9223372036854775809`" + noInteger),
    refused("HexAboveTheRange", "<integer>0x10000000000000000</integer>", "`0x10000000000000000`" + noInteger),
    refused("EmptyReal", "<real></real>", "``" + noReal),
    refused("EmptyRealElement", "<real/>", "``" + noReal),
    refused("TextBehindReal", "<real>1.5pt</real>", "`1.5pt`" + noReal),
    refused("SpaceBehindReal", "<real>1.5 </real>", "`1.5 `" + noReal),
    refused("CommaInReal", "<real>1,5</real>", "`1,5`" + noReal),
    refused("TwoSignsOfReal", "<real>+-1</real>", "`+-1`" + noReal),
    refused("EmptyDateElement", "<date/>", "``" + noDate),
    refused("DateWithoutTime", "<date>2024-01-01</date>", "`2024-01-01`" + noDate),
    refused("DateWithFraction", "<date>2024-01-01T00:00:00.5Z</date>", "`2024-01-01T00:00:00.5Z`" + noDate),
    refused("DateWithZone", "<date>2024-01-01T00:00:00+01:00</date>", "`2024-01-01T00:00:00+01:00`" + noDate),
    refused("DateWithoutZone", "<date>2024-01-01T00:00:00</date>", "`2024-01-01T00:00:00`" + noDate),
    refused("DateWithSpace", "<date> 2024-01-01T00:00:00Z</date>", "` 2024-01-01T00:00:00Z`" + noDate),
    refused("DateWithShortField", "<date>2024-1-01T00:00:00Z</date>", "`2024-1-01T00:00:00Z`" + noDate),
    refused("DateWithoutYear", "<date>-01-01T00:00:00Z</date>", "`-01-01T00:00:00Z`" + noDate),
    refused("DateBeyondWhatCanBeKept", "<date>300000000-01-01T00:00:00Z</date>",
            "`300000000-01-01T00:00:00Z`" + noDate),
    refused("EmptyDataElement", "<data/>", "``" + noData),
    refused("ForeignDataAboveAscii", "<data>aGVsä</data>", "`aGVsä`" + noData),
    refused("LongText", "<integer>" + QByteArray("ä").repeated(100000) + "</integer>",
            "`" + QString(40, u'ä').toStdString() + "...`" + noInteger),
    refused("UidBelowTheRange", "<dict><key>CF$UID</key><integer>-1</integer></dict>",
            "a UID is a number from 0 to 4294967295"),
    refused("UidAboveTheRange", "<dict><key>CF$UID</key><integer>4294967296</integer></dict>",
            "a UID is a number from 0 to 4294967295"),
    refused("UidFarAboveTheRange", "<dict><key>CF$UID</key><integer>18446744073709551615</integer></dict>",
            "a UID is a number from 0 to 4294967295"),
};
INSTANTIATE_TEST_SUITE_P(Values, PropertyListXmlError, testing::ValuesIn(values), caseName);

const Case encodings[] = {
    {"StrayByteInUtf8", "<array>\n<string>ä\xFFz</string></array>", "line 2, column 10: this is no character of UTF-8"},
    {"HalfACharacterOfUtf8", "<string>\xC3</string>", "line 1, column 9: this is no character of UTF-8"},
    {"OverlongUtf8", "<string>\xC0\x80</string>", "line 1, column 9: this is no character of UTF-8"},
    {"HalfAPairInUtf8", "<string>\xED\xA0\x80</string>", "line 1, column 9: this is no character of UTF-8"},
    {"BeyondUnicodeInUtf8", "<string>\xF4\x90\x80\x80</string>", "line 1, column 9: this is no character of UTF-8"},
    {"HalfAPairInUtf16", encodedSample(QStringConverter::Utf16BE, u"<a>\n"_s + QChar(0xD800) + u"</a>"_s),
     "line 2, column 1: this is no character of UTF-16BE"},
    {"UnknownEncoding", "<?xml version=\"1.0\" encoding=\"klingon\"?><true/>",
     "line 1, column 1: the encoding `klingon` is not known"},
    {"LongUnknownEncoding", "<?xml version=\"1.0\" encoding=\"" + QByteArray("a").repeated(100000) + "\"?><true/>",
     "line 1, column 1: the encoding `" + std::string(40, 'a') + "` is not known"},
    {"DeclaredUtf16InBytes", "<?xml version=\"1.0\" encoding=\"UTF-16\"?><true/>",
     "line 1, column 1: the text is not written in the encoding `UTF-16` that it declares"},
};
INSTANTIATE_TEST_SUITE_P(Encodings, PropertyListXmlError, testing::ValuesIn(encodings), caseName);

TEST(PropertyListXmlPlace, CountsEveryKindOfLineEndOnce)
{
    EXPECT_EQ(readXml("<array>\n\r\n\r\n\n\r<x/></array>"),
              "error: line 6, column 1: `<x/>` is not a property-list element");
}

TEST(PropertyListXmlPlace, CountsCharactersInAColumn)
{
    EXPECT_EQ(readXml("<array><!-- ä€\xF0\x9F\x98\x80 --><x/></array>"),
              "error: line 1, column 20: `<x/>` is not a property-list element");
}

TEST(PropertyListXmlPlace, IsThatOfTheTextNotOfTheBytes)
{
    EXPECT_EQ(readXml(encodedSample(QStringConverter::Utf16LE, u"\uFEFF<array>\n\t<x/></array>"_s)),
              "error: line 2, column 2: `<x/>` is not a property-list element");
}

} // namespace

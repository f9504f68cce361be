#include <OrvaneExportKit/text/EscapeSequences.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using KZStringExportAdditions::stringWithConvertedEscSequences;
using KZStringExportAdditions::stringWithConvertedStringsFromArray;

namespace {

TEST(StringWithConvertedEscSequences, TurnsASequenceIntoItsControlCharacter)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\nb)"), u"a\nb"_s);
}

TEST(StringWithConvertedEscSequences, KeepsASequenceBehindABackslash)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\\nb)"), uR"(a\nb)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\\fb\\tc)"), uR"(a\fb\tc)"_s);
}

TEST(StringWithConvertedEscSequences, TakesOneOfThreeBackslashesAway)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\\\nb)"), uR"(a\\nb)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\\\\nb)"), uR"(a\\\nb)"_s);
}

TEST(StringWithConvertedEscSequences, TurnsAControlCharacterBehindABackslashIntoItsLetter)
{
    EXPECT_EQ(stringWithConvertedEscSequences(u"x\\\nY"), uR"(x\nY)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(u"x\\\fY\\\tZ"), uR"(x\fY\tZ)"_s);
}

TEST(StringWithConvertedEscSequences, LeavesABackslashBeforeAnyOtherCharacter)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(p\\q)"), uR"(p\\q)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(a\r)"), uR"(a\r)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(\N\T\F\0\x0A\)"), uR"(\N\T\F\0\x0A\)"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(u"\\\rx"), u"\\\rx"_s);
}

TEST(StringWithConvertedEscSequences, ConvertsTabsAndFormFeeds)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(\tA\fB)"), u"\tA\fB"_s);
}

TEST(StringWithConvertedEscSequences, ConvertsSequencesThatTouch)
{
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(\n\n\t\f)"), u"\n\n\t\f"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(uR"(\nn\tt)"), u"\nn\tt"_s);
}

TEST(StringWithConvertedEscSequences, LeavesControlCharactersThatNoBackslashPrecedes)
{
    EXPECT_EQ(stringWithConvertedEscSequences(u"a\nb\tc\fd"), u"a\nb\tc\fd"_s);
}

TEST(StringWithConvertedEscSequences, DependsOnNothingOutsideTheView)
{
    const QStringView text = uR"(\\n)";
    EXPECT_EQ(stringWithConvertedEscSequences(text.mid(1)), u"\n"_s);
    EXPECT_EQ(stringWithConvertedEscSequences(text.left(2)), uR"(\\)"_s);
}

TEST(StringWithConvertedEscSequences, LeavesAnEmptyTextEmpty)
{
    EXPECT_EQ(stringWithConvertedEscSequences(u""), u""_s);
}

TEST(StringWithConvertedEscSequences, LeavesTheGivenTextAlone)
{
    const QString text = uR"(a\nb)"_s;
    EXPECT_EQ(stringWithConvertedEscSequences(text), u"a\nb"_s);
    EXPECT_EQ(text, uR"(a\nb)"_s);
}

TEST(StringWithConvertedStringsFromArray, AppliesThePairsFromTheLastToTheFirst)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {u"a"_s, u"b"_s}, {u"b"_s, u"c"_s}), u"bc"_s);
}

TEST(StringWithConvertedStringsFromArray, ChangesAgainWhatALaterPairPutIn)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ac", {u"ab"_s, u"c"_s}, {u"x"_s, u"b"_s}), u"x"_s);
}

TEST(StringWithConvertedStringsFromArray, IgnoresSurplusEntries)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"abx", {u"a"_s, u"b"_s, u"x"_s}, {u"b"_s, u"c"_s}), u"bcx"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {u"a"_s, u"b"_s, u"x"_s}, {u"b"_s, u"c"_s}), u"bc"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {u"a"_s}, {u"x"_s, u"y"_s}), u"xb"_s);
}

TEST(StringWithConvertedStringsFromArray, FindsOccurrencesFromTheLeftWithoutOverlap)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"aaa", {u"aa"_s}, {u"b"_s}), u"ba"_s);
}

TEST(StringWithConvertedStringsFromArray, EqualsTheTextForAnEmptyList)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {}, {u"b"_s}), u"ab"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {u"a"_s}, {}), u"ab"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {}, {}), u"ab"_s);
}

TEST(StringWithConvertedStringsFromArray, DoesNotSearchAReplacementAgainForItsOwnPair)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"aba", {u"a"_s}, {u"aa"_s}), u"aabaa"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"aabb", {u"ab"_s}, {u""_s}), u"ab"_s);
}

TEST(StringWithConvertedStringsFromArray, MatchesNothingForAnEmptyStringToFind)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"ab", {u""_s, u"b"_s}, {u"x"_s, u"c"_s}), u"ac"_s);
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"", {u""_s}, {u"x"_s}), u""_s);
}

TEST(StringWithConvertedStringsFromArray, ComparesUnitByUnit)
{
    EXPECT_EQ(stringWithConvertedStringsFromArray(u"aA\u00E9", {u"A"_s, u"e\u0301"_s}, {u"x"_s, u"y"_s}),
              u"ax\u00E9"_s);
}

TEST(StringWithConvertedStringsFromArray, ShortensAndLengthens)
{
    EXPECT_EQ(
        stringWithConvertedStringsFromArray(u"<b>&</b>", {u"&"_s, u"<"_s, u">"_s}, {u"&amp;"_s, u"&lt;"_s, u""_s}),
        u"&amp;lt;b&amp;&amp;lt;/b"_s);
}

TEST(StringWithConvertedStringsFromArray, LeavesTheGivenTextAlone)
{
    const QString text = u"abc"_s;
    EXPECT_EQ(stringWithConvertedStringsFromArray(text, {u"b"_s}, {u""_s}), u"ac"_s);
    EXPECT_EQ(text, u"abc"_s);
}

} // namespace

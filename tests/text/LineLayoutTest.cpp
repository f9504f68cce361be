#include <OrvaneExportKit/text/LineLayout.h>
#include <tests/support/LineTerminators.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableStringExportAdditions;

namespace {

constexpr quint32 noLimit = std::numeric_limits<quint32>::max();

/// A text with its leading tabs turned into spaces.
QString untabbed(QString text, quint32 spaces)
{
    convertStartTabsToSpace(text, spaces);
    return text;
}

/// A text without its empty lines.
QString condensed(QString text)
{
    deleteEmptyLines(text);
    return text;
}

/// A text with its lines broken at the limit.
QString wrapped(QString text, quint32 limit)
{
    setMaxLineLength(text, limit);
    return text;
}

TEST(ConvertStartTabsToSpace, ReplacesTheTabsAtTheStartOfEveryLine)
{
    EXPECT_EQ(untabbed(u"\t\tA\n B\tC\n\tD"_s, 2), u"    A\n B\tC\n  D"_s);
}

TEST(ConvertStartTabsToSpace, RemovesTheTabsForNoSpaces)
{
    EXPECT_EQ(untabbed(u"\t\tA\n B\tC\n\tD"_s, 0), u"A\n B\tC\nD"_s);
}

TEST(ConvertStartTabsToSpace, ReplacesATabByASpace)
{
    EXPECT_EQ(untabbed(u"\t\tA\tB"_s, 1), u"  A\tB"_s);
}

TEST(ConvertStartTabsToSpace, ReplacesATabByManySpaces)
{
    EXPECT_EQ(untabbed(u"\tA\n\t\tB"_s, 1000), QString(1000, u' ') + u"A\n"_s + QString(2000, u' ') + u"B"_s);
}

TEST(ConvertStartTabsToSpace, LeavesTabsBehindLeadingSpaces)
{
    EXPECT_EQ(untabbed(u" \tA\n\t \tB"_s, 2), u" \tA\n   \tB"_s);
}

TEST(ConvertStartTabsToSpace, StartsNoLineBehindOtherTerminators)
{
    EXPECT_EQ(untabbed(u"a\r\tb\u0085\tc\u2028\td\u2029\te"_s, 2), u"a\r\tb\u0085\tc\u2028\td\u2029\te"_s);
    EXPECT_EQ(untabbed(u"\ta\r\n\tb"_s, 2), u"  a\r\n  b"_s);
}

TEST(ConvertStartTabsToSpace, ReplacesTabsThatAreAllOfALine)
{
    EXPECT_EQ(untabbed(u"\t\n\t"_s, 2), u"  \n  "_s);
    EXPECT_EQ(untabbed(u"\t\n\t"_s, 0), u"\n"_s);
}

TEST(ConvertStartTabsToSpace, LeavesATextWithoutLeadingTabsAlone)
{
    EXPECT_EQ(untabbed(u""_s, 4), u""_s);
    EXPECT_EQ(untabbed(u""_s, noLimit), u""_s);
    EXPECT_EQ(untabbed(u"a\tb\n"_s, noLimit), u"a\tb\n"_s);
}

TEST(DeleteEmptyLines, CollapsesRunsOfLineFeeds)
{
    EXPECT_EQ(condensed(u"\n\nA\n\n\nB\n \nC\n\n"_s), u"\nA\nB\n \nC\n"_s);
}

TEST(DeleteEmptyLines, LeavesLinesWithTabsAndSpaces)
{
    EXPECT_EQ(condensed(u"A\n\t\nB\n \n"_s), u"A\n\t\nB\n \n"_s);
}

TEST(DeleteEmptyLines, LeavesCarriageReturnLineFeedAlone)
{
    EXPECT_EQ(condensed(u"A\r\n\r\nB"_s), u"A\r\n\r\nB"_s);
    EXPECT_EQ(condensed(u"A\r\n\nB"_s), u"A\r\nB"_s);
}

TEST(DeleteEmptyLines, LeavesOtherTerminatorsAlone)
{
    EXPECT_EQ(condensed(u"A\r\rB\u0085\u0085C\u2028\u2028D\u2029\u2029"_s),
              u"A\r\rB\u0085\u0085C\u2028\u2028D\u2029\u2029"_s);
}

TEST(DeleteEmptyLines, LeavesASingleLineFeedAtTheStartAndTheEnd)
{
    EXPECT_EQ(condensed(u"\nA\n"_s), u"\nA\n"_s);
    EXPECT_EQ(condensed(u"\n"_s), u"\n"_s);
    EXPECT_EQ(condensed(u""_s), u""_s);
}

TEST(DeleteEmptyLines, CollapsesATextOfLineFeedsToOne)
{
    EXPECT_EQ(condensed(QString(1000, u'\n')), u"\n"_s);
}

TEST(SetMaxLineLength, BreaksLinesAtSpaces)
{
    EXPECT_EQ(wrapped(u"The quick brown fox jumps over the lazy dog"_s, 10),
              u"The quick\nbrown fox\njumps\nover the\nlazy dog"_s);
}

TEST(SetMaxLineLength, KeepsTheHyphenAtTheEndOfTheLine)
{
    EXPECT_EQ(wrapped(u"well-known words here"_s, 8), u"well-\nknown\nwords\nhere"_s);
}

TEST(SetMaxLineLength, BreaksBehindAClosingParenthesisAndNotBehindAnOpeningOne)
{
    EXPECT_EQ(wrapped(u"x (yyyy) zz"_s, 6), u"x\n(yyyy)\nzz"_s);
}

TEST(SetMaxLineLength, BreaksAWordBeyondTheLimitBehindItsFirstUnit)
{
    EXPECT_EQ(wrapped(u"abcdefghijklmnop"_s, 5), u"a\nb\nc\nd\ne\nf\ng\nh\ni\nj\nk\nlmnop"_s);
}

TEST(SetMaxLineLength, DoesNotBreakAtASpaceRightBehindTheLimit)
{
    EXPECT_EQ(wrapped(u"one two"_s, 3), u"o\nne\ntwo"_s);
}

TEST(SetMaxLineLength, TakesTheSpacesAroundABreakAway)
{
    EXPECT_EQ(wrapped(u"aaa bbbb"_s, 4), u"aaa\nbbbb"_s);
    EXPECT_EQ(wrapped(u"one  two  three"_s, 5), u"one\ntwo\nthree"_s);
}

TEST(SetMaxLineLength, LeavesALineOfExactlyTheLimit)
{
    EXPECT_EQ(wrapped(u"exactly10c\nnext"_s, 10), u"exactly10c\nnext"_s);
}

TEST(SetMaxLineLength, KeepsATabAtTheEndOfTheLine)
{
    EXPECT_EQ(wrapped(u"a\tbbbbbbb"_s, 4), u"a\t\nb\nb\nb\nbbbb"_s);
}

TEST(SetMaxLineLength, CountsCarriageReturnLineFeedAsTwoUnits)
{
    EXPECT_EQ(wrapped(u"abcde\r\nx"_s, 5), u"a\nbcde\r\nx"_s);
    EXPECT_EQ(wrapped(u"abcd\r\nx"_s, 5), u"abcd\r\nx"_s);
}

TEST(SetMaxLineLength, MakesAnEmptyLineOfALeadingSpaceOfALaterLine)
{
    EXPECT_EQ(wrapped(u"x\n abcdefgh"_s, 5), u"x\n\na\nb\nc\ndefgh"_s);
}

TEST(SetMaxLineLength, MakesAnEmptyLineOfSeveralLeadingSpacesOfALaterLine)
{
    EXPECT_EQ(wrapped(u"x\n   abcdefgh"_s, 5), u"x\n\na\nb\nc\ndefgh"_s);
    EXPECT_EQ(wrapped(u"x\r\n   abcdefgh"_s, 5), u"x\r\n\na\nb\nc\ndefgh"_s);
    EXPECT_EQ(wrapped(u"x\n       "_s, 3), u"x\n\n"_s);
}

TEST(SetMaxLineLength, JoinsTheBreakOfLeadingSpacesToACarriageReturnBeforeThem)
{
    EXPECT_EQ(wrapped(u"x\r abcdefgh"_s, 5), u"x\r\na\nb\nc\ndefgh"_s);
    EXPECT_EQ(wrapped(u"x\r   abcdefgh"_s, 5), u"x\r\na\nb\nc\ndefgh"_s);
}

TEST(SetMaxLineLength, ThrowsForALeadingSpaceWithoutABreakBehindIt)
{
    QString text = u" abcdefgh"_s;
    EXPECT_THROW(setMaxLineLength(text, 5), platform::RangeException);
    EXPECT_EQ(text, u" abcdefgh\n"_s);
}

TEST(SetMaxLineLength, ThrowsForSeveralLeadingSpacesWithoutABreakBehindThem)
{
    for (const QString &units : {u"   abcdefgh"_s, u"         "_s, u"      a b"_s, u" abcdefgh\nx y z x y z"_s}) {
        QString text = units;
        EXPECT_THROW(setMaxLineLength(text, 5), platform::RangeException);
        EXPECT_EQ(text, units + u"\n"_s);
    }
}

TEST(SetMaxLineLength, NamesItselfWhenItThrows)
{
    QString text = u" abcdefgh"_s;
    try {
        setMaxLineLength(text, 5);
        FAIL() << "threw nothing";
    } catch (const platform::RangeException &exception) {
        EXPECT_NE(std::string_view(exception.what()).find("setMaxLineLength"), std::string_view::npos)
            << exception.what();
    }
}

TEST(SetMaxLineLength, KeepsLeadingSpacesBeforeABreak)
{
    EXPECT_EQ(wrapped(u" a-bcdefg"_s, 5), u" a-\nb\ncdefg"_s);
    EXPECT_EQ(wrapped(u"  a bcdefgh"_s, 5), u"  a\nb\nc\ndefgh"_s);
}

TEST(SetMaxLineLength, KeepsTheSpacesOfLinesThatFit)
{
    EXPECT_EQ(wrapped(u"  a  \n b"_s, 5), u"  a  \n b"_s);
}

TEST(SetMaxLineLength, PutsEveryUnitOnALineOfItsOwnForLimitZero)
{
    EXPECT_EQ(wrapped(u"ab cd"_s, 0), u"a\nb\nc\nd\n"_s);
    EXPECT_EQ(wrapped(u"a\n"_s, 0), u"a\n\n"_s);
    EXPECT_EQ(wrapped(u"ab\r\n"_s, 0), u"a\nb\n\r\n\n"_s);
}

TEST(SetMaxLineLength, ThrowsForALeadingSpaceAtLimitZero)
{
    QString text = u" a"_s;
    EXPECT_THROW(setMaxLineLength(text, 0), platform::RangeException);
    EXPECT_EQ(text, u" a\n"_s);
    text = u" "_s;
    EXPECT_THROW(setMaxLineLength(text, 0), platform::RangeException);
    EXPECT_EQ(text, u" \n"_s);
}

TEST(SetMaxLineLength, MakesAnEmptyLineOfALaterLeadingSpaceAtLimitZero)
{
    EXPECT_EQ(wrapped(u"a\n b"_s, 0), u"a\n\n\nb\n"_s);
}

TEST(SetMaxLineLength, LeavesAnEmptyTextEmpty)
{
    EXPECT_EQ(wrapped(u""_s, 10), u""_s);
    EXPECT_EQ(wrapped(u""_s, 0), u""_s);
    EXPECT_EQ(wrapped(u""_s, noLimit), u""_s);
}

TEST(SetMaxLineLength, LeavesATextWhoseLinesAllFit)
{
    EXPECT_EQ(wrapped(u"one\ntwo\n"_s, 3), u"one\ntwo\n"_s);
    EXPECT_EQ(wrapped(u"\n\n"_s, 0), u"\n\n"_s);
}

TEST(SetMaxLineLength, TakesTheLargestLimitAsNone)
{
    const QString line = u" "_s + QString(10'000, u'a') + u" b"_s;
    EXPECT_EQ(wrapped(line, noLimit), line);
    EXPECT_EQ(wrapped(line, noLimit - 1), line);
}

TEST(SetMaxLineLength, EndsLinesAtAllSixTerminators)
{
    for (const QString &terminator : support::lineTerminators) {
        const QString text = u"one"_s + terminator + u"two"_s + terminator + u"six"_s;
        EXPECT_EQ(wrapped(text, 4), text);
    }
}

TEST(SetMaxLineLength, CountsTheLineFeedThatItAppendsToALastCarriageReturn)
{
    EXPECT_EQ(wrapped(u"abc\r"_s, 3), u"a\nbc\r"_s);
    EXPECT_EQ(wrapped(u"abc\r"_s, 4), u"abc\r"_s);
}

TEST(SetMaxLineLength, BreaksBetweenTheLastUnitThatFitsAndCarriageReturnLineFeed)
{
    EXPECT_EQ(wrapped(u"abcd-\r\nx"_s, 5), u"abcd-\n\r\nx"_s);
}

TEST(SetMaxLineLength, BreaksBehindExactlyTheBreakCharacters)
{
    // The unit stands last among the first four, so the line is broken behind it or, without it, piece by piece.
    std::u16string breakCharacters;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const auto candidate = static_cast<char16_t>(unit);
        if (wrapped(u"abc"_s + candidate + u"defg"_s, 4) == u"abc"_s + candidate + u"\ndefg"_s) {
            breakCharacters += candidate;
        }
    }
    std::u16string expected;
    for (char16_t unit = 0; unit < 0x7F; ++unit) {
        if ((unit <= 0x2F && unit != u'"' && unit != u'\'' && unit != u'(') || (unit >= 0x3A && unit <= 0x40) ||
            unit == u'\\' || unit == u']' || (unit >= 0x7C && unit <= 0x7E)) {
            expected += unit;
        }
    }
    // A space vanishes in the break; line feed and carriage return end the line before it is too long.
    std::erase_if(expected, [](char16_t unit) { return unit == u' ' || unit == u'\n' || unit == u'\r'; });
    EXPECT_EQ(breakCharacters, expected);
}

TEST(SetMaxLineLength, BreaksBehindTheLastBreakCharacterThatFits)
{
    EXPECT_EQ(wrapped(u"a,b;c,defg"_s, 6), u"a,b;c,\ndefg"_s);
    EXPECT_EQ(wrapped(u"a,b;c,defg"_s, 5), u"a,b;\nc,\ndefg"_s);
}

TEST(SetMaxLineLength, LooksAtTheRestOfALineAgain)
{
    EXPECT_EQ(wrapped(u"aa bb cc dd\nee ff"_s, 5), u"aa\nbb\ncc dd\nee ff"_s);
}

TEST(SetMaxLineLength, WrapsALongTextOfWords)
{
    EXPECT_TRUE(wrapped(u"word "_s.repeated(100'000).trimmed(), 10) == u"word word\n"_s.repeated(50'000).trimmed());
}

} // namespace

#include <OrvaneExportKit/text/QuotationMarks.h>
#include <tests/support/BothTexts.h>
#include <tests/support/Printers.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using platform::AttributedString;
using support::plain;
using support::styled;
using support::stylesOf;

namespace {

/// A text with its straight marks converted, by default to the angle brackets < and >.
QString quoted(QString text, QStringView start = u"<", QStringView stop = u">")
{
    convertQuotationsToStart(text, start, stop);
    return text;
}

TEST(ConvertQuotationsToStart, AlternatesOpeningAndClosingMarks)
{
    EXPECT_EQ(quoted(u"\"a\" \"b\" \"c\""_s), u"<a> <b> <c>"_s);
    EXPECT_EQ(quoted(u"\"\"\""_s), u"<><"_s);
}

TEST(ConvertQuotationsToStart, LeavesATextWithoutMarksAlone)
{
    EXPECT_EQ(quoted(u""_s), u""_s);
    EXPECT_EQ(quoted(u"a 'b' \u201Cc\u201D"_s), u"a 'b' \u201Cc\u201D"_s);
    EXPECT_EQ(quoted(u"a\n\nb\n"_s), u"a\n\nb\n"_s);
    EXPECT_EQ(quoted(u" \n\t "_s), u" \n\t "_s);
}

TEST(ConvertQuotationsToStart, StartsAnewAtALineFeed)
{
    EXPECT_EQ(quoted(u"\"a\n\"b\""_s), u"<a\n<b>"_s);
    EXPECT_EQ(quoted(u"\"a\nb\"c\""_s), u"<a\nb<c>"_s);
    EXPECT_EQ(quoted(u"\"a\n\nb\"c\""_s), u"<a\n\nb<c>"_s);
}

TEST(ConvertQuotationsToStart, SkipsALineFeedRightBehindAMark)
{
    EXPECT_EQ(quoted(u"\"\na\""_s), u"<\na>"_s);
    EXPECT_EQ(quoted(u"\" \t\n a\""_s), u"< \t\n a>"_s);
}

TEST(ConvertQuotationsToStart, StartsAnewWhenNothingButWhiteSpaceStandsBetweenTwoMarks)
{
    EXPECT_EQ(quoted(u"\" \""_s), u"< <"_s);
    EXPECT_EQ(quoted(u"\"\n\""_s), u"<\n<"_s);
    EXPECT_EQ(quoted(u"\" \n\t \"a\""_s), u"< \n\t <a>"_s);
}

TEST(ConvertQuotationsToStart, AlternatesWhenTextAndWhiteSpaceStandBetweenTwoMarks)
{
    EXPECT_EQ(quoted(u"\"a \"b"_s), u"<a >b"_s);
    EXPECT_EQ(quoted(u"\" a\"b"_s), u"< a>b"_s);
}

TEST(ConvertQuotationsToStart, OpensAfterWhiteSpaceAtTheStartOfTheText)
{
    EXPECT_EQ(quoted(u" \n \"a\""_s), u" \n <a>"_s);
    EXPECT_EQ(quoted(u"\n\"a\""_s), u"\n<a>"_s);
}

TEST(ConvertQuotationsToStart, LeavesWhiteSpaceAtTheEndOfTheText)
{
    EXPECT_EQ(quoted(u"\"a\" \n "_s), u"<a> \n "_s);
    EXPECT_EQ(quoted(u"\" \n "_s), u"< \n "_s);
}

TEST(ConvertQuotationsToStart, TakesACarriageReturnAsText)
{
    EXPECT_EQ(quoted(u"\"a\r\"b\""_s), u"<a\r>b<"_s);
    EXPECT_EQ(quoted(u"\"a\r\n\"b\""_s), u"<a\r\n<b>"_s);
}

TEST(ConvertQuotationsToStart, TakesACarriageReturnBetweenTwoMarksAsWhiteSpace)
{
    EXPECT_EQ(quoted(u"\"\r\"a\""_s), u"<\r<a>"_s);
}

TEST(ConvertQuotationsToStart, KnowsSeparatorsAndSixControlCharactersAsWhiteSpace)
{
    std::u16string whiteSpace;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const auto candidate = static_cast<char16_t>(unit);
        if (quoted(u"\""_s + candidate + u"\""_s) == u"<"_s + candidate + u"<"_s) {
            whiteSpace += candidate;
        }
    }
    EXPECT_EQ(whiteSpace, u"\t\n\v\f\r \u0085\u00A0\u1680\u2000\u2001\u2002\u2003\u2004\u2005\u2006\u2007\u2008\u2009"
                          u"\u200A\u2028\u2029\u202F\u205F\u3000");
}

TEST(ConvertQuotationsToStart, TakesAZeroWidthSpaceAsText)
{
    EXPECT_EQ(quoted(u"\"\u200B\""_s), u"<\u200B>"_s);
}

TEST(ConvertQuotationsToStart, TakesANoBreakSpaceAsWhiteSpace)
{
    EXPECT_EQ(quoted(u"\"\u00A0\""_s), u"<\u00A0<"_s);
}

TEST(ConvertQuotationsToStart, PutsMarksOfAnyLengthWhereAStraightMarkStood)
{
    EXPECT_EQ(quoted(u"\"a\" \"b\nc\"d\""_s, u"<<", u">>"), u"<<a>> <<b\nc<<d>>"_s);
    EXPECT_EQ(quoted(u"\"a\" \"b\nc\"d\""_s, u"", u">>"), u"a>> b\ncd>>"_s);
    EXPECT_EQ(quoted(u"\"a\" \"b\nc\"d\""_s, u"", u""), u"a b\ncd"_s);
    EXPECT_EQ(quoted(u"\" \" \""_s, u"<<", u""), u"<< << <<"_s);
}

TEST(ConvertQuotationsToStart, DoesNotConvertTheMarksThatItPutsIn)
{
    EXPECT_EQ(quoted(u"\"a\""_s, u"\"\"", u"\n"), u"\"\"a\n"_s);
    EXPECT_EQ(quoted(u"\"a\" b \"c\""_s, u" \n", u"\""), u" \na\" b  \nc\""_s);
}

TEST(ConvertQuotationsToStart, ConvertsAHundredThousandQuotations)
{
    EXPECT_TRUE(quoted(u"\"a b\" "_s.repeated(100'000), u"<<", u">>") == u"<<a b>> "_s.repeated(100'000));
}

template <typename Text>
struct ConvertQuotationsToType : testing::Test {
    /// What the conversion makes of a text.
    static QString quoted(const QString &units, qint32 style)
    {
        Text text(units);
        convertQuotationsToType(text, style);
        return plain(text);
    }
};
TYPED_TEST_SUITE(ConvertQuotationsToType, support::BothTexts, support::TextNames);

TYPED_TEST(ConvertQuotationsToType, LeavesATextWithoutMarksAndLineFeedsAlone)
{
    for (const qint32 style : {0, 1, 2, 3, 4, 5, 6}) {
        EXPECT_EQ(this->quoted(u""_s, style), u""_s);
        EXPECT_EQ(this->quoted(u"a 'b' c"_s, style), u"a 'b' c"_s);
    }
}

TYPED_TEST(ConvertQuotationsToType, AlternatesOpeningAndClosingMarks)
{
    EXPECT_EQ(this->quoted(u"\"a\" \"b\""_s, 0), u"\u201Ea\u201C \u201Eb\u201C"_s);
}

TYPED_TEST(ConvertQuotationsToType, StartsAnewAtALineFeed)
{
    EXPECT_EQ(this->quoted(u"\"a\n\"b\""_s, 0), u"\u201Ea\n\u201Eb\u201C"_s);
}

TYPED_TEST(ConvertQuotationsToType, StartsAnewWhenNothingButWhiteSpaceStandsBetweenTwoMarks)
{
    EXPECT_EQ(this->quoted(u"\" \""_s, 0), u"\u201E \u201E"_s);
}

TYPED_TEST(ConvertQuotationsToType, SkipsALineFeedRightBehindAMark)
{
    EXPECT_EQ(this->quoted(u"\"\na\""_s, 0), u"\u201E\na\u201C"_s);
}

TYPED_TEST(ConvertQuotationsToType, UsesTheMarksOfTheStyle)
{
    const std::vector<std::pair<qint32, QString>> results{
        {0, u"\u201Ea\u201C"_s}, {1, u"\u00BBa\u00AB"_s}, {2, u"\u00ABa\u00BB"_s},
        {3, u"\u201Ca\u201D"_s}, {4, u"\u2018a\u2019"_s}, {5, u"\u201Da\u201D"_s},
    };
    for (const auto &[style, result] : results) {
        EXPECT_EQ(this->quoted(u"\"a\""_s, style), result) << style;
    }
}

TYPED_TEST(ConvertQuotationsToType, OpensAndClosesWithTheSameMarkInStyleFive)
{
    EXPECT_EQ(this->quoted(u"\"a\" \"b\nc\" \""_s, 5), u"\u201Da\u201D \u201Db\nc\u201D \u201D"_s);
}

TYPED_TEST(ConvertQuotationsToType, LeavesTheTextAloneForAnyOtherStyle)
{
    for (const qint32 style : {6, -1, 7, std::numeric_limits<qint32>::max(), std::numeric_limits<qint32>::min()}) {
        EXPECT_EQ(this->quoted(u"\"a\" \"b\n\"c"_s, style), u"\"a\" \"b\n\"c"_s) << style;
    }
}

TEST(ConvertQuotationsOfAttributedText, GivesAMarkTheAttributesOfTheStraightMark)
{
    AttributedString text = styled(u"a\"bc\""_s, u"1b2.i");
    convertQuotationsToType(text, 3);
    EXPECT_EQ(text.string(), u"a\u201Cbc\u201D"_s);
    EXPECT_EQ(stylesOf(text), u"1b2.i"_s);
}

} // namespace

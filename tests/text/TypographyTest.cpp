#include <OrvaneExportKit/text/Typography.h>
#include <tests/support/BothTexts.h>
#include <tests/support/Printers.h>
#include <tests/support/StyledTexts.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace KZMutableAttributedStringExportAdditions;
using namespace KZMutableStringExportAdditions;
using platform::AttributedString;
using support::plain;
using support::styled;
using support::stylesOf;

namespace {

template <typename Text>
struct ConvertEllipses : testing::Test {
    /// What the correction makes of a text.
    static QString corrected(const QString &units)
    {
        Text text(units);
        convertEllipses(text);
        return plain(text);
    }
};
TYPED_TEST_SUITE(ConvertEllipses, support::BothTexts, support::TextNames);

TYPED_TEST(ConvertEllipses, LeavesTheLastOfFourFullStops)
{
    EXPECT_EQ(this->corrected(u"a...."_s), u"a\u2026."_s);
}

TYPED_TEST(ConvertEllipses, MakesTwoOfSixFullStops)
{
    EXPECT_EQ(this->corrected(u"......b"_s), u"\u2026\u2026b"_s);
}

TYPED_TEST(ConvertEllipses, LeavesATextWithoutMatchAlone)
{
    EXPECT_EQ(this->corrected(u""_s), u""_s);
    EXPECT_EQ(this->corrected(u"a.b..c"_s), u"a.b..c"_s);
}

TYPED_TEST(ConvertEllipses, ChangesNothingTheSecondTime)
{
    for (const QString &units : {u"..."_s, u"...."_s, u"....."_s, u"a......b...c"_s}) {
        const QString once = this->corrected(units);
        EXPECT_EQ(this->corrected(once), once);
    }
}

TYPED_TEST(ConvertEllipses, LeavesFullStopsThatAreApart)
{
    EXPECT_EQ(this->corrected(u". . . .,.,. .. ."_s), u". . . .,.,. .. ."_s);
}

TYPED_TEST(ConvertEllipses, ConvertsEveryMatch)
{
    EXPECT_EQ(this->corrected(u"... a... ...b ..."_s), u"\u2026 a\u2026 \u2026b \u2026"_s);
}

TEST(ConvertEllipsesInAttributedText, TakesTheAttributesOfTheFirstFullStop)
{
    AttributedString text = styled(u"a...b"_s, u".i...");
    convertEllipses(text);
    EXPECT_EQ(text.string(), u"a\u2026b"_s);
    EXPECT_EQ(stylesOf(text), u".i."_s);
}

template <typename Text>
struct CorrectApostrophes : testing::Test {
    /// What the correction makes of a text.
    static QString corrected(const QString &units)
    {
        Text text(units);
        correctApostrophes(text);
        return plain(text);
    }
};
TYPED_TEST_SUITE(CorrectApostrophes, support::BothTexts, support::TextNames);

TYPED_TEST(CorrectApostrophes, ConvertsEveryApostropheWhateverItsPlace)
{
    EXPECT_EQ(this->corrected(u"it's 'quoted' 5' ''"_s), u"it\u2019s \u2019quoted\u2019 5\u2019 \u2019\u2019"_s);
}

TYPED_TEST(CorrectApostrophes, LeavesATextWithoutMatchAlone)
{
    EXPECT_EQ(this->corrected(u""_s), u""_s);
    EXPECT_EQ(this->corrected(u"a\u2018b\u00B4c`d\"e"_s), u"a\u2018b\u00B4c`d\"e"_s);
}

TYPED_TEST(CorrectApostrophes, ChangesNothingTheSecondTime)
{
    const QString once = this->corrected(u"''it's'"_s);
    EXPECT_EQ(this->corrected(once), once);
}

TEST(CorrectApostrophesInAttributedText, KeepsTheAttributes)
{
    AttributedString text = styled(u"it's"_s, u"12i4");
    correctApostrophes(text);
    EXPECT_EQ(text.string(), u"it\u2019s"_s);
    EXPECT_EQ(stylesOf(text), u"12i4"_s);
}

template <typename Text>
struct CorrectDashes : testing::Test {
    /// What the correction makes of a text.
    static QString corrected(const QString &units)
    {
        Text text(units);
        correctDashes(text);
        return plain(text);
    }
};
TYPED_TEST_SUITE(CorrectDashes, support::BothTexts, support::TextNames);

TYPED_TEST(CorrectDashes, LeavesTheLastOfThreeHyphens)
{
    EXPECT_EQ(this->corrected(u"a---b"_s), u"a\u2013-b"_s);
}

TYPED_TEST(CorrectDashes, MakesTwoOfFourHyphens)
{
    EXPECT_EQ(this->corrected(u"a----b"_s), u"a\u2013\u2013b"_s);
}

TYPED_TEST(CorrectDashes, LeavesATextWithoutMatchAlone)
{
    EXPECT_EQ(this->corrected(u""_s), u""_s);
    EXPECT_EQ(this->corrected(u"a-b - - c"_s), u"a-b - - c"_s);
}

TYPED_TEST(CorrectDashes, ChangesNothingTheSecondTime)
{
    for (const QString &units : {u"--"_s, u"---"_s, u"-----"_s, u"a------b--c"_s}) {
        const QString once = this->corrected(units);
        EXPECT_EQ(this->corrected(once), once);
    }
}

TEST(CorrectDashesInAttributedText, TakesTheAttributesOfTheFirstHyphen)
{
    AttributedString text = styled(u"a--b--"_s, u"1i23.4");
    correctDashes(text);
    EXPECT_EQ(text.string(), u"a\u2013b\u2013"_s);
    EXPECT_EQ(stylesOf(text), u"1i3."_s);
}

} // namespace

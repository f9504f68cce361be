#include <OrvaneExportKit/windowing/Font.h>

#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>

using namespace Qt::Literals::StringLiterals;
using windowing::Font;

namespace {

QFont inStyle(const QString &family, int weight, QFont::Style style)
{
    QFont font(family, 12, weight);
    font.setStyle(style);
    return font;
}

TEST(FontName, JoinsFamilyAndStyleWithoutBlanks)
{
    EXPECT_EQ(Font::fontName(inStyle(u"Gill Sans"_s, QFont::Normal, QFont::StyleNormal)), u"GillSans"_s);
    EXPECT_EQ(Font::fontName(inStyle(u"Gill Sans"_s, QFont::Bold, QFont::StyleNormal)), u"GillSans-Bold"_s);
    EXPECT_EQ(Font::fontName(inStyle(u"Gill Sans"_s, QFont::Bold, QFont::StyleItalic)), u"GillSans-BoldItalic"_s);
    EXPECT_EQ(Font::fontName(inStyle(u"Gill Sans"_s, QFont::Light, QFont::StyleOblique)), u"GillSans-LightOblique"_s);
    EXPECT_EQ(Font::fontName(inStyle(u"Gill Sans"_s, QFont::DemiBold, QFont::StyleNormal)), u"GillSans-SemiBold"_s);
}

TEST(FontName, TakesTheStyleByItsNameWhereTheFontHasOne)
{
    QFont font(u"Gill Sans"_s);
    font.setStyleName(u"Ultra Condensed Bold"_s);
    EXPECT_EQ(Font::fontName(font), u"GillSans-UltraCondensedBold"_s);
    EXPECT_EQ(Font::displayName(font), u"Gill Sans Ultra Condensed Bold"_s);
    font.setStyleName(u"Book"_s);
    EXPECT_EQ(Font::fontName(font), u"GillSans"_s);
    EXPECT_EQ(Font::displayName(font), u"Gill Sans"_s);
}

TEST(FontName, FindsEveryInstalledFontAgain)
{
    int styles = 0;
    for (const QString &family : QFontDatabase::families()) {
        for (const QString &style : QFontDatabase::styles(family)) {
            const QFont font = QFontDatabase::font(family, style, 12);
            const QFont found = Font::fontWithName(Font::fontName(font), 12.0);
            EXPECT_EQ(Font::displayName(found), Font::displayName(font));
            EXPECT_EQ(QFontInfo(found).styleName(), QFontInfo(font).styleName()) << Font::fontName(font).toStdString();
            ++styles;
        }
    }
    EXPECT_GT(styles, 0);
}

TEST(FontName, DescribesAFontThatIsNotInstalled)
{
    const QFont font = Font::fontWithName(u"NoSuchFont-SemiboldItalic"_s, 10.5);
    EXPECT_EQ(font.family(), u"NoSuchFont"_s);
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(font.style(), QFont::StyleItalic);
    EXPECT_EQ(font.pointSizeF(), 10.5);
    EXPECT_EQ(Font::fontName(font), u"NoSuchFont-SemiboldItalic"_s);
}

TEST(FontName, KeepsNamesThatFollowNoRule)
{
    for (const QString &name : {u"Times-Roman"_s, u"ArialMT"_s, u"Helvetica-BoldOblique"_s, u"X-Y-Light"_s, u""_s}) {
        EXPECT_EQ(Font::fontName(Font::fontWithName(name, 12.0)), name);
    }
}

TEST(FontName, TellsLongWeightsFromTheShortOnesInThem)
{
    EXPECT_EQ(Font::fontWithName(u"NoSuchFont-ExtraLight"_s, 12.0).weight(), QFont::ExtraLight);
    EXPECT_EQ(Font::fontWithName(u"NoSuchFont-ExtraBold"_s, 12.0).weight(), QFont::ExtraBold);
    EXPECT_EQ(Font::fontWithName(u"NoSuchFont-Light"_s, 12.0).weight(), QFont::Light);
}

TEST(FontSize, IsInPointsAlsoForAFontInPixels)
{
    EXPECT_EQ(Font::pointSize(Font::userFontOfSize(11.5)), 11.5);
    QFont font;
    font.setPixelSize(30);
    EXPECT_GT(Font::pointSize(font), 0.0);
}

TEST(UserFont, IsAnInstalledFontOfTheSize)
{
    const QFont font = Font::userFontOfSize(10.0);
    EXPECT_EQ(font.pointSizeF(), 10.0);
    EXPECT_EQ(font.family(), QFontInfo(QFontDatabase::systemFont(QFontDatabase::GeneralFont)).family());
}

} // namespace

#include <OrvaneExportKit/windowing/TextField.h>

#include <OrvaneExportKit/windowing/ParagraphStyle.h>
#include <OrvaneExportKit/windowing/TextAttributes.h>
#include <tests/support/Printers.h>
#include <tests/support/Rendering.h>

#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtTest/QTest>

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using windowing::ParagraphStyle;
using windowing::TextAlignment;
using windowing::TextField;

namespace {

constexpr QRgb red = qRgb(255, 0, 0);
constexpr QRgb blue = qRgb(0, 0, 255);
constexpr QRgb green = qRgb(0, 255, 0);

AttributedString colored(const QString &text, const QColor &background)
{
    return AttributedString(text, {{windowing::backgroundColorAttributeName, background}});
}

/// The columns of the picture that hold pixels of a colour: the first and the last, or two numbers below 0.
std::pair<int, int> columnsOf(const QImage &image, QRgb color)
{
    std::pair<int, int> columns(-1, -1);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixel(x, y) == color) {
                columns = {columns.first < 0 ? x : columns.first, x};
                break;
            }
        }
    }
    return columns;
}

class ShownText : public testing::Test
{
protected:
    void SetUp() override
    {
        field.setEditable(false);
        field.resize(200, 30);
    }
    std::pair<int, int> shown(QRgb color) { return columnsOf(support::rendered(field, 1.0, Qt::black), color); }

    TextField field;
};

TEST(TextField, KeepsTheAttributesOfItsText)
{
    TextField field;
    const AttributedString text = colored(u"red"_s, Qt::red);
    field.setAttributedStringValue(text);
    EXPECT_EQ(field.attributedStringValue(), text);
    EXPECT_EQ(field.stringValue(), u"red"_s);
    EXPECT_EQ(field.text(), u"red"_s);
}

TEST(TextField, GivesPlainTextItsFontColourAndAlignment)
{
    TextField field;
    field.setAlignment(Qt::AlignCenter);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::darkGreen);
    field.setPalette(palette);
    field.setStringValue(u"plain"_s);
    const QVariantMap attributes = field.attributedStringValue().attributesAtIndex(0);
    EXPECT_EQ(attributes.value(u"NSFont"_s), QVariant(field.font()));
    EXPECT_EQ(attributes.value(u"NSColor"_s), QVariant(QColor(Qt::darkGreen)));
    EXPECT_EQ(attributes.value(u"NSParagraphStyle"_s).value<ParagraphStyle>().alignment, TextAlignment::Center);
}

TEST(TextField, GivesTypedTextTheAttributesOfPlainText)
{
    TextField field;
    field.setAttributedStringValue(colored(u"red"_s, Qt::red));
    QTest::keyClicks(&field, u"der"_s);
    EXPECT_EQ(field.attributedStringValue().string(), u"redder"_s);
    EXPECT_FALSE(field.attributedStringValue().attributesAtIndex(0).contains(u"NSBackgroundColor"_s));
}

TEST(TextField, IsEditableUnlessItIsSaidNotToBe)
{
    TextField field;
    EXPECT_TRUE(field.isEditable());
    field.setEditable(false);
    QTest::keyClicks(&field, u"typed"_s);
    EXPECT_EQ(field.text(), QString());
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(&field)->state().readOnly);
}

TEST_F(ShownText, HasTheColoursOfItsRuns)
{
    AttributedString text = colored(u"redblue"_s, Qt::red);
    text.addAttributes({{windowing::backgroundColorAttributeName, QColor(Qt::blue)}}, {3, 4});
    field.setAttributedStringValue(text);
    const auto [firstRed, lastRed] = shown(red);
    const auto [firstBlue, lastBlue] = shown(blue);
    EXPECT_GE(firstRed, 0);
    EXPECT_EQ(lastRed + 1, firstBlue);
    EXPECT_GT(lastBlue, firstBlue);
}

TEST_F(ShownText, IsAligned)
{
    field.setAttributedStringValue(colored(u"red"_s, Qt::red));
    field.setAlignment(Qt::AlignLeft);
    EXPECT_LT(shown(red).second, 60);
    field.setAlignment(Qt::AlignRight);
    EXPECT_GT(shown(red).first, 140);
    field.setAlignment(Qt::AlignCenter);
    const auto [first, last] = shown(red);
    EXPECT_NEAR(first, 199 - last, 1);
}

TEST_F(ShownText, FollowsTheDirectionOfTheLayout)
{
    field.setAttributedStringValue(colored(u"red"_s, Qt::red));
    field.setAlignment(Qt::AlignLeft);
    field.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(shown(red).first, 140);
}

TEST_F(ShownText, EndsInAnEllipsisWhereItIsTooLong)
{
    AttributedString text = colored(QString(60, u'm') + u"end"_s, Qt::red);
    text.addAttributes({{windowing::backgroundColorAttributeName, QColor(Qt::blue)}}, {60, 3});
    field.setAttributedStringValue(text);
    const auto [first, last] = shown(red);
    EXPECT_LT(first, 10);
    EXPECT_GT(last, 170);
    EXPECT_LT(last, 197);
    EXPECT_EQ(shown(blue).first, -1); // the end is not there
    EXPECT_EQ(field.text().size(), 63);
}

TEST_F(ShownText, StaysOnOneLine)
{
    field.resize(200, 80);
    field.setAttributedStringValue(colored(u"one"_s, Qt::red));
    const QImage one = support::rendered(field, 1.0, Qt::black);
    field.setAttributedStringValue(colored(u"one\ntwo"_s, Qt::red));
    const QImage two = support::rendered(field, 1.0, Qt::black);
    int rowsOfOne = 0;
    int rowsOfTwo = 0;
    for (int y = 0; y < 80; ++y) {
        rowsOfOne += columnsOf(one.copy(0, y, 200, 1), red).first < 0 ? 0 : 1;
        rowsOfTwo += columnsOf(two.copy(0, y, 200, 1), red).first < 0 ? 0 : 1;
    }
    EXPECT_GT(rowsOfOne, 5);
    EXPECT_EQ(rowsOfTwo, rowsOfOne);
}

TEST_F(ShownText, HasTheColourOfThePaletteWithoutAttributes)
{
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::green);
    field.setPalette(dark);
    field.setAttributedStringValue(AttributedString(u"\u2588\u2588"_s)); // full blocks
    EXPECT_GE(shown(green).first, 0);
}

TEST_F(ShownText, ShowsWhatIsSelected)
{
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::green);
    field.setPalette(palette);
    field.setAttributedStringValue(colored(u"redred"_s, Qt::red));
    field.setSelection(0, 3);
    const auto [first, last] = shown(green);
    EXPECT_GE(first, 0);
    EXPECT_EQ(last + 1, shown(red).first);
}

TEST_F(ShownText, HasARoundedBezelOnRequest)
{
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::green);
    field.setPalette(palette);
    field.setBezelStyle(TextField::BezelStyle::Rounded);
    const QImage image = support::rendered(field, 2.0, Qt::red);
    EXPECT_EQ(image.pixel(0, 0), red); // the corner is outside
    EXPECT_EQ(image.pixel(399, 59), red);
    EXPECT_NE(image.pixel(0, 30), red);
    EXPECT_EQ(image.pixel(200, 30), green);
}

} // namespace

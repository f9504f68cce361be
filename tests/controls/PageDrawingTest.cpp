#include <OrvaneExportKit/controls/PageDrawing.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using windowing::PageDrawing;
using windowing::pageDrawing;
using windowing::PageMargins;

constexpr QSizeF view(110.0, 110.0);
constexpr QSizeF uprightA4(595.0, 842.0);
constexpr PageMargins noMargins{0.0F, 0.0F, 0.0F, 0.0F};

void expectRectangle(const QRectF &actual, const QRectF &expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 0.005);
    EXPECT_NEAR(actual.y(), expected.y(), 0.005);
    EXPECT_NEAR(actual.width(), expected.width(), 0.005);
    EXPECT_NEAR(actual.height(), expected.height(), 0.005);
}

TEST(PageDrawing, FitsUprightPaperIntoTheHeight)
{
    expectRectangle(pageDrawing(view, uprightA4, noMargins).paper, {19.67, 5.0, 70.67, 100.0});
}

TEST(PageDrawing, FitsLandscapePaperIntoTheWidth)
{
    expectRectangle(pageDrawing(view, {842.0, 595.0}, noMargins).paper, {5.0, 19.67, 100.0, 70.67});
}

TEST(PageDrawing, TreatsSquarePaperAsUpright)
{
    expectRectangle(pageDrawing(view, {500.0, 500.0}, noMargins).paper, {5.0, 5.0, 100.0, 100.0});
    // In bounds that are not square the two ways differ: the height decides.
    expectRectangle(pageDrawing({210.0, 110.0}, {500.0, 500.0}, noMargins).paper, {5.0, 5.0, 100.0, 100.0});
}

TEST(PageDrawing, CentresByTheFittedSide)
{
    expectRectangle(pageDrawing({210.0, 110.0}, uprightA4, noMargins).paper, {19.67, 5.0, 70.67, 100.0});
}

TEST(PageDrawing, ScalesTheMargins)
{
    const PageDrawing drawing = pageDrawing(view, uprightA4, {100.0F, 50.0F, 25.0F, 10.0F});
    ASSERT_TRUE(drawing.marginBox);
    const double scale = 100.0 / 842.0; // about 0.1188
    const double left = (842.0 - 595.0) / 2.0 * scale + 5.0 + 50.0 * scale;
    const double bottom = 5.0 + 10.0 * scale;
    const double width = (595.0 - 50.0 - 25.0) * scale;
    const double height = (842.0 - 100.0 - 10.0) * scale;
    expectRectangle(drawing.marginBox->bottomLine, {left, bottom, width, 1.0});
    expectRectangle(drawing.marginBox->rightLine, {left + width - 1.0, bottom + 1.0, 1.0, height - 1.0});
    expectRectangle(drawing.marginBox->tinted, {left, bottom + 1.0, width - 1.0, height - 1.0});
}

TEST(PageDrawing, HasNoBoxWhereTheSideMarginsTakeTheWholeWidth)
{
    EXPECT_FALSE(pageDrawing(view, {144.0, 500.0}, {72.0F, 72.0F, 72.0F, 72.0F}).marginBox);
    EXPECT_TRUE(pageDrawing(view, {144.0, 500.0}, {72.0F, 71.9F, 71.9F, 72.0F}).marginBox);
}

TEST(PageDrawing, HasNoBoxWhereTopAndBottomTakeTheWholeHeight)
{
    EXPECT_FALSE(pageDrawing(view, {500.0, 144.0}, {72.0F, 72.0F, 72.0F, 72.0F}).marginBox);
    EXPECT_TRUE(pageDrawing(view, {500.0, 144.0}, {71.9F, 72.0F, 72.0F, 71.9F}).marginBox);
    EXPECT_FALSE(pageDrawing(view, {144.0, 144.0}, {72.0F, 71.9F, 71.9F, 72.0F}).marginBox);
}

TEST(PageDrawing, AddsMarginsIn32Bits)
{
    // 16777216 + 1 is 16777216 in 32-bit floats, which the paper is wider than.
    EXPECT_TRUE(pageDrawing(view, {16777216.5, 16777216.5}, {0.0F, 16777216.0F, 1.0F, 0.0F}).marginBox);
}

TEST(PageDrawing, TakesNegativeMarginsAsALargerBox)
{
    const PageDrawing drawing = pageDrawing(view, {100.0, 100.0}, {-2.0F, -3.0F, -4.0F, -5.0F});
    ASSERT_TRUE(drawing.marginBox);
    expectRectangle(drawing.marginBox->bottomLine, {2.0, 0.0, 107.0, 1.0});
}

TEST(PageDrawing, KeepsTheLinesInsideAThinBox)
{
    const PageDrawing drawing = pageDrawing(view, {100.0, 100.0}, {99.5F, 99.75F, 0.0F, 0.0F});
    ASSERT_TRUE(drawing.marginBox);
    expectRectangle(drawing.marginBox->bottomLine, {104.75, 5.0, 0.25, 0.5});
    EXPECT_EQ(drawing.marginBox->rightLine.height(), 0.0);
    EXPECT_EQ(drawing.marginBox->tinted.width(), 0.0);
}

TEST(PageDrawing, IsNotFiniteForPaperWithoutSize)
{
    EXPECT_FALSE(std::isfinite(pageDrawing(view, {0.0, 0.0}, noMargins).paper.width()));
}

TEST(PageDrawing, HasTheColoursOfPaper)
{
    EXPECT_EQ(PageDrawing::paperColor, QColor::fromRgbF(0.97F, 0.97F, 0.97F, 1.0F));
    EXPECT_EQ(PageDrawing::lineColor.rgb(), qRgb(170, 170, 170));
    EXPECT_EQ(PageDrawing::tintColor, QColor::fromRgbF(0.6F, 0.6F, 0.6F, 0.2F));
    EXPECT_EQ(PageDrawing::paperShadow.offset, QSizeF(0.0, -2.5));
    EXPECT_EQ(PageDrawing::paperShadow.blurRadius, 4.0);
}

} // namespace

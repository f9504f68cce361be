#include <OrvaneExportKit/controls/KZPageView.h>

#include <OrvaneExportKit/platform/Translations.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/PrintInfo.h>
#include <tests/support/PanelController.h>
#include <tests/support/Rendering.h>

#include <gtest/gtest.h>

#include <QtCore/QLocale>
#include <QtCore/QMetaProperty>
#include <QtGui/QAccessible>
#include <QtGui/QPaintEvent>

#include <QtWidgets/QApplication>
#include <QtWidgets/QVBoxLayout>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using windowing::PrintInfo;

namespace {

constexpr QSizeF uprightA4(595.0, 842.0);
constexpr QSizeF landscapeA4(842.0, 595.0);

class PaintedView : public KZPageView
{
public:
    std::vector<QRegion> painted;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        painted.push_back(event->region());
        KZPageView::paintEvent(event);
    }
};

TEST(KZPageView, MakesItsFrameSquareWithTheShorterSide)
{
    KZPageView view;
    view.setFrame({10.0, 20.0, 200.0, 100.0});
    EXPECT_EQ(view.frame(), QRectF(10.0, 20.0, 100.0, 100.0));
    view.setFrame({10.0, 20.0, 100.0, 200.0});
    EXPECT_EQ(view.frame(), QRectF(10.0, 20.0, 100.0, 100.0));
    view.setFrame({10.0, 20.0, 150.0, 150.0});
    EXPECT_EQ(view.frame(), QRectF(10.0, 20.0, 150.0, 150.0));
}

TEST(KZPageView, KeepsFractionsOfItsFrame)
{
    KZPageView view;
    view.setFrame({10.25, 20.5, 100.75, 99.5});
    EXPECT_EQ(view.frame(), QRectF(10.25, 20.5, 99.5, 99.5));
    EXPECT_EQ(view.bounds(), QRectF(0.0, 0.0, 99.5, 99.5));
    EXPECT_EQ(view.geometry(), QRect(10, 20, 100, 100));
}

TEST(KZPageView, StartsInAFrameThatIsGrownAndMadeSquare)
{
    const auto view = KZPageView::initWithFrame({10.0, 10.0, 90.0, 120.0});
    EXPECT_EQ(view->frame(), QRectF(5.0, 5.0, 100.0, 100.0));
}

class SharedPaper : public testing::Test
{
protected:
    ~SharedPaper() override { PrintInfo::sharedPrintInfo().setPaperSize(m_paperSize); }

private:
    const QSizeF m_paperSize = PrintInfo::sharedPrintInfo().paperSize();
};

TEST_F(SharedPaper, IsThatOfANewPageViewWithMarginsOfAnInch)
{
    PrintInfo::sharedPrintInfo().setPaperSize({420.0, 595.0});
    const auto view = KZPageView::initWithFrame({10.0, 10.0, 90.0, 120.0});
    EXPECT_EQ(view->paperSize(), QSizeF(420.0, 595.0));
    for (const float margin : {view->topMargin(), view->leftMargin(), view->rightMargin(), view->bottomMargin()}) {
        EXPECT_EQ(margin, 72.0F);
    }
}

TEST(KZPageView, NeverClaimsToFillItsBackground)
{
    const KZPageView view;
    EXPECT_FALSE(view.isOpaque());
    EXPECT_FALSE(view.testAttribute(Qt::WA_OpaquePaintEvent));
}

TEST(KZPageView, ExposesItsBindingsInTheOrderOfItsFields)
{
    const QStringList names{u"paperSize"_s, u"topMargin"_s, u"leftMargin"_s, u"rightMargin"_s, u"bottomMargin"_s};
    EXPECT_EQ(windowing::exposedBindings(KZPageView::staticMetaObject), names);
}

TEST(KZPageView, ShowsThePageOfBoundSettings)
{
    support::PanelController controller;
    controller.settings()->setValue(u"{300.5, 400}"_s, u"size"_s);
    controller.settings()->setValue(36.5F, u"top"_s);
    KZPageView view;
    new windowing::Binding(&view, u"paperSize"_s, &controller, u"settings.size"_s);
    new windowing::Binding(&view, u"topMargin"_s, &controller, u"settings.top"_s);
    EXPECT_EQ(view.paperSize(), QSizeF(300.5, 400.0));
    EXPECT_EQ(view.topMargin(), 36.5F);
    controller.settings()->setValue(10, u"top"_s);
    EXPECT_EQ(view.topMargin(), 10.0F);
}

TEST(KZPageView, TakesItsValuesAsDesignableProperties)
{
    KZPageView view;
    ASSERT_TRUE(view.setProperty("paperSize", QSizeF(300.5, 400.0)));
    EXPECT_EQ(view.paperSize(), QSizeF(300.5, 400.0));
    const std::vector<std::pair<const char *, float (KZPageView::*)() const>> margins{
        {"topMargin", &KZPageView::topMargin},
        {"leftMargin", &KZPageView::leftMargin},
        {"rightMargin", &KZPageView::rightMargin},
        {"bottomMargin", &KZPageView::bottomMargin},
    };
    float margin = 10.5F;
    for (const auto &[name, value] : margins) {
        const QMetaObject &metaObject = KZPageView::staticMetaObject;
        EXPECT_TRUE(metaObject.property(metaObject.indexOfProperty(name)).isDesignable()) << name;
        ASSERT_TRUE(view.setProperty(name, margin)) << name;
        EXPECT_EQ((view.*value)(), margin) << name;
        margin += 1.0F;
    }
}

TEST(KZPageView, IsDrawnAnewForEveryValueThatIsSetAlsoForTheSame)
{
    PaintedView view;
    view.resize(110, 110);
    view.show();
    QApplication::processEvents();
    const std::vector<std::function<void()>> setters{
        [&view] { view.setPaperSize(view.paperSize()); },       [&view] { view.setTopMargin(view.topMargin()); },
        [&view] { view.setLeftMargin(view.leftMargin()); },     [&view] { view.setRightMargin(view.rightMargin()); },
        [&view] { view.setBottomMargin(view.bottomMargin()); },
    };
    for (const auto &set : setters) {
        view.painted.clear();
        set();
        QApplication::processEvents();
        ASSERT_EQ(view.painted.size(), 1U);
        EXPECT_EQ(view.painted.front(), QRegion(view.rect()));
    }
}

struct Rendering {
    int side;
    double devicePixelRatio;
};

class PageViewPixels : public testing::TestWithParam<Rendering>
{
protected:
    const QColor background = QColor(60, 120, 180);
    const int side = GetParam().side;
    const double ratio = GetParam().devicePixelRatio;
    KZPageView view;

    QImage image()
    {
        view.setFrame({0.0, 0.0, double(side), double(side)});
        return support::rendered(view, ratio, background);
    }

    /// The first and last pixel, counted from 0, that a stretch of view units fills.
    int first(double start) const { return int(std::round(start * ratio)); }
    int last(double end) const { return int(std::round(end * ratio)) - 1; }
};

INSTANTIATE_TEST_SUITE_P(SizesAndScales, PageViewPixels,
                         testing::Values(Rendering{110, 1.0}, Rendering{110, 2.0}, Rendering{110, 1.5},
                                         Rendering{64, 1.0}, Rendering{237, 1.25}, Rendering{300, 3.0}),
                         [](const auto &info) {
                             return "Side" + std::to_string(info.param.side) + "At" +
                                    std::to_string(int(info.param.devicePixelRatio * 100.0)) + "Percent";
                         });

const QRgb paperColor = qRgb(247, 247, 247);
const QRgb lineColor = qRgb(170, 170, 170);
const QRgb tintedPaperColor = qRgb(228, 228, 228);

/// Whether two colours are as good as equal; blending rounds differently from one machine to the next.
bool isNear(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1 &&
           std::abs(qBlue(a) - qBlue(b)) <= 1;
}

/// Checks that a rectangle of pixels, from corner to corner, has one colour.
void expectFilled(const QImage &image, QPoint first, QPoint last, QRgb color)
{
    for (int y = first.y(); y <= last.y(); ++y) {
        for (int x = first.x(); x <= last.x(); ++x) {
            ASSERT_TRUE(isNear(image.pixel(x, y), color))
                << "(" << x << ", " << y << "): " << QColor(image.pixel(x, y)).name().toStdString();
        }
    }
}

TEST_P(PageViewPixels, ShowUprightPaperThatFillsTheHeight)
{
    view.setPaperSize(uprightA4);
    view.setTopMargin(1000.0F); // no box
    const QImage pixels = image();
    const double fitted = side - 10.0;
    const double left = (fitted - fitted * 595.0 / 842.0) * 0.5 + 5.0;
    expectFilled(pixels, {first(left), first(5.0)}, {last(side - left), last(side - 5.0)}, paperColor);
    EXPECT_NE(pixels.pixel(first(left) - 1, first(side / 2.0)), paperColor);
    EXPECT_NE(pixels.pixel(last(side - left) + 1, first(side / 2.0)), paperColor);
    EXPECT_NE(pixels.pixel(first(side / 2.0), first(5.0) - 1), paperColor);
    EXPECT_NE(pixels.pixel(first(side / 2.0), last(side - 5.0) + 1), paperColor);
}

TEST_P(PageViewPixels, ShowLandscapePaperThatFillsTheWidth)
{
    view.setPaperSize(landscapeA4);
    view.setTopMargin(1000.0F);
    const QImage pixels = image();
    const double fitted = side - 10.0;
    const double top = (fitted - fitted * 595.0 / 842.0) * 0.5 + 5.0;
    expectFilled(pixels, {first(5.0), first(top)}, {last(side - 5.0), last(side - top)}, paperColor);
    EXPECT_NE(pixels.pixel(first(5.0) - 1, first(side / 2.0)), paperColor);
    EXPECT_NE(pixels.pixel(first(side / 2.0), last(side - top) + 1), paperColor);
}

TEST_P(PageViewPixels, ShowSquarePaper)
{
    view.setPaperSize({500.0, 500.0});
    view.setTopMargin(1000.0F);
    expectFilled(image(), {first(5.0), first(5.0)}, {last(side - 5.0), last(side - 5.0)}, paperColor);
}

TEST_P(PageViewPixels, ShowALineBelowAndAtTheRightOfTheTintedTextArea)
{
    // On paper as wide as the fitted side in points, a point is a unit of the view.
    const double paper = side - 10.0;
    view.setPaperSize({paper, paper});
    view.setTopMargin(20.0F);
    view.setLeftMargin(8.0F);
    view.setRightMargin(12.0F);
    view.setBottomMargin(16.0F);
    const QImage pixels = image();
    const double left = 13.0;
    const double right = side - 17.0;
    const double top = 25.0;
    const double bottom = side - 21.0;
    expectFilled(pixels, {first(left), first(bottom - 1.0)}, {last(right), last(bottom)}, lineColor);
    expectFilled(pixels, {first(right - 1.0), first(top)}, {last(right), last(bottom - 1.0)}, lineColor);
    expectFilled(pixels, {first(left), first(top)}, {last(right - 1.0), last(bottom - 1.0)}, tintedPaperColor);
    // Around the box there is paper: no line at the top and at the left.
    expectFilled(pixels, {first(left) - 1, first(top)}, {first(left) - 1, last(bottom)}, paperColor);
    expectFilled(pixels, {first(left), first(top) - 1}, {last(right), first(top) - 1}, paperColor);
    expectFilled(pixels, {last(right) + 1, first(top)}, {last(right) + 1, last(bottom)}, paperColor);
    expectFilled(pixels, {first(left), last(bottom) + 1}, {last(right), last(bottom) + 1}, paperColor);
}

TEST_P(PageViewPixels, ShowNoTextAreaWhereTheMarginsTakeAllRoom)
{
    view.setPaperSize({144.0, 144.0});
    const QImage pixels = image(); // margins of 72
    expectFilled(pixels, {first(5.0), first(5.0)}, {last(side - 5.0), last(side - 5.0)}, paperColor);
}

TEST_P(PageViewPixels, ShowATextAreaWhereTheMarginsLeaveALittleRoom)
{
    view.setPaperSize({144.0, 144.0});
    view.setTopMargin(36.0F);
    view.setLeftMargin(36.0F);
    view.setRightMargin(36.0F);
    view.setBottomMargin(36.0F);
    EXPECT_TRUE(isNear(image().pixel(first(side / 2.0), first(side / 2.0)), tintedPaperColor));
}

TEST_P(PageViewPixels, ShowAShadowThatLiesBelowThePaper)
{
    view.setPaperSize({500.0, 500.0});
    const QImage pixels = image();
    const auto darkness = [this, &pixels](double x, double y) {
        return background.blue() - qBlue(pixels.pixel(first(x), first(y)));
    };
    const double middle = side / 2.0;
    // The shadow's own edge, 2.5 below that of the paper, is half as dark as the shadow, which takes a third of the
    // light.
    EXPECT_NEAR(darkness(middle, side - 3.0), 180 / 3 / 2, 9);
    EXPECT_GT(darkness(middle, side - 4.5), darkness(middle, side - 1.5));
    EXPECT_GT(darkness(middle, side - 1.0), 0);
    EXPECT_LE(darkness(middle, 1.0), 1);
    EXPECT_NEAR(darkness(2.0, middle), darkness(side - 2.0 - 1.0 / ratio, middle), 4);
    EXPECT_GT(darkness(3.5, middle), 5);
}

TEST(KZPageView, DrawsInTheMiddleOfTheLargestSquareThatALayoutLeaves)
{
    QWidget panel;
    QVBoxLayout layout(&panel);
    layout.setContentsMargins(0, 0, 0, 0);
    KZPageView view;
    layout.addWidget(&view);
    panel.resize(310, 110);
    panel.show();
    QApplication::processEvents();
    ASSERT_EQ(view.size(), QSize(310, 110));
    EXPECT_EQ(view.bounds(), QRectF(0.0, 0.0, 110.0, 110.0));

    view.setPaperSize({500.0, 500.0});
    const QImage pixels = support::rendered(view, 1.0, Qt::blue);
    expectFilled(pixels, {105, 5}, {106, 104}, paperColor);
    expectFilled(pixels, {203, 5}, {204, 104}, paperColor);
    expectFilled(pixels, {0, 0}, {90, 109}, qRgb(0, 0, 255));
    expectFilled(pixels, {220, 0}, {309, 109}, qRgb(0, 0, 255));
}

TEST(KZPageView, DrawsNothingForPaperWithoutSize)
{
    KZPageView view;
    view.setFrame({0.0, 0.0, 50.0, 50.0});
    for (const QSizeF size : {QSizeF(0.0, 0.0), QSizeF(100.0, 0.0), QSizeF(-5.0, 10.0)}) {
        view.setPaperSize(size);
        expectFilled(support::rendered(view, 1.0, Qt::blue), {0, 0}, {49, 49}, qRgb(0, 0, 255));
    }
}

TEST(KZPageView, TakesMarginsOfAnySize)
{
    KZPageView view;
    view.setFrame({0.0, 0.0, 50.0, 50.0});
    view.setPaperSize({100.0, 100.0});
    for (const float margin : {-1e30F, -std::numeric_limits<float>::infinity(), std::nanf("")}) {
        view.setLeftMargin(margin);
        EXPECT_TRUE(isNear(support::rendered(view, 1.0, Qt::blue).pixel(25, 43), paperColor)) << margin;
    }
}

TEST(KZPageView, KeepsThePanelsBackgroundInADarkPalette)
{
    KZPageView view;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(30, 30, 30));
    view.setPalette(dark);
    view.setFrame({0.0, 0.0, 110.0, 110.0});
    view.setPaperSize(uprightA4);
    QImage image(110, 110, QImage::Format_ARGB32_Premultiplied);
    view.render(&image);
    EXPECT_EQ(image.pixel(2, 50), qRgb(30, 30, 30));
    EXPECT_EQ(image.pixel(55, 7), paperColor);
}

class PageViewDescription : public testing::Test
{
protected:
    void SetUp() override
    {
        view.setPaperSize({720.0, 360.0});
        view.setLeftMargin(36.0F);
    }
    void TearDown() override
    {
        QLocale::setDefault(m_locale);
        platform::setLanguage(m_locale);
    }
    QString spoken(QAccessible::Text kind) { return QAccessible::queryAccessibleInterface(&view)->text(kind); }
    void speak(const QLocale &locale)
    {
        QLocale::setDefault(locale);
        platform::setLanguage(locale);
    }

    KZPageView view;

private:
    const QLocale m_locale;
};

TEST_F(PageViewDescription, TellsPaperAndMarginsInTheUsersUnit)
{
    speak(QLocale(u"en_US"_s));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&view)->role(), QAccessible::Graphic);
    EXPECT_EQ(spoken(QAccessible::Name), u"Page preview"_s);
    EXPECT_EQ(spoken(QAccessible::Description),
              u"Page 25.40 cm x 12.70 cm; margins: top 2.54 cm, left 1.27 cm, right 2.54 cm, bottom 2.54 cm"_s);
}

TEST_F(PageViewDescription, SpeaksTheUsersLanguage)
{
    speak(QLocale(u"de_DE"_s));
    EXPECT_EQ(spoken(QAccessible::Description),
              u"Seite 25,40 cm x 12,70 cm; R\u00E4nder: oben 2,54 cm, links 1,27 cm, rechts 2,54 cm, unten 2,54 cm"_s);
}

TEST_F(PageViewDescription, GivesWayToThatOfThePanel)
{
    view.setAccessibleName(u"Cover"_s);
    view.setAccessibleDescription(u"The cover page"_s);
    EXPECT_EQ(spoken(QAccessible::Name), u"Cover"_s);
    EXPECT_EQ(spoken(QAccessible::Description), u"The cover page"_s);
}

} // namespace

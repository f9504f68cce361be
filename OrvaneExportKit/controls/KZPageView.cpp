#include <OrvaneExportKit/controls/KZPageView.h>

#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/settings/MeasurementUnits.h>
#include <OrvaneExportKit/windowing/ArchivedViews.h>
#include <OrvaneExportKit/windowing/Binding.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/Frames.h>
#include <OrvaneExportKit/windowing/PrintInfo.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QLocale>
#include <QtGui/QPainter>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

const auto registration = windowing::WidgetClassRegistration::of<KZPageView>();

const bool exposed = [] {
    for (const QString &name : {u"paperSize"_s, u"topMargin"_s, u"leftMargin"_s, u"rightMargin"_s, u"bottomMargin"_s}) {
        windowing::exposeBinding(KZPageView::staticMetaObject, name);
    }
    return true;
}();

/// What a screen reader says about a page view.
class AccessiblePageView final : public QAccessibleWidget
{
public:
    explicit AccessiblePageView(KZPageView *view) : QAccessibleWidget(view, QAccessible::Graphic), m_view(*view) {}

    QString text(QAccessible::Text kind) const override
    {
        return windowing::guardedValue(m_view, QString(), [this, kind] { return textOf(kind); });
    }

private:
    QString textOf(QAccessible::Text kind) const
    {
        QString given = QAccessibleWidget::text(kind);
        if (!given.isEmpty()) {
            return given;
        }
        if (kind == QAccessible::Name) {
            return KZPageView::tr("Page preview");
        }
        return kind == QAccessible::Description ? description() : QString();
    }

    QString description() const
    {
        return KZPageView::tr("Page %1; margins: top %2, left %3, right %4, bottom %5")
            .arg(KZStringExportAdditions::pageSizeStringWithSize(m_view.paperSize()), length(m_view.topMargin()),
                 length(m_view.leftMargin()), length(m_view.rightMargin()), length(m_view.bottomMargin()));
    }

    static QString length(float points)
    {
        const double units = static_cast<double>(points) * static_cast<double>(platform::measurementUnitFactor());
        return QLocale().toString(units, 'f', 2) + u' ' + KZStringExportAdditions::measurementUnitString();
    }

    const KZPageView &m_view;
};

QAccessibleInterface *accessiblePageView(const QString & /*className*/, QObject *object)
{
    auto *view = qobject_cast<KZPageView *>(object);
    return view == nullptr ? nullptr : new AccessiblePageView(view);
}

/// The six items of an archive without keys. Those of the size are the first four bytes of its 64-bit numbers, not
/// narrowed numbers: that is the layout of such archives, although it does not keep the size.
std::array<void *, 6> nonKeyedItems(QSizeF &paperSize, windowing::PageMargins &margins)
{
    return {&paperSize.rwidth(), &paperSize.rheight(), &margins.top, &margins.left, &margins.right, &margins.bottom};
}

void registerClass()
{
    if (qobject_cast<QApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration pageView(
        {{u"KZPageView"_s, u"NSView"_s, u"NSResponder"_s, u"NSObject"_s},
         QMetaType::fromType<KZPageView *>(),
         [](const QVariant &view, platform::Coder &coder) { view.value<KZPageView *>()->encodeWithCoder(coder); },
         {}});
    QAccessible::installFactory(accessiblePageView);
}
Q_COREAPP_STARTUP_FUNCTION(registerClass)

/// Margins and paper sizes without sense give numbers that cannot be drawn.
bool isDrawable(const QRectF &rectangle)
{
    return std::isfinite(rectangle.left()) && std::isfinite(rectangle.top()) && std::isfinite(rectangle.right()) &&
           std::isfinite(rectangle.bottom()) && !rectangle.isEmpty();
}

/// Fills whole pixels of the device, so that edges and lines are sharp at any scale.
void fillSharply(QPainter &painter, const QRectF &rectangle, const QColor &color)
{
    if (!isDrawable(rectangle)) {
        return;
    }
    const QTransform toPixels = painter.deviceTransform();
    const QRectF exact = toPixels.mapRect(rectangle);
    const QRectF pixels(QPointF(std::round(exact.left()), std::round(exact.top())),
                        QPointF(std::round(exact.right()), std::round(exact.bottom())));
    painter.fillRect(toPixels.inverted().mapRect(pixels), color);
}

} // namespace

KZPageView::KZPageView(QWidget *parent)
    : QWidget(parent), m_paperSize(windowing::PrintInfo::sharedPrintInfo().paperSize())
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

std::unique_ptr<KZPageView> KZPageView::initWithFrame(const QRectF &frame)
{
    constexpr double growth = windowing::PageDrawing::inset;
    auto view = std::make_unique<KZPageView>();
    view->setFrame(frame.adjusted(-growth, -growth, growth, growth));
    return view;
}

std::unique_ptr<KZPageView> KZPageView::initWithCoder(platform::Coder &coder)
{
    auto view = std::make_unique<KZPageView>();
    windowing::decodeView(*view, coder);
    windowing::PageMargins &margins = view->m_margins;
    if (coder.allowsKeyedCoding()) {
        const float width = coder.decodeFloatForKey(u"width"_s);
        view->m_paperSize = QSizeF(width, coder.decodeFloatForKey(u"height"_s));
        margins.top = coder.decodeFloatForKey(u"topMargin"_s);
        margins.left = coder.decodeFloatForKey(u"leftMargin"_s);
        margins.right = coder.decodeFloatForKey(u"rightMargin"_s);
        margins.bottom = coder.decodeFloatForKey(u"bottomMargin"_s);
        return view;
    }
    view->m_paperSize = QSizeF(0.0, 0.0);
    for (void *item : nonKeyedItems(view->m_paperSize, margins)) {
        coder.decodeValueOfObjCType("f", item);
    }
    return view;
}

void KZPageView::encodeWithCoder(platform::Coder &coder) const
{
    windowing::encodeView(*this, coder);
    if (coder.allowsKeyedCoding()) {
        coder.encodeFloat(static_cast<float>(m_paperSize.width()), u"width"_s);
        coder.encodeFloat(static_cast<float>(m_paperSize.height()), u"height"_s);
        coder.encodeFloat(m_margins.top, u"topMargin"_s);
        coder.encodeFloat(m_margins.left, u"leftMargin"_s);
        coder.encodeFloat(m_margins.right, u"rightMargin"_s);
        coder.encodeFloat(m_margins.bottom, u"bottomMargin"_s);
        return;
    }
    QSizeF paperSize = m_paperSize;
    windowing::PageMargins margins = m_margins;
    for (const void *item : nonKeyedItems(paperSize, margins)) {
        coder.encodeValueOfObjCType("f", item);
    }
}

void KZPageView::setPaperSize(QSizeF size)
{
    m_paperSize = size;
    valueChanged();
}

void KZPageView::setTopMargin(float margin)
{
    m_margins.top = margin;
    valueChanged();
}

void KZPageView::setLeftMargin(float margin)
{
    m_margins.left = margin;
    valueChanged();
}

void KZPageView::setRightMargin(float margin)
{
    m_margins.right = margin;
    valueChanged();
}

void KZPageView::setBottomMargin(float margin)
{
    m_margins.bottom = margin;
    valueChanged();
}

void KZPageView::valueChanged()
{
    update();
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

QRectF KZPageView::frame() const
{
    return windowing::frameOf(*this);
}

void KZPageView::setFrame(const QRectF &frame)
{
    const double side = std::min(frame.width(), frame.height());
    windowing::setFrame(*this, {frame.topLeft(), QSizeF(side, side)});
}

QRectF KZPageView::bounds() const
{
    const QSizeF space = frame().size();
    const double side = std::min(space.width(), space.height());
    return {0.0, 0.0, side, side};
}

QSize KZPageView::sizeHint() const
{
    return {110, 110};
}

QSize KZPageView::minimumSizeHint() const
{
    return {60, 60};
}

void KZPageView::paintEvent(QPaintEvent * /*event*/)
{
    windowing::guardedDisplay(*this, [this] { drawPage(); });
}

void KZPageView::drawPage()
{
    using windowing::PageDrawing;

    const double side = bounds().width();
    const PageDrawing drawing = windowing::pageDrawing({side, side}, m_paperSize, m_margins);
    if (!isDrawable(drawing.paper)) {
        return;
    }

    // The drawing's y grows upward from the lower edge of the square, which stands in the middle of the frame.
    const QRectF space = frame().translated(-geometry().topLeft());
    const QTransform upward(1.0, 0.0, 0.0, -1.0, space.center().x() - side / 2.0, space.center().y() + side / 2.0);
    const auto visible = [this, &upward](const QRectF &rectangle) {
        return upward.mapRect(rectangle).intersected(rect());
    };

    QPainter painter(this);
    const QRectF paper = upward.mapRect(drawing.paper);
    windowing::drawShadow(painter, paper, PageDrawing::paperShadow);
    fillSharply(painter, paper, PageDrawing::paperColor);
    if (drawing.marginBox) {
        fillSharply(painter, visible(drawing.marginBox->bottomLine), PageDrawing::lineColor);
        fillSharply(painter, visible(drawing.marginBox->rightLine), PageDrawing::lineColor);
        fillSharply(painter, visible(drawing.marginBox->tinted), PageDrawing::tintColor);
    }
}

#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/controls/PageDrawing.h>
#include <OrvaneExportKit/platform/Coder.h>

#include <QtWidgets/QWidget>

#include <memory>

/// A small picture of a page for a settings panel: a sheet of paper with a soft shadow, and in it the area that the
/// four margins leave for text. All lengths are points (1/72 inch), and every value is taken as it is; margins that
/// leave no room only hide the area.
///
/// The view draws in a square. `setFrame` makes the view itself square; in a layout it draws in the middle of the
/// space that it gets, in the largest square there. It takes no input. A screen reader reads out the page and its
/// margins in the user's unit, unless the panel gives the view an accessible description of its own.
///
///     auto *page = new KZPageView(panel);
///     page->setPaperSize({842.0, 595.0});
///     page->setTopMargin(36.0F);
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT KZPageView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QSizeF paperSize READ paperSize WRITE setPaperSize DESIGNABLE true)
    Q_PROPERTY(double topMargin READ topMargin WRITE editTopMargin DESIGNABLE true)
    Q_PROPERTY(double leftMargin READ leftMargin WRITE editLeftMargin DESIGNABLE true)
    Q_PROPERTY(double rightMargin READ rightMargin WRITE editRightMargin DESIGNABLE true)
    Q_PROPERTY(double bottomMargin READ bottomMargin WRITE editBottomMargin DESIGNABLE true)

public:
    /// A view of the paper that the shared print settings name, with margins of one inch (72 points), whatever margins
    /// a printer has.
    explicit KZPageView(QWidget *parent = nullptr);

    /// The same in a frame 5 units larger on every side, made square: 90 x 120 at (10, 10) gives 100 x 100 at (5, 5).
    static std::unique_ptr<KZPageView> initWithFrame(const QRectF &frame);

    /// The view that `encodeWithCoder` wrote, in the frame that it had then. Throws what the coder throws.
    static std::unique_ptr<KZPageView> initWithCoder(platform::Coder &coder);

    /// Writes the fields of the view (see `windowing::encodeView`), then the size and the margins as 32-bit floats:
    /// `width`, `height`, `topMargin`, `leftMargin`, `rightMargin`, `bottomMargin`, as a keyed archive calls them, and
    /// in this order.
    ///
    /// An archive without keys does not keep the paper size: its first two numbers are the first four bytes of the
    /// 64-bit width and height, as such archives have always held them. Archives of the same layout are around, so it
    /// stays.
    void encodeWithCoder(platform::Coder &coder) const;

    /// Width and height of the paper, and the margins, in points.
    QSizeF paperSize() const { return m_paperSize; }
    float topMargin() const { return m_margins.top; }
    float leftMargin() const { return m_margins.left; }
    float rightMargin() const { return m_margins.right; }
    float bottomMargin() const { return m_margins.bottom; }

    /// Each of them draws the view anew, also for the value that it has already.
    void setPaperSize(QSizeF size);
    void setTopMargin(float margin);
    void setLeftMargin(float margin);
    void setRightMargin(float margin);
    void setBottomMargin(float margin);

    /// Where the view stands in its parent, as it was given to `setFrame` or by a layout.
    QRectF frame() const;

    /// Moves the view, and makes it square: the longer side becomes as short as the other, the origin stays.
    void setFrame(const QRectF &frame);

    /// The square that the view draws in, with its origin at (0, 0).
    QRectF bounds() const;

    /// The panel shows through around the paper.
    bool isOpaque() const { return false; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // Properties are double, since Qt Designer lists none that are float.
    void editTopMargin(double margin) { setTopMargin(static_cast<float>(margin)); }
    void editLeftMargin(double margin) { setLeftMargin(static_cast<float>(margin)); }
    void editRightMargin(double margin) { setRightMargin(static_cast<float>(margin)); }
    void editBottomMargin(double margin) { setBottomMargin(static_cast<float>(margin)); }
    void valueChanged();
    void drawPage();

    QSizeF m_paperSize;
    windowing::PageMargins m_margins;
};

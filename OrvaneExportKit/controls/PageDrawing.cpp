#include <OrvaneExportKit/controls/PageDrawing.h>

#include <algorithm>

namespace windowing {

namespace {

constexpr double lineWidth = 1.0;

/// The paper in the view, and the units of the view that a point of paper takes.
struct FittedPaper {
    QRectF paper;
    double scale = 1.0;
};

FittedPaper fittedPaper(QSizeF bounds, QSizeF paperSize)
{
    constexpr double inset = PageDrawing::inset;
    if (paperSize.width() > paperSize.height()) {
        const double side = bounds.width() - 2.0 * inset;
        const double height = side * paperSize.height() / paperSize.width();
        return {{inset, (side - height) * 0.5 + inset, side, height}, side / paperSize.width()};
    }
    const double side = bounds.height() - 2.0 * inset;
    const double width = side * paperSize.width() / paperSize.height();
    return {{(side - width) * 0.5 + inset, inset, width, side}, side / paperSize.height()};
}

/// Cuts a line off the lower edge of the area (the first one of `QRectF`, since y grows upward).
QRectF cutOffBottomLine(QRectF &area)
{
    const double height = std::min(lineWidth, area.height());
    const QRectF line(area.x(), area.y(), area.width(), height);
    area.setTop(area.top() + height);
    return line;
}

QRectF cutOffRightLine(QRectF &area)
{
    const double width = std::min(lineWidth, area.width());
    const QRectF line(area.right() - width, area.y(), width, area.height());
    area.setRight(area.right() - width);
    return line;
}

} // namespace

PageDrawing pageDrawing(QSizeF bounds, QSizeF paperSize, const PageMargins &margins)
{
    const auto [paper, scale] = fittedPaper(bounds, paperSize);
    PageDrawing drawing{paper, {}};
    const float horizontal = margins.left + margins.right;
    if (paperSize.width() > horizontal && paperSize.height() > margins.top + margins.bottom) {
        const auto narrowScale = static_cast<float>(scale);
        QRectF area(paper.x() + margins.left * narrowScale, paper.y() + narrowScale * margins.bottom,
                    paper.width() - horizontal * narrowScale,
                    paper.height() - (margins.bottom + margins.top) * narrowScale);
        const QRectF bottomLine = cutOffBottomLine(area);
        const QRectF rightLine = cutOffRightLine(area);
        drawing.marginBox = {bottomLine, rightLine, area};
    }
    return drawing;
}

} // namespace windowing

#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/windowing/Shadow.h>

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QColor>

#include <optional>

/// \file
/// For use on the application's main thread.

namespace windowing {

/// The margins of a page in points.
struct PageMargins {
    float top = 72.0F;    ///< from the upper edge of the paper
    float left = 72.0F;   ///< from its left edge
    float right = 72.0F;  ///< from its right edge
    float bottom = 72.0F; ///< from its lower edge
};

/// Where a page view draws what, in its own units with y growing upward.
struct PageDrawing {
    /// The text area inside the margins: a line along its lower edge, then one along the right edge of what is left,
    /// then a tint over the rest.
    struct MarginBox {
        QRectF bottomLine; ///< along the lower edge
        QRectF rightLine;  ///< along the right edge, above the lower line
        QRectF tinted;     ///< what the two lines leave
    };

    /// The free border around the fitted side of the paper.
    static constexpr double inset = 5.0;

    /// What paper, lines, tint and shadow are drawn with.
    inline static const QColor paperColor = QColor::fromRgbF(0.97F, 0.97F, 0.97F);
    inline static const QColor lineColor = QColor::fromRgbF(2.0F / 3.0F, 2.0F / 3.0F, 2.0F / 3.0F);
    inline static const QColor tintColor = QColor::fromRgbF(0.6F, 0.6F, 0.6F, 0.2F);
    inline static const Shadow paperShadow{QSizeF(0.0, -2.5), 4.0};

    QRectF paper;                       ///< the whole sheet
    std::optional<MarginBox> marginBox; ///< only where the margins leave room
};

/// The drawing of a page in the bounds of a view. The bounds should be square: along the paper's shorter side it is
/// centred by their other side. A paper without width or height gives numbers that are not finite.
ORVANE_KIT_EXPORT PageDrawing pageDrawing(QSizeF bounds, QSizeF paperSize, const PageMargins &margins);

} // namespace windowing

#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QColor>

class QPainter;

/// \file
/// For use on the application's main thread.

namespace windowing {

/// The soft shadow of what is drawn.
struct Shadow {
    /// How far the shadow lies to the right of and above what throws it; a negative height is below.
    QSizeF offset;

    /// How far the shadow's edge blurs to either side, 0 or more.
    double blurRadius = 0.0;

    /// Black, a third of it opaque, at first.
    QColor color = QColor::fromRgbF(0.0F, 0.0F, 0.0F, 1.0F / 3.0F);

    friend bool operator==(const Shadow &, const Shadow &) = default;
};

/// Draws the shadow that a filled rectangle throws, without the rectangle, in the pixels of the device. The painter may
/// be scaled, but not turned.
///
///     drawShadow(*painter, paper, {QSizeF(0.0, -2.5), 4.0});   // 2.5 units below the paper
ORVANE_KIT_EXPORT void drawShadow(QPainter &painter, const QRectF &rectangle, const Shadow &shadow);

} // namespace windowing

#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QRectF>
#include <QtWidgets/QWidget>

/// \file
/// For use on the application's main thread.

namespace windowing {

/// Where a widget stands in its parent, in parts of a pixel too: the frame that it was given last with `setFrame`, or
/// its geometry when a layout has moved or resized it since.
ORVANE_KIT_EXPORT QRectF frameOf(const QWidget &widget);

/// Gives a widget the smallest geometry around the frame, and remembers the frame.
///
///     windowing::setFrame(*field, {20.0, 20.0, 150.5, 22.0});
ORVANE_KIT_EXPORT void setFrame(QWidget &widget, const QRectF &frame);

} // namespace windowing

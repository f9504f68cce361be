#pragma once

#include <QtGui/QImage>
#include <QtWidgets/QWidget>

namespace support {

/// The widget as it draws itself over a background, in so many pixels for a unit of length.
inline QImage rendered(QWidget &widget, double devicePixelRatio, const QColor &background)
{
    QImage image((QSizeF(widget.size()) * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(background);
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

} // namespace support

#include <OrvaneExportKit/windowing/Frames.h>

#include <QtCore/QVariant>

namespace windowing {

namespace {

constexpr const char *frameProperty = "_windowing_frame";

} // namespace

QRectF frameOf(const QWidget &widget)
{
    const QRectF frame = widget.property(frameProperty).toRectF();
    return frame.toAlignedRect() == widget.geometry() ? frame : QRectF(widget.geometry());
}

void setFrame(QWidget &widget, const QRectF &frame)
{
    widget.setProperty(frameProperty, frame);
    widget.setGeometry(frame.toAlignedRect());
}

} // namespace windowing

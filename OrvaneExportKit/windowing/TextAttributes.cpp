#include <OrvaneExportKit/windowing/TextAttributes.h>

#include <QtGui/QBrush>
#include <QtGui/QColor>
#include <QtGui/QFont>

namespace windowing {

QTextCharFormat characterFormat(const QVariantMap &attributes)
{
    QTextCharFormat format;
    const QVariant font = attributes.value(fontAttributeName);
    if (font.metaType() == QMetaType::fromType<QFont>()) {
        format.setFont(font.value<QFont>());
    }
    const QVariant foreground = attributes.value(foregroundColorAttributeName);
    if (foreground.metaType() == QMetaType::fromType<QColor>()) {
        format.setForeground(foreground.value<QColor>());
    }
    const QVariant background = attributes.value(backgroundColorAttributeName);
    if (background.metaType() == QMetaType::fromType<QColor>()) {
        format.setBackground(background.value<QColor>());
    }
    if (attributes.value(underlineStyleAttributeName).toInt() != 0) {
        format.setFontUnderline(true);
    }
    if (attributes.value(strikethroughStyleAttributeName).toInt() != 0) {
        format.setFontStrikeOut(true);
    }
    return format;
}

} // namespace windowing

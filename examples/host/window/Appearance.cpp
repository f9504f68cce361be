#include "Appearance.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x3E, 0x40, 0x45), QColor(0x34, 0x35, 0x39));
    palette.setColor(QPalette::Base, QColor(0x1B, 0x1C, 0x1F));
    palette.setColor(QPalette::AlternateBase, QColor(0x24, 0x25, 0x29));
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7A, 0xB8, 0xF5));
    palette.setColor(QPalette::PlaceholderText, QColor(0xA0, 0xA2, 0xA8));
    const QColor disabled(0x98, 0x9A, 0xA0);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, disabled);
    }
    return palette;
}

} // namespace

void useDarkPalette(bool dark)
{
    static const QString desktopStyle = QApplication::style()->name();
    QApplication::setStyle(dark ? u"Fusion"_s : desktopStyle); // the one style that takes all colours from the palette
    QApplication::setPalette(dark ? darkPalette() : QPalette());
}

} // namespace host

#pragma once

#include <QtGui/QPalette>

inline QPalette darkPalette()
{
    QPalette palette(QColor(0x4A, 0x4A, 0x4E), QColor(0x35, 0x35, 0x38));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x28, 0x2B));
    palette.setColor(QPalette::Highlight, QColor(0x3D, 0x7A, 0xB8));
    return palette;
}

#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QString>

/// \file
/// Attributed texts written as two strings of equal length: the units, and below each of them the one-letter value of
/// its attribute "style", or a dot where it has none.

namespace support {

/// The name of the attribute.
inline const QString styleName = QStringLiteral("style");

/// The text with these styles.
///
///     styled(u"bold and plain"_s, u"bbbb..........");
inline platform::AttributedString styled(const QString &units, QStringView styles)
{
    platform::AttributedString text(units);
    for (qsizetype i = 0; i < styles.size(); ++i) {
        if (styles[i] != u'.') {
            text.addAttributes({{styleName, QString(styles[i])}}, {static_cast<std::size_t>(i), 1});
        }
    }
    return text;
}

/// The styles of a text, the other way round.
inline QString stylesOf(const platform::AttributedString &text)
{
    QString styles;
    for (std::size_t i = 0; i < text.length(); ++i) {
        const QVariantMap attributes = text.attributesAtIndex(i);
        styles += attributes.value(styleName, QStringLiteral(".")).toString();
    }
    return styles;
}

} // namespace support

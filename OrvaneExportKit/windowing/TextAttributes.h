#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QLatin1StringView>
#include <QtCore/QVariant>
#include <QtGui/QTextCharFormat>

/// \file
/// The attributes of texts that show on the screen, by the names that documents know them under.
///
/// For use on the application's main thread.

namespace windowing {

inline constexpr QLatin1StringView fontAttributeName("NSFont");                        ///< a `QFont`
inline constexpr QLatin1StringView foregroundColorAttributeName("NSColor");            ///< a `QColor`
inline constexpr QLatin1StringView backgroundColorAttributeName("NSBackgroundColor");  ///< a `QColor`
inline constexpr QLatin1StringView underlineStyleAttributeName("NSUnderline");         ///< a number, 0 for no line
inline constexpr QLatin1StringView strikethroughStyleAttributeName("NSStrikethrough"); ///< a number, 0 for no line
inline constexpr QLatin1StringView paragraphStyleAttributeName("NSParagraphStyle");    ///< a `ParagraphStyle`

/// The look that the attributes give characters. Attributes without a look, and values of another type, are left out.
///
///     characterFormat({{underlineStyleAttributeName, 1}}).fontUnderline();   // true
ORVANE_KIT_EXPORT QTextCharFormat characterFormat(const QVariantMap &attributes);

} // namespace windowing

#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>
#include <QtGui/QFont>

namespace windowing {

/// Fonts by the names that documents and settings keep them under: family and style without blanks, joined by a
/// hyphen, as in "DejaVuSans-BoldOblique". A plain style has no name: "DejaVuSans".
///
/// Needs a `QGuiApplication`.
///
/// For use on the application's main thread.
struct ORVANE_KIT_EXPORT Font {
    /// The name that documents know the font by. Archives keep a plain style, too, where the font was named with one
    /// ("Menlo-Regular").
    static QString fontName(const QFont &font);

    /// The name that people know the font by: "DejaVu Sans Bold Oblique".
    static QString displayName(const QFont &font);

    /// The size in points, also of a font whose size is given in pixels.
    static double pointSize(const QFont &font);

    /// The font with this name, in points above 0. A font that is not installed is described as well as its name
    /// does, so that it keeps its name and a similar font stands in for it on the screen.
    ///
    ///     Font::fontWithName(u"Helvetica-BoldOblique"_s, 12.0);
    static QFont fontWithName(const QString &name, double size);

    /// Whether the font's family is installed under its own name. Where it is not, another family stands in for it on
    /// the screen.
    static bool isInstalled(const QFont &font);

    /// The style of an installed family that comes closest to a font: one that slants as it does, then the nearest
    /// weight. Empty for a family without styles.
    ///
    ///     Font::closestStyle(u"DejaVu Sans"_s, Font::fontWithName(u"Times-Bold"_s, 12.0));   // its bold style
    static QString closestStyle(const QString &family, const QFont &font);

    /// The font that the user's texts have at first: the system's general font, in points above 0.
    static QFont userFontOfSize(double size);
};

} // namespace windowing

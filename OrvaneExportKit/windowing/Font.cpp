#include <OrvaneExportKit/windowing/Font.h>

#include <QtCore/QStringList>
#include <QtGui/QFontDatabase>
#include <QtGui/QFontInfo>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

struct WeightName {
    QLatin1StringView name;
    QFont::Weight weight;
};

/// The names of weights inside the names of styles. A longer name stands before the one that it ends in, and of several
/// names for a weight the first is the one that is written.
constexpr std::array weightNames{
    WeightName{QLatin1StringView("Thin"), QFont::Thin},
    WeightName{QLatin1StringView("Hairline"), QFont::Thin},
    WeightName{QLatin1StringView("ExtraLight"), QFont::ExtraLight},
    WeightName{QLatin1StringView("UltraLight"), QFont::ExtraLight},
    WeightName{QLatin1StringView("Light"), QFont::Light},
    WeightName{QLatin1StringView("Medium"), QFont::Medium},
    WeightName{QLatin1StringView("SemiBold"), QFont::DemiBold},
    WeightName{QLatin1StringView("DemiBold"), QFont::DemiBold},
    WeightName{QLatin1StringView("ExtraBold"), QFont::ExtraBold},
    WeightName{QLatin1StringView("UltraBold"), QFont::ExtraBold},
    WeightName{QLatin1StringView("Bold"), QFont::Bold},
    WeightName{QLatin1StringView("Black"), QFont::Black},
    WeightName{QLatin1StringView("Heavy"), QFont::Black},
};

QString withoutBlanks(const QString &text)
{
    return QString(text).remove(u' ');
}

bool isPlainStyle(const QString &style)
{
    return style == u"Regular" || style == u"Normal" || style == u"Book";
}

/// The name of a font's style, empty for a plain one. Not from Qt, which translates it.
QString styleName(const QFont &font)
{
    if (!font.styleName().isEmpty()) {
        return isPlainStyle(font.styleName()) ? QString() : font.styleName();
    }
    QStringList words;
    for (const WeightName &entry : weightNames) {
        if (entry.weight == font.weight()) {
            words.append(entry.name);
            break;
        }
    }
    if (font.style() == QFont::StyleItalic) {
        words.append(u"Italic"_s);
    } else if (font.style() == QFont::StyleOblique) {
        words.append(u"Oblique"_s);
    }
    return words.join(u' ');
}

/// The installed family, or style of a family, with this name in documents; null if there is none.
QString installed(const QStringList &names, const QString &nameInDocuments)
{
    for (const QString &name : names) {
        if (withoutBlanks(name) == nameInDocuments) {
            return name;
        }
    }
    return {};
}

/// How far a style of a family looks from a font, the weightiest difference first. Of styles that differ in width alone
/// ("Bold", "Condensed Bold") the plain one has the shorter name.
std::tuple<bool, int, qsizetype> distance(const QString &family, const QString &style, const QFont &font)
{
    const auto isSlanted = [](const QFont &slanted) {
        return slanted.style() != QFont::StyleNormal;
    };
    const QFont styled = QFontDatabase::font(family, style, 1);
    return {isSlanted(styled) != isSlanted(font), std::abs(styled.weight() - font.weight()), style.size()};
}

/// A font that is not installed, or not in this style.
QFont describedFont(const QString &family, const QString &style)
{
    QFont font(family);
    for (const WeightName &entry : weightNames) {
        if (style.contains(entry.name, Qt::CaseInsensitive)) {
            font.setWeight(entry.weight);
            break;
        }
    }
    if (style.contains(u"Italic")) {
        font.setStyle(QFont::StyleItalic);
    } else if (style.contains(u"Oblique")) {
        font.setStyle(QFont::StyleOblique);
    }
    font.setStyleName(style);
    return font;
}

} // namespace

QString Font::fontName(const QFont &font)
{
    const QString style = withoutBlanks(styleName(font));
    return withoutBlanks(font.family()) + (style.isEmpty() ? style : u'-' + style);
}

QString Font::displayName(const QFont &font)
{
    const QString style = styleName(font);
    return font.family() + (style.isEmpty() ? style : u' ' + style);
}

double Font::pointSize(const QFont &font)
{
    return font.pointSizeF() > 0.0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

QFont Font::fontWithName(const QString &name, double size)
{
    const QStringList families = QFontDatabase::families();
    const QString wholeName = installed(families, name);
    const qsizetype hyphen = wholeName.isNull() ? name.lastIndexOf(u'-') : -1;
    const QString familyPart = hyphen < 0 ? name : name.left(hyphen);
    const QString stylePart = hyphen < 0 ? QString() : name.mid(hyphen + 1);

    const QString family = installed(families, familyPart);
    const QString style = family.isNull() ? QString() : installed(QFontDatabase::styles(family), stylePart);
    QFont font = style.isEmpty() ? describedFont(family.isNull() ? familyPart : family, stylePart)
                                 : QFontDatabase::font(family, style, 1);
    font.setPointSizeF(size);
    return font;
}

bool Font::isInstalled(const QFont &font)
{
    const QString family = font.family();
    const QStringList families = QFontDatabase::families();
    return std::any_of(families.begin(), families.end(), [&family](const QString &installedFamily) {
        return installedFamily.compare(family, Qt::CaseInsensitive) == 0 ||
               installedFamily.startsWith(family + " ["_L1, Qt::CaseInsensitive); // one of several makers
    });
}

QString Font::closestStyle(const QString &family, const QFont &font)
{
    const QStringList styles = QFontDatabase::styles(family);
    const auto closest = std::min_element(styles.begin(), styles.end(), [&](const QString &a, const QString &b) {
        return distance(family, a, font) < distance(family, b, font);
    });
    return closest == styles.end() ? QString() : *closest;
}

QFont Font::userFontOfSize(double size)
{
    const QFontInfo general(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    QFont font(general.family());
    font.setPointSizeF(size);
    return font;
}

} // namespace windowing

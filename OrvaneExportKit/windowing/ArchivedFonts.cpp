#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/windowing/Font.h>

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

constexpr double usualSize = 12.0; // of a font whose archive says 0 or nothing
constexpr qint64 flagsOfPlainFont = 16;

/// Nothing without a name or with a size that no font can have.
QVariant fontWithFields(const QVariant &name, double size)
{
    if (name.metaType() != QMetaType::fromType<QString>() || name.toString().isEmpty() || !std::isfinite(size) ||
        size < 0.0) {
        return {};
    }
    return Font::fontWithName(name.toString(), size > 0.0 ? size : usualSize);
}

/// The name of the font as an archive spells it: with a plain style where the font was named with one.
QString archivedName(const QFont &font)
{
    const QString name = Font::fontName(font);
    const QString style = u'-' + font.styleName().remove(u' ');
    return font.styleName().isEmpty() || name.endsWith(style) ? name : name + style;
}

QVariant decodeFont(platform::Coder &coder)
{
    return fontWithFields(coder.decodeObjectForKey(u"NSName"_s), coder.decodeDoubleForKey(u"NSSize"_s));
}

void encodeFont(const QVariant &object, platform::Coder &coder)
{
    const auto font = object.value<QFont>();
    coder.encodeObject(archivedName(font), u"NSName"_s);
    coder.encodeDouble(Font::pointSize(font), u"NSSize"_s);
    coder.encodeInt64(flagsOfPlainFont, u"NSfFlags"_s);
}

QVariant decodeFontDescriptor(platform::Coder &coder)
{
    const QVariantMap attributes = coder.decodeObjectForKey(u"NSFontDescriptorAttributes"_s).toMap();
    const QVariant name = attributes.value(u"NSFontNameAttribute"_s, attributes.value(u"NSFontFamilyAttribute"_s));
    return fontWithFields(name, attributes.value(u"NSFontSizeAttribute"_s).toDouble());
}

void registerFonts()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration descriptor(
        {{u"NSFontDescriptor"_s, u"NSObject"_s}, QMetaType::fromType<QFont>(), {}, decodeFontDescriptor});
    static const platform::ArchivedClassRegistration font(
        {{u"NSFont"_s, u"NSObject"_s}, QMetaType::fromType<QFont>(), encodeFont, decodeFont});
}
Q_COREAPP_STARTUP_FUNCTION(registerFonts)

} // namespace

} // namespace windowing

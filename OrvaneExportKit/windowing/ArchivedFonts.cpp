#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/Font.h>

#include <QtGui/QFont>
#include <QtGui/QGuiApplication>

#include <cmath>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

constexpr double usualSize = 12.0; // of a font whose archive says 0 or nothing
constexpr qint64 flagsOfPlainFont = 16;

QFont fontWithFields(const char *className, const QVariant &name, double size)
{
    if (name.metaType() != QMetaType::fromType<QString>() || name.toString().isEmpty()) {
        throw platform::ArchiveException(std::string(className) + ": the font's name is missing or no string");
    }
    if (!std::isfinite(size) || size < 0.0) {
        throw platform::ArchiveException(std::string(className) + ": a font cannot have the size " +
                                         std::to_string(size));
    }
    return Font::fontWithName(name.toString(), size > 0.0 ? size : usualSize);
}

QVariant decodeFont(platform::Coder &coder)
{
    return fontWithFields("NSFont", coder.decodeObjectForKey(u"NSName"_s), coder.decodeDoubleForKey(u"NSSize"_s));
}

void encodeFont(const QVariant &object, platform::Coder &coder)
{
    const auto font = object.value<QFont>();
    coder.encodeObject(Font::fontName(font), u"NSName"_s);
    coder.encodeDouble(Font::pointSize(font), u"NSSize"_s);
    coder.encodeInt64(flagsOfPlainFont, u"NSfFlags"_s);
}

QVariant decodeFontDescriptor(platform::Coder &coder)
{
    const QVariantMap attributes = coder.decodeObjectForKey(u"NSFontDescriptorAttributes"_s).toMap();
    const QVariant name = attributes.value(u"NSFontNameAttribute"_s, attributes.value(u"NSFontFamilyAttribute"_s));
    return fontWithFields("NSFontDescriptor", name, attributes.value(u"NSFontSizeAttribute"_s).toDouble());
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

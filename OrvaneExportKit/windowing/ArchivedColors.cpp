#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/windowing/Shadow.h>

#include <QtGui/QColor>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace windowing {

namespace {

/// What the components of an archived colour mean.
enum class ColorSpace {
    CalibratedRgb = 1,
    DeviceRgb = 2,
    CalibratedWhite = 3,
    DeviceWhite = 4,
    DeviceCmyk = 5,
    Catalog = 6,
    Pattern = 10,
};

/// The components of a colour, the alpha last and 1 where the archive leaves it out.
template <std::size_t Count>
std::array<float, Count + 1> components(platform::Coder &coder, const QStringList &keys)
{
    const auto key = std::ranges::find_if(keys, [&coder](const QString &k) { return coder.containsValueForKey(k); });
    if (key == keys.end()) {
        throw platform::ArchiveException("NSColor: `" + keys.first().toStdString() + "` is missing");
    }
    QByteArray text = coder.decodeBytesForKey(*key);
    if (text.endsWith('\0')) {
        text.chop(1);
    }
    const QList<QByteArray> words = text.simplified().split(' ');
    std::array<float, Count + 1> numbers{};
    numbers.back() = 1.0F;
    bool areNumbers = words.size() == Count || words.size() == Count + 1;
    for (qsizetype i = 0; areNumbers && i < words.size(); ++i) {
        const float number = words[i].toFloat(&areNumbers);
        areNumbers = areNumbers && std::isfinite(number);
        numbers[static_cast<std::size_t>(i)] = std::clamp(number, 0.0F, 1.0F);
    }
    if (!areNumbers) {
        throw platform::ArchiveException("NSColor: `" + key->toStdString() + "` holds \"" + text.toStdString() +
                                         "\" instead of " + std::to_string(Count) + " numbers, or one more");
    }
    return numbers;
}

QVariant decodeColor(platform::Coder &coder)
{
    const qint64 space = coder.decodeInt64ForKey(u"NSColorSpace"_s);
    switch (ColorSpace(space)) {
    case ColorSpace::CalibratedRgb:
    case ColorSpace::DeviceRgb: {
        const auto [red, green, blue, alpha] = components<3>(coder, {u"NSRGB"_s, u"NSComponents"_s});
        return QColor::fromRgbF(red, green, blue, alpha);
    }
    case ColorSpace::CalibratedWhite:
    case ColorSpace::DeviceWhite: {
        const auto [white, alpha] = components<1>(coder, {u"NSWhite"_s, u"NSComponents"_s});
        return QColor::fromRgbF(white, white, white, alpha);
    }
    case ColorSpace::DeviceCmyk: {
        const auto [cyan, magenta, yellow, black, alpha] =
            components<4>(coder, {u"NSCMYK"_s, u"NSCYMK"_s, u"NSComponents"_s});
        return QColor::fromCmykF(cyan, magenta, yellow, black, alpha);
    }
    case ColorSpace::Catalog: {
        // The colour of that name may be another one here; an archive without the colour itself keeps its object.
        const QVariant color = coder.decodeObjectForKey(u"NSColor"_s);
        return color.metaType() == QMetaType::fromType<QColor>() ? color : QVariant();
    }
    case ColorSpace::Pattern:
        return {}; // an image, no colour
    }
    throw platform::ArchiveException("NSColor: `NSColorSpace` is " + std::to_string(space) + ", which is none");
}

/// The shortest decimals that read as the same numbers, parted by blanks and ended by a NUL.
QByteArray componentText(std::initializer_list<float> numbers)
{
    QByteArray text;
    for (const float number : numbers) {
        std::array<char, 32> digits{};
        const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
        text += (text.isEmpty() ? "" : " ") + QByteArray(digits.data(), end.ptr - digits.data());
    }
    return text + '\0';
}

void encodeColor(const QVariant &object, platform::Coder &coder)
{
    const auto color = object.value<QColor>();
    if (!color.isValid()) {
        throw platform::InvalidArgumentException("NSColor: an invalid colour cannot be archived");
    }
    const float alpha = color.alphaF();
    if (color.spec() == QColor::Cmyk) {
        coder.encodeInt64(qint64(ColorSpace::DeviceCmyk), u"NSColorSpace"_s);
        coder.encodeBytes(componentText({color.cyanF(), color.magentaF(), color.yellowF(), color.blackF(), alpha}),
                          u"NSCMYK"_s);
        return;
    }
    coder.encodeInt64(qint64(ColorSpace::CalibratedRgb), u"NSColorSpace"_s);
    coder.encodeBytes(alpha < 1.0F ? componentText({color.redF(), color.greenF(), color.blueF(), alpha})
                                   : componentText({color.redF(), color.greenF(), color.blueF()}),
                      u"NSRGB"_s);
}

void encodeShadow(const QVariant &object, platform::Coder &coder)
{
    const auto shadow = object.value<Shadow>();
    coder.encodeDouble(shadow.blurRadius, u"NSShadowBlurRadius"_s);
    coder.encodeDouble(shadow.offset.width(), u"NSShadowHoriz"_s);
    coder.encodeDouble(shadow.offset.height(), u"NSShadowVert"_s);
    coder.encodeObject(shadow.color, u"NSShadowColor"_s);
}

QVariant decodeShadow(platform::Coder &coder)
{
    Shadow shadow;
    shadow.blurRadius = coder.decodeDoubleForKey(u"NSShadowBlurRadius"_s);
    shadow.offset = {coder.decodeDoubleForKey(u"NSShadowHoriz"_s), coder.decodeDoubleForKey(u"NSShadowVert"_s)};
    const QVariant color = coder.decodeObjectForKey(u"NSShadowColor"_s);
    if (color.metaType() == QMetaType::fromType<QColor>()) {
        shadow.color = color.value<QColor>();
    }
    return QVariant::fromValue(shadow);
}

void registerColors()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr) {
        return;
    }
    static const platform::ArchivedClassRegistration color(
        {{u"NSColor"_s, u"NSObject"_s}, QMetaType::fromType<QColor>(), encodeColor, decodeColor});
    static const platform::ArchivedClassRegistration shadow(
        {{u"NSShadow"_s, u"NSObject"_s}, QMetaType::fromType<Shadow>(), encodeShadow, decodeShadow});
}
Q_COREAPP_STARTUP_FUNCTION(registerColors)

} // namespace

} // namespace windowing

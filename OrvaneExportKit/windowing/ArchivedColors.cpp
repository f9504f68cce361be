#include <OrvaneExportKit/platform/ArchivedClass.h>
#include <OrvaneExportKit/platform/Coder.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/KeyedObject.h>
#include <OrvaneExportKit/windowing/ColorSpaces.h>
#include <OrvaneExportKit/windowing/Shadow.h>

#include <QtGui/QColor>
#include <QtGui/QColorSpace>
#include <QtGui/QGuiApplication>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <vector>

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

/// What `NSID` of an archived colour space says of it; other spaces have a profile.
constexpr qint64 idOfSrgb = 7;

/// What `NSModel` says of spaces with red, green and blue.
constexpr qint64 rgbModel = 1;

/// Profiles of screens are smaller; a larger one would be read anew for each of its colours.
constexpr qsizetype largestProfile = 32768;

/// The space in which the components of a colour are exact; written, never read.
struct ScreenSpace {
};

/// The numbers in a field, the alpha last and 1 where the archive leaves it out; nothing when it holds anything else.
template <std::size_t Count>
std::optional<std::array<float, Count + 1>> numbers(platform::Coder &coder, const QString &key)
{
    QByteArray text = coder.decodeBytesForKey(key);
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
        numbers[static_cast<std::size_t>(i)] = number;
    }
    return areNumbers ? std::optional(numbers) : std::nullopt;
}

/// The numbers in the first of these fields that the archive has, held to 0 to 1.
template <std::size_t Count>
std::optional<std::array<float, Count + 1>> components(platform::Coder &coder, const QStringList &keys)
{
    const auto key = std::ranges::find_if(keys, [&coder](const QString &k) { return coder.containsValueForKey(k); });
    auto found = key == keys.end() ? std::nullopt : numbers<Count>(coder, *key);
    if (found) {
        std::ranges::transform(*found, found->begin(), [](float number) { return std::clamp(number, 0.0F, 1.0F); });
    }
    return found;
}

/// The space of `NSComponents`; none where the archive does not say it, or Qt does not know it.
std::optional<QColorSpace> customSpace(platform::Coder &coder)
{
    const auto space = coder.decodeObjectForKey(u"NSCustomColorSpace"_s).value<platform::KeyedObject>();
    if (space.className() != u"NSColorSpace") {
        return std::nullopt;
    }
    const QByteArray profile = space.value(u"NSICC"_s).toByteArray();
    if (!profile.isEmpty() && profile.size() <= largestProfile) {
        const QColorSpace read = QColorSpace::fromIccProfile(profile);
        if (read.isValid()) {
            return read;
        }
    }
    return space.value(u"NSID"_s) == idOfSrgb ? std::optional(QColorSpace(QColorSpace::SRgb)) : std::nullopt;
}

/// The exact components in the space that the archive names, or else the usual ones.
std::optional<QColor> decodeRgb(platform::Coder &coder, ColorSpace colorSpace)
{
    const std::optional<QColorSpace> space = customSpace(coder);
    const auto exact = space ? numbers<3>(coder, u"NSComponents"_s) : std::nullopt;
    if (const auto color = exact ? colorFromSpace(*space, *exact) : std::nullopt) {
        return color;
    }
    const auto usual = components<3>(coder, {u"NSRGB"_s, u"NSComponents"_s});
    const bool isGeneric = colorSpace == ColorSpace::CalibratedRgb;
    return usual ? colorFromSpace(isGeneric ? genericRgb() : QColorSpace(QColorSpace::SRgb), *usual) : std::nullopt;
}

std::optional<QColor> decodeWhite(platform::Coder &coder)
{
    const auto numbers = components<1>(coder, {u"NSWhite"_s, u"NSComponents"_s});
    return numbers ? std::optional(QColor::fromRgbF((*numbers)[0], (*numbers)[0], (*numbers)[0], (*numbers)[1]))
                   : std::nullopt;
}

std::optional<QColor> decodeCmyk(platform::Coder &coder)
{
    const auto numbers = components<4>(coder, {u"NSCMYK"_s, u"NSCYMK"_s, u"NSComponents"_s});
    return numbers ? std::optional(
                         QColor::fromCmykF((*numbers)[0], (*numbers)[1], (*numbers)[2], (*numbers)[3], (*numbers)[4]))
                   : std::nullopt;
}

/// The colour of that name may be another one here, so only one that the archive holds itself is meant.
std::optional<QColor> decodeCatalog(platform::Coder &coder)
{
    const QVariant color = coder.decodeObjectForKey(u"NSColor"_s);
    return color.metaType() == QMetaType::fromType<QColor>() ? std::optional(color.value<QColor>()) : std::nullopt;
}

std::optional<QColor> decodedColor(platform::Coder &coder)
{
    const auto space = ColorSpace(coder.decodeInt64ForKey(u"NSColorSpace"_s));
    switch (space) {
    case ColorSpace::CalibratedRgb:
    case ColorSpace::DeviceRgb:
        return decodeRgb(coder, space);
    case ColorSpace::CalibratedWhite:
    case ColorSpace::DeviceWhite:
        return decodeWhite(coder);
    case ColorSpace::DeviceCmyk:
        return decodeCmyk(coder);
    case ColorSpace::Catalog:
        return decodeCatalog(coder);
    case ColorSpace::Pattern:
        break; // an image, no colour
    }
    return std::nullopt;
}

QVariant decodeColor(platform::Coder &coder)
{
    const std::optional<QColor> color = decodedColor(coder);
    return color ? QVariant(*color) : QVariant();
}

/// The shortest decimals that read as the same numbers, parted by blanks.
QByteArray componentText(const std::vector<float> &numbers)
{
    QByteArray text;
    for (const float number : numbers) {
        std::array<char, 32> digits{};
        const std::to_chars_result end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
        text += (text.isEmpty() ? "" : " ") + QByteArray(digits.data(), end.ptr - digits.data());
    }
    return text;
}

/// The components that every reader knows, ended by a NUL.
void encodeUsualComponents(platform::Coder &coder, std::vector<float> numbers, float alpha, const QString &key)
{
    if (alpha < 1.0F) {
        numbers.push_back(alpha);
    }
    coder.encodeBytes(componentText(numbers) + '\0', key);
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
        coder.encodeBytes(componentText({color.cyanF(), color.magentaF(), color.yellowF(), color.blackF(), alpha}) +
                              '\0',
                          u"NSCMYK"_s);
        return;
    }
    const auto [red, green, blue] = componentsInSpace(genericRgb(), color);
    coder.encodeInt64(qint64(ColorSpace::CalibratedRgb), u"NSColorSpace"_s);
    encodeUsualComponents(coder, {red, green, blue}, alpha, u"NSRGB"_s);
    coder.encodeBytes(componentText({color.redF(), color.greenF(), color.blueF(), alpha}), u"NSComponents"_s);
    coder.encodeObject(QVariant::fromValue(ScreenSpace()), u"NSCustomColorSpace"_s);
}

void encodeScreenSpace(const QVariant & /*space*/, platform::Coder &coder)
{
    coder.encodeInt64(idOfSrgb, u"NSID"_s);
    coder.encodeInt64(rgbModel, u"NSModel"_s);
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
    if (color.isValid() && color.metaType() != QMetaType::fromType<QColor>()) {
        return {};
    }
    if (color.isValid()) {
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
    static const platform::ArchivedClassRegistration space(
        {{u"NSColorSpace"_s, u"NSObject"_s}, QMetaType::fromType<ScreenSpace>(), encodeScreenSpace, {}});
    static const platform::ArchivedClassRegistration shadow(
        {{u"NSShadow"_s, u"NSObject"_s}, QMetaType::fromType<Shadow>(), encodeShadow, decodeShadow});
}
Q_COREAPP_STARTUP_FUNCTION(registerColors)

} // namespace

} // namespace windowing

#include <OrvaneExportKit/windowing/ColorSpaces.h>

#include <QtCore/QPointF>
#include <QtGui/QColorTransform>

#include <algorithm>
#include <cmath>

namespace windowing {

namespace {

/// What a component may be beside its range by rounding alone.
constexpr float roundingError = 1.0F / 4096;

float withoutRoundingError(float number)
{
    const float held = std::clamp(number, 0.0F, 1.0F);
    return std::abs(number - held) <= roundingError ? held : number;
}

} // namespace

const QColorSpace &genericRgb()
{
    static const QColorSpace space(QPointF(0.3127, 0.3290), QPointF(0.630, 0.340), QPointF(0.295, 0.605),
                                   QPointF(0.155, 0.077), QColorSpace::TransferFunction::Gamma, 1.8F);
    return space;
}

std::optional<QColor> colorFromSpace(const QColorSpace &space, const std::array<float, 4> &redGreenBlueAlpha)
{
    const auto [red, green, blue, alpha] = redGreenBlueAlpha;
    const QColor given = QColor::fromRgbF(red, green, blue);
    const QColorSpace screen(QColorSpace::SRgb);
    const QColor mapped = space == screen ? given : space.transformationToColorSpace(screen).map(given);
    const std::array numbers{mapped.redF(), mapped.greenF(), mapped.blueF()};
    if (!std::ranges::all_of(numbers, [](float number) { return std::isfinite(number); })) {
        return std::nullopt;
    }
    return QColor::fromRgbF(withoutRoundingError(numbers[0]), withoutRoundingError(numbers[1]),
                            withoutRoundingError(numbers[2]), std::clamp(alpha, 0.0F, 1.0F));
}

std::array<float, 3> componentsInSpace(const QColorSpace &space, const QColor &color)
{
    const QColor mapped = QColorSpace(QColorSpace::SRgb).transformationToColorSpace(space).map(color);
    return {std::clamp(mapped.redF(), 0.0F, 1.0F), std::clamp(mapped.greenF(), 0.0F, 1.0F),
            std::clamp(mapped.blueF(), 0.0F, 1.0F)};
}

} // namespace windowing

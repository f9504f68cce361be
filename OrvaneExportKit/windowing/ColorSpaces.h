#pragma once

#include <QtGui/QColor>
#include <QtGui/QColorSpace>

#include <array>
#include <optional>

namespace windowing {

/// The space of "calibrated" colours without a profile: the phosphors of an EBU screen, white as daylight, gamma 1.8.
const QColorSpace &genericRgb();

/// Red, green and blue of a space as a colour of the screen, of sRGB. A colour that sRGB does not reach has components
/// below 0 or above 1 (`QColor::ExtendedRgb`). Nothing for numbers that no colour can have.
std::optional<QColor> colorFromSpace(const QColorSpace &space, const std::array<float, 4> &redGreenBlueAlpha);

/// The same numbers of a colour in another space, held to 0 to 1.
std::array<float, 3> componentsInSpace(const QColorSpace &space, const QColor &color);

} // namespace windowing

#pragma once

#include "drawing/Surface.h"

#include <algorithm>
#include <cmath>

/// How bright a colour is, 0 for black to 1 for white, by the relative luminance of the Web Content
/// Accessibility Guidelines.
inline double Luminance(Colour colour)
{
    const auto linear = [](std::uint8_t value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

/// The contrast of two colours by the same guidelines, 1 to 21.
inline double Contrast(Colour one, Colour other)
{
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

inline constexpr double kTextContrast = 4.5;
inline constexpr double kShapeContrast = 3;

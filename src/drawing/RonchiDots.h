#pragma once

#include "lib/text/Numbers.h"

#include <array>
#include <cstdint>
#include <random>

/// A mirror behind a Ronchi grating. All computing happens in inches.
struct RonchiTest {
    /// D and F of the mirror in mm, the grating in lines/mm (0 stands for a very coarse one), the conic
    /// constant of the mirror to be matched: 0 a sphere, 1 a paraboloid.
    RonchiTest(double D, double F, double grating, double conicConstant)
        : r(D / kInch / 2), R(2 * (F / kInch)), w(1 / (2 * LinesPerInch(grating))), constant(conicConstant)
    {}

    double r; ///< radius of the mirror
    double R; ///< radius of curvature
    double w; ///< width of a line of the grating
    double constant;

private:
    static double LinesPerInch(double grating)
    {
        const double lines = grating * kInch;
        return lines == 0 ? 0.1 : lines;
    }
};

using RonchiGenerator = std::minstd_rand;

/// Points are thrown on a quadrant of the mirror and fall on places of this grid.
inline constexpr std::int32_t kRonchiSteps = 105; ///< of the radius
inline constexpr std::int32_t kRonchiThrows = 15000;

/// A yes or no for each place, row by row: x runs along a row.
using RonchiPlaces = std::array<std::uint8_t, kRonchiSteps * kRonchiSteps>;

/// The places that the throws of one pattern hit: columns and rows in turn from the generator, which is left
/// as it would be after that many single draws.
RonchiPlaces ThrowRonchiDots(RonchiGenerator& generator);

/// The quadrant of a mirror on the grid: what does not depend on the grating's offset is computed once.
class RonchiMirror {
public:
    explicit RonchiMirror(const RonchiTest& test);

    /// The places on the mirror through which light passes between the lines of a grating that stands
    /// `offset` inches from the centre of curvature.
    RonchiPlaces LitPlaces(double offset) const;
    /// Distance of a column or row from the centre in pixels: 0 to 100, which is the edge.
    std::int32_t PixelOf(std::int32_t step) const { return m_pixels[static_cast<std::size_t>(step)]; }

private:
    RonchiTest m_test;
    std::array<double, kRonchiSteps> m_places;
    std::array<std::int32_t, kRonchiSteps> m_pixels;
    std::array<double, kRonchiSteps * kRonchiSteps> m_axisCuts; ///< where the place's normal meets the axis
    RonchiPlaces m_onMirror;
};

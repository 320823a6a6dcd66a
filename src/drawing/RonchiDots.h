#pragma once

#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
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

/// Whether the ray from the point (x, rad away from the centre) of the mirror passes between the lines of a
/// grating that stands `offset` from the centre of curvature.
inline bool PassesGrating(const RonchiTest& test, double offset, double x, double rad)
{
    const double c = rad * rad * test.constant / test.R + test.R; // where the normal meets the axis
    const double u = std::abs((2 * offset + test.R - c) * x / c);
    return TruncToInt32(u / test.w + 0.5) % 2 == 0;
}

using RonchiGenerator = std::minstd_rand;

/// Throws 15000 points on one quadrant of the mirror and calls `light(px, py)` for each through which light
/// passes, with its distances from the centre in pixels: 0 to 100, which is the edge.
template <class Light>
void ScatterRonchiDots(const RonchiTest& test, double offset, RonchiGenerator& generator, Light light)
{
    constexpr int kTries = 15000;
    constexpr int kSteps = 105; // of the radius
    double place[kSteps];
    std::int32_t pixel[kSteps];
    for (int i = 0; i < kSteps; ++i) {
        place[i] = i * test.r / kSteps;
        pixel[i] = std::clamp(TruncToInt32(place[i] * 100 / test.r), 0, 100);
    }
    for (int i = 0; i < kTries; ++i) {
        const auto column = generator() % kSteps;
        const auto row = generator() % kSteps;
        const double x = place[column];
        const double y = place[row];
        const double rad = std::sqrt(x * x + y * y);
        if (!(rad > test.r) && PassesGrating(test, offset, x, rad)) {
            light(pixel[column], pixel[row]);
        }
    }
}

#include "support/DirectIllumination.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

using Wide = long double;

/// In radii of the primary.
struct PlainCircle {
    Wide centre;
    Wide radius;
    bool Has(Wide x, Wide y) const { return (x - centre) * (x - centre) + y * y < radius * radius; }
};

struct PlainCircles {
    std::array<PlainCircle, 3> openings; ///< tube, secondary, drawtube
    PlainCircle shadow;
};

PlainCircles CirclesAt(const IlluminationStops& s, double h)
{
    const Wide D = s.D, f = s.f, z = s.z, m = s.m, q = s.q, d = s.d, I = s.I, a = s.a, r = D / 2;
    return {{{{a * h / f / r, I / 2 / r},
              {-h * (f - z) / z / r, m * f / (2 * z) / r},
              {-h * (f - q) / q / r, d * f / (2 * q) / r}}},
            {(f - z) * h / f / r, m / 2 / r}};
}

struct Chord {
    Wide from;
    Wide to;
};

/// What the circle covers of the line at the height y. Its nearer end is told without its radius, which may
/// be much larger than all else.
Chord ChordOf(const PlainCircle& circle, Wide y)
{
    if (std::fabs(y) >= circle.radius) {
        return {0, 0};
    }
    const Wide half = std::sqrt((circle.radius - y) * (circle.radius + y));
    const Wide sag = y * y / (circle.radius + half); // the circle's end less the chord's
    return {circle.centre - circle.radius + sag, circle.centre + circle.radius - sag};
}

double LitLength(const PlainCircles& circles, double at)
{
    const Wide y = at;
    Chord lit = ChordOf({0, 1}, y);
    for (const PlainCircle& opening : circles.openings) {
        const Chord chord = ChordOf(opening, y);
        lit = {std::max(lit.from, chord.from), std::min(lit.to, chord.to)};
    }
    const Chord dark = ChordOf(circles.shadow, y);
    const Wide length = std::max<Wide>(lit.to - lit.from, 0);
    const Wide lost = std::max<Wide>(std::min(lit.to, dark.to) - std::max(lit.from, dark.from), 0);
    return static_cast<double>(length - std::min(length, lost));
}

/// By Simpson's rule, halved until it agrees with its halves.
double Integral(const PlainCircles& circles, double x, double fx, double y, double fy, double fm,
                double whole, double tolerance, int depth)
{
    const double m = (x + y) / 2;
    const double left_middle = LitLength(circles, (x + m) / 2);
    const double right_middle = LitLength(circles, (m + y) / 2);
    const double left = (m - x) / 6 * (fx + 4 * left_middle + fm);
    const double right = (y - m) / 6 * (fm + 4 * right_middle + fy);
    if (depth == 0 || std::fabs(left + right - whole) <= tolerance) {
        return left + right + (left + right - whole) / 15;
    }
    return Integral(circles, x, fx, m, fm, left_middle, left, tolerance / 1.5, depth - 1) +
           Integral(circles, m, fm, y, fy, right_middle, right, tolerance / 1.5, depth - 1);
}

} // namespace

double CountedLight(const IlluminationStops& stops, double h, std::int64_t points)
{
    const PlainCircles circles = CirclesAt(stops, h);
    // A square of side 2 has 4 / pi times the area of the disc in it.
    const auto side = static_cast<std::int64_t>(std::sqrt(static_cast<double>(points) * 4 / M_PI));
    std::int64_t lit = 0;
    std::int64_t all = 0;
    for (std::int64_t row = 0; row < side; ++row) {
        const double y = (2.0 * static_cast<double>(row) + 1) / static_cast<double>(side) - 1;
        for (std::int64_t column = 0; column < side; ++column) {
            const double x = (2.0 * static_cast<double>(column) + 1) / static_cast<double>(side) - 1;
            if (x * x + y * y >= 1) {
                continue;
            }
            ++all;
            const bool passes = std::ranges::all_of(
                circles.openings, [&](const PlainCircle& opening) { return opening.Has(x, y); });
            lit += passes && !circles.shadow.Has(x, y);
        }
    }
    return static_cast<double>(lit) / static_cast<double>(all);
}

double RefinedLight(const IlluminationStops& stops, double h)
{
    const PlainCircles circles = CirclesAt(stops, h);
    // A grid before the halving starts, so that no narrow feature is missed; it ends where discs end.
    std::vector<double> places{0, 1};
    for (int i = 1; i < 64; ++i) {
        places.push_back(i / 64.0);
    }
    for (const PlainCircle& circle :
         {circles.openings[0], circles.openings[1], circles.openings[2], circles.shadow}) {
        if (circle.radius < 1) {
            for (const double share : {1.0, 0.999, 0.99, 0.9, 0.7, 0.4, 0.1}) {
                places.push_back(static_cast<double>(circle.radius) * share);
            }
        }
    }
    std::ranges::sort(places);
    double sum = 0;
    for (std::size_t i = 0; i + 1 < places.size(); ++i) {
        const double x = places[i];
        const double y = places[i + 1];
        const double fx = LitLength(circles, x);
        const double fy = LitLength(circles, y);
        const double fm = LitLength(circles, (x + y) / 2);
        sum += Integral(circles, x, fx, y, fy, fm, (y - x) / 6 * (fx + 4 * fm + fy), 1e-14, 44);
    }
    return 2 * sum / M_PI;
}

#include "model/optics/RonchiTolerance.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <cmath>
#include <vector>

namespace {

constexpr double kWavelength = 2.2e-05; // inches
constexpr double kConstantStep = 0.01;
constexpr double kZoneStep = 0.05;
constexpr double kErrorLimit = 0.25; // waves
constexpr double kTestZones[3] = {0.3, 0.7, 0.93};
constexpr int kMostSteps = 1'000'000;

struct Extremes {
    double min = 0;
    double max = 0;
};

/// The wavefront error of a mirror as a polynomial through three test zones; everything in inches.
class Wavefront {
public:
    Wavefront(double D, double F) : m_r(D / 2)
    {
        const double R = 2 * F;
        for (int k = 0; k < 3; ++k) {
            const double z = kTestZones[k] * m_r;
            m_s[k] = std::pow(z, 2) / (2 * R);
            m_q[k] = z / (std::pow(R, 2) * kWavelength);
        }
        for (double t = kZoneStep; t <= 0.5; t += kZoneStep) {
            const double x = t * D;
            m_powers.push_back({std::pow(x, 4), std::pow(x, 3), std::pow(x, 2)});
        }
    }

    /// Widens `extremes` by the errors, in waves, of a mirror of the conic constant p.
    void Widen(Extremes& extremes, double p) const
    {
        const double e1 = (m_s[0] - m_s[0] * p) * m_q[0];
        const double e2 = (m_s[1] - m_s[1] * p) * m_q[1];
        const double e3 = (m_s[2] - m_s[2] * p) * m_q[2];
        const double A = (3.31 * e1 - 3.88 * e2 + 1.86 * e3) / m_cube;
        const double B = (-7.19 * e1 + 6.37 * e2 - 2.47 * e3) / m_square;
        const double C = -m_r * (m_r * A + B);
        for (const Powers& x : m_powers) {
            const double W = x.fourth * A + x.third * B + x.second * C;
            if (W < 0 && W < extremes.min) {
                extremes.min = W;
            }
            if (W > 0 && W > extremes.max) {
                extremes.max = W;
            }
        }
    }

private:
    struct Powers {
        double fourth;
        double third;
        double second;
    };

    double m_r;
    double m_cube = std::pow(m_r, 3);
    double m_square = std::pow(m_r, 2);
    double m_s[3] = {}; ///< longitudinal aberration of a paraboloid at the zone
    double m_q[3] = {}; ///< from there to waves
    std::vector<Powers> m_powers;
};

std::optional<double> SearchLimit(const Wavefront& wavefront, double step)
{
    Extremes extremes; // carried on from one constant to the next
    double p = 1;
    for (int i = 0; i < kMostSteps; ++i) {
        p += step;
        wavefront.Widen(extremes, p);
        if (!(extremes.max - extremes.min < kErrorLimit)) {
            return p;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<RonchiTolerance> FindRonchiTolerance(double D, double F)
{
    const Wavefront wavefront(D / kInch, F / kInch);
    const std::optional<double> lower = SearchLimit(wavefront, -kConstantStep);
    const std::optional<double> upper = lower ? SearchLimit(wavefront, kConstantStep) : std::nullopt;
    if (!upper) {
        return std::nullopt;
    }
    return RonchiTolerance{*lower, *upper};
}

std::string RonchiToleranceText(const RonchiTolerance& tolerance)
{
    return FormatText(
        "+- 1/4 wavefront Fehler: parab. kann in einem Bereich von %1.2f bis %1.2f verändert werden."_cp1252,
        tolerance.lower, tolerance.upper);
}

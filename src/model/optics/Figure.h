#pragma once

#include "model/optics/FoucaultZones.h"

#include <optional>
#include <span>
#include <utility>
#include <vector>

/// The figure of a mirror from the knife's readings at its zones: the reduction of Texereau ("How to Make a
/// Telescope", the longitudinal aberrations of a zonal mask summed up to a wavefront) with the zones of
/// Couder's mask, held against the conic that the builder wants and judged in the band of Millies-Lacroix
/// (transverse aberrations in Airy radii). The wavefront is integrated in closed form, so that nothing
/// depends on a step.

/// One zone as it was measured.
struct ZoneMean {
    double radius;  ///< of its centre, mm
    double reading; ///< mean place of the knife, mm, growing away from the mirror
};

/// What the readings are held against.
struct FigureSettings {
    std::int32_t light_source = kMovingSource;
    double conic = -1;       ///< the wanted conic constant: -1 a paraboloid, 0 a sphere
    double wavelength = 550; ///< nm
};

struct FigureZone {
    double radius;     ///< mm
    double reading;    ///< mm
    double ideal;      ///< mm, of the wanted conic
    double deviation;  ///< mm, the longitudinal aberration of the ray against the best focus
    double transverse; ///< Airy radii: the same ray in the focal plane
};

/// The wavefront over the mirror: a parabola in the square of the radius from zone to zone.
class WavefrontProfile {
public:
    /// The wavefront in nm at a radius in mm, the centre's from 0 to half the diameter; outside, that of the
    /// nearest end. Its mean over the area is 0. Positive is high: the glass stands half as much too high.
    double At(double radius) const;
    /// Highest less lowest, in nm, also between the zones; NaN if any of it is not finite.
    double PeakToValley() const;
    /// Root of the mean square over the area, nm.
    double Rms() const;

private:
    friend class WavefrontIntegral;

    /// W between two squared radii, over x from -1 to 1: mean + slope x + bend (3 x x - 1) / 2.
    struct Piece {
        double begin; ///< mm2
        double end;
        double mean; ///< nm
        double slope;
        double bend;

        double At(double x) const { return mean + slope * x + bend * (3 * x * x - 1) / 2; }
    };

    std::vector<Piece> m_pieces;
};

struct Figure {
    std::vector<FigureZone> zones;
    WavefrontProfile wavefront;
    double pv = 0;             ///< nm
    double rms = 0;            ///< nm
    double pv_waves = 0;       ///< in wavelengths
    double strehl = 0;         ///< by Marechal's exponential
    double transverse_max = 0; ///< the largest absolute value, Airy radii
    double conic = 0;          ///< of the conic that fits the readings best
    double focus = 0;          ///< mm, where the rays are focused best, on the scale of the deviations
};

inline constexpr std::size_t kFewestZones = 3;

/// The figure of a mirror of the diameter D and the focal length f, mm. Nothing if D, f or the wavelength is
/// not above 0, if there are fewer than three zones, or if their radii do not rise within the mirror.
std::optional<Figure> ReduceFigure(double D, double f, std::span<const ZoneMean> zones,
                                   const FigureSettings& settings);

/// The profile at 101 radii equally spaced over the mirror: radius in mm, wavefront in nm.
std::vector<std::pair<double, double>> ProfileOf(const Figure& figure, double D);

/// Several series as one: at every radius that any of them has, the mean of what they read there; between its
/// zones each is linear in the square of the radius, and its ends are continued, as in the reduction. Series
/// of the same zones give the plain means. The readings are those of a moving source: each is divided by its
/// own factor. Series of fewer than two zones take no part.
struct SeriesMeans {
    std::vector<ZoneMean> zones;
    std::int32_t light_source = kMovingSource;
};
std::vector<ZoneMean> AverageSeries(std::span<const SeriesMeans> series);

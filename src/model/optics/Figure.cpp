#include "model/optics/Figure.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double kNanometres = 1e6; // in a mm

/// A corner of a line that is straight in the squared radius from corner to corner.
struct FigureCorner {
    double u; ///< squared radius, mm2
    double e; ///< mm
};

/// How far the knife moves for a mm of the centre of curvature: the source may move with it.
double KnifeTravel(std::int32_t light_source) { return light_source == kFixedSource ? 2 : 1; }

double OnLine(const FigureCorner& a, const FigureCorner& b, double u)
{
    return a.e + (b.e - a.e) * ((u - a.u) / (b.u - a.u));
}

/// The value at u of the line through the corners, its first and last piece continued.
double AlongCorners(std::span<const FigureCorner> corners, double u)
{
    std::size_t i = 1;
    while (i + 1 < corners.size() && corners[i].u < u) {
        ++i;
    }
    return OnLine(corners[i - 1], corners[i], u);
}

/// The corners with those at the centre and at the edge of the mirror.
std::vector<FigureCorner> OverTheMirror(std::span<const FigureCorner> zones, double U)
{
    std::vector<FigureCorner> corners{{0, AlongCorners(zones, 0)}};
    corners.insert(corners.end(), zones.begin(), zones.end());
    if (zones.back().u < U) {
        corners.push_back({U, AlongCorners(zones, U)});
    }
    return corners;
}

bool IsAbove0(double value) { return value > 0; }

bool RiseWithin(std::span<const ZoneMean> zones, double outer)
{
    double before = 0;
    for (const ZoneMean& zone : zones) {
        if (!(zone.radius > before && zone.radius <= outer)) {
            return false;
        }
        before = zone.radius;
    }
    return true;
}

/// Slope of the line through the corners by least squares.
double LeastSquaresSlope(std::span<const FigureCorner> corners)
{
    double u = 0;
    double e = 0;
    for (const FigureCorner& corner : corners) {
        u += corner.u / static_cast<double>(corners.size());
        e += corner.e / static_cast<double>(corners.size());
    }
    double products = 0;
    double squares = 0;
    for (const FigureCorner& corner : corners) {
        products += (corner.u - u) * (corner.e - e);
        squares += (corner.u - u) * (corner.u - u);
    }
    return products / squares;
}

} // namespace

/// The integral of a line of corners, piece by piece in closed form. In Legendre's polynomials the pieces'
/// means and squares are sums of their coefficients, so that no power of a large radius cancels against
/// another.
class WavefrontIntegral {
public:
    /// The integral from the centre outward of `scale` times the line.
    WavefrontIntegral(std::span<const FigureCorner> corners, double scale) : m_U(corners.back().u)
    {
        double start = 0;
        for (std::size_t i = 1; i < corners.size(); ++i) {
            const double half = (corners[i].u - corners[i - 1].u) / 2;
            const double mean = scale * (corners[i].e + corners[i - 1].e) / 2;
            const double rise = scale * (corners[i].e - corners[i - 1].e) / 2;
            m_profile.m_pieces.push_back({corners[i - 1].u, corners[i].u,
                                          start + half * mean - half * rise / 3, half * mean,
                                          half * rise / 3});
            start += 2 * half * mean;
        }
    }

    /// The slope of the straight line in u that leaves the least variance over the area.
    double BestSlope() const
    {
        double moment = 0;
        for (const Piece& piece : m_profile.m_pieces) {
            const double half = (piece.end - piece.begin) / 2;
            const double middle = (piece.end + piece.begin) / 2;
            moment += 2 * half * (piece.mean * (middle - m_U / 2) + piece.slope * half / 3);
        }
        return 12 * moment / (m_U * m_U * m_U);
    }

    WavefrontProfile AboutItsMean() const
    {
        double mean = 0;
        for (const Piece& piece : m_profile.m_pieces) {
            mean += piece.mean * ((piece.end - piece.begin) / m_U);
        }
        WavefrontProfile profile = m_profile;
        for (Piece& piece : profile.m_pieces) {
            piece.mean -= mean;
        }
        return profile;
    }

private:
    using Piece = WavefrontProfile::Piece;

    double m_U;
    WavefrontProfile m_profile;
};

double WavefrontProfile::At(double radius) const
{
    const double u = radius * radius;
    const auto after = std::ranges::find_if(m_pieces, [u](const Piece& piece) { return u <= piece.end; });
    const Piece& piece = after == m_pieces.end() ? m_pieces.back() : *after;
    return piece.At(std::clamp((u - piece.begin) / (piece.end - piece.begin) * 2 - 1, -1.0, 1.0));
}

double WavefrontProfile::PeakToValley() const
{
    double low = std::numeric_limits<double>::infinity();
    double high = -low;
    bool finite = true;
    const auto widen = [&](double w) {
        finite = finite && std::isfinite(w);
        low = std::min(low, w);
        high = std::max(high, w);
    };
    for (const Piece& piece : m_pieces) {
        widen(piece.At(-1));
        widen(piece.At(1));
        // The parabola turns where its slope is 0.
        if (std::abs(piece.slope) < std::abs(3 * piece.bend)) {
            widen(piece.At(-piece.slope / (3 * piece.bend)));
        }
    }
    return finite ? high - low : std::numeric_limits<double>::quiet_NaN();
}

double WavefrontProfile::Rms() const
{
    double squares = 0;
    for (const Piece& piece : m_pieces) {
        const double share = (piece.end - piece.begin) / m_pieces.back().end;
        squares +=
            share * (piece.mean * piece.mean + piece.slope * piece.slope / 3 + piece.bend * piece.bend / 5);
    }
    return std::sqrt(squares);
}

std::optional<Figure> ReduceFigure(double D, double f, std::span<const ZoneMean> zones,
                                   const FigureSettings& settings)
{
    const bool sensible = IsAbove0(D) && IsAbove0(f) && IsAbove0(settings.wavelength);
    if (!sensible || zones.size() < kFewestZones || !RiseWithin(zones, D / 2)) {
        return std::nullopt;
    }
    const double R = 2 * f;
    const double g = KnifeTravel(settings.light_source);
    const double airy = 1.22 * settings.wavelength / kNanometres * f / D;

    Figure figure;
    std::vector<FigureCorner> raw;
    std::vector<FigureCorner> knife;
    for (const ZoneMean& zone : zones) {
        const double u = zone.radius * zone.radius;
        const double ideal = -settings.conic * u * g / (2 * R) + 0.0; // no -0
        figure.zones.push_back({zone.radius, zone.reading, ideal, 0, 0});
        raw.push_back({u, (zone.reading - ideal) / g});
        knife.push_back({u, zone.reading / g});
    }
    std::vector<FigureCorner> corners = OverTheMirror(raw, D / 2 * (D / 2));
    figure.focus = WavefrontIntegral(corners, 1).BestSlope();
    for (FigureCorner& corner : corners) {
        corner.e -= figure.focus;
    }
    figure.wavefront = WavefrontIntegral(corners, -kNanometres / (R * R)).AboutItsMean();

    for (std::size_t i = 0; i < raw.size(); ++i) {
        FigureZone& zone = figure.zones[i];
        zone.deviation = raw[i].e - figure.focus;
        zone.transverse = zone.radius * zone.deviation / (R * airy);
        const double size = std::abs(zone.transverse);
        if (size > figure.transverse_max || std::isnan(size)) {
            figure.transverse_max = size;
        }
    }
    figure.pv = figure.wavefront.PeakToValley();
    figure.rms = figure.wavefront.Rms();
    figure.pv_waves = figure.pv / settings.wavelength;
    // The exact pi: no table out there rests on this figure.
    const double phase = 2 * std::numbers::pi * figure.rms / settings.wavelength;
    figure.strehl = std::exp(-phase * phase);
    figure.conic = -2 * R * LeastSquaresSlope(knife) + 0.0;
    return figure;
}

std::vector<std::pair<double, double>> ProfileOf(const Figure& figure, double D)
{
    constexpr int kSteps = 100;
    std::vector<std::pair<double, double>> profile;
    for (int i = 0; i <= kSteps; ++i) {
        const double radius = D / 2 * i / kSteps;
        profile.emplace_back(radius, figure.wavefront.At(radius));
    }
    return profile;
}

std::vector<ZoneMean> AverageSeries(std::span<const SeriesMeans> series)
{
    std::vector<std::vector<FigureCorner>> lines;
    std::vector<double> radii;
    for (const SeriesMeans& one : series) {
        if (one.zones.size() < 2) {
            continue;
        }
        std::vector<FigureCorner>& line = lines.emplace_back();
        for (const ZoneMean& zone : one.zones) {
            line.push_back({zone.radius * zone.radius, zone.reading / KnifeTravel(one.light_source)});
            radii.push_back(zone.radius);
        }
    }
    std::ranges::sort(radii);
    radii.erase(std::unique(radii.begin(), radii.end()), radii.end());

    std::vector<ZoneMean> means;
    for (const double radius : radii) {
        double sum = 0;
        for (const std::vector<FigureCorner>& line : lines) {
            sum += AlongCorners(line, radius * radius);
        }
        means.push_back({radius, sum / static_cast<double>(lines.size())});
    }
    return means;
}

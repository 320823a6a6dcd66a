#include "model/optics/Illumination.h"

#include "model/record/OrrevaData.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <vector>

namespace {

/// A circle by the two places where it crosses the line of centres, in radii of the primary and from its
/// centre. Its ends and not centre and radius, so that a circle of any size keeps its edge exact.
struct Disc {
    double low;
    double high;
    double drift = 0; ///< of its centre, for each mm of h

    double Middle() const { return 0.5 * low + 0.5 * high; }
    double SquaredHeight(double x) const { return (x - low) * (high - x); }
    bool Covers(const Disc& other) const { return low <= other.low && high >= other.high; }
    bool IsApartFrom(const Disc& other) const { return high <= other.low || low >= other.high; }
};

constexpr Disc kPrimaryDisc{-1, 1};

/// How a stop shows itself: its circle's centre goes off by `drift` for each mm of h; all mm.
struct Opening {
    long double drift;
    long double radius;
};

// The wide type, so that the edge of a circle much larger than the primary is not lost in its radius.

Opening TubeOpening(const IlluminationStops& s)
{
    return {static_cast<long double>(s.a) / s.f, static_cast<long double>(s.I) / 2};
}

Opening ShadowOpening(const IlluminationStops& s)
{
    return {(static_cast<long double>(s.f) - s.z) / s.f, static_cast<long double>(s.m) / 2};
}

Opening SecondaryOpening(const IlluminationStops& s)
{
    return {-(static_cast<long double>(s.f) - s.z) / s.z, static_cast<long double>(s.m) * s.f / (2.0L * s.z)};
}

Opening DrawtubeOpening(const IlluminationStops& s)
{
    return {-(static_cast<long double>(s.f) - s.q) / s.q, static_cast<long double>(s.d) * s.f / (2.0L * s.q)};
}

struct StopOpening {
    CuttingStop stop;
    Opening (*opening)(const IlluminationStops&);
};

constexpr std::array<StopOpening, 3> kOpenings = {{{CuttingStop::kTube, TubeOpening},
                                                   {CuttingStop::kSecondary, SecondaryOpening},
                                                   {CuttingStop::kDrawtube, DrawtubeOpening}}};

Disc DiscAt(const Opening& opening, double D, double h)
{
    // What lies so far out is as good as a straight edge, or no edge at all.
    constexpr long double kFar = 1e30L;
    const long double unit = static_cast<long double>(D) / 2;
    const long double centre = opening.drift * h;
    const auto place = [&](long double x) { return static_cast<double>(std::clamp(x / unit, -kFar, kFar)); };
    return {place(centre - opening.radius), place(centre + opening.radius),
            static_cast<double>(std::clamp(opening.drift / unit, -kFar, kFar))};
}

/// Area of the upper half of a segment of the height t, cut off a circle of the radius r; t from 0 to 2 r.
double HalfSegment(double t, double r)
{
    const double ratio = std::clamp(t / r, 0.0, 2.0);
    const double doubled = 4 * std::asin(std::sqrt(ratio / 2)); // twice the angle from the middle to the end
    if (doubled > 0.5) {
        return r * r / 4 * (doubled - std::sin(doubled));
    }
    // The same by its series, where the difference would lose its digits.
    const double u = doubled * doubled;
    double series = 1;
    for (const double factor : {156.0, 110.0, 72.0, 42.0, 20.0}) {
        series = 1 - u / factor * series;
    }
    return r * r / 4 * (doubled * u / 6 * series);
}

/// Area between the line of centres and the upper half of the disc, from x to y, both within its ends.
double AreaUnder(const Disc& disc, double x, double y)
{
    const double r = 0.5 * disc.high - 0.5 * disc.low;
    if (x + y < disc.low + disc.high) {
        return HalfSegment(y - disc.low, r) - HalfSegment(x - disc.low, r);
    }
    return HalfSegment(disc.high - x, r) - HalfSegment(disc.high - y, r);
}

/// How that area changes with h: the outline moves with the disc, and x and y stay.
double AreaChange(const Disc& disc, double x, double y)
{
    const double from = std::sqrt(std::max(disc.SquaredHeight(x), 0.0));
    const double to = std::sqrt(std::max(disc.SquaredHeight(y), 0.0));
    return disc.drift * (from - to);
}

/// Where the outlines of two discs meet, as a place on the line of centres; anything where they do not.
double Crossing(const Disc& a, const Disc& b)
{
    return (a.low * a.high - b.low * b.high) / ((a.low + a.high) - (b.low + b.high));
}

/// The parts of the primary that a point sees, as shares of its area. Both fall from the centre outward, each
/// being what discs that drift evenly have in common (Brunn and Minkowski).
struct SeenParts {
    double open = 0;            ///< through all openings
    double shadowed = 0;        ///< what the shadow takes of that
    double shadowed_change = 0; ///< of that for each mm of h
    double Light() const { return open - shadowed; }
};

/// Cuts the line of centres where one outline takes over from another and adds up closed forms between.
class SeenArea {
public:
    /// The whole primary.
    SeenArea() { m_openings[m_count++] = kPrimaryDisc; }

    void AddOpening(const Disc& disc)
    {
        if (!disc.Covers(kPrimaryDisc)) {
            m_openings[m_count++] = disc;
        }
    }
    void SetShadow(const Disc& disc)
    {
        m_shadow = disc;
        m_hasShadow = !disc.IsApartFrom(kPrimaryDisc);
    }

    SeenParts Parts()
    {
        for (std::size_t i = 0; i < m_count; ++i) {
            m_from = std::max(m_from, m_openings[i].low);
            m_to = std::min(m_to, m_openings[i].high);
        }
        if (!(m_from < m_to)) {
            return {};
        }
        Cut();
        SeenParts parts;
        double x = m_from;
        for (std::size_t i = 0; i < m_cuts; ++i) {
            AddPiece(parts, x, m_places[i]);
            x = m_places[i];
        }
        AddPiece(parts, x, m_to);
        // Halves of discs were added, and the primary's area is pi.
        const double share = 2 / std::numbers::pi;
        return {parts.open * share, parts.shadowed * share, parts.shadowed_change * share};
    }

private:
    static constexpr std::size_t kOpeningsAtMost = 4;
    static constexpr std::size_t kCutsAtMost = 6 + kOpeningsAtMost + 2;

    void CutAt(double x)
    {
        if (x > m_from && x < m_to) {
            m_places[m_cuts++] = x;
        }
    }

    void Cut()
    {
        for (std::size_t i = 0; i < m_count; ++i) {
            for (std::size_t k = i + 1; k < m_count; ++k) {
                CutAt(Crossing(m_openings[i], m_openings[k]));
            }
        }
        if (m_hasShadow) {
            CutAt(m_shadow.low);
            CutAt(m_shadow.high);
            for (std::size_t i = 0; i < m_count; ++i) {
                CutAt(Crossing(m_openings[i], m_shadow));
            }
        }
        std::sort(m_places.begin(), m_places.begin() + m_cuts);
    }

    /// No two outlines cross between x and y, so that the middle speaks for the whole.
    void AddPiece(SeenParts& parts, double x, double y) const
    {
        if (!(x < y)) {
            return;
        }
        const double middle = 0.5 * x + 0.5 * y;
        const Disc* lowest = &m_openings[0];
        for (std::size_t i = 1; i < m_count; ++i) {
            if (m_openings[i].SquaredHeight(middle) < lowest->SquaredHeight(middle)) {
                lowest = &m_openings[i];
            }
        }
        const double open = AreaUnder(*lowest, x, y);
        parts.open += open;
        if (m_hasShadow && middle > m_shadow.low && middle < m_shadow.high) {
            const bool covered = m_shadow.SquaredHeight(middle) >= lowest->SquaredHeight(middle);
            parts.shadowed += covered ? open : std::min(open, AreaUnder(m_shadow, x, y));
            parts.shadowed_change += AreaChange(covered ? *lowest : m_shadow, x, y);
        }
    }

    std::array<Disc, kOpeningsAtMost> m_openings{};
    std::size_t m_count = 0;
    Disc m_shadow{};
    bool m_hasShadow = false;
    double m_from = -1;
    double m_to = 1;
    std::array<double, kCutsAtMost> m_places{};
    std::size_t m_cuts = 0;
};

SeenParts PartsAt(const IlluminationStops& stops, double h)
{
    SeenArea area;
    for (const StopOpening& each : kOpenings) {
        area.AddOpening(DiscAt(each.opening(stops), stops.D, h));
    }
    area.SetShadow(DiscAt(ShadowOpening(stops), stops.D, h));
    return area.Parts();
}

/// At the centre all circles lie in one another: a ring between the narrowest opening and the shadow.
long double RingOfCentre(const IlluminationStops& stops)
{
    const long double unit = static_cast<long double>(stops.D) / 2;
    long double outer = unit;
    for (const StopOpening& each : kOpenings) {
        outer = std::min(outer, each.opening(stops).radius);
    }
    const long double inner = ShadowOpening(stops).radius;
    return outer > inner ? (outer - inner) / unit * ((outer + inner) / unit) : 0;
}

double HalfFieldFreeOf(const IlluminationStops& stops, const Opening& opening)
{
    const long double spare = opening.radius - static_cast<long double>(stops.D) / 2;
    if (spare < 0) {
        return 0;
    }
    constexpr long double kLargest = std::numeric_limits<double>::max();
    const long double h = spare / std::fabs(opening.drift);
    return h <= kLargest ? static_cast<double>(h)
                         : HUGE_VAL; // a NaN for an edge that stands on the primary's
}

// The search for the first place where the light falls to a level
// ---------------------------------------------

struct LightSample {
    double h;
    SeenParts parts;
};

struct LightSpan {
    LightSample from;
    LightSample to;
    double Least() const;
    double ShadowGone() const { return from.parts.shadowed - to.parts.shadowed; }
};

/// The root of a part in a span, which curves downward (Brunn and Minkowski): above the straight line between
/// its values at the ends, and below its tangents there. From 0 at the span's start to 1 at its end.
struct StraightRoot {
    double at0;
    double at1;
    double At(double t) const { return at0 + (at1 - at0) * t; }
};

/// The least of open^2 - shadowed^2 from t0 to t1.
double LeastDifference(const StraightRoot& open, const StraightRoot& shadowed, double t0, double t1)
{
    const auto difference = [&](double t) {
        const double a = open.At(t);
        const double b = shadowed.At(t);
        return (a - b) * (a + b);
    };
    const double a = open.at1 - open.at0;
    const double b = shadowed.at1 - shadowed.at0;
    const double lowest = (shadowed.at0 * b - open.at0 * a) / ((a - b) * (a + b)); // where it is level
    double least = std::min(difference(t0), difference(t1));
    if (lowest > t0 && lowest < t1) {
        least = std::min(least, difference(lowest));
    }
    return least;
}

/// Never more than the light anywhere in the span, and the nearer to its least the shorter the span is.
double LightSpan::Least() const
{
    constexpr double kTooSmall = 1e-12; // a part whose root has no slope to speak of
    const StraightRoot open{std::sqrt(from.parts.open), std::sqrt(to.parts.open)};
    const double first = std::sqrt(from.parts.shadowed);
    const double last = std::sqrt(to.parts.shadowed);
    const StraightRoot level{first, first}; // the shadowed part only falls
    if (to.parts.shadowed < kTooSmall) {
        return LeastDifference(open, level, 0, 1);
    }
    const auto slope = [&](const LightSample& sample, double root) {
        return std::min(sample.parts.shadowed_change, 0.0) / (2 * root) * (to.h - from.h);
    };
    const StraightRoot leaving{first, first + slope(from, first)};
    const StraightRoot arriving{last - slope(to, last), last};
    // From where the tangent of the end is the lower one of the two.
    const double change =
        (arriving.at0 - leaving.at0) / ((arriving.at0 - leaving.at0) - (arriving.at1 - leaving.at1));
    const double meet = change > 0 && change < 1 ? change : (arriving.At(0.5) < leaving.At(0.5) ? 0 : 1);
    return std::min(LeastDifference(open, leaving, 0, meet), LeastDifference(open, arriving, meet, 1));
}

/// How much of the light may hide from the search, as a share of the primary's area.
constexpr double kLightTolerance = 1e-10;
/// As much as rounding may feign.
constexpr double kLightNoise = 1e-14;

/// The first h from the left at which the light is at or below a level, within the ends of a span.
class LevelSearch {
public:
    LevelSearch(const IlluminationStops& stops, double level) : m_stops(stops), m_level(level) {}

    /// `end` is where there is no light any more.
    double First(double end)
    {
        std::vector<LightSpan> spans{{Sample(0), {end, {}}}};
        // The left part is looked at first, so that what ends the search is the first place of all.
        for (int steps = 0; !spans.empty() && steps < kStepsAtMost; ++steps) {
            const LightSpan span = spans.back();
            if (span.Least() > m_level + kLightNoise) {
                spans.pop_back();
                continue;
            }
            const double middle = 0.5 * span.from.h + 0.5 * span.to.h;
            const bool indivisible = !(middle > span.from.h && middle < span.to.h);
            if (IsPlain(span) || indivisible) {
                if (span.to.parts.Light() <= m_level) {
                    return Within(span.from, span.to);
                }
                spans.pop_back();
                continue;
            }
            const LightSample half = Sample(middle);
            spans.back() = {half, span.to};
            spans.push_back({span.from, half});
        }
        // Steps run out only where the light all but touches the level; it falls to it beyond.
        return spans.empty() ? end : Within(spans.back().from, spans.front().to);
    }

private:
    static constexpr int kStepsAtMost = 20000;

    LightSample Sample(double h) const { return {h, PartsAt(m_stops, h)}; }
    double Above(const LightSample& sample) const { return sample.parts.Light() - m_level; }

    /// The light only falls there, or differs from that at the ends by nothing to speak of.
    static bool IsPlain(const LightSpan& span)
    {
        return span.ShadowGone() <= kLightNoise ||
               span.from.parts.open - span.to.parts.open + span.ShadowGone() <= kLightTolerance;
    }

    /// The crossing between a place above the level and one that is not: false position, with a halving
    /// wherever that does not narrow the ends enough.
    double Within(LightSample above, LightSample below) const
    {
        constexpr int kRoundsAtMost = 3000; // as many as it takes to halve the whole range of a double
        for (int round = 0; round < kRoundsAtMost; ++round) {
            const double width = below.h - above.h;
            if (!(width > 4e-16 * below.h)) {
                break;
            }
            Narrow(above, below, above.h + width * Above(above) / (Above(above) - Above(below)));
            const double rest = below.h - above.h;
            if (rest > 0.125 * width) {
                // Beside the last place, where it is nearly always caught from the other side.
                Narrow(above, below, above.h + 0.5 * rest);
            }
        }
        return below.h;
    }

    void Narrow(LightSample& above, LightSample& below, double h) const
    {
        if (!(h > above.h && h < below.h)) {
            h = 0.5 * above.h + 0.5 * below.h;
        }
        const LightSample sample = Sample(h);
        (Above(sample) > 0 ? above : below) = sample;
    }

    const IlluminationStops& m_stops;
    double m_level;
};

/// Where some opening shows nothing of the primary any more.
double DarkFrom(const IlluminationStops& stops)
{
    long double end = 1e300L;
    for (const StopOpening& each : kOpenings) {
        const Opening opening = each.opening(stops);
        const long double reach = opening.radius + static_cast<long double>(stops.D) / 2;
        end = std::min(end, reach / std::fabs(opening.drift));
    }
    return static_cast<double>(end);
}

} // namespace

IlluminationStops ReadIlluminationStops(COrrevaData& telescope)
{
    IlluminationStops stops;
    stops.D = telescope.GetMirrorDiameter();
    stops.f = telescope.GetFocalLength();
    stops.z = telescope.GetFocalPlaneHeight();
    stops.m = telescope.GetSecondaryDiameter();
    stops.q = telescope.GetFocuserTotalHeight();
    stops.d = telescope.GetFocuserDiameter();
    stops.I = telescope.GetInsideDiameterHat();
    const double to_focuser = telescope.GetPrimaryToFocuser();
    stops.a = to_focuser + telescope.GetDistanceFront();
    return stops;
}

bool HasIllumination(const IlluminationStops& stops)
{
    for (const double length : {stops.D, stops.f, stops.z, stops.q, stops.m, stops.d, stops.I}) {
        if (!(length > 0 && std::isfinite(length))) {
            return false;
        }
    }
    return stops.z < stops.f && stops.q < stops.f && std::isfinite(stops.a) && CentreLight(stops) > 0;
}

double CentreLight(const IlluminationStops& stops) { return static_cast<double>(RingOfCentre(stops)); }

double LightAt(const IlluminationStops& stops, double h)
{
    return h == 0 ? CentreLight(stops) : std::max(PartsAt(stops, h).Light(), 0.0);
}

CuttingStop CuttingStopAt(const IlluminationStops& stops, double h)
{
    CuttingStop cutting = CuttingStop::kNone;
    double least = 1;
    for (const StopOpening& each : kOpenings) {
        const Disc disc = DiscAt(each.opening(stops), stops.D, h);
        if (disc.Covers(kPrimaryDisc)) {
            continue;
        }
        SeenArea area;
        area.AddOpening(disc);
        const double seen = area.Parts().open;
        if (cutting == CuttingStop::kNone || seen < least) {
            cutting = each.stop;
            least = seen;
        }
    }
    return cutting;
}

double FieldFreeOf(const IlluminationStops& stops, CuttingStop stop)
{
    for (const StopOpening& each : kOpenings) {
        if (each.stop == stop) {
            return 2 * HalfFieldFreeOf(stops, each.opening(stops));
        }
    }
    return HUGE_VAL;
}

double FullyLitField(const IlluminationStops& stops)
{
    double field = HUGE_VAL;
    for (const StopOpening& each : kOpenings) {
        field = std::min(field, FieldFreeOf(stops, each.stop));
    }
    return field;
}

double FieldDiameterAtShare(const IlluminationStops& stops, double share)
{
    if (!(share > 0 && share < 1) || !HasIllumination(stops)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return 2 * LevelSearch(stops, share * CentreLight(stops)).First(DarkFrom(stops));
}

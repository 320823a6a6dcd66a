#include "raytrace/TraceRay.h"

#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"
#include "raytrace/Lines.h"

#include <cmath>

namespace {

constexpr double kFar = 10000.0; // mm: the length of a ray that meets nothing

/// One ray on its way: the half line from (x0, y0) to its far point, and where its segments go.
class Ray {
public:
    Ray(const ScopeGeometry& geometry, bool showLost, std::vector<RaySegment>* receiver)
        : m_g(geometry), m_missInGrey(showLost), m_segments(receiver)
    {}

    void Start(Point from, double angle)
    {
        start = from;
        far = {from.x + kFar * std::sin(angle), from.y + kFar * std::cos(angle)};
    }

    Point Meets(double x3, double y3, double x4, double y4) const
    {
        return IntersectLines(start.x, start.y, far.x, far.y, x3, y3, x4, y4);
    }
    Point MeetsWall(double y) const { return Meets(m_g.frontX, y, m_g.frontX + m_g.tubeLength, y); }
    Point MeetsDiagonal() const
    {
        return Meets(m_g.secondaryLeft, m_g.secondaryTop, m_g.secondaryRight, m_g.secondaryBottom);
    }

    bool IsAlongTube(double x) const { return m_g.frontX < x && x < m_g.frontX + m_g.tubeLength; }

    void Emit(Point to, RayClass colour)
    {
        if (m_segments != nullptr) {
            m_segments->push_back({start.x, start.y, to.x, to.y, colour});
        }
    }
    RayOutcome LoseAt(Point to)
    {
        if (m_missInGrey) {
            Emit(to, RayLost);
        }
        return false;
    }

    /// Whether the diagonal's back or the tube, from outside or inside, stops the ray; emits it if so.
    bool IsStoppedBeforePrimary();
    /// The grey rest of a ray that passes the diagonal above or below.
    void PassDiagonal(double ix);

    Point start;
    Point far;

private:
    bool IsStoppedByWall(double y);

    const ScopeGeometry& m_g;
    bool m_missInGrey;
    std::vector<RaySegment>* m_segments;
};

bool Ray::IsStoppedByWall(double y)
{
    const Point hit = MeetsWall(y);
    if (start.x < hit.x && IsAlongTube(hit.x)) {
        LoseAt(hit);
        return true;
    }
    return false;
}

bool Ray::IsStoppedBeforePrimary()
{
    if (start.x < m_g.secondaryLeft) {
        const Point hit = MeetsDiagonal();
        if (m_g.secondaryTop <= hit.y && hit.y <= m_g.secondaryBottom) {
            LoseAt(hit);
            return true;
        }
    }
    const double bottom = m_g.top + m_g.tubeWidth;
    return (start.y <= m_g.top && IsStoppedByWall(m_g.top)) ||
           (start.y >= bottom && IsStoppedByWall(bottom)) ||
           (start.y > m_g.top && IsStoppedByWall(m_g.top)) || (start.y < bottom && IsStoppedByWall(bottom));
}

void Ray::PassDiagonal(double ix)
{
    const bool below = ix >= m_g.secondaryLeft;
    const Point hit = MeetsWall(below ? m_g.top + m_g.tubeWidth : m_g.top);
    LoseAt(IsAlongTube(hit.x) ? hit : far);
}

/// `angle` less as many half turns as bring it to pi or below; an angle beyond all sense keeps its rest.
double ReduceAngle(double angle)
{
    constexpr int kMostTurns = 10000;
    for (int i = 0; angle > kPi && i < kMostTurns; ++i) {
        angle -= kPi;
    }
    return angle;
}

/// The direction after the primary, hit at `at`. The normal aims at the centre of curvature; its slope is fed
/// to the tangent and taken as an angle. Kept: the slip is small for the slopes of a telescope.
double ReflectAtPrimary(const ScopeGeometry& g, double f, Point at, double angle)
{
    const double t = std::tan((g.axisY - at.y) / ((at.x - 2 * f) - at.x));
    return -ReduceAngle(angle) - 2 * t;
}

/// From the diagonal through the tube's opening and the focuser to the focal plane.
RayOutcome TraceFocuser(Ray& ray, const ScopeGeometry& g, COrrevaData& record)
{
    const double Df = record.GetFocuserDiameter();
    const double left = g.focuserX - Df / 2;
    const double right = g.focuserX + Df / 2;
    const Point opening = ray.MeetsWall(g.top);
    if (opening.x < left || opening.x > right) {
        return ray.LoseAt(opening);
    }
    const double focalPlane = g.top - record.GetFocuserTotalHeight();
    const Point focus = ray.MeetsWall(focalPlane);
    if (focus.x < left) {
        return ray.LoseAt(ray.Meets(left, g.top, left, focalPlane));
    }
    if (focus.x > right) {
        return ray.LoseAt(ray.Meets(right, g.top, right, focalPlane));
    }
    ray.Emit(focus, RayHit);
    return true;
}

} // namespace

RayOutcome TraceRay(const ScopeGeometry& geometry, COrrevaData& record, double x0, double y0, double angle,
                    bool miss_in_grey, std::vector<RaySegment>* segments)
{
    const ScopeGeometry& g = geometry;
    Ray ray(g, miss_in_grey, segments);
    ray.Start({x0, y0}, angle);
    if (x0 >= g.mirrorX) {
        ray.Emit(ray.far, RayLost);
        return false;
    }
    if (ray.IsStoppedBeforePrimary()) {
        return false;
    }

    const Point mirror = ray.Meets(g.mirrorX, g.mirrorTop, g.mirrorX, g.mirrorBottom);
    if (mirror.y < g.mirrorTop || mirror.y > g.mirrorBottom) {
        return ray.LoseAt(ray.far);
    }
    ray.Emit(mirror, RayHit);
    const double back = ReflectAtPrimary(g, record.GetFocalLength(), mirror, angle);

    ray.Start(mirror, back);
    const Point diagonal = ray.MeetsDiagonal();
    if (!(g.secondaryLeft <= diagonal.x && diagonal.x <= g.secondaryRight)) {
        ray.PassDiagonal(diagonal.x);
        return false;
    }
    ray.Emit(diagonal, RayHit);

    ray.Start(diagonal, -back + kHalfPi);
    return TraceFocuser(ray, g, record);
}

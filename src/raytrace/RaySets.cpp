#include "raytrace/RaySets.h"

#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"

namespace {

constexpr double kParallelRange = 0.0490873852109375; // rad: the tilt's range over the tube's width, doubled
constexpr double kFanHalf = 0.19634954084375;         // rad
constexpr double kFanStep = 0.008726646259722222;     // rad, half a degree

void TraceFan(const ScopeGeometry& geometry, COrrevaData& record, Point from, bool miss_in_grey,
              std::vector<RaySegment>& segments)
{
    for (double a = kHalfPi - kFanHalf; a < kHalfPi + kFanHalf; a += kFanStep) {
        TraceRay(geometry, record, from.x, from.y, a, miss_in_grey, &segments);
    }
}

} // namespace

double ParallelAngle(const ScopeGeometry& geometry, double pointerY)
{
    constexpr double v = kParallelRange;
    return (kHalfPi - v / 2) + ((pointerY - geometry.top) * (v / geometry.tubeWidth)) / 2;
}

void TraceParallelSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                      std::vector<RaySegment>& segments)
{
    if (!(geometry.tubeWidth > 0)) {
        return;
    }
    // The step rules how many rays there are, but far off it may vanish against the height.
    constexpr int kMostRays = 64;
    const double a = ParallelAngle(geometry, pointer.y);
    const double half = 1.5 * geometry.tubeWidth;
    const double step = geometry.tubeWidth / 15;
    int rays = 0;
    for (double y = pointer.y - half; y < pointer.y + half && rays < kMostRays; y += step, ++rays) {
        TraceRay(geometry, record, 0.0, y, a, miss_in_grey, &segments);
    }
}

void TraceFocalSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                   std::vector<RaySegment>& segments)
{
    TraceFan(geometry, record, {geometry.mirrorX - record.GetFocalLength(), pointer.y}, miss_in_grey,
             segments);
}

void TracePointerSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                     std::vector<RaySegment>& segments)
{
    TraceFan(geometry, record, pointer, miss_in_grey, segments);
}

RayPicture TraceActiveSet(const ScopeGeometry& geometry, COrrevaData& record, const ViewSwitches& switches,
                          Point pointer)
{
    const bool grey = switches.miss_in_grey != 0;
    RayPicture picture;
    if (switches.ray_parallel != 0) {
        TraceParallelSet(geometry, record, pointer, grey, picture.segments);
        picture.status = ParallelStatus(record, ParallelAngle(geometry, pointer.y));
    } else if (switches.ray_from_focal_plane != 0) {
        TraceFocalSet(geometry, record, pointer, grey, picture.segments);
    } else if (switches.ray_from_mouse != 0) {
        TracePointerSet(geometry, record, pointer, grey, picture.segments);
    }
    return picture;
}

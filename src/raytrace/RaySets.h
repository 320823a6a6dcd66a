#pragma once

#include "raytrace/Lines.h"
#include "raytrace/ParallelStatus.h"
#include "raytrace/TraceRay.h"
#include "raytrace/ViewSwitches.h"

#include <optional>
#include <vector>

/// The angle of the parallel set, radians: it follows the height of the pointer over the tube. On the lower
/// tube line the rays run along the axis, on the upper one they are tilted by 1.40625 degrees.
double ParallelAngle(const ScopeGeometry& geometry, double pointerY);

/// 45 or 46 parallel rays across three tube widths about the pointer's height. A tube whose width is 0, less
/// or not a number is not traced.
void TraceParallelSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                      std::vector<RaySegment>& segments);

/// A fan of 22.5 degrees from a point at the pointer's height, on the vertical through the prime focus.
void TraceFocalSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                   std::vector<RaySegment>& segments);

/// The same fan from the pointer.
void TracePointerSet(const ScopeGeometry& geometry, COrrevaData& record, Point pointer, bool miss_in_grey,
                     std::vector<RaySegment>& segments);

/// What one of the ray modes shows.
struct RayPicture {
    std::vector<RaySegment> segments;
    std::optional<ParallelFigures> status; ///< of the parallel set alone
};

/// The set that the switches choose, nothing if none is on; `pointer` is the mouse in mm.
RayPicture TraceActiveSet(const ScopeGeometry& geometry, COrrevaData& record, const ViewSwitches& switches,
                          Point pointer);

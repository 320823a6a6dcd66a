#pragma once

#include "raytrace/ScopeGeometry.h"

#include <vector>

class COrrevaData;

enum RayClass {
    RayHit,  ///< goes on
    RayLost, ///< ends at its first obstacle
};

/// A stretch of a ray, mm.
struct RaySegment {
    double x0 = 0.0;
    double y0 = 0.0;
    double x1 = 0.0;
    double y1 = 0.0;
    RayClass colour = RayHit;
    bool operator==(const RaySegment&) const = default;
};

/// Whether a ray reached the focal plane inside the focuser.
using RayOutcome = bool;

/// Follows one ray from (x0, y0) in the direction (sin angle, cos angle), radians: through the tube to the
/// primary, to the diagonal, into the focuser and on to the focal plane. Its segments are appended to
/// `segments` in order; with a null pointer the ray is only classified. Lost segments are left out unless
/// `miss_in_grey` is set, except for a start behind the mirror.
///
/// A sketch in two dimensions, and not to be refined: the primary is a flat line with the slope of a sphere,
/// the diagonal a line of 45 degrees, the tube two thin lines, and each ray a half line of 10000 mm.
RayOutcome TraceRay(const ScopeGeometry& geometry, COrrevaData& record, double x0, double y0, double angle,
                    bool miss_in_grey, std::vector<RaySegment>* segments);

#pragma once

#include <string>

class COrrevaData;

/// The figures of the parallel mode's status line. They are the analytic ones and rest on no traced ray.
struct ParallelFigures {
    double angleDegrees = 0.0;        ///< tilt of the rays off the axis
    double imageMm = 0.0;             ///< the image's full diameter for a bundle that comes in at that tilt
    double illuminationPercent = 0.0; ///< the share of the primary that the diagonal lets see, 0 to 100
};

/// For rays of the angle `a`, radians. The illumination is the overlap of the primary with the diagonal's
/// shadow on it, seen from the focus. Circles that do not cut each other give 100 % or 0 %, told apart by the
/// image's size alone.
ParallelFigures ParallelStatus(COrrevaData& record, double a);

/// The status line, with the blank at its end.
std::string FormatParallelStatus(int language, const ParallelFigures& figures);

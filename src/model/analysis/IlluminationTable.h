#pragma once

#include "model/rows/ListRow.h"

#include <array>

/// How the illumination falls off from the centre of the field to the edge of the focuser opening. Lengths
/// are mm; D and F belong to the primary, m is the minor axis of the secondary, L the light path from the
/// secondary to the focus.

struct IlluminationPoint {
    double field = 0;   ///< mm off the axis in the focal plane
    double degrees = 0; ///< the same as an angle
    double percent = 0; ///< share of the light; bad (unset or NaN) where it could not be computed or repaired
    double loss = 0;    ///< magnitudes
};

using IlluminationTable = std::array<IlluminationPoint, 21>;

/// Share in per cent of the primary that a point of the field sees in the secondary: the lens in which the
/// unit circle and a circle of the radius r overlap, x apart. A NaN where one of them lies within the other
/// or apart from it, and for x = 0.
double OverlapPercent(double x, double r);

/// The 21 points, equally spaced up to the focuser opening, which is rounded down to full 10 mm if larger
/// than that. Points that cannot be computed are repaired from their neighbours outward, see the definition.
IlluminationTable ComputeIllumination(double D, double F, double L, double m, double focuser_opening);

/// One row a point, from the outermost with at least 60 per cent inward; none if there is no such point.
ListRows IlluminationRows(const IlluminationTable& table, int language);

#pragma once

#include "lib/text/Language.h"
#include "model/optics/Illumination.h"
#include "model/rows/ListRow.h"

#include <cstddef>
#include <string>
#include <vector>

/// The exact light over the field, as rows and curves show it. All of it for stops that have illumination;
/// there is nothing else (no point, no stretch, no row) where they have none.

struct IlluminationCurvePoint {
    double h = 0;         ///< mm off the centre, in the focal plane
    double degrees = 0;   ///< the same as an angle
    double of_centre = 0; ///< per cent of the centre's light, above 100 where the shadow leaves the mirror
    double loss = 0;      ///< magnitudes against the centre, infinite where it is dark
    double of_mirror = 0; ///< per cent of what the bare mirror would give
};

IlluminationCurvePoint CurvePointAt(const IlluminationStops& stops, double h);

/// `count` points (two at least) from the centre to h = `reach`, equally spaced.
std::vector<IlluminationCurvePoint> IlluminationCurve(const IlluminationStops& stops, double reach,
                                                      std::size_t count);

/// A part of the way from the centre to h = reach in which one stop cuts first.
struct CuttingStretch {
    double from = 0;
    double to = 0;
    CuttingStop stop = CuttingStop::kNone;
};

/// One after the other from the centre outward; their borders are exact to a millionth of the reach, and a
/// stretch of less than a two hundredth of it may be missed.
std::vector<CuttingStretch> CuttingStretches(const IlluminationStops& stops, double reach);

/// "whole mirror" for none.
Bilingual NameOf(CuttingStop stop);

/// The light at the edge of a field of `diameter` mm in one line: "24.0 mm (0.917°): 85.2 % (0.174 mag),
/// secondary".
std::string IlluminationReading(const IlluminationStops& stops, double diameter, int language);

/// h, angle, per cent of the centre's light, its loss, per cent of the bare mirror's light.
ListRow IlluminationCells(const IlluminationCurvePoint& point);

/// The page's rows from the top down: 41 points up to the edge of the drawtube's opening, h = i d / 80.
ListRows IlluminationPageRows(const IlluminationStops& stops);

/// What stands in the place of curve and rows.
inline constexpr const char* kNoIllumination = "no illumination";

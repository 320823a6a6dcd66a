#pragma once

#include "drawing/Chart.h"
#include "model/analysis/Eyepieces.h"
#include "model/optics/Illumination.h"

#include <span>
#include <string>
#include <vector>

/// The charts of the exact illumination. The field is told by its diameter in the focal plane, from the
/// centre to the drawtube's opening or a little more.

/// All colours of these charts; the bands' in the order of CuttingStop.
struct IlluminationColours {
    ChartColours chart;
    Colour curve; ///< of the present telescope; the 75 % field
    Colour other; ///< of the standard sizes around it; the fully lit field
    Colour obstruction;
    Colour mark; ///< fields of the curve
    Colour wanted;
    Colour eyepiece;
    Colour bands[4];
    Colour bandText;
};

inline constexpr IlluminationColours kLightIllumination{
    kLightChart,     {0, 92, 175},
    {100, 130, 100}, {190, 60, 20},
    {110, 110, 110}, {190, 60, 20},
    {130, 60, 150},  {{200, 232, 200}, {250, 215, 160}, {170, 205, 245}, {235, 190, 215}},
    {20, 20, 20}};
inline constexpr IlluminationColours kDarkIllumination{
    kDarkChart,      {90, 175, 255},
    {130, 180, 130}, {255, 140, 90},
    {170, 170, 170}, {255, 140, 90},
    {205, 150, 235}, {{40, 85, 45}, {110, 80, 25}, {30, 75, 120}, {105, 45, 85}},
    {235, 235, 235}};

/// A field stop that is to be marked.
struct FieldStop {
    std::string name;    ///< code page 1252
    double diameter = 0; ///< mm
};

/// The field stops of the eyepieces whose focal length and apparent field are known, as far as they are not
/// wider than `widest` mm: what the eyepiece's actual field measures in the focal plane of the focal length f
/// (mm).
std::vector<FieldStop> FieldStopsOf(const std::vector<Eyepiece>& eyepieces, double f, double widest);

/// The largest field that is shown, as a diameter in mm.
double ShownField(const IlluminationStops& stops, double wanted);

/// The curve over the field, with the stop that cuts first below it, and marks at the wanted field, the fully
/// lit field, 75 % and 50 % of the centre's light and the field stops. `wanted` in mm.
Chart IlluminationChart(const IlluminationStops& stops, double wanted, std::span<const FieldStop> fieldStops,
                        const IlluminationColours& colours, int language);

/// Thin curves for other minor axes (mm) behind the present one.
Chart MinorAxesChart(const IlluminationStops& stops, double wanted, const std::vector<double>& minorAxes,
                     const IlluminationColours& colours, int language);

/// Over the standard minor axes: the fully lit field, the 75 % field and the obstruction.
Chart SecondaryChoiceChart(const IlluminationStops& stops, double wanted, const IlluminationColours& colours,
                           int language);

#pragma once

#include "drawing/Chart.h"
#include "model/optics/Figure.h"

#include <span>
#include <string>

/// A figure and the name of its series; without a name it is alone.
struct WavefrontCurve {
    const Figure* figure;
    std::string name;
};

/// The profile of the wavefront, nm, over the radius of a mirror of the diameter D, mm, with lines at a
/// quarter and an eighth of the wavelength, nm, on both sides of the mean, and the zones of the first figure
/// marked by their numbers. Figures stand in colours of their own.
Chart WavefrontChart(std::span<const WavefrontCurve> curves, double D, double wavelength, int language);

/// The transverse aberrations of the zones, in Airy radii, in the tolerance band of Millies-Lacroix: plus and
/// minus one Airy radius.
Chart TransverseChart(std::span<const WavefrontCurve> curves, double D, int language);

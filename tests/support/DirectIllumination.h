#pragma once

#include "model/optics/Illumination.h"

#include <cstdint>

/// The light at h by its definition, in two slow ways that know nothing of circles that cross: a count of
/// about `points` points spread evenly over the primary, and an adaptive integration over the chords that run
/// along the line of the circles' centres, with an error below 1e-11.
double CountedLight(const IlluminationStops& stops, double h, std::int64_t points);
double RefinedLight(const IlluminationStops& stops, double h);

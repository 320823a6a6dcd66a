#pragma once

#include "drawing/Chart.h"
#include "model/analysis/Variation.h"

#include <vector>

/// What one parameter of a design does to some of its values.
struct VariationCurves {
    const RecordField* field = nullptr;        ///< the parameter
    std::vector<const DesignValue*> values{};  ///< one to four
    std::vector<double> places{};              ///< of the parameter
    std::vector<std::vector<double>> curves{}; ///< for each of the values its numbers at the places
    double present = 0;                        ///< the parameter of the present design
    std::vector<double> present_values{};      ///< and its values
    double wanted_field = 0;                   ///< mm
};

/// The curves with the present design marked. Values of one unit share an axis: millimetres, or else the unit
/// of the first value, stand at the left, all others at the right. Beside a field the wanted one is a level
/// line.
Chart VariationChart(const VariationCurves& curves, int language);

/// The index of the place that is nearest to `x`; 0 without any.
std::size_t NearestPlace(const VariationCurves& curves, double x);

#include "model/analysis/SecondaryChoice.h"

#include "lib/text/FiniteText.h"
#include "lib/text/Numbers.h"
#include "model/analysis/SecondaryFormulas.h"
#include "model/record/Formulas.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr std::size_t kAxesAtMost = 40;

/// The next standard size above `size`.
double NextMinorAxis(double size)
{
    const double next = StandardSecondaryDiameter(std::nextafter(size, HUGE_VAL));
    return next > size ? next : size + kInch; // whole inches, one of which may round to itself
}

} // namespace

SecondaryChoice ChoiceOf(const IlluminationStops& stops, double minorAxis)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    IlluminationStops changed = stops;
    changed.m = minorAxis;
    SecondaryChoice choice;
    choice.minor_axis = minorAxis;
    choice.full_field = HasIllumination(changed) ? FullyLitField(changed) : kNone;
    choice.field_at_75 = FieldDiameterAtShare(changed, 0.75);
    choice.obstruction = LinearObstruction(stops.D, minorAxis);
    return choice;
}

std::vector<double> StandardMinorAxes(double D)
{
    std::vector<double> axes;
    for (double axis = StandardSecondaryDiameter(0.05 * D); axis <= 0.6 * D && axes.size() < kAxesAtMost;
         axis = NextMinorAxis(axis)) {
        axes.push_back(axis);
    }
    return axes;
}

std::vector<double> MinorAxesAround(double present, std::size_t each)
{
    // The list starts anew from its smallest size, and far above it a few inches below the present one.
    constexpr double kWayBelow = 20 * kInch;
    constexpr std::size_t kStepsAtMost = 100;
    std::vector<double> below;
    std::vector<double> above;
    if (!std::isfinite(present)) {
        return below;
    }
    double axis = StandardSecondaryDiameter(present - kWayBelow);
    for (std::size_t i = 0; i < kStepsAtMost && above.size() < each; ++i) {
        if (axis != present) {
            (axis < present ? below : above).push_back(axis);
        }
        axis = NextMinorAxis(axis);
    }
    if (below.size() > each) {
        below.erase(below.begin(), below.end() - static_cast<std::ptrdiff_t>(each));
    }
    below.insert(below.end(), above.begin(), above.end());
    return below;
}

std::vector<SecondaryChoice> SecondaryChoices(const IlluminationStops& stops,
                                              const std::vector<double>& minorAxes)
{
    std::vector<SecondaryChoice> choices;
    choices.reserve(minorAxes.size());
    for (const double axis : minorAxes) {
        choices.push_back(ChoiceOf(stops, axis));
    }
    return choices;
}

ListRow SecondaryChoiceCells(const SecondaryChoice& choice)
{
    return {FiniteText("%0.2f mm", {choice.minor_axis}), FiniteText("%0.1f mm", {choice.full_field}),
            FiniteText("%0.1f mm", {choice.field_at_75}), FiniteText("%0.1f %%", {choice.obstruction})};
}

#pragma once

#include "model/optics/Illumination.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <vector>

/// What each of the standard secondaries would give in a telescope whose other measures stay.
struct SecondaryChoice {
    double minor_axis = 0;  ///< mm
    double full_field = 0;  ///< diameter of the fully lit field, mm; a NaN without illumination
    double field_at_75 = 0; ///< diameter of the field with 75 % of the centre's light, mm; a NaN likewise
    double obstruction = 0; ///< linear, per cent
};

SecondaryChoice ChoiceOf(const IlluminationStops& stops, double minorAxis);

/// The standard minor axes that a primary of the diameter D may have: from 5 to 60 per cent of it, 40 at
/// most.
std::vector<double> StandardMinorAxes(double D);

/// The standard minor axes around `present`: up to `each` below it and as many above it, itself not among
/// them.
std::vector<double> MinorAxesAround(double present, std::size_t each);

/// The choices for some minor axes, in their order.
std::vector<SecondaryChoice> SecondaryChoices(const IlluminationStops& stops,
                                              const std::vector<double>& minorAxes);

inline constexpr ListColumn kSecondaryChoiceColumns[] = {
    {{"Minor axis", "Kleine Achse"}, 110, true},
    {{"Fully lit field", "Voll ausgeleuchtet"}, 130, true},
    {{"75 % field", "75-%-Feld"}, 110, true},
    {{"Obstruction", "Obstruktion"}, 110, true}};

/// The cells of the columns above; a dash for what there is not.
ListRow SecondaryChoiceCells(const SecondaryChoice& choice);

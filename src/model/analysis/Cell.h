#pragma once

#include "model/record/OrrevaData.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <string>

/// The page Mirror Cell: on how many points a primary must lie so that its sag under its own weight stays
/// small. Two-term fits over diameter and thickness only; no material enters.

inline constexpr ListColumn kCellColumns[] = {{{"Type", "Typ"}, 222},
                                              {{"lambda p/v", "lambda p/v"}, 75, true}};

/// The x of a wavefront error of lambda / x, peak to valley, for each kind of cell: the larger, the better.
/// Negative where a fit does not hold, for blanks that are very thick.
struct CellFigures {
    double three_at_edge;
    double three_at_70;
    double nine;
    double eighteen;
};

/// For a mirror of the given diameter and thickness, mm.
CellFigures ComputeCell(double diameter, double thickness);

/// For the record as it is now.
CellFigures ComputeCell(COrrevaData& record);

ListRows CellRows(const CellFigures& figures, int language);

/// The sentence on the least cell that keeps to lambda / 32.
std::string CellVerdict(const CellFigures& figures, int language);

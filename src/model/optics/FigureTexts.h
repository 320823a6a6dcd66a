#pragma once

#include "model/optics/Figure.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <string>

// What a builder reads of a figure: on the page, and above its picture.
// --------------------------------------

inline constexpr ListColumn kFigureColumns[] = {{{"Property", "Eigenschaft"}, 150},
                                                {{"Value", "Wert"}, 110, true}};

/// PV, RMS, Strehl, the largest transverse aberration, the conic and the focus, in the order of reading: each
/// its name and its value.
ListRows FigureRows(const Figure& figure, int language);

/// One sentence: whether the wavefront keeps to a quarter wave and the Strehl ratio to 0.8, and which zone
/// stands highest, on the wavefront and on the glass. A zone stands high by more than half a nanometre above
/// the mean.
std::string FigureVerdict(const Figure& figure, int language);

/// PV, RMS and Strehl in a line, for titles.
std::string FigureTitle(const Figure& figure, int language);

#pragma once

#include "drawing/Surface.h"
#include "model/analysis/SidePanelRows.h"

#include <vector>

/// What the two panels have in common: their background, and rows of label and value from the top down, some
/// with a thin line along their top edge.

/// Fills the panel as the sheet around it is filled.
void PaintPanelBackground(Surface& surface, Colour background);

/// Paints the rows in the colour of text; the position under the last one.
std::int32_t PaintSidePanelRows(Surface& surface, const std::vector<SidePanelRow>& rows, Colour text);

void PaintThinLine(Surface& surface, std::int32_t y);

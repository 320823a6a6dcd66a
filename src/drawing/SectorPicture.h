#pragma once

#include "drawing/Surface.h"
#include "model/tools/SectorMeasures.h"

/// Paints a segment of a circle with its measures, or why it cannot be drawn.
void PaintSector(Surface& surface, const SectorInput& input, int language);

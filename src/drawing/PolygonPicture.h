#pragma once

#include "drawing/Surface.h"
#include "model/tools/PolygonMeasures.h"

/// Paints the cross-section of a polygonal tube with its cutting measures, or why it cannot be drawn. A type
/// that the list does not have draws nothing.
void PaintPolygon(Surface& surface, const PolygonInput& input, int language);

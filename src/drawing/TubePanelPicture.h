#pragma once

#include "drawing/Surface.h"

class COrrevaData;

/// The table of the tube's dimensions beside the pages of the tube design, on the sheet's own background.
void PaintTubePanel(Surface& surface, COrrevaData& record, int language, Colour background);

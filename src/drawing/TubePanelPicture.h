#pragma once

#include "drawing/Surface.h"

class COrrevaData;

/// The table of the tube's dimensions beside the pages of the tube design, in the sheet's own colours.
void PaintTubePanel(Surface& surface, COrrevaData& record, int language, Colour background,
                    Colour text = kBlack);

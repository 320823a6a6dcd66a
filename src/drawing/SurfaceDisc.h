#pragma once

#include "drawing/Surface.h"
#include "model/optics/Figure.h"

/// The surface of a mirror of the diameter D, mm, seen from the front: the heights of the glass in colour,
/// blue for low, white for the mean, red for high, the zones as rings, and beside it the scale in nm. Without
/// a figure the disc is grey and has no scale. `background` and `text` are those of the window.
void PaintSurfaceDisc(Surface& surface, const Figure* figure, double D, Colour background, Colour text);

/// The colour of a height, from -1 for the lowest to 1 for the highest.
Colour HeightColour(double height);

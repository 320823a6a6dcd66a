#pragma once

#include "drawing/Surface.h"

class COrrevaData;

/// The mirror's data beside the pages of the Foucault test, German in every language, and below them the look
/// of a Couder mask over a mirror, with no scale to the mirror at hand. In the sheet's own colours.
void PaintMirrorPanel(Surface& surface, COrrevaData& record, Colour background, Colour text = kBlack);

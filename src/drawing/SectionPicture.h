#pragma once

#include "drawing/SectionZoom.h"
#include "drawing/Surface.h"
#include "raytrace/Lines.h"
#include "raytrace/ViewSwitches.h"

#include <variant>

class COrrevaData;

/// The mouse: a pixel of the window, or a place in the telescope.
using SectionPointer = std::variant<Pixel, Point>;

/// Paints the telescope from the side, with a millimetre scale below it and the rays of the mode that is on.
/// `window` shows the part of the enlarged picture that `view` tells, and nothing else of it is painted; the
/// view's scroll is clamped first. A window below 30 pixels stays empty, and without a loaded telescope it
/// tells how to come by one.
void PaintSection(Surface& window, SectionZoom& view, COrrevaData& record, const ViewSwitches& switches,
                  const SectionPointer& pointer, int language);

/// Paints the telescope alone, without rays, with so many pixels for a millimetre: telescopes beside one
/// another are compared at one scale. The record need not be a loaded one.
void PaintSectionAtScale(Surface& window, COrrevaData& record, double scale);

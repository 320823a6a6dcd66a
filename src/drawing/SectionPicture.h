#pragma once

#include "drawing/SectionZoom.h"
#include "drawing/Surface.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "raytrace/Lines.h"
#include "raytrace/ViewSwitches.h"

#include <variant>

class COrrevaData;

// The texts of the picture.
inline constexpr Bilingual kNoTelescope{
    "Please create a new set of data (Menu:File/New) or open an existing set (Menu:File/Open).",
    "Lege bitte einen neuen Datensatz an (Menü:Datei/Neu) oder öffne einen vorhandenen Daten (Menü:Datei/Öffnen)."_cp1252};
inline constexpr Bilingual kNoOffset{"Attention: Display without Secondary Offset!",
                                     "Achtung: es wird kein Fangspiegel Offset berücksichtigt!"_cp1252};

/// The mouse: a pixel of the window, or a place in the telescope.
using SectionPointer = std::variant<Pixel, Point>;

/// Paints the telescope from the side, with a millimetre scale below it and the rays of the mode that is on.
/// `window` shows the part of the enlarged picture that `view` tells, and nothing else of it is painted; the
/// view's scroll is clamped first. A window below 30 pixels stays empty, and without a loaded telescope it
/// tells how to come by one. In high contrast the same telescope is painted for the eye, with room for the
/// whole scale. A surface of finer pixels has `pixelScale` of them for each pixel that view, pointer and
/// fonts are told in.
void PaintSection(Surface& window, SectionZoom& view, COrrevaData& record, const ViewSwitches& switches,
                  const SectionPointer& pointer, int language, double pixelScale = 1);

/// The place in the telescope that a pixel of a window of `size` stands for.
Point PlaceInSection(const SectionZoom& view, Pixel size, COrrevaData& record, const ViewSwitches& switches,
                     Pixel at);

/// How wide the yellow bar of the focal plane is, mm; none is painted for 0 and less. A formula of the
/// picture's own: without the travel of a drawtube.
double LitPartOfFocalPlane(COrrevaData& record);

/// Paints the telescope alone, without rays, with so many pixels for a millimetre: telescopes beside one
/// another are compared at one scale. The record need not be a loaded one.
void PaintSectionAtScale(Surface& window, COrrevaData& record, double scale);

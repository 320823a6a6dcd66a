#pragma once

#include "drawing/SectionMapping.h"
#include "drawing/Surface.h"

class COrrevaData;
struct ScopeGeometry;

/// The millimetre scale below the telescope, which counts from the tube's rear end toward the front: from
/// `front` to `rear` along the tube, at the height y, mm.
struct SectionScale {
    static constexpr double kTick = 15; ///< of the long ticks, up and down, mm

    double front = 0;
    double rear = 0;
    double y = 0;
};

SectionScale ScaleOf(const ScopeGeometry& geometry, COrrevaData& record);

/// Fonts are larger by `pixelScale`.
void PaintScale(Surface& surface, const SectionMapping& map, const SectionScale& scale, Colour colour,
                double pixelScale);

/// The scale for the eye: its numbers stand whole below it and apart from one another, the last of them at
/// the front end, the tube's length in whole mm.
void PaintClearScale(Surface& surface, const SectionMapping& map, const SectionScale& scale, Colour colour,
                     double pixelScale);

/// Usual pixels that those numbers take below the long ticks.
std::int32_t ClearScaleRoom(const SectionScale& scale);

#pragma once

#include "drawing/Surface.h"
#include "raytrace/Lines.h"

class COrrevaData;

/// World millimetres to pixels of the cross-section's window and back.
struct SectionMapping {
    double scale = 1.0; ///< pixels per mm of the enlarged picture
    double offsetX = 0.0;
    double offsetY = 0.0;
    Pixel scroll; ///< the picture's pixel in the window's upper left corner

    /// Rounded to a pixel of the picture, then moved by the scroll, so that a part of the picture has the
    /// very pixels of the whole.
    Pixel WorldToScreen(double x, double y) const;
    /// For filled rectangles: corners in any order; one of no size still has a pixel's width.
    PixelRect WorldToScreen(Point corner, Point opposite) const;
    /// Neither zoom nor scroll is taken off the pixel. Kept: at a zoom above 1 rays start beside the pointer.
    Point ScreenToWorld(Pixel pixel) const;
};

/// The mapping that fits the telescope into a picture of `size` pixels, a little above its middle: the room
/// below is the scale's. The scroll is (0, 0).
SectionMapping FitSection(COrrevaData& record, Pixel size);

/// Room that a picture keeps below the telescope: down to `bottom` mm, and pixels below that.
struct SectionRoom {
    double bottom = 0;
    std::int32_t pixels = 0;
};

/// The same mapping if it has that room already, or else one for a smaller telescope.
SectionMapping FitSection(COrrevaData& record, Pixel size, const SectionRoom& room);

/// The same with a scale of the caller's, which may leave room or be too large.
SectionMapping SectionAtScale(COrrevaData& record, Pixel size, double scale);

#pragma once

#include "drawing/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

/// Lines and polygons cut into runs of pixels: rectangles of one pixel's height or width. Which pixels a
/// shape has does not depend on where it is clipped or moved to, so that a part of a picture has the very
/// pixels of the whole. Coordinates may be any; the work is bounded by the size of `clip`.

/// The pixels of a line with both of its ends, within `clip`, are appended to `runs`.
void AppendLine(Pixel from, Pixel to, const PixelRect& clip, std::vector<PixelRect>& runs);

/// The pixels whose centres lie inside the polygon by the even-odd rule, within `clip`, are appended.
void AppendPolygon(std::span<const Pixel> points, const PixelRect& clip, std::vector<PixelRect>& runs);

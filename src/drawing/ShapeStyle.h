#pragma once

#include "drawing/Surface.h"

// What the pictures of the polygon and the sector calculator have in common.

inline constexpr std::int32_t kShapeMargin = 10;
inline constexpr Colour kShapeGrey{192, 192, 192};
inline constexpr Font kLabelFont{.height = 12};

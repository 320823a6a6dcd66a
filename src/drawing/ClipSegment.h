#pragma once

#include "raytrace/Lines.h"

#include <optional>

/// A part of the way from one point to another, as shares of it: 0 its start, 1 its end.
struct WayPart {
    double enter;
    double leave;
};

/// The part of the way that lies in the box between two corners, its edges included; none if the way passes
/// the box by. Cut by one side after the other (by Liang and Barsky).
std::optional<WayPart> ClipSegment(Point from, Point to, Point upperLeft, Point lowerRight);

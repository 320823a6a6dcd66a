#pragma once

#include "raytrace/Lines.h"

#include <algorithm>
#include <optional>

/// A box in the plane, y downward, with its edges.
struct ClipBox {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

struct LineEnds {
    Point from;
    Point to;
};

/// The part of a line in a box, cut by one side after the other (by Liang and Barsky); none where it passes
/// by.
inline std::optional<LineEnds> ClipLine(const LineEnds& line, const ClipBox& box)
{
    const double dx = line.to.x - line.from.x;
    const double dy = line.to.y - line.from.y;
    const double sides[4][2] = {{-dx, line.from.x - box.left},
                                {dx, box.right - line.from.x},
                                {-dy, line.from.y - box.top},
                                {dy, box.bottom - line.from.y}};
    double enter = 0;
    double leave = 1;
    for (const auto& [step, room] : sides) {
        if (step < 0) {
            enter = std::max(enter, room / step);
        } else if (step > 0) {
            leave = std::min(leave, room / step);
        } else if (room < 0) {
            return std::nullopt;
        }
    }
    if (!(enter <= leave)) {
        return std::nullopt;
    }
    return LineEnds{{line.from.x + dx * enter, line.from.y + dy * enter},
                    {line.from.x + dx * leave, line.from.y + dy * leave}};
}

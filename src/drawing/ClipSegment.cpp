#include "drawing/ClipSegment.h"

#include <algorithm>

std::optional<WayPart> ClipSegment(Point from, Point to, Point upperLeft, Point lowerRight)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double sides[4][2] = {{-dx, from.x - upperLeft.x},
                                {dx, lowerRight.x - from.x},
                                {-dy, from.y - upperLeft.y},
                                {dy, lowerRight.y - from.y}};
    WayPart part{0.0, 1.0};
    for (const auto& [step, room] : sides) {
        if (step < 0) {
            part.enter = std::max(part.enter, room / step);
        } else if (step > 0) {
            part.leave = std::min(part.leave, room / step);
        } else if (room < 0) {
            return std::nullopt;
        }
    }
    if (part.enter > part.leave) {
        return std::nullopt;
    }
    return part;
}

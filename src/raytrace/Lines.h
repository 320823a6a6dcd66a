#pragma once

/// A place in the telescope, mm: x along the tube from front to back, y across it and downward.
struct Point {
    double x = 0.0;
    double y = 0.0;
    bool operator==(const Point&) const = default;
};

/// Intersection of the infinite lines (x1,y1)-(x2,y2) and (x3,y3)-(x4,y4), in mm. A vertical line is skewed
/// by 1e-8 instead of being a case of its own; parallel lines meet at (0, 0), which lies outside the tube by
/// construction.
Point IntersectLines(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4);

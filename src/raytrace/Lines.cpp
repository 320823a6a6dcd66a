#include "raytrace/Lines.h"

Point IntersectLines(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4)
{
    constexpr double kSkew = 1e-8;
    if (x2 == x1) {
        x2 += kSkew;
    }
    if (x4 == x3) {
        x4 += kSkew;
    }
    const double m1 = (y2 - y1) / (x2 - x1);
    const double m2 = (y4 - y3) / (x4 - x3);
    const double b1 = y1 - m1 * x1;
    const double b2 = y4 - m2 * x4;
    if (m1 == m2) {
        return {0.0, 0.0};
    }
    return {(b2 - b1) / (m1 - m2), (m1 * b2 - m2 * b1) / (m1 - m2)};
}

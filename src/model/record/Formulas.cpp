#include "model/record/Formulas.h"

#include "lib/text/Numbers.h"

double FieldAngle(double f, double w) { return 2 * std::atan(w / (2 * f)) * 360 / 2 / kPi; }

double FieldSize(double f, double degrees) { return std::tan(degrees / 360 * kPi) * (2 * f); }

double FullFieldAngle(double D, double f, double m, double z)
{
    constexpr double kFullAngleInDegrees = 114.5915590294399; // 360 / pi as stored
    return std::atan((m * f - z * D) / (2 * f * (f - z))) * kFullAngleInDegrees;
}

double FullFieldDiameter(double D, double f, double m, double z) { return (f * m - z * D) / (f - z); }

double StandardFocuserDiameter(double raw)
{
    const double x = raw / kInch;
    if (x < 0.96) {
        return 24.384;
    }
    if (x < 1.25) {
        return 31.75;
    }
    return (std::floor(x) + 1.0) * kInch;
}

double StandardSecondaryDiameter(double raw)
{
    // Whole and broken inches in mm, and the one metric size.
    static constexpr double kSizes[] = {19.05,  25.4,  33.02, 38.608, 46.482, 50.0,
                                        54.356, 66.04, 78.74, 88.9,   101.6,  127.0};
    for (const double size : kSizes) {
        if (size >= raw) {
            return size;
        }
    }
    return (std::floor(raw / kInch) + 1.0) * kInch;
}

double ThicknessForDiameter(double D) { return D / 6.0; }

double FocalRatioForDiameter(double D)
{
    struct Row {
        double below;
        double ratio;
    };
    static constexpr Row kRows[] = {{150, 9.0}, {200, 8.0}, {250, 7.0}, {300, 6.0}, {350, 5.0}};
    for (const Row& row : kRows) {
        if (D < row.below) {
            return row.ratio;
        }
    }
    return 4.5;
}

#include "model/optics/RonchiTolerance.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// The error at a constant p of a mirror in inches, from first principles: its swing over the radius. It is
/// proportional to the distance from 1, so that the step at which it reaches a quarter wave can be told.
double SwingPerStep(double D, double F)
{
    const double r = D / 2;
    const double R = 2 * F;
    double e[3];
    const double zones[3] = {0.3 * r, 0.7 * r, 0.93 * r};
    for (int k = 0; k < 3; ++k) {
        e[k] = 0.01 * zones[k] * zones[k] / (2 * R) * zones[k] / (R * R * 2.2e-05);
    }
    const double A = (3.31 * e[0] - 3.88 * e[1] + 1.86 * e[2]) / (r * r * r);
    const double B = (-7.19 * e[0] + 6.37 * e[1] - 2.47 * e[2]) / (r * r);
    const double C = -r * (r * A + B);
    double least = 0;
    double most = 0;
    for (int i = 1; i <= 10; ++i) {
        const double x = i * 0.05 * D;
        const double W = x * x * x * x * A + x * x * x * B + x * x * C;
        least = std::min(least, W);
        most = std::max(most, W);
    }
    return most - least;
}

TEST(RonchiTolerance, LimitsOfOrdinaryMirrors)
{
    const struct {
        double D, F;
        double lower, upper;
    } rows[] = {{250, 1500, 0.51, 1.49},
                {200, 1200, 0.39, 1.61},
                {150, 1350, -1.71, 3.71},
                {400, 1800, 0.87, 1.13},
                {114, 900, -1.41, 3.41}};
    for (const auto& row : rows) {
        const auto tolerance = FindRonchiTolerance(row.D, row.F);
        ASSERT_TRUE(tolerance) << row.D;
        EXPECT_NEAR(row.lower, tolerance->lower, 1e-9) << row.D;
        EXPECT_NEAR(row.upper, tolerance->upper, 1e-9) << row.D;
    }
}

TEST(RonchiTolerance, LimitsAreTheFirstStepsThatReachAQuarterWave)
{
    for (double D = 80; D <= 600; D += 37) {
        for (double F = 3 * D; F <= 10 * D; F += 2.3 * D) {
            const double steps = std::ceil(0.25 / SwingPerStep(D / 25.4, F / 25.4));
            const auto tolerance = FindRonchiTolerance(D, F);
            ASSERT_TRUE(tolerance);
            EXPECT_LT(tolerance->lower, 1);
            EXPECT_GT(tolerance->upper, 1);
            EXPECT_NEAR(1 - 0.01 * steps, tolerance->lower, 1e-6) << D << " " << F;
            EXPECT_NEAR(1 + 0.01 * steps, tolerance->upper, 1e-6) << D << " " << F;
        }
    }
}

TEST(RonchiTolerance, IsTheSameEachTime)
{
    const auto first = FindRonchiTolerance(250, 1500);
    const auto second = FindRonchiTolerance(250, 1500);
    EXPECT_EQ(first->lower, second->lower);
    EXPECT_EQ(first->upper, second->upper);
}

TEST(RonchiTolerance, ASearchWithoutAnEndGivesNothing)
{
    const struct {
        double D, F;
    } rows[] = {{0, 1500}, {250, 0}, {0, 0}, {10, 1000}, {1e-300, 1500}, {1e300, 1500}, {250, 1e300}};
    for (const auto& row : rows) {
        EXPECT_FALSE(FindRonchiTolerance(row.D, row.F)) << row.D << " " << row.F;
    }
}

TEST(RonchiTolerance, ASearchEndsWithinAMillionSteps)
{
    // 10 mm of f/30 asks for about 150,000 steps, f/60 for more than a million.
    const double steps = std::ceil(0.25 / SwingPerStep(10 / 25.4, 300 / 25.4));
    EXPECT_GT(steps, 1e5);
    const auto tolerance = FindRonchiTolerance(10, 300);
    ASSERT_TRUE(tolerance);
    EXPECT_NEAR(1 + 0.01 * steps, tolerance->upper, 0.011);
    EXPECT_FALSE(FindRonchiTolerance(10, 600));
}

TEST(RonchiTolerance, TheLineNamesBothLimits)
{
    EXPECT_EQ("+- 1/4 wavefront Fehler: parab. kann in einem Bereich von 0.51 bis 1.49 ver\xE4ndert werden.",
              RonchiToleranceText({0.51, 1.49}));
}

} // namespace

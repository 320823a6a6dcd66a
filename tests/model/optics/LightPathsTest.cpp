#include "model/optics/LightPaths.h"

#include "support/DirectLightPaths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>
#include <random>

namespace {

struct Circles {
    double o_corr, o_obs, o_prim, r_corr, r_obs, r_prim, r__sec;
};

void ExpectEqualToTheDirectLoop(const Circles& c, std::int32_t n)
{
    EXPECT_EQ(CountLightPathsDirectly(c.o_corr, c.o_obs, c.o_prim, c.r_corr, c.r_obs, c.r_prim, c.r__sec, n),
              CountLightPaths(c.o_corr, c.o_obs, c.o_prim, c.r_corr, c.r_obs, c.r_prim, c.r__sec, n))
        << std::hexfloat << c.o_corr << " " << c.o_obs << " " << c.o_prim << " " << c.r_corr << " " << c.r_obs
        << " " << c.r_prim << " " << c.r__sec << " n " << n;
}

TEST(CountLightPaths, OfAHandfulOfPoints)
{
    // n = 1: the cell is half the radius, the row stands at 0.75 and holds (0.75, 0.75), outside of the disc,
    // and (0.25, 0.75), inside.
    EXPECT_EQ(1, CountLightPaths(0, 0, 0, 9, 0, 9, 1, 1));
    EXPECT_EQ(0, CountLightPaths(0, 0, 0, 9, 0.8, 9, 1, 1)); // obstructed: 0.0625 + 0.5625 < 0.64
    EXPECT_EQ(0, CountLightPaths(-9.5, 0, 0, 9, 0, 9, 1, 1));
    EXPECT_EQ(0, CountLightPaths(0, 0, -9.5, 9, 0, 9, 1, 1));
    EXPECT_EQ(0, CountLightPaths(0, 0, 0, 9, 0, 9, 1, 0));
    EXPECT_EQ(0, CountLightPaths(0, 0, 0, 9, 0, 9, 1, -3));
}

TEST(CountLightPaths, TestsAreStrict)
{
    // The lit point lies at the squared distance 0.625 exactly, from (0.25, 0.75).
    EXPECT_EQ(0, CountLightPaths(0, 0, -0.25, 9, 0, 0.75, 1, 1)); // 0 + 0.5625 against 0.75 squared
    EXPECT_EQ(0, CountLightPaths(0, -0.25, 0, 9, 0.75, 9, 1, 1));
    EXPECT_EQ(0, CountLightPaths(-0.25, 0, 0, 0.75, 0, 9, 1, 1));
    EXPECT_EQ(1, CountLightPaths(-0.25, 0, 0, 0.7500001, 0, 9, 1, 1));
}

TEST(CountLightPaths, NearlyTheAreaOfTheHalfDisc)
{
    const double count = CountLightPaths(0, 0, 0, 1e3, 0, 1e3, 1, 200);
    EXPECT_NEAR(M_PI / 2 * 201 * 201, count, 700);
    ExpectEqualToTheDirectLoop({0, 0, 0, 1e3, 0, 1e3, 1}, 200);
}

TEST(CountLightPaths, IsTheDirectLoopOverRandomCircles)
{
    std::mt19937 random(20040607);
    std::uniform_real_distribution<double> shift(-2, 2);
    std::uniform_real_distribution<double> radius(-0.2, 2.5);
    for (int i = 0; i < 4000; ++i) {
        const double size = std::exp(shift(random) * 4);
        const Circles circles{shift(random) * size,  shift(random) * size,  shift(random) * size,
                              radius(random) * size, radius(random) * size, radius(random) * size,
                              radius(random) * size};
        ExpectEqualToTheDirectLoop(circles, static_cast<std::int32_t>(random() % 41));
    }
    for (int i = 0; i < 40; ++i) {
        const Circles circles{shift(random) / 4,
                              shift(random) / 4,
                              shift(random) / 4,
                              radius(random),
                              radius(random) / 2,
                              radius(random),
                              1};
        ExpectEqualToTheDirectLoop(circles, 200);
    }
}

TEST(CountLightPaths, IsTheDirectLoopOnTheGridItself)
{
    // Shifts and radii that meet grid points exactly, so that every comparison has its ties.
    std::mt19937 random(1);
    for (int i = 0; i < 4000; ++i) {
        const std::int32_t n = static_cast<std::int32_t>(random() % 12) + 1;
        const double cell = 0.5;
        const auto steps = [&](unsigned most) { return cell / 2 * static_cast<double>(random() % most); };
        const Circles circles{steps(40) - 5, steps(40) - 5, steps(40) - 5, steps(40),
                              steps(40),     steps(40),     cell * (n + 1)};
        ExpectEqualToTheDirectLoop(circles, n);
    }
}

TEST(CountLightPaths, IsTheDirectLoopOverDegenerateCircles)
{
    const double huge = std::numeric_limits<double>::max();
    const double tiny = std::numeric_limits<double>::denorm_min();
    const double values[] = {0,
                             -0.0,
                             1,
                             -1,
                             0.3,
                             1e-160,
                             1e160,
                             1e18,
                             -1e18,
                             1e300,
                             -1e300,
                             150 * tiny,
                             tiny,
                             -tiny,
                             huge,
                             -huge,
                             std::numeric_limits<double>::min(),
                             7.25};
    std::mt19937 random(77);
    const auto any = [&] { return values[random() % std::size(values)]; };
    for (int i = 0; i < 30000; ++i) {
        const Circles circles{any(), any(), any(), any(), any(), any(), any()};
        ExpectEqualToTheDirectLoop(circles, static_cast<std::int32_t>(random() % 9));
    }
    for (const double r__sec : values) {
        ExpectEqualToTheDirectLoop({0.1, 0.2, 0.3, huge, 0, huge, r__sec}, 200);
    }
}

TEST(CountLightPaths, ANumberThatIsNoneCountsNothing)
{
    const double none[] = {std::nan(""), HUGE_VAL, -HUGE_VAL};
    for (const double value : none) {
        for (int place = 0; place < 7; ++place) {
            double c[7] = {0.1, 0.2, 0.3, 2, 0.3, 2, 1};
            c[place] = value;
            ExpectEqualToTheDirectLoop({c[0], c[1], c[2], c[3], c[4], c[5], c[6]}, 20);
        }
    }
}

} // namespace

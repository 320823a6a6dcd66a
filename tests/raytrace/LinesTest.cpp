#include "raytrace/Lines.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(Lines, MeetWhereTheirEquationsAgree)
{
    // y = x and y = 10 - x; y = 2x + 1 and y = -3x + 11.
    EXPECT_EQ((Point{5, 5}), IntersectLines(0, 0, 1, 1, 0, 10, 10, 0));
    EXPECT_EQ((Point{2, 5}), IntersectLines(0, 1, 1, 3, 0, 11, 1, 8));
}

TEST(Lines, MeetBeyondTheirEnds) { EXPECT_EQ((Point{100, 100}), IntersectLines(0, 0, 1, 1, 0, 200, 1, 199)); }

TEST(Lines, SkewAVerticalLineByItsEnd)
{
    // x = 4 from y = 0 to 10 leans by 1e-8 over its height: at y = 5 by half of that.
    const Point second = IntersectLines(0, 5, 10, 5, 4, 0, 4, 10);
    EXPECT_NEAR(4 + 0.5e-8, second.x, 1e-10);
    EXPECT_DOUBLE_EQ(5, second.y);
    // The order of the ends decides which of them leans.
    const Point turned = IntersectLines(0, 10, 10, 10, 4, 10, 4, 0);
    EXPECT_NEAR(4, turned.x, 1e-10);
    const Point first = IntersectLines(4, 0, 4, 10, 0, 10, 10, 10);
    EXPECT_NEAR(4 + 1e-8, first.x, 1e-10);
}

TEST(Lines, MeetAtTheOriginWhenParallel)
{
    EXPECT_EQ((Point{0, 0}), IntersectLines(1, 7, 2, 7, 5, 9, 8, 9));
    EXPECT_EQ((Point{0, 0}), IntersectLines(1, 7, 2, 7, 5, 7, 8, 7)) << "also on the same line";
    EXPECT_EQ((Point{0, 0}), IntersectLines(1, 1, 2, 2, 5, 6, 6, 7));
}

TEST(Lines, HandANumberThatIsNoneThrough)
{
    const Point nowhere = IntersectLines(std::nan(""), 0, 1, 1, 0, 10, 10, 0);
    EXPECT_TRUE(std::isnan(nowhere.x));
    EXPECT_TRUE(std::isnan(nowhere.y));
}

} // namespace

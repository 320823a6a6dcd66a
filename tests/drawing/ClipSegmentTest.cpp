#include "drawing/ClipSegment.h"

#include <gtest/gtest.h>

namespace {

/// In the box from (10, 20) to (30, 60).
std::optional<WayPart> Clip(Point from, Point to) { return ClipSegment(from, to, {10, 20}, {30, 60}); }

void ExpectPart(double enter, double leave, const std::optional<WayPart>& part)
{
    ASSERT_TRUE(part.has_value());
    EXPECT_DOUBLE_EQ(enter, part->enter);
    EXPECT_DOUBLE_EQ(leave, part->leave);
}

TEST(ClipSegment, AWayWithinTheBoxStaysWhole) { ExpectPart(0, 1, Clip({11, 21}, {29, 59})); }

TEST(ClipSegment, AWayAcrossIsCutAtBothSides)
{
    ExpectPart(0.25, 0.75, Clip({0, 40}, {40, 40}));
    ExpectPart(0.25, 0.75, Clip({40, 40}, {0, 40}));
    ExpectPart(0.2, 0.6, Clip({20, 0}, {20, 100}));
    ExpectPart(0.4, 0.8, Clip({20, 100}, {20, 0}));
}

TEST(ClipSegment, OfASlopeTheNearerSideCounts)
{
    // From (0, 0) by (40, 80): left at 1/4, top at 1/4; right at 3/4, bottom at 3/4.
    ExpectPart(0.25, 0.75, Clip({0, 0}, {40, 80}));
    // By (40, 100): the left comes after the top, the bottom before the right.
    ExpectPart(0.25, 0.6, Clip({0, 0}, {40, 100}));
}

TEST(ClipSegment, AWayThatEndsInTheBoxIsCutOnce)
{
    ExpectPart(0.5, 1, Clip({0, 40}, {20, 40}));
    ExpectPart(0, 0.5, Clip({20, 40}, {40, 40}));
}

TEST(ClipSegment, AWayPastTheBoxHasNoPart)
{
    EXPECT_FALSE(Clip({0, 40}, {9, 40}));
    EXPECT_FALSE(Clip({31, 40}, {50, 40}));
    EXPECT_FALSE(Clip({20, 0}, {20, 19}));
    EXPECT_FALSE(Clip({20, 61}, {20, 90}));
    EXPECT_FALSE(Clip({9, 0}, {9, 100})) << "beside it, along it";
    EXPECT_FALSE(Clip({0, 61}, {100, 61}));
    EXPECT_FALSE(Clip({0, 35}, {20, 0})) << "around its corner";
}

TEST(ClipSegment, TheEdgesBelongToTheBox)
{
    ExpectPart(0.2, 0.6, Clip({10, 0}, {10, 100}));
    ExpectPart(0.25, 0.75, Clip({0, 60}, {40, 60}));
    ExpectPart(1, 1, Clip({0, 40}, {10, 40}));
}

TEST(ClipSegment, APointIsInOrOut)
{
    ExpectPart(0, 1, Clip({20, 40}, {20, 40}));
    EXPECT_FALSE(Clip({9, 40}, {9, 40}));
}

} // namespace

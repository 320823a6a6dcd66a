#include "raytrace/ScopeGeometry.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

namespace {

TEST(ScopeGeometry, IsTheFrameOfTheRoundScope)
{
    COrrevaData record;
    MakeRoundScope(record);
    const ScopeGeometry g = BuildGeometry(record, false);
    EXPECT_DOUBLE_EQ(100, g.distanceFront);
    EXPECT_DOUBLE_EQ(80, g.top);
    EXPECT_DOUBLE_EQ(970, g.tubeLength); // 800 + 20 + 50 + 100
    EXPECT_DOUBLE_EQ(97, g.frontX);
    EXPECT_DOUBLE_EQ(240, g.tubeWidth);
    EXPECT_DOUBLE_EQ(200, g.axisY);
    EXPECT_DOUBLE_EQ(997, g.mirrorX);
    EXPECT_DOUBLE_EQ(100, g.mirrorTop);
    EXPECT_DOUBLE_EQ(300, g.mirrorBottom);
    EXPECT_DOUBLE_EQ(197, g.focuserX);
    EXPECT_DOUBLE_EQ(167, g.secondaryLeft);
    EXPECT_DOUBLE_EQ(170, g.secondaryTop);
    EXPECT_DOUBLE_EQ(227, g.secondaryRight);
    EXPECT_DOUBLE_EQ(230, g.secondaryBottom);
}

TEST(ScopeGeometry, MovesTheDiagonalAlongItsLineByTheOffset)
{
    COrrevaData record;
    MakeRoundScope(record);
    const ScopeGeometry g = BuildGeometry(record, true); // 200 * 60 / 4 / 1000 = 3
    EXPECT_DOUBLE_EQ(170, g.secondaryLeft);
    EXPECT_DOUBLE_EQ(173, g.secondaryTop);
    EXPECT_DOUBLE_EQ(230, g.secondaryRight);
    EXPECT_DOUBLE_EQ(233, g.secondaryBottom);
    EXPECT_DOUBLE_EQ(197, g.focuserX);
}

TEST(ScopeGeometry, PutsTheFocalPlaneAtZero)
{
    COrrevaData record;
    MakeDefaultScope(record);
    const ScopeGeometry g = BuildGeometry(record, true);
    EXPECT_NEAR(record.GetFocalLength(), record.GetPrimaryToFocuser() + g.tubeWidth / 2 + g.top, 1e-9);
    EXPECT_NEAR(record.GetPrimaryToFocuser(), g.mirrorX - g.focuserX, 1e-9);
}

} // namespace

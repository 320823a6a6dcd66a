#include "raytrace/RaySets.h"

#include "lib/text/Numbers.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

class RaySets : public ::testing::Test {
protected:
    RaySets() { MakeRoundScope(record); }
    ScopeGeometry Geometry() { return BuildGeometry(record, false); }

    COrrevaData record;
    std::vector<RaySegment> segments;
};

/// The first segments of the rays: those that start where no other ends.
std::vector<RaySegment> Starts(const std::vector<RaySegment>& segments)
{
    std::vector<RaySegment> starts;
    for (std::size_t i = 0; i < segments.size(); ++i) {
        if (i == 0 || segments[i].x0 != segments[i - 1].x1 || segments[i].y0 != segments[i - 1].y1) {
            starts.push_back(segments[i]);
        }
    }
    return starts;
}

TEST_F(RaySets, TiltTheParallelRaysByThePointersHeight)
{
    const ScopeGeometry g = Geometry();
    EXPECT_DOUBLE_EQ(1.5462526341445313, ParallelAngle(g, 80)) << "the upper tube line: 1.40625 degrees";
    EXPECT_DOUBLE_EQ(kHalfPi, ParallelAngle(g, 320)) << "the lower one: along the axis";
    EXPECT_NEAR(1.5462526341445313 - 0.02454369260546875, ParallelAngle(g, -160), 1e-12);
    EXPECT_GT(ParallelAngle(g, 560), kHalfPi);
}

TEST_F(RaySets, SendParallelRaysAcrossThreeTubeWidths)
{
    TraceParallelSet(Geometry(), record, {500, 200}, true, segments);
    const auto starts = Starts(segments);
    ASSERT_EQ(45u, starts.size());
    for (std::size_t i = 0; i < starts.size(); ++i) {
        EXPECT_DOUBLE_EQ(0, starts[i].x0);
        EXPECT_DOUBLE_EQ(-160 + 16.0 * static_cast<double>(i), starts[i].y0); // 200 - 360, a step of 16
        const double slope = (starts[i].y1 - starts[i].y0) / (starts[i].x1 - starts[i].x0);
        EXPECT_NEAR(std::tan(kHalfPi - ParallelAngle(Geometry(), 200)), slope, 1e-6);
    }
}

TEST_F(RaySets, HoldOneMoreRayWhereTheStepRoundsDown)
{
    record.SetInsideDiameterHat(298.5 - 20); // 15 steps of 19.9 fall short
    TraceParallelSet(Geometry(), record, {500, 200}, true, segments);
    EXPECT_EQ(46u, Starts(segments).size());
}

TEST_F(RaySets, FanOutOfThePrimeFocusAtThePointersHeight)
{
    TraceFocalSet(Geometry(), record, {123456, 40}, true, segments);
    const auto starts = Starts(segments);
    ASSERT_EQ(46u, starts.size());
    double angle = kHalfPi - 0.19634954084375;
    for (const RaySegment& start : starts) {
        EXPECT_DOUBLE_EQ(-3, start.x0); // 997 - 1000
        EXPECT_DOUBLE_EQ(40, start.y0);
        EXPECT_NEAR(angle, std::atan2(start.x1 - start.x0, start.y1 - start.y0), 1e-6);
        angle += 0.008726646259722222;
    }
}

TEST_F(RaySets, FanOutOfThePointer)
{
    TracePointerSet(Geometry(), record, {600, 210}, true, segments);
    const auto starts = Starts(segments);
    ASSERT_EQ(46u, starts.size());
    for (const RaySegment& start : starts) {
        EXPECT_EQ(600, start.x0);
        EXPECT_EQ(210, start.y0);
    }
}

TEST_F(RaySets, AreChosenInTheirOrder)
{
    ViewSwitches switches;
    const Point pointer{600, 210};
    EXPECT_TRUE(TraceActiveSet(Geometry(), record, switches, pointer).segments.empty());
    switches.ray_from_mouse = 1;
    RayPicture picture = TraceActiveSet(Geometry(), record, switches, pointer);
    EXPECT_EQ(600, picture.segments.at(0).x0);
    EXPECT_FALSE(picture.status);
    switches.ray_from_focal_plane = 1;
    picture = TraceActiveSet(Geometry(), record, switches, pointer);
    EXPECT_DOUBLE_EQ(-3, picture.segments.at(0).x0);
    EXPECT_FALSE(picture.status);
    switches.ray_parallel = 1;
    picture = TraceActiveSet(Geometry(), record, switches, pointer);
    EXPECT_EQ(0, picture.segments.at(0).x0);
    EXPECT_TRUE(picture.status);
}

TEST_F(RaySets, HideLostRaysWhenTheSwitchSaysSo)
{
    ViewSwitches switches;
    switches.ray_parallel = 1;
    switches.miss_in_grey = 0;
    for (const RaySegment& segment : TraceActiveSet(Geometry(), record, switches, {600, 210}).segments) {
        EXPECT_EQ(RayHit, segment.colour);
    }
}

TEST_F(RaySets, LeaveATubeWithoutWidthUntracedButTellItsStatus)
{
    ViewSwitches switches;
    switches.ray_parallel = 1;
    for (const double width : {0.0, -240.0, std::nan("")}) {
        ScopeGeometry g = Geometry();
        g.tubeWidth = width;
        const RayPicture picture = TraceActiveSet(g, record, switches, {600, 210});
        EXPECT_TRUE(picture.segments.empty()) << width;
        EXPECT_TRUE(picture.status) << width;
    }
}

TEST_F(RaySets, EndForEveryPointerAndEveryTube)
{
    using Mode = std::uint8_t ViewSwitches::*;
    const Mode modes[] = {&ViewSwitches::ray_parallel, &ViewSwitches::ray_from_focal_plane,
                          &ViewSwitches::ray_from_mouse};
    const double widths[] = {5e-324, 1e-300, 1e-9, 240, 1e300, HUGE_VAL};
    for (const Mode mode : modes) {
        ViewSwitches switches;
        switches.*mode = 1;
        for (const double width : widths) {
            for (const double place : kOddNumbers) {
                ScopeGeometry g = Geometry();
                g.tubeWidth = width;
                EXPECT_LE(TraceActiveSet(g, record, switches, {place, place}).segments.size(), 4u * 64);
            }
            EXPECT_LE(
                TraceActiveSet(Geometry(), record, switches, {std::nan(""), std::nan("")}).segments.size(),
                4u * 64);
        }
    }
}

} // namespace

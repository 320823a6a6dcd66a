#include "raytrace/TraceRay.h"

#include "lib/text/Numbers.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

struct Traced {
    std::vector<RaySegment> segments;
    RayOutcome outcome = false;
};

struct Options {
    bool grey = true;
    double focuserDiameter = 50;
    bool offset = false;
};

/// A ray through the round scope. `tilt` is added to the direction along the axis, radians.
Traced Trace(double x0, double y0, double tilt, const Options& options = {})
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetFocuserDiameter(options.focuserDiameter);
    const ScopeGeometry g = BuildGeometry(record, options.offset);
    Traced traced;
    traced.outcome = TraceRay(g, record, x0, y0, kHalfPi + tilt, options.grey, &traced.segments);
    EXPECT_EQ(traced.outcome, TraceRay(g, record, x0, y0, kHalfPi + tilt, options.grey, nullptr));
    return traced;
}

// The skew of vertical lines and the cut constant of pi move a hit by less than this.
constexpr double kNear = 1e-5;

void ExpectSegments(const std::vector<RaySegment>& expected, const Traced& traced, const char* what)
{
    ASSERT_EQ(expected.size(), traced.segments.size()) << what;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const RaySegment& e = expected[i];
        const RaySegment& s = traced.segments[i];
        EXPECT_NEAR(e.x0, s.x0, kNear) << what << " " << i;
        EXPECT_NEAR(e.y0, s.y0, kNear) << what << " " << i;
        EXPECT_NEAR(e.x1, s.x1, kNear) << what << " " << i;
        EXPECT_NEAR(e.y1, s.y1, kNear) << what << " " << i;
        EXPECT_EQ(e.colour, s.colour) << what << " " << i;
    }
}

TEST(TraceRay, TakesTheAxisRayToTheVertexAndOutThroughTheFocuser)
{
    const Traced traced = Trace(600, 200, 0);
    EXPECT_TRUE(traced.outcome);
    ExpectSegments({{600, 200, 997, 200, RayHit}, {997, 200, 197, 200, RayHit}, {197, 200, 197, 0, RayHit}},
                   traced, "axis");
}

TEST(TraceRay, EndsAtTheFlatsBackInItsShadow)
{
    ExpectSegments({{0, 200, 197, 200, RayLost}}, Trace(0, 200, 0), "centre");
    ExpectSegments({{0, 171, 168, 171, RayLost}}, Trace(0, 171, 0), "edge");
    EXPECT_TRUE(Trace(0, 200, 0, {false}).segments.empty());
}

TEST(TraceRay, LetsARayAboveTheFlatReachThePrimary)
{
    // At the mirror 80 mm off the axis: slope -0.04, turned by 2 tan(-0.04).
    const Traced traced = Trace(0, 120, 0);
    EXPECT_TRUE(traced.outcome);
    ExpectSegments({{0, 120, 997, 120, RayHit},
                    {997, 120, 182.346662536, 185.346662536, RayHit},
                    {182.346662536, 185.346662536, 197.214073311, 0, RayHit}},
                   traced, "upper");
    ExpectSegments({{0, 290, 997, 290, RayHit},
                    {997, 290, 216.518557302, 219.518557302, RayHit},
                    {216.518557302, 219.518557302, 196.694915415, 0, RayHit}},
                   Trace(0, 290, 0), "lower");
}

TEST(TraceRay, MeetsTheSameDiagonalLineWithAnOffset)
{
    const Traced traced = Trace(0, 120, 0, {true, 50, true});
    ASSERT_EQ(3u, traced.segments.size());
    EXPECT_NEAR(182.346662536, traced.segments[1].x1, kNear);
    // The offset uncovers what lay just below the upper end.
    EXPECT_EQ(3u, Trace(0, 171, 0, {true, 50, true}).segments.size());
}

struct LostCase {
    const char* what;
    double x0, y0, tilt;
    Options options;
    std::vector<RaySegment> segments;
};

TEST(TraceRay, LosesARayAtItsFirstObstacle)
{
    const RaySegment toMirror{0, 120, 997, 120, RayHit};
    const RaySegment toFlat{997, 120, 182.346662536, 185.346662536, RayHit};
    const LostCase cases[] = {
        {"upper wall from outside", 500, 50, -0.1, {}, {{500, 50, 798.999332563, 80, RayLost}}},
        {"lower wall from outside", 500, 350, 0.1, {}, {{500, 350, 798.999332833, 320, RayLost}}},
        {"upper wall from inside", 300, 100, 0.5, {}, {{300, 100, 336.609754438, 80, RayLost}}},
        {"lower wall from inside", 300, 300, -0.5, {}, {{300, 300, 336.60975443, 320, RayLost}}},
        {"through the open end", 0, 60, -0.3, {}, {{0, 60, 840.509317245, 320, RayLost}}},
        {"above the mirror", 900, 90, 0, {}, {{900, 90, 10900, 90, RayLost}}},
        {"above the tube", 0, 60, 0, {}, {{0, 60, 10000, 60, RayLost}}},
        {"opening, left",
         0,
         120,
         0,
         {true, 10},
         {toMirror, toFlat, {182.346662536, 185.346662536, 190.796947447, 80, RayLost}}},
        {"opening, right",
         0,
         280,
         0,
         {true, 10},
         {{0, 280, 997, 280, RayHit},
          {997, 280, 214.209158108, 217.209158108, RayHit},
          {214.209158108, 217.209158108, 203.203052654, 80, RayLost}}},
        {"focuser's left wall",
         0,
         270,
         0.012,
         {true, 20},
         {{0, 270, 997, 258.03542574, RayHit},
          {997, 258.03542574, 199.045742263, 202.045742263, RayHit},
          {199.045742263, 202.045742263, 187, 30.3721278515, RayLost}}},
        {"focuser's right wall",
         0,
         130,
         -0.012,
         {true, 20},
         {{0, 130, 997, 141.96457435, RayHit},
          {997, 141.96457435, 195.222520072, 198.222520072, RayHit},
          {195.222520072, 198.222520072, 207, 30.3721293484, RayLost}}},
        {"over the flat and out",
         900,
         250,
         0.1,
         {},
         {{900, 250, 997, 240.267536812, RayHit},
          {997, 240.267536812, -8904.77867019, -1157.86663651, RayLost}}},
        {"over the flat to the wall",
         900,
         250,
         0.4,
         {},
         {{900, 250, 997, 208.989057788, RayHit}, {997, 208.989057788, 699.399256144, 80, RayLost}}},
        {"under the flat and out",
         900,
         150,
         -0.1,
         {},
         {{900, 150, 997, 159.732463197, RayHit},
          {997, 159.732463197, -8904.77867008, 1557.86663732, RayLost}}},
        {"under the flat to the wall",
         900,
         150,
         -0.4,
         {},
         {{900, 150, 997, 191.010942223, RayHit}, {997, 191.010942223, 699.399256233, 320, RayLost}}},
    };
    for (const LostCase& one : cases) {
        const Traced shown = Trace(one.x0, one.y0, one.tilt, one.options);
        EXPECT_FALSE(shown.outcome) << one.what;
        ExpectSegments(one.segments, shown, one.what);

        Options hidden = one.options;
        hidden.grey = false;
        auto yellow = one.segments;
        std::erase_if(yellow, [](const RaySegment& segment) { return segment.colour == RayLost; });
        ExpectSegments(yellow, Trace(one.x0, one.y0, one.tilt, hidden), one.what);
    }
}

TEST(TraceRay, ShowsAStartBehindTheMirrorEvenWhenLostRaysAreHidden)
{
    for (const bool grey : {true, false}) {
        const Traced at = Trace(997, 200, 0, {grey});
        EXPECT_FALSE(at.outcome);
        ExpectSegments({{997, 200, 10997, 200, RayLost}}, at, "at the plane");
        ExpectSegments({{1200, 200, 10753.3648914, -2755.20206618, RayLost}}, Trace(1200, 200, 0.3, {grey}),
                       "behind");
    }
    const Traced far = Trace(1200, 200, 0.3);
    const RaySegment& s = far.segments.at(0);
    EXPECT_NEAR(10000, std::hypot(s.x1 - s.x0, s.y1 - s.y0), 1e-6);
}

TEST(TraceRay, ReducesAnAngleAbovePiByPi)
{
    const Traced turned = Trace(900, 250, 0.1 + kPi);
    ExpectSegments({{900, 250, 997, 240.267536821, RayHit},
                    {997, 240.267536821, -8904.77867018, -1157.86663659, RayLost}},
                   turned, "half a turn more");
}

TEST(TraceRay, DoesNotCountAWallThatTheRayRunsOn)
{
    COrrevaData record;
    MakeRoundScope(record);
    ScopeGeometry g = BuildGeometry(record, false);
    // So far down that the cosine of a right angle vanishes against the height: the two slopes are equal.
    const double down = 131072;
    for (double ScopeGeometry::*y :
         {&ScopeGeometry::top, &ScopeGeometry::axisY, &ScopeGeometry::mirrorTop, &ScopeGeometry::mirrorBottom,
          &ScopeGeometry::secondaryTop, &ScopeGeometry::secondaryBottom}) {
        g.*y += down;
    }
    const double rightAngle = std::acos(0.0);
    ASSERT_EQ(g.top, g.top + 10000 * std::cos(rightAngle));
    std::vector<RaySegment> segments;
    TraceRay(g, record, -50, g.top, rightAngle, true, &segments);
    EXPECT_EQ((std::vector<RaySegment>{{-50, g.top, 9950, g.top, RayLost}}), segments)
        << "it passes the wall and misses the mirror";
    // Equal slopes meet at (0, 0), which would be a hit if the tube had no margin in front of it.
    g.frontX = -60;
    segments.clear();
    TraceRay(g, record, -50, g.top, rightAngle, true, &segments);
    EXPECT_EQ((std::vector<RaySegment>{{-50, g.top, 0, 0, RayLost}}), segments);
}

TEST(TraceRay, EndsForEveryNumber)
{
    const double angles[] = {0, kPi, -1, 1e300, -1e300, HUGE_VAL, std::nan(""), 5e-324};
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            COrrevaData record;
            MakeRoundScope(record);
            (record.*setter)(odd);
            const ScopeGeometry g = BuildGeometry(record, true);
            for (const double place : kOddNumbers) {
                for (const double angle : angles) {
                    std::vector<RaySegment> segments;
                    TraceRay(g, record, place, 200, angle, true, &segments);
                    TraceRay(g, record, 0, place, angle, true, &segments);
                    EXPECT_LE(segments.size(), 6u);
                }
            }
        }
    }
}

} // namespace

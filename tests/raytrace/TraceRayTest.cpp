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

/// The round scope so far out in both directions that a level ray stays on its height to the last bit, that
/// the skew of a vertical line is a power of two and the diagonal's slope one: hits are whole numbers.
struct FarScope {
    static constexpr double kX = 67108864; // 2^26
    static constexpr double kY = 131072;   // 2^17
    static inline const double kLevel = std::acos(0.0);

    FarScope()
    {
        MakeRoundScope(record);
        g = BuildGeometry(record, false);
        for (double ScopeGeometry::*x : {&ScopeGeometry::frontX, &ScopeGeometry::focuserX}) {
            g.*x += kX;
        }
        g.top = kY + 80;
        g.axisY = kY + 200;
        g.mirrorX = kX + 997;
        g.mirrorTop = g.axisY - 128;
        g.mirrorBottom = g.axisY + 128;
        g.secondaryLeft = kX + 165;
        g.secondaryRight = kX + 229;
        g.secondaryTop = g.axisY - 32;
        g.secondaryBottom = g.axisY + 32;
    }

    /// The first segment of a level ray.
    RaySegment First(double x, double y)
    {
        std::vector<RaySegment> segments;
        TraceRay(g, record, x, y, kLevel, true, &segments);
        return segments.at(0);
    }

    COrrevaData record;
    ScopeGeometry g;
};

TEST(TraceRay, TheBackOfTheFlatStopsARayAtEitherEndOfItsHeight)
{
    FarScope scope;
    const double x = FarScope::kX;
    const double top = scope.g.secondaryTop;
    const double bottom = scope.g.secondaryBottom;
    EXPECT_EQ((RaySegment{x, top, x + 165, top, RayLost}), scope.First(x, top));
    EXPECT_EQ((RaySegment{x, bottom, x + 229, bottom, RayLost}), scope.First(x, bottom));
    for (const double beside : {top - 1, bottom + 1}) {
        EXPECT_EQ(RayHit, scope.First(x, beside).colour);
        EXPECT_NEAR(x + 997, scope.First(x, beside).x1, 1e-7) << "on to the mirror";
    }
}

TEST(TraceRay, TheMirrorEndsWithItsOutermostPoints)
{
    FarScope scope;
    const double x = FarScope::kX + 300; // behind the flat
    for (const double y : {scope.g.mirrorTop, scope.g.mirrorBottom}) {
        EXPECT_EQ(RayHit, scope.First(x, y).colour);
        ASSERT_EQ(y, scope.First(x, y).y1) << "level to the last bit";
    }
    for (const double y : {scope.g.mirrorTop - 1, scope.g.mirrorBottom + 1}) {
        EXPECT_EQ(RayLost, scope.First(x, y).colour);
    }
}

TEST(TraceRay, TheFlatTakesARayAtEitherOfItsEnds)
{
    COrrevaData record;
    MakeRoundScope(record);
    ScopeGeometry g = BuildGeometry(record, false);
    g.secondaryTop = g.secondaryBottom = 200; // level, so that the hit does not depend on the ends
    const auto segments = [&] {
        std::vector<RaySegment> traced;
        TraceRay(g, record, 600, 150, kHalfPi, true, &traced);
        return traced;
    };
    g.secondaryRight = 997;
    g.secondaryLeft = -1000;
    const double hit = segments().at(1).x1;
    ASSERT_GT(600, hit);
    ASSERT_LT(-1000, hit);
    g.secondaryLeft = hit;
    EXPECT_EQ(RayHit, segments().at(1).colour);
    g.secondaryLeft = std::nextafter(hit, 997);
    EXPECT_EQ(RayLost, segments().at(1).colour) << "it passes above";
    g.secondaryLeft = -1000;
    g.secondaryRight = hit;
    EXPECT_EQ(RayHit, segments().at(1).colour);
    g.secondaryRight = std::nextafter(hit, -1000);
    EXPECT_EQ(RayLost, segments().at(1).colour) << "it passes below";
}

/// Where a ray that runs along the axis through the round scope meets the tube's opening and the focal plane.
class FocuserEnds : public testing::Test {
protected:
    static constexpr double kUpper = 120; // crosses the focuser to the right
    static constexpr double kLower = 290; // crosses the focuser to the left

    FocuserEnds()
    {
        MakeRoundScope(record);
        g = BuildGeometry(record, false);
    }
    std::vector<RaySegment> Trace(double y, double centre, double diameter)
    {
        record.SetFocuserDiameter(diameter);
        g.focuserX = centre;
        std::vector<RaySegment> segments;
        TraceRay(g, record, 0, y, kHalfPi, true, &segments);
        EXPECT_EQ(3u, segments.size());
        return segments;
    }

    COrrevaData record;
    ScopeGeometry g;
};

TEST_F(FocuserEnds, TheOpeningLetsARayPassAtEitherOfThem)
{
    const double upper = Trace(kUpper, 0, 1).at(2).x1; // lost at the opening
    ASSERT_EQ(upper, upper + 16 - 16);
    EXPECT_EQ(RayHit, Trace(kUpper, upper + 16, 32).at(2).colour);
    const RaySegment left = Trace(kUpper, std::nextafter(upper, 1000) + 16, 32).at(2);
    EXPECT_EQ(RayLost, left.colour);
    EXPECT_EQ(upper, left.x1) << "at the opening";

    const double lower = Trace(kLower, 0, 1).at(2).x1;
    ASSERT_EQ(lower, lower - 16 + 16);
    EXPECT_EQ(RayHit, Trace(kLower, lower - 16, 32).at(2).colour);
    const RaySegment right = Trace(kLower, std::nextafter(lower, 0) - 16, 32).at(2);
    EXPECT_EQ(RayLost, right.colour);
    EXPECT_EQ(lower, right.x1);
}

TEST_F(FocuserEnds, TheFocuserLetsARayLandAtEitherOfThem)
{
    const double upper = Trace(kUpper, 197, 200).at(2).x1; // at the focal plane
    EXPECT_EQ(RayHit, Trace(kUpper, upper - 16, 32).at(2).colour);
    EXPECT_EQ(RayLost, Trace(kUpper, std::nextafter(upper, 0) - 16, 32).at(2).colour);
    const double lower = Trace(kLower, 197, 200).at(2).x1;
    EXPECT_EQ(RayHit, Trace(kLower, lower + 16, 32).at(2).colour);
    EXPECT_EQ(RayLost, Trace(kLower, std::nextafter(lower, 1000) + 16, 32).at(2).colour);
}

TEST(TraceRay, TheTubeIsOpenAtItsVeryEnds)
{
    COrrevaData record;
    MakeRoundScope(record);
    ScopeGeometry g = BuildGeometry(record, false);
    const auto end = [&] { // of a ray from above the tube that falls on its upper wall's line
        std::vector<RaySegment> segments;
        TraceRay(g, record, 500, 50, kHalfPi - 0.1, true, &segments);
        return segments.at(0);
    };
    const double hit = end().x1;
    ASSERT_NEAR(80, end().y1, kNear);
    g.frontX = hit;
    EXPECT_NE(hit, end().x1) << "the wall begins behind its end";
    g.frontX = std::nextafter(hit, 0);
    EXPECT_EQ(hit, end().x1);
    g.frontX = 0;
    g.tubeLength = hit;
    EXPECT_NE(hit, end().x1);
    g.tubeLength = std::nextafter(hit, 10000);
    EXPECT_EQ(hit, end().x1);
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

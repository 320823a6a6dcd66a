#include "model/optics/IlluminationCurve.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// 200 mm f/5 in which the secondary alone cuts, from h = 20 / 3 on: 240 wide as a mirror, 3 h off.
constexpr IlluminationStops kSecondaryAlone{200, 1000, 250, 60, 50, 1e5, 1e5, 800};

/// The same where the tube cuts from h = 2.5 and the secondary takes more from some h on.
constexpr IlluminationStops kTubeFirst{200, 1000, 250, 60, 50, 1e5, 204, 800};

ListRow Utf8(const ListRow& cells)
{
    ListRow row;
    for (const std::string& cell : cells) {
        row.push_back(Utf8FromCp1252(cell));
    }
    return row;
}

TEST(IlluminationCurve, TellsAPointInAllItsMeasures)
{
    const IlluminationCurvePoint centre = CurvePointAt(kSecondaryAlone, 0);
    EXPECT_EQ(100, centre.of_centre);
    EXPECT_EQ(0, centre.loss);
    EXPECT_NEAR(91, centre.of_mirror, 1e-12);
    const IlluminationCurvePoint point = CurvePointAt(kSecondaryAlone, 20);
    // Circles of 100 and 120, 60 apart, less the shadow's 900 pi: the chord is 118.63 long.
    const double x = (3600.0 + 10000 - 14400) / 120;
    const double y = std::sqrt(10000 - x * x);
    const double lens = 10000 * std::atan2(y, x) - x * y + 14400 * std::atan2(y, 60 - x) - (60 - x) * y;
    EXPECT_NEAR((lens - 900 * M_PI) / (100 * M_PI), point.of_mirror, 1e-10);
    EXPECT_NEAR(point.of_mirror / 0.91, point.of_centre, 1e-10);
    EXPECT_NEAR(100, point.of_centre * std::pow(10, 0.4 * point.loss), 1e-9);
    EXPECT_NEAR(1.1457628, point.degrees, 1e-7); // atan 0.02
    EXPECT_EQ(HUGE_VAL, CurvePointAt(kSecondaryAlone, 80).loss);
}

TEST(IlluminationCurve, HasEquallySpacedPointsFromTheCentre)
{
    const auto points = IlluminationCurve(kSecondaryAlone, 30, 4);
    ASSERT_EQ(4u, points.size());
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(10.0 * static_cast<double>(i), points[i].h);
        EXPECT_EQ(CurvePointAt(kSecondaryAlone, points[i].h).of_mirror, points[i].of_mirror);
    }
    EXPECT_EQ(2u, IlluminationCurve(kSecondaryAlone, 30, 0).size());
    IlluminationStops none = kSecondaryAlone;
    none.m = 200;
    EXPECT_TRUE(IlluminationCurve(none, 30, 4).empty());
    EXPECT_TRUE(IlluminationCurve(kSecondaryAlone, HUGE_VAL, 4).empty());
}

TEST(IlluminationCurve, PartsTheFieldByTheStopThatCuts)
{
    const auto stretches = CuttingStretches(kTubeFirst, 20);
    ASSERT_EQ(3u, stretches.size());
    EXPECT_EQ(CuttingStop::kNone, stretches[0].stop);
    EXPECT_EQ(CuttingStop::kTube, stretches[1].stop);
    EXPECT_EQ(CuttingStop::kSecondary, stretches[2].stop);
    EXPECT_EQ(0, stretches[0].from);
    EXPECT_NEAR(2.5, stretches[0].to, 2e-5);
    EXPECT_EQ(stretches[0].to, stretches[1].from);
    EXPECT_EQ(stretches[1].to, stretches[2].from);
    EXPECT_EQ(20, stretches[2].to);
    EXPECT_EQ(CuttingStop::kTube, CuttingStopAt(kTubeFirst, stretches[1].to - 1e-4));
    EXPECT_EQ(CuttingStop::kSecondary, CuttingStopAt(kTubeFirst, stretches[1].to + 1e-4));
    ASSERT_EQ(1u, CuttingStretches(kSecondaryAlone, 6).size());
    EXPECT_TRUE(CuttingStretches(kSecondaryAlone, 0).empty());
    EXPECT_TRUE(CuttingStretches(kSecondaryAlone, HUGE_VAL).empty());
}

TEST(IlluminationCurve, CellsRoundAndHaveNoSignOnAZero)
{
    EXPECT_EQ((ListRow{"1.25 mm", "0.048°", "99.99 %", "0.000 mag", "90.00 %"}),
              Utf8(IlluminationCells({1.25, 0.0475, 99.994, -0.0004, 89.996})));
    EXPECT_EQ((ListRow{"0.00 mm", "0.000°", "100.00 %", "0.000 mag", "91.00 %"}),
              Utf8(IlluminationCells({-0.0, 0, 100, -0.0, 91})));
    EXPECT_EQ((ListRow{"2.00 mm", "0.100°", "104.71 %", "-0.050 mag", "95.00 %"}),
              Utf8(IlluminationCells({2, 0.1, 104.71, -0.05, 95})));
    EXPECT_EQ("– mag", Utf8(IlluminationCells({2, 0.1, 0, HUGE_VAL, 0})).at(3));
}

TEST(IlluminationCurve, PageGoesToTheEdgeOfTheDrawtubeInFortySteps)
{
    IlluminationStops stops = kSecondaryAlone;
    stops.d = 50.8;
    const ListRows rows = IlluminationPageRows(stops);
    ASSERT_EQ(41u, rows.size());
    EXPECT_EQ((ListRow{"0.00 mm", "0.000°", "100.00 %", "0.000 mag", "91.00 %"}), Utf8(rows[0]));
    EXPECT_EQ("0.64 mm", rows[1][0]); // 50.8 / 80 = 0.635, whose double is a little above
    EXPECT_EQ("12.70 mm", rows[20][0]);
    EXPECT_EQ("25.40 mm", rows[40][0]);
    EXPECT_EQ("1.455°", Utf8(rows[40])[1]); // atan 0.0254
    stops.m = 200;
    EXPECT_TRUE(IlluminationPageRows(stops).empty());
}

TEST(IlluminationCurve, ReadsOutThePlaceUnderThePointer)
{
    EXPECT_EQ("10.0 mm (0.573°): 100.0 % (0.000 mag), whole mirror",
              Utf8FromCp1252(IlluminationReading(kSecondaryAlone, 10, kEnglish)));
    EXPECT_EQ("150.0 mm (8.578°): 0.0 % (– mag), Fangspiegel",
              Utf8FromCp1252(IlluminationReading(kSecondaryAlone, 150, kGerman)));
    EXPECT_EQ("", IlluminationReading({}, 10, kEnglish));
}

} // namespace

#include "model/analysis/IlluminationTable.h"

#include "lib/text/Language.h"
#include "model/record/Formulas.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// With D 100, F 1000 and L 500 a point at f mm has x = f / 100, and a minor axis m has r = m / 50; the
/// smallest that lights the centre is 50.
IlluminationTable SimpleTable(double m, double opening)
{
    return ComputeIllumination(100, 1000, 500, m, opening);
}

TEST(Illumination, OverlapIsTheLensOfTwoCircles)
{
    // Two unit circles one radius apart: (2 pi / 3 - sqrt(3) / 2) / pi.
    EXPECT_NEAR(39.1002219, OverlapPercent(1, 1), 1e-6);
    EXPECT_TRUE(std::isnan(OverlapPercent(0.1, 2))) << "within the other circle";
    EXPECT_TRUE(std::isnan(OverlapPercent(2.5, 1))) << "apart";
    EXPECT_TRUE(std::isnan(OverlapPercent(0, 1)));
    EXPECT_TRUE(std::isnan(OverlapPercent(0, 2)));
}

TEST(Illumination, OpeningsAboveTenMillimetresAreRoundedDownToTens)
{
    struct Case {
        double opening;
        double edge;
        double step;
    };
    for (const Case& c : {Case{31.75, 30, 1.5}, Case{8, 8, 0.4}, Case{10, 10, 0.5}, Case{10.5, 10, 0.5},
                          Case{50.8, 50, 2.5}, Case{-3, -3, -0.15}}) {
        const IlluminationTable table = SimpleTable(60, c.opening);
        EXPECT_EQ(0, table[0].field);
        EXPECT_NEAR(c.step, table[1].field, 1e-12) << c.opening;
        EXPECT_NEAR(19 * c.step, table[19].field, 1e-9) << c.opening;
        EXPECT_EQ(c.edge, table[20].field);
    }
}

TEST(Illumination, PointsKnowTheirAngle)
{
    const IlluminationTable table = SimpleTable(60, 50.8);
    // 50 mm at 1000 mm, 180 / pi degrees a radian.
    EXPECT_NEAR(50 / 1000.0 * 57.29577951, table[20].degrees, 1e-7);
}

TEST(Illumination, AgreesWithTheAreaCountedStripByStrip)
{
    // D 200, F 1200, L 188, m 46.482, opening 50.8; overlap integrated numerically.
    struct Point {
        std::size_t index;
        double percent;
    };
    const IlluminationTable table = ComputeIllumination(200, 1200, 188, 46.482, 50.8);
    for (const Point& point :
         {Point{8, 98.718}, Point{12, 84.966}, Point{17, 63.877}, Point{18, 59.607}, Point{20, 51.169}}) {
        EXPECT_NEAR(point.percent, table[point.index].percent, 0.001);
        EXPECT_NEAR(2.5 * std::log10(100 / point.percent), table[point.index].loss, 0.0001);
    }
}

TEST(Illumination, TheCoreOfASecondaryThatLightsTheCentreIsAHundred)
{
    const IlluminationTable table = ComputeIllumination(200, 1200, 188, 46.482, 50.8);
    for (std::size_t i = 0; i <= 7; ++i) {
        EXPECT_EQ(100.0, table[i].percent) << i;
        EXPECT_EQ(0.0, table[i].loss) << i;
    }
    EXPECT_LT(table[8].percent, 100);
}

TEST(Illumination, TheCoreOfASmallerSecondaryTakesItsNeighbourOutward)
{
    const IlluminationTable table = ComputeIllumination(200, 1200, 188, 30, 50.8);
    EXPECT_NEAR(90.773, table[1].percent, 0.001);
    EXPECT_EQ(table[1].percent, table[0].percent);
    EXPECT_EQ(table[1].loss, table[0].loss);

    // m 40: r = 0.8, the core is x below 0.2; with an opening of 100 mm that is the points 0 to 3.
    const IlluminationTable wide = SimpleTable(40, 100);
    EXPECT_FALSE(IsUnset(OverlapPercent(0.25, 0.8)));
    for (std::size_t i = 0; i <= 3; ++i) {
        EXPECT_EQ(wide[4].percent, wide[i].percent) << i;
    }
    EXPECT_NEAR(OverlapPercent(0.2, 0.8), wide[4].percent, 1e-6);
}

TEST(Illumination, AMinorAxisThatJustLightsTheCentreCountsAsEnough)
{
    EXPECT_EQ(100.0, SimpleTable(50, 100)[0].percent);
    EXPECT_LT(SimpleTable(49.999, 100)[0].percent, 100.0);
}

TEST(Illumination, ATableThatIsBadThroughoutHasNoRows)
{
    const IlluminationTable table = SimpleTable(200, 50);
    EXPECT_TRUE(std::isnan(table[20].percent)) << "the outermost point is not repaired";
    EXPECT_TRUE(std::isnan(table[20].loss));
    for (std::size_t i = 0; i < 20; ++i) {
        EXPECT_EQ(0.0, table[i].percent) << i;
    }
    EXPECT_TRUE(IlluminationRows(table, kEnglish).empty());
}

TEST(Illumination, TheStepFromDarkToLitIsRepairedAsTheOneFromLitToCore)
{
    // m 60: r = 1.2, dark from x = 2.2 on; opening 250: the points 18 to 20 are dark, 17 is x = 2.125.
    const IlluminationTable enough = SimpleTable(60, 250);
    EXPECT_TRUE(std::isnan(enough[20].percent));
    EXPECT_EQ(0.0, enough[19].percent);
    EXPECT_EQ(0.0, enough[18].percent);
    EXPECT_EQ(100.0, enough[17].percent) << "one of two neighbours is bad, so the inner one is repaired";
    EXPECT_NEAR(OverlapPercent(2.0, 1.2), enough[16].percent, 1e-9);

    // m 49: r = 0.98. Opening 200: the outermost, x = 2, alone is dark, and its neighbour takes its NaN.
    const IlluminationTable small = SimpleTable(49, 200);
    EXPECT_TRUE(std::isnan(small[20].percent));
    EXPECT_TRUE(std::isnan(small[19].percent));
    EXPECT_NEAR(OverlapPercent(1.8, 0.98), small[18].percent, 1e-9);
    // Opening 250: more than one is dark, and the neighbour of the last takes its repaired 0.
    const IlluminationTable wider = SimpleTable(49, 250);
    EXPECT_EQ(0.0, wider[16].percent);
    EXPECT_EQ(0.0, wider[15].percent) << "x = 1.875";
    EXPECT_NEAR(OverlapPercent(1.75, 0.98), wider[14].percent, 1e-9);
}

TEST(Illumination, RowsBeginAtTheOutermostPointOf60PerCent)
{
    const IlluminationTable table = ComputeIllumination(200, 1200, 188, 46.482, 50.8);
    const std::vector<std::string> rows = ShownList(IlluminationRows(table, kEnglish));
    ASSERT_EQ(18u, rows.size());
    EXPECT_EQ("Illumination at 0.0 mm FOV (0.00°) | 100.0%", rows[0]);
    EXPECT_EQ("Illumination at 17.5 mm FOV (0.84°) | 100.0%", rows[7]);
    EXPECT_EQ("Illumination at 20.0 mm FOV (0.95°) | 98.7% (-0.0 mag)", rows[8]);
    EXPECT_EQ("Illumination at 30.0 mm FOV (1.43°) | 85.0% (-0.2 mag)", rows[12]);
    EXPECT_EQ("Illumination at 42.5 mm FOV (2.03°) | 63.9% (-0.5 mag)", rows[17]);
    EXPECT_EQ("Ausleuchtung bei 42.5 mm FOV (2.03°) | 63.9% (-0.5 mag)",
              ShownList(IlluminationRows(table, kGerman))[17]);
}

TEST(Illumination, BadAndDarkPointsAreNoRowsOfTheirOwn)
{
    IlluminationTable table{};
    EXPECT_TRUE(IlluminationRows(table, kEnglish).empty());
    table[20].percent = HUGE_VAL;
    EXPECT_TRUE(IlluminationRows(table, kEnglish).empty()) << "a bad value counts as less than 60";
    table[1].percent = 60;
    table[1].loss = HUGE_VAL;
    const std::vector<std::string> rows = ShownList(IlluminationRows(table, kEnglish));
    EXPECT_EQ((std::vector<std::string>{"Illumination at 0.0 mm FOV (0.00°) | 0.0%",
                                        "Illumination at 0.0 mm FOV (0.00°) | 60.0%"}),
              rows);
}

TEST(Illumination, OddTelescopesGiveATableNonetheless)
{
    const double nan = std::nan("");
    for (const double odd : {0.0, -1.0, 1e300, -1e300, nan, static_cast<double>(HUGE_VAL)}) {
        EXPECT_LE(IlluminationRows(ComputeIllumination(odd, 1000, 500, 60, 50), kEnglish).size(), 21u);
        EXPECT_LE(IlluminationRows(ComputeIllumination(100, odd, 500, 60, 50), kEnglish).size(), 21u);
        EXPECT_LE(IlluminationRows(ComputeIllumination(100, 1000, odd, 60, 50), kEnglish).size(), 21u);
        EXPECT_LE(IlluminationRows(ComputeIllumination(100, 1000, 500, odd, 50), kEnglish).size(), 21u);
        EXPECT_LE(IlluminationRows(ComputeIllumination(100, 1000, 500, 60, odd), kEnglish).size(), 21u);
    }
}

} // namespace

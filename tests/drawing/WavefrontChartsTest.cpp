#include "drawing/WavefrontCharts.h"

#include "lib/text/Language.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

Figure Reduced(std::vector<ZoneMean> zones) { return *ReduceFigure(200, 1200, zones, {}); }

Figure Sphere() { return Reduced({{30, 0}, {60, 0}, {90, 0}}); }

std::vector<double> Places(const std::vector<ChartMark>& marks)
{
    std::vector<double> places;
    for (const ChartMark& mark : marks) {
        places.push_back(mark.at);
    }
    return places;
}

TEST(WavefrontCharts, TheProfileWithItsLimitsAndZones)
{
    const Figure figure = Sphere();
    const WavefrontCurve curve{&figure, ""};
    const Chart chart = WavefrontChart({&curve, 1}, 200, 600, kEnglish);
    EXPECT_EQ((ChartRange{0, 100}), chart.bottom.range);
    EXPECT_EQ("Wavefront (nm)", chart.left.title);
    ASSERT_EQ(1u, chart.lines.size());
    ASSERT_EQ(101u, chart.lines[0].points.size());
    EXPECT_NEAR(200.0 / (2048 * 216) * 1e6 * 2 / 3, chart.lines[0].points[0].y, 1e-6); // two thirds of PV
    EXPECT_EQ(100, chart.lines[0].points[100].x);
    EXPECT_EQ((std::vector<double>{75, -75, 150, -150}), Places(chart.levels));
    EXPECT_EQ("+lambda/8", chart.levels[0].label);
    EXPECT_EQ("-lambda/4", chart.levels[3].label);
    EXPECT_EQ((std::vector<double>{30, 60, 90}), Places(chart.uprights));
    EXPECT_EQ("3", chart.uprights[2].label);
    EXPECT_LE(chart.left.range.from, -301);
    EXPECT_GE(chart.left.range.to, 301);
    EXPECT_EQ(0u, chart.title.find("Wavefront: PV 452.1 nm"));
}

TEST(WavefrontCharts, TheLimitsAreSeenOnAFlatWavefront)
{
    const Figure figure = Reduced({{30, 900 / 4800.0}, {60, 3600 / 4800.0}, {90, 8100 / 4800.0}});
    const WavefrontCurve curve{&figure, ""};
    const Chart chart = WavefrontChart({&curve, 1}, 200, 550, kGerman);
    EXPECT_GT(chart.left.range.to, 550 / 4.0);
    EXPECT_LT(chart.left.range.from, -550 / 4.0);
    EXPECT_EQ("Wellenfront (nm)", chart.left.title);
}

TEST(WavefrontCharts, SeriesSideBySideHaveColoursAndNames)
{
    const Figure a = Sphere();
    const Figure b = Reduced({{40, 0}, {70, 0.5}, {95, 2}});
    const std::vector<WavefrontCurve> curves{{&a, "A"}, {&b, "B"}};
    for (const Chart& chart :
         {WavefrontChart(curves, 200, 550, kEnglish), TransverseChart(curves, 200, kEnglish)}) {
        ASSERT_EQ(2u, chart.lines.size());
        EXPECT_EQ("A", chart.lines[0].name);
        EXPECT_EQ("B", chart.lines[1].name);
        EXPECT_NE(chart.lines[0].colour, chart.lines[1].colour);
        EXPECT_EQ((std::vector<double>{30, 60, 90}), Places(chart.uprights));
    }
}

TEST(WavefrontCharts, TransverseAberrationsInTheBandOfOneAiryRadius)
{
    const Figure figure = Sphere();
    const WavefrontCurve curve{&figure, ""};
    const Chart chart = TransverseChart({&curve, 1}, 200, kEnglish);
    ASSERT_EQ(1u, chart.zones.size());
    EXPECT_EQ((ChartRange{-1, 1}), chart.zones[0].y);
    ASSERT_EQ(3u, chart.dots.size());
    EXPECT_EQ(90, chart.dots[2].at.x);
    EXPECT_NEAR(-6.0155, chart.dots[2].at.y, 1e-3); // -3100 / 4800 * 90 / 2400 over 0.004026
    EXPECT_LE(chart.left.range.from, -6.02);
    EXPECT_GE(chart.left.range.to, 1.5);
}

TEST(WavefrontCharts, WithoutAFigureAMessageStandsInThePlot)
{
    EXPECT_EQ("no figure yet", WavefrontChart({}, 200, 550, kEnglish).message);
    EXPECT_EQ("noch keine Fl\xE4"
              "che",
              TransverseChart({}, 0, kGerman).message);
    const Figure figure = Reduced({{30, 1e308}, {60, -1e308}, {90, 1e308}});
    const WavefrontCurve curve{&figure, ""};
    const Chart chart = WavefrontChart({&curve, 1}, 200, 550, kEnglish);
    EXPECT_EQ("no figure yet", chart.message);
    EXPECT_TRUE(std::isfinite(chart.left.range.to));
}

} // namespace

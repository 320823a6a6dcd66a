#include "drawing/IlluminationPicture.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/analysis/SecondaryChoice.h"
#include "model/optics/IlluminationCurve.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

/// 250 mm f/6 with a drawtube of 50.8.
constexpr IlluminationStops kStops{250, 1500, 214.25, 46.482, 65, 50.8, 286, 1410.75};

const ChartMark* MarkOf(const Chart& chart, const std::string& start)
{
    const auto found = std::ranges::find_if(
        chart.uprights, [&](const ChartMark& mark) { return Utf8FromCp1252(mark.label).starts_with(start); });
    return found == chart.uprights.end() ? nullptr : &*found;
}

Chart Illumination(int language = kEnglish)
{
    return IlluminationChart(kStops, 12, std::vector<FieldStop>{{"Plössl", 27.5}}, kLightIllumination,
                             language);
}

TEST(IlluminationPicture, DrawsTheLightOverTheFieldsDiameter)
{
    const Chart chart = Illumination();
    ASSERT_EQ(1u, chart.lines.size());
    const std::vector<Point>& points = chart.lines[0].points;
    EXPECT_EQ((Point{0, 100}), points.front());
    EXPECT_NEAR(50.8, points.back().x, 1e-9);
    for (const Point& point : points) {
        EXPECT_NEAR(100 * LightAt(kStops, point.x / 2) / CentreLight(kStops), point.y, 1e-9);
    }
    EXPECT_EQ(0, chart.bottom.range.from);
    EXPECT_NEAR(50.8, chart.bottom.range.to, 1e-9);
    EXPECT_GT(chart.left.range.to, 100);
    EXPECT_LE(chart.left.range.from, points.back().y);
}

TEST(IlluminationPicture, HasDegreesAboveAndMagnitudesOnTheRight)
{
    const Chart chart = Illumination();
    ASSERT_TRUE(chart.top && chart.right);
    for (const ChartTick& tick : chart.top->ticks) {
        EXPECT_NEAR(3000 * std::tan(std::stod(tick.text) * M_PI / 360), tick.value, 1e-6) << tick.text;
    }
    EXPECT_GT(chart.top->ticks.size(), 3u);
    EXPECT_EQ(chart.left.range, chart.right->range);
    const auto half = std::ranges::find(chart.right->ticks, std::string("0.5"), &ChartTick::text);
    ASSERT_NE(chart.right->ticks.end(), half);
    EXPECT_NEAR(63.0957, half->value, 1e-4);
}

TEST(IlluminationPicture, MarksTheFieldsThatCount)
{
    const Chart chart = Illumination();
    ASSERT_TRUE(MarkOf(chart, "wanted 12.0 mm"));
    EXPECT_EQ(12, MarkOf(chart, "wanted")->at);
    ASSERT_TRUE(MarkOf(chart, "fully lit"));
    // (m - z D / f) / (1 - z / f), by Peters and Pike: the secondary cuts first.
    EXPECT_NEAR((46.482 - 214.25 / 6) / (1 - 214.25 / 1500), MarkOf(chart, "fully lit")->at, 1e-9);
    for (const double share : {0.75, 0.5}) {
        const ChartMark* mark = MarkOf(chart, share == 0.75 ? "75 % " : "50 % ");
        ASSERT_TRUE(mark);
        EXPECT_NEAR(share, LightAt(kStops, mark->at / 2) / CentreLight(kStops), 1e-9);
    }
    ASSERT_TRUE(MarkOf(Illumination(kGerman), "gewünscht 12.0 mm"));
    ASSERT_EQ(5u, chart.uprights.size());
    EXPECT_EQ(27.5, chart.uprights[4].at);
    EXPECT_EQ("Plössl", chart.uprights[4].label);
}

TEST(IlluminationPicture, SaysInItsBandWhichStopCuts)
{
    const Chart chart = Illumination(kGerman);
    ASSERT_EQ(2u, chart.band.size());
    EXPECT_EQ("ganzer Spiegel", chart.band[0].name);
    EXPECT_NEAR(FullyLitField(kStops), chart.band[0].x.to, 1e-4);
    EXPECT_EQ("Fangspiegel", chart.band[1].name);
    EXPECT_NE(chart.band[0].colour, chart.band[1].colour);
    EXPECT_NEAR(50.8, chart.band[1].x.to, 1e-9);
}

TEST(IlluminationPicture, ShowsTheWantedFieldAndHalfTheLightWhereTheyAreNear)
{
    EXPECT_NEAR(50.8, ShownField(kStops, 12), 1e-9);
    EXPECT_EQ(80, ShownField(kStops, 80));
    EXPECT_NEAR(50.8, ShownField(kStops, 1e6), 1e-9);
    EXPECT_NEAR(50.8, ShownField(kStops, kNan), 1e-9);
    IlluminationStops wide = kStops;
    wide.m = 60;
    EXPECT_NEAR(1.05 * FieldDiameterAtShare(wide, 0.5), ShownField(wide, 12), 1e-9);
}

TEST(IlluminationPicture, MarksTheFieldStopsThatAreKnown)
{
    const std::vector<Eyepiece> eyepieces{
        {"a", 25, 50}, {"no field", 25, 0}, {"no length", 0, 50}, {"wide", 40, 80}, {"b", 5, 100}};
    const auto stops = FieldStopsOf(eyepieces, 1500, 50);
    ASSERT_EQ(2u, stops.size());
    // The page's actual field, 50 / 60 and 100 / 300 degrees, in the focal plane.
    EXPECT_EQ("a", stops[0].name);
    EXPECT_NEAR(3000 * std::tan(50.0 / 60 * M_PI / 360), stops[0].diameter, 1e-6);
    EXPECT_EQ("b", stops[1].name);
    EXPECT_NEAR(3000 * std::tan(100.0 / 300 * M_PI / 360), stops[1].diameter, 1e-6);
    EXPECT_EQ(40u, FieldStopsOf(std::vector<Eyepiece>(1000, {"x", 25, 50}), 1500, 50).size());
}

TEST(IlluminationPicture, SaysSoWhereThereIsNone)
{
    IlluminationStops none = kStops;
    none.m = 250;
    for (const Chart& chart : {IlluminationChart(none, 12, {}, kLightIllumination, kEnglish),
                               MinorAxesChart(none, 12, {300}, kLightIllumination, kEnglish)}) {
        EXPECT_EQ("No illumination.", chart.message);
        EXPECT_TRUE(chart.lines.empty() && chart.uprights.empty() && chart.band.empty());
    }
    for (const double bad : {0.0, -1.0, kNan}) {
        none.D = bad;
        EXPECT_EQ("Keine Ausleuchtung.", SecondaryChoiceChart(none, 12, kLightIllumination, kGerman).message);
    }
}

TEST(IlluminationPicture, ThinCurvesStandBehindThePresentOne)
{
    const Chart chart = MinorAxesChart(kStops, 12, {38.608, 50}, kDarkIllumination, kEnglish);
    ASSERT_EQ(3u, chart.lines.size());
    EXPECT_FALSE(chart.lines[0].bold || chart.lines[1].bold);
    EXPECT_TRUE(chart.lines[2].bold);
    IlluminationStops larger = kStops;
    larger.m = 50;
    const Point& last = chart.lines[1].points.back();
    EXPECT_NEAR(100 * LightAt(larger, last.x / 2) / CentreLight(larger), last.y, 1e-9);
    ASSERT_EQ(2u, chart.dots.size());
    EXPECT_EQ("38.6", chart.dots[0].label);
    EXPECT_EQ(chart.lines[0].points.back(), chart.dots[0].at);
}

TEST(IlluminationPicture, SetsTheSecondariesBesideEachOther)
{
    const Chart chart = SecondaryChoiceChart(kStops, 12, kLightIllumination, kEnglish);
    ASSERT_EQ(3u, chart.lines.size());
    const std::vector<double> axes = StandardMinorAxes(250);
    for (std::size_t i = 0; i < axes.size(); ++i) {
        const SecondaryChoice choice = ChoiceOf(kStops, axes[i]);
        EXPECT_EQ((Point{axes[i], choice.full_field}), chart.lines[0].points.at(i));
        EXPECT_EQ((Point{axes[i], choice.field_at_75}), chart.lines[1].points.at(i));
        EXPECT_EQ(axes[i], chart.lines[2].points.at(i).x);
        EXPECT_NEAR(axes[i] / 2.5, chart.lines[2].points.at(i).y, 1e-12);
        EXPECT_LE(choice.field_at_75, chart.left.range.to);
    }
    EXPECT_EQ(ChartSide::kRight, chart.lines[2].side);
    ASSERT_EQ(1u, chart.uprights.size());
    EXPECT_EQ(46.482, chart.uprights[0].at);
    ASSERT_EQ(1u, chart.levels.size());
    EXPECT_EQ(12, chart.levels[0].at);
}

TEST(IlluminationPicture, IsPaintedForNonsenseToo)
{
    for (const double m : {1e-300, 1.0, 249.9999, 1e300}) {
        for (const double f : {1e-3, 1500.0, 1e300}) {
            IlluminationStops stops = kStops;
            stops.m = m;
            stops.f = f;
            for (const double wanted : {-1e300, 12.0, 1e300, HUGE_VAL, kNan}) {
                RecordingSurface surface(400, 300);
                PaintChart(surface, IlluminationChart(stops, wanted, {}, kLightIllumination, kEnglish),
                           kLightChart);
                PaintChart(surface, SecondaryChoiceChart(stops, wanted, kLightIllumination, kEnglish),
                           kLightChart);
                EXPECT_LT(surface.calls.size(), 5000u);
            }
        }
    }
}

} // namespace

#include "drawing/VariationChart.h"

#include "lib/text/Language.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

VariationCurves Curves(std::vector<const char*> names)
{
    VariationCurves curves;
    curves.field = FindRecordField("secondary/diameter");
    curves.places = {40, 50, 60};
    curves.present = 55;
    curves.wanted_field = 30;
    for (const char* const name : names) {
        curves.values.push_back(FindDesignValue(name));
        curves.curves.push_back({1, 2, 3});
        curves.present_values.push_back(2.5);
    }
    return curves;
}

TEST(VariationChart, MillimetresStandAtTheLeftAndTheRestAtTheRight)
{
    const Chart chart = VariationChart(Curves({"linear_obstruction", "full_field", "focal_ratio"}), kEnglish);
    ASSERT_EQ(3u, chart.lines.size());
    EXPECT_EQ(ChartSide::kRight, chart.lines[0].side);
    EXPECT_EQ(ChartSide::kLeft, chart.lines[1].side);
    EXPECT_EQ(ChartSide::kRight, chart.lines[2].side);
    EXPECT_EQ("Linear obstruction (%)", chart.lines[0].name);
    EXPECT_EQ("Focal ratio", chart.lines[2].name);
    EXPECT_EQ("mm", chart.left.title);
    ASSERT_TRUE(chart.right.has_value());
    EXPECT_EQ("%", chart.right->title);
    EXPECT_EQ("Minor axis of the secondary (mm)", chart.bottom.title);
    EXPECT_EQ(50, chart.lines[1].points[1].x);
    EXPECT_EQ(2, chart.lines[1].points[1].y);
}

TEST(VariationChart, WithoutMillimetresTheFirstUnitIsTheLeftOne)
{
    const Chart chart = VariationChart(Curves({"linear_obstruction", "areal_obstruction"}), kEnglish);
    EXPECT_EQ("%", chart.left.title);
    EXPECT_FALSE(chart.right.has_value());
    EXPECT_EQ(ChartSide::kLeft, chart.lines[1].side);
}

TEST(VariationChart, MarksThePresentDesignAndBesideAFieldTheWantedOne)
{
    const Chart field = VariationChart(Curves({"full_field"}), kGerman);
    ASSERT_EQ(1u, field.uprights.size());
    EXPECT_EQ(55, field.uprights[0].at);
    EXPECT_EQ("jetzt", field.uprights[0].label);
    ASSERT_EQ(1u, field.dots.size());
    EXPECT_EQ(55, field.dots[0].at.x);
    EXPECT_EQ(2.5, field.dots[0].at.y);
    ASSERT_EQ(1u, field.levels.size());
    EXPECT_EQ(30, field.levels[0].at);
    EXPECT_LE(30, field.left.range.to) << "which is in sight";

    const Chart length = VariationChart(Curves({"tube_length"}), kGerman);
    EXPECT_TRUE(length.levels.empty());
    EXPECT_GT(30, length.left.range.to);
}

TEST(VariationChart, OddNumbersMakeAChartToo)
{
    VariationCurves curves = Curves({"full_field", "focal_ratio"});
    curves.curves = {{NAN, HUGE_VAL, -HUGE_VAL}, {1e308, -1e308, 0}};
    curves.present_values = {NAN, HUGE_VAL};
    curves.wanted_field = -HUGE_VAL;
    curves.present = NAN;
    const Chart chart = VariationChart(curves, kEnglish);
    EXPECT_EQ(2u, chart.lines.size());
    EXPECT_TRUE(VariationChart({}, kEnglish).lines.empty());
}

TEST(VariationChart, ALongTableIsThinnedForTheScreen)
{
    VariationCurves curves = Curves({"full_field"});
    curves.places.assign(100'000, 1.0);
    curves.curves[0].assign(100'000, 2.0);
    EXPECT_EQ(2000u, VariationChart(curves, kEnglish).lines[0].points.size());
}

TEST(VariationChart, TheNearestPlace)
{
    const VariationCurves curves = Curves({"full_field"});
    EXPECT_EQ(0u, NearestPlace(curves, -100));
    EXPECT_EQ(0u, NearestPlace(curves, 44.9));
    EXPECT_EQ(1u, NearestPlace(curves, 45.1));
    EXPECT_EQ(2u, NearestPlace(curves, 1e9));
    EXPECT_EQ(0u, NearestPlace(curves, NAN));
    EXPECT_EQ(0u, NearestPlace({}, 3));
}

} // namespace

#include "model/analysis/SecondaryChoice.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

/// 200 mm f/5 in which the secondary alone cuts.
constexpr IlluminationStops kStops{200, 1000, 250, 60, 50, 1e5, 1e5, 800};

TEST(SecondaryChoice, TellsWhatAMinorAxisGives)
{
    const SecondaryChoice choice = ChoiceOf(kStops, 80);
    EXPECT_EQ(80, choice.minor_axis);
    EXPECT_NEAR(40, choice.full_field, 1e-12); // 320 wide as a mirror: 60 to spare, 3 h
    EXPECT_EQ(40, choice.obstruction);
    IlluminationStops changed = kStops;
    changed.m = 80;
    EXPECT_NEAR(0.75, LightAt(changed, choice.field_at_75 / 2) / 0.84, 1e-9);
    EXPECT_EQ(0, ChoiceOf(kStops, 40).full_field);
    EXPECT_TRUE(std::isnan(ChoiceOf(kStops, 200).full_field));
    EXPECT_TRUE(std::isnan(ChoiceOf(kStops, 200).field_at_75));
    EXPECT_EQ(100, ChoiceOf(kStops, 200).obstruction);
}

TEST(SecondaryChoice, StandardAxesFromAFewToSixtyPerCentOfThePrimary)
{
    EXPECT_EQ((std::vector<double>{19.05, 25.4, 33.02, 38.608, 46.482, 50, 54.356, 66.04}),
              StandardMinorAxes(114));
    const std::vector<double> large = StandardMinorAxes(400);
    EXPECT_EQ(25.4, large.front());
    EXPECT_NEAR(228.6, large.back(), 1e-9); // 9 inches; 254 is more than 240
    for (std::size_t i = 1; i < large.size(); ++i) {
        EXPECT_GT(large[i], large[i - 1] + 1);
    }
    EXPECT_TRUE(StandardMinorAxes(20).empty());
    EXPECT_EQ(40u, StandardMinorAxes(1e9).size());
    for (const double bad : {0.0, -100.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(StandardMinorAxes(bad).empty());
    }
}

TEST(SecondaryChoice, AxesAroundThePresentOne)
{
    EXPECT_EQ((std::vector<double>{33.02, 38.608, 50, 54.356}), MinorAxesAround(46.482, 2));
    EXPECT_EQ((std::vector<double>{38.608, 46.482, 50, 54.356}), MinorAxesAround(48, 2));
    EXPECT_EQ((std::vector<double>{19.05, 33.02, 38.608}), MinorAxesAround(25.4, 2));
    EXPECT_EQ((std::vector<double>{19.05, 25.4}), MinorAxesAround(-3, 2));
    const std::vector<double> large = MinorAxesAround(1000, 3); // 39.37 inches
    ASSERT_EQ(6u, large.size());
    EXPECT_NEAR(37 * 25.4, large[0], 1e-9);
    EXPECT_NEAR(42 * 25.4, large[5], 1e-9);
    EXPECT_TRUE(MinorAxesAround(HUGE_VAL, 3).empty());
    EXPECT_LE(MinorAxesAround(1e300, 3).size(), 6u);
}

TEST(SecondaryChoice, CellsWithADashForWhatThereIsNot)
{
    EXPECT_EQ((ListRow{"46.48 mm", "12.6 mm", "31.3 mm", "18.6 %"}),
              SecondaryChoiceCells({46.482, 12.63, 31.28, 18.59}));
    const ListRow none = SecondaryChoiceCells(ChoiceOf(kStops, 200));
    EXPECT_EQ("– mm", Utf8FromCp1252(none[1]));
    EXPECT_EQ("– mm", Utf8FromCp1252(none[2]));
}

TEST(SecondaryChoice, KeepsTheOrderOfTheAxes)
{
    const auto choices = SecondaryChoices(kStops, {80, 60});
    ASSERT_EQ(2u, choices.size());
    EXPECT_EQ(80, choices[0].minor_axis);
    EXPECT_NEAR(40.0 / 3, choices[1].full_field, 1e-12);
}

} // namespace

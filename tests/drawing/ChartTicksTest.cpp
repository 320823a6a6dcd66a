#include "drawing/ChartTicks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

std::string Texts(const ChartRange& range, int atMost)
{
    std::string texts;
    for (const ChartTick& tick : RoundTicks(range, atMost)) {
        texts += texts.empty() ? tick.text : " " + tick.text;
    }
    return texts;
}

TEST(ChartTicks, AreOneTwoOrFiveTimesAPowerOfTenApart)
{
    EXPECT_EQ("0 1 2 3 4 5", Texts({0, 5}, 5));
    EXPECT_EQ("0 2 4", Texts({0, 5}, 4));
    EXPECT_EQ("0 5", Texts({0, 5}, 1));
    EXPECT_EQ("0 5 10 15 20 25", Texts({0, 25.4}, 6));
    EXPECT_EQ("70 80 90 100", Texts({66, 100}, 5));
    EXPECT_EQ("-0.4 -0.2 0.0 0.2", Texts({-0.41, 0.3}, 4));
    EXPECT_EQ("0.00 0.05 0.10 0.15", Texts({0, 0.15}, 3));
    EXPECT_EQ("1000 1500 2000", Texts({1000, 2000}, 3));
    EXPECT_EQ("0 1e+06 2e+06", Texts({0, 2e6}, 2));
    EXPECT_EQ("2e-09 4e-09", Texts({1e-9, 5e-9}, 2));
}

TEST(ChartTicks, ValuesStandWhereTheTextsSay)
{
    for (const ChartTick& tick : RoundTicks({-3, 7.5}, 9)) {
        EXPECT_NEAR(std::stod(tick.text), tick.value, 1e-12);
        EXPECT_FALSE(std::signbit(tick.value) && tick.value == 0);
    }
    EXPECT_EQ((ChartTick{0.3, "0.3"}).text, RoundTicks({0.3, 0.6}, 3).at(0).text); // 3 times 0.1 is above 0.3
}

TEST(ChartTicks, HaveNoneWhereARangeIsNone)
{
    for (const ChartRange range : {ChartRange{1, 1}, ChartRange{2, 1}, ChartRange{kNan, 1},
                                   ChartRange{0, kNan}, ChartRange{0, HUGE_VAL}, ChartRange{-HUGE_VAL, 0},
                                   ChartRange{1e18, 1e18 + 512}, ChartRange{-1.7e308, 1.7e308}}) {
        EXPECT_TRUE(RoundTicks(range, 8).empty()) << range.from << ' ' << range.to;
    }
    EXPECT_LE(RoundTicks({0, 1e300}, 8).size(), 9u);
    EXPECT_FALSE(RoundTicks({0, 1}, 0).empty());
}

TEST(ChartTicks, RangesEndOnRoundNumbers)
{
    EXPECT_EQ((ChartRange{0, 30}), RoundRange(0, 25.4, 6));
    EXPECT_EQ((ChartRange{-10, 50}), RoundRange(-3, 41, 6));
    EXPECT_EQ((ChartRange{60, 100}), RoundRange(60, 100, 4));
    EXPECT_EQ((ChartRange{4, 12}), RoundRange(8, 8, 8));
    EXPECT_EQ((ChartRange{-1, 1}), RoundRange(0, 0, 4));
    EXPECT_EQ((ChartRange{-12, -4}), RoundRange(-8, -8, 8));
    for (const double bad : {kNan, HUGE_VAL, -HUGE_VAL}) {
        EXPECT_EQ((ChartRange{0, 1}), RoundRange(bad, 1));
        EXPECT_EQ((ChartRange{0, 1}), RoundRange(1, bad));
    }
    EXPECT_EQ((ChartRange{0, 1}), RoundRange(-1.7e308, 1.7e308));
}

} // namespace

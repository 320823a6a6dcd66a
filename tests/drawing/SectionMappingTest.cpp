#include "drawing/SectionMapping.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

TEST(SectionMapping, FitsTheTelescopeIntoThePicture)
{
    COrrevaData record;
    MakeRoundScope(record);
    // 1067 mm long and 220 + 20 + 60 + 50 = 350 mm high: the extended drawtube reaches above the focal plane.
    const SectionMapping wide = FitSection(record, {1077, 1000});
    EXPECT_DOUBLE_EQ(1, wide.scale);
    EXPECT_DOUBLE_EQ(5, wide.offsetX);
    EXPECT_DOUBLE_EQ(162.5, wide.offsetY); // (1000 - 350) / 2 / 2
    const SectionMapping high = FitSection(record, {3000, 710});
    EXPECT_DOUBLE_EQ(2, high.scale);
    EXPECT_DOUBLE_EQ(433, high.offsetX); // (3000 - 2134) / 2
    EXPECT_DOUBLE_EQ(2.5, high.offsetY);
    record.SetOazTravel(10); // now the focal plane is higher: 220 + 20 + 80
    EXPECT_DOUBLE_EQ(2, FitSection(record, {3000, 650}).scale);
}

TEST(SectionMapping, TakesAScaleOfTheCallers)
{
    COrrevaData record;
    MakeRoundScope(record);
    const SectionMapping map = SectionAtScale(record, {1200, 1000}, 0.5);
    EXPECT_DOUBLE_EQ(0.5, map.scale);
    EXPECT_DOUBLE_EQ(333.25, map.offsetX); // (1200 - 533.5) / 2
    EXPECT_DOUBLE_EQ(206.25, map.offsetY); // (1000 - 175) / 2 / 2
}

TEST(SectionMapping, RoundsPointsAndGivesRectanglesAtLeastAPixel)
{
    const SectionMapping map{2.0, 10.0, 20.0, {}};
    EXPECT_EQ((Pixel{13, 25}), map.WorldToScreen(1.25, 2.5)); // 12.5 + 0.5, 25 + 0.5
    EXPECT_EQ((Pixel{12, 25}), map.WorldToScreen(1.2, 2.5));
    EXPECT_EQ((Pixel{0, 0}), map.WorldToScreen(-5.6, -10.6)) << "cut toward zero";
    EXPECT_EQ((PixelRect{12, 24, 17, 31}), map.WorldToScreen({1, 2}, {3, 5}));
    EXPECT_EQ((PixelRect{12, 24, 17, 31}), map.WorldToScreen({3, 2}, {1, 5})) << "corners in any order";
    EXPECT_EQ((PixelRect{12, 24, 13, 25}), map.WorldToScreen({1, 2}, {1, 2})) << "no size, a pixel";
}

TEST(SectionMapping, MovesPixelsByTheScrollAfterRounding)
{
    const SectionMapping map{2.0, 10.0, 20.0, {100, 7}};
    EXPECT_EQ((Pixel{-88, 18}), map.WorldToScreen(1.2, 2.5));
    EXPECT_EQ((PixelRect{-88, 17, -83, 24}), map.WorldToScreen({1, 2}, {3, 5}));
    EXPECT_EQ((Point{20, 15}), map.ScreenToWorld({50, 50})) << "the scroll is not taken off";
}

TEST(SectionMapping, TakesAnyNumber)
{
    constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    const SectionMapping map{1e300, 0.0, std::nan(""), {100, -100}};
    EXPECT_EQ((Pixel{kMost - 100, 100}), map.WorldToScreen(1e300, 5));
    EXPECT_EQ((Pixel{kLeast, 100}), map.WorldToScreen(-1, 5));
}

TEST(SectionMapping, KeepsRoomBelowTheTelescope)
{
    COrrevaData record;
    MakeRoundScope(record);
    const SectionMapping usual = FitSection(record, {1077, 1000});
    const SectionMapping same = FitSection(record, {1077, 1000}, {405, 432}); // 405 + 162.5 + 432 = 999.5
    EXPECT_DOUBLE_EQ(usual.scale, same.scale);
    EXPECT_DOUBLE_EQ(usual.offsetY, same.offsetY);
    const SectionMapping less = FitSection(record, {1077, 1000}, {405, 433});
    EXPECT_DOUBLE_EQ((1000 - 433 - 10) / 405.0 < 1 ? (1000 - 433 - 10) / 405.0 : 1, less.scale);
    EXPECT_DOUBLE_EQ((567 - 405 * less.scale) / 4, less.offsetY);
    // A low window: all of it but 22 pixels for 405 mm instead of 350.
    const SectionMapping low = FitSection(record, {3000, 400}, {405, 22});
    EXPECT_DOUBLE_EQ(368 / 405.0, low.scale);
    EXPECT_DOUBLE_EQ(2.5, low.offsetY);
}

} // namespace

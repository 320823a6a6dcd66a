#include "drawing/SurfaceDisc.h"

#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr Colour kBack{240, 240, 240};

Figure Sphere()
{
    const std::vector<ZoneMean> zones{{30, 0}, {60, 0}, {90, 0}};
    return *ReduceFigure(200, 1200, zones, {});
}

TEST(SurfaceDisc, LowIsBlueTheMeanWhiteAndHighRed)
{
    EXPECT_EQ(kWhite, HeightColour(0));
    const Colour high = HeightColour(1);
    EXPECT_GT(high.red, high.blue + 100);
    const Colour low = HeightColour(-1);
    EXPECT_GT(low.blue, low.red + 100);
    EXPECT_EQ(high, HeightColour(7));
    EXPECT_EQ(low, HeightColour(-7));
    EXPECT_EQ(kWhite, HeightColour(std::nan("")));
}

TEST(SurfaceDisc, ASphereHeldAgainstAParaboloidIsHighInTheMiddleAndAtTheEdge)
{
    RecordingSurface surface(300, 216);
    const Figure figure = Sphere();
    PaintSurfaceDisc(surface, &figure, 200, kBack, kBlack);
    const auto images = surface.Of<drawn::Image>();
    ASSERT_EQ(1u, images.size());
    EXPECT_EQ(200, images[0].width);
    EXPECT_EQ((Pixel{8, 8}), images[0].at);
    ASSERT_EQ(40000u, images[0].pixels.size());
    const auto at = [&](std::size_t x, std::size_t y) { return images[0].pixels[y * 200 + x]; };
    EXPECT_EQ(kBack, at(0, 0));
    EXPECT_GT(at(100, 100).red, at(100, 100).blue + 100);
    EXPECT_GT(at(199, 100).red, at(199, 100).blue + 50);
    EXPECT_LT(at(171, 100).red + 50, at(171, 100).blue); // at 71 mm, where half of the area is inside
    EXPECT_EQ(at(171, 100), at(28, 100));
    // The highest glass: two thirds of PV at the centre, half of it on the glass.
    const auto texts = surface.Of<drawn::Text>();
    ASSERT_EQ(3u, texts.size());
    EXPECT_EQ("+150.7 nm", texts[0].text);
    EXPECT_EQ("0 nm", texts[1].text);
    EXPECT_EQ("-150.7 nm", texts[2].text);
    const auto rings = surface.Of<drawn::Ellipse>();
    ASSERT_EQ(3u, rings.size());
    EXPECT_EQ((PixelRect{8 + 70, 8 + 70, 208 - 70, 208 - 70}), rings[0].box);
}

TEST(SurfaceDisc, WithoutAFigureItIsGreyAndHasNoScale)
{
    RecordingSurface surface(300, 216);
    PaintSurfaceDisc(surface, nullptr, 200, kBack, kBlack);
    EXPECT_TRUE(surface.Of<drawn::Text>().empty());
    ASSERT_EQ(1u, surface.Of<drawn::Image>().size());
    EXPECT_EQ((Colour{160, 160, 160}), surface.Of<drawn::Image>()[0].pixels[100 * 200 + 100]);
}

TEST(SurfaceDisc, ASurfaceWithoutRoomIsMereBackground)
{
    for (const auto& [width, height] : {std::pair{0, 0}, {50, 200}, {200, 10}}) {
        RecordingSurface surface(width, height);
        const Figure figure = Sphere();
        PaintSurfaceDisc(surface, &figure, 200, kBack, kBlack);
        EXPECT_EQ(1u, surface.calls.size());
    }
}

} // namespace

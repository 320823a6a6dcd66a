#include "drawing/paper/PartSurface.h"

#include "drawing/paper/TextWidth.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

namespace {

constexpr Colour kRedInk{255, 0, 0};

class PartOfPage : public testing::Test {
protected:
    RecordingSurface page{1000, 1000};
    PartSurface part{page, {100, 200, 600, 500}, 10}; // 50 by 30 pixels
};

TEST_F(PartOfPage, APixelIsSoManyUnits)
{
    EXPECT_EQ(50, part.Width());
    EXPECT_EQ(30, part.Height());
    part.FillRect({1, 2, 3, 4}, kRedInk);
    EXPECT_EQ((drawn::FillRect{{110, 220, 130, 240}, kRedInk}), page.Of<drawn::FillRect>().at(0));
    part.Line({0, 0}, {49, 29}, kRedInk); // through the pixels' middles
    EXPECT_EQ((drawn::Line{{105, 205}, {595, 495}, kRedInk}), page.Of<drawn::Line>().at(0));
    part.Text({2, 3}, "x", {14}, kRedInk);
    EXPECT_EQ((drawn::Text{{120, 230}, "x", {140}, kRedInk}), page.Of<drawn::Text>().at(0));
    part.Ellipse({1, 1, 11, 6}, kRedInk, 1);
    EXPECT_EQ((drawn::Ellipse{{110, 210, 210, 260}, kRedInk, 1}), page.Of<drawn::Ellipse>().at(0));
    EXPECT_EQ(28, part.WrappedText({0, 0, 3, 10}, "aaa bbb", {14}, kRedInk)) << "two lines";
}

TEST_F(PartOfPage, NothingLeavesThePart)
{
    part.FillRect({-10, -10, 100, 100}, kRedInk);
    EXPECT_EQ((PixelRect{100, 200, 600, 500}), page.Of<drawn::FillRect>().at(0).rect);
    part.FillRect({60, 0, 70, 10}, kRedInk);
    EXPECT_EQ(1u, page.Of<drawn::FillRect>().size());
    part.Line({-1000, 10}, {1000, 10}, kRedInk);
    EXPECT_EQ((drawn::Line{{100, 305}, {600, 305}, kRedInk}), page.Of<drawn::Line>().at(0));
    part.Line({-10, -10}, {100, -10}, kRedInk);
    EXPECT_EQ(1u, page.Of<drawn::Line>().size());
    const Pixel square[] = {{40, 10}, {80, 10}, {80, 15}, {40, 15}};
    part.Polygon(square, kRedInk, kRedInk);
    const drawn::Polygon seen = page.Of<drawn::Polygon>().at(0);
    EXPECT_GE(seen.points.size(), 4u);
    for (const Pixel point : seen.points) {
        EXPECT_TRUE(point.x == 505 || point.x == 600) << point.x;
        EXPECT_TRUE(point.y == 305 || point.y == 355) << point.y;
    }
    const Pixel outside[] = {{80, 10}, {90, 10}, {90, 15}};
    part.Polygon(outside, kRedInk, kRedInk);
    EXPECT_EQ(1u, page.Of<drawn::Polygon>().size());
    part.Text({70, 5}, "x", {14}, kRedInk);
    EXPECT_TRUE(page.Of<drawn::Text>().empty());
    part.Text({40, 5}, "a long text", {5}, kRedInk);
    const drawn::Text text = page.Of<drawn::Text>().at(0);
    EXPECT_LE(text.at.x + TextWidth(text.text, text.font), 600);
    part.Ellipse({40, 0, 60, 10}, kRedInk, 1);
    EXPECT_TRUE(page.Of<drawn::Ellipse>().empty());
}

} // namespace

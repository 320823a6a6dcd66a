#include "drawing/paper/SheetDrawing.h"

#include "drawing/paper/Paper.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kTurn = SheetArc::kWhole;
constexpr double kThird = kTurn / 3;

double LengthOf(const std::vector<SheetArc>& parts)
{
    double length = 0;
    for (const SheetArc& part : parts) {
        length += part.to - part.from;
    }
    return length;
}

TEST(SheetArcs, AreCutAtTheSidesOfABox)
{
    const SheetArc circle{{0, 0}, 10, 10};
    EXPECT_TRUE(VisibleParts(circle, {{-11, -11}, {11, 11}}).at(0).IsWhole());
    EXPECT_TRUE(VisibleParts(circle, {{-5, -5}, {5, 5}}).empty()) << "the box lies within";
    EXPECT_TRUE(VisibleParts(circle, {{20, 20}, {30, 30}}).empty());

    // The right half beyond x = 5: cos 60 degrees is a half.
    const auto cap = VisibleParts(circle, {{5, -20}, {20, 20}});
    EXPECT_NEAR(kThird, LengthOf(cap), 1e-12);
    // Both caps beside a strip of half the width.
    const auto strip = VisibleParts(circle, {{-5, -20}, {5, 20}});
    ASSERT_EQ(2u, strip.size());
    EXPECT_NEAR(kThird, LengthOf(strip), 1e-12);
    EXPECT_NEAR(5, strip[0].At(strip[0].from).x, 1e-12);
    EXPECT_LT(strip[0].At((strip[0].from + strip[0].to) / 2).y, 0) << "y runs down the paper, angles upward";
}

TEST(SheetArcs, ThoseOfAnEllipseAreCutByItsOwnParameter)
{
    const SheetArc ellipse{{100, 50}, 20, 40};
    for (const SheetArc& part : VisibleParts(ellipse, {{0, 0}, {110, 60}})) {
        for (int i = 0; i <= 10; ++i) {
            const Point at = part.At(part.from + (part.to - part.from) * i / 10);
            EXPECT_NEAR(1, std::pow((at.x - 100) / 20, 2) + std::pow((at.y - 50) / 40, 2), 1e-12);
            EXPECT_TRUE(at.x <= 110 + 1e-9 && at.y <= 60 + 1e-9);
        }
    }
}

TEST(SheetArcs, APartKeepsToItsOwnEnds)
{
    const SheetArc quarter{{0, 0}, 10, 10, 0, kTurn / 4};
    const auto right = VisibleParts(quarter, {{5, -20}, {20, 20}});
    ASSERT_EQ(1u, right.size());
    EXPECT_EQ(0, right[0].from);
    EXPECT_NEAR(kTurn / 6, right[0].to, 1e-12);
    const SheetArc later{{0, 0}, 10, 10, kTurn, kTurn * 1.25}; // the same one a turn on
    EXPECT_NEAR(kTurn / 6, LengthOf(VisibleParts(later, {{5, -20}, {20, 20}})), 1e-12);
}

TEST(SheetDrawings, ArePaintedInTrueScaleFromTheWindowsCorner)
{
    SheetDrawing drawing;
    drawing.lines.push_back({{0, 0}, {50, 0}});
    drawing.arcs.push_back({{30, 30}, 10, 20});
    RecordingSurface page(21000, 29700);
    PaintDrawing(page, drawing, {{{-10, -10}, {100, 100}}, {8, 9}});
    EXPECT_EQ((drawn::Line{{1800, 1900}, {6800, 1900}, kBlack}), page.Of<drawn::Line>().at(0));
    EXPECT_EQ((drawn::Ellipse{{3800, 2900, 5801, 6901}, kBlack, 1}), page.Of<drawn::Ellipse>().at(0));
}

TEST(SheetDrawings, WhatLeavesTheWindowIsCut)
{
    SheetDrawing drawing;
    drawing.lines.push_back({{-100, 5}, {100, 5}});
    drawing.lines.push_back({{-100, 50}, {100, 50}});
    drawing.arcs.push_back({{0, 0}, 8, 8});
    RecordingSurface page(21000, 29700);
    PaintDrawing(page, drawing, {{{0, 0}, {10, 10}}, {0, 0}});
    ASSERT_EQ(1u, page.Of<drawn::Line>().size());
    EXPECT_EQ((drawn::Line{{0, 500}, {1000, 500}, kBlack}), page.Of<drawn::Line>()[0]);
    EXPECT_TRUE(page.Of<drawn::Ellipse>().empty());
    // From the left, below the centre, to the right of it: counter-clockwise.
    EXPECT_EQ((drawn::Arc{{-800, -800, 801, 801}, {0, 800}, {800, 0}, kBlack}), page.Of<drawn::Arc>().at(0));
}

TEST(SheetDrawings, ATextStandsWholeOnThePagesThatHaveItsMiddle)
{
    SheetDrawing drawing;
    drawing.texts.push_back({{9.9, 5}, "0000", 2.288});
    const double half = 4 * 1.139 / 2;
    EXPECT_NEAR(half, drawing.texts[0].HalfSize().x, 0.01);
    RecordingSurface page(21000, 29700);
    PaintDrawing(page, drawing, {{{0, 0}, {10, 10}}, {0, 0}});
    EXPECT_NEAR(1000 - 200 * half, page.Of<drawn::Text>().at(0).at.x, 2);
    PaintDrawing(page, drawing, {{{10, 0}, {20, 10}}, {0, 0}});
    EXPECT_EQ(1u, page.Of<drawn::Text>().size());
}

TEST(SheetDrawings, CountWhatTouchesABox)
{
    SheetDrawing drawing;
    drawing.Cross({0, 0}, 5);
    drawing.arcs.push_back({{0, 0}, 5, 5});
    drawing.texts.push_back({{20, 20}, "x"});
    EXPECT_EQ(3u, CountIn(drawing, {{-6, -6}, {6, 6}}));
    EXPECT_EQ(1u, CountIn(drawing, {{19, 19}, {21, 21}}));
    EXPECT_EQ(0u, CountIn(drawing, {{10, 10}, {12, 12}}));
}

} // namespace

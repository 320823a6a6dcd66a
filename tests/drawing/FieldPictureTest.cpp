#include "drawing/FieldPicture.h"

#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

FieldTable EvenField(double p)
{
    FieldTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        table[i] = {0.006 * static_cast<double>(i + 1), p};
    }
    return table;
}

RecordingSurface Draw(const FieldTable& table)
{
    RecordingSurface surface(600, 540);
    DrawFieldPicture(surface, table);
    return surface;
}

TEST(FieldPicture, DrawsARingForEachStepOfTheAngle)
{
    FieldTable table = EvenField(100);
    table[10].p = 50;   // 127.5 of 255
    table[249].p = 0.3; // 0.765 of 255
    const auto rings = Draw(table).Of<drawn::Ellipse>();
    ASSERT_EQ(250u, rings.size());
    for (std::int32_t i = 0; i < 250; ++i) {
        const auto& ring = rings[static_cast<std::size_t>(i)];
        EXPECT_EQ((PixelRect{260 - i, 260 - i, 261 + i, 261 + i}), ring.box);
        EXPECT_EQ(2, ring.width);
    }
    EXPECT_EQ((Colour{255, 255, 255}), rings[0].pen);
    EXPECT_EQ((Colour{127, 127, 127}), rings[10].pen);
    EXPECT_EQ((Colour{0, 0, 0}), rings[249].pen);
}

TEST(FieldPicture, TheGreyIsTheLowByte)
{
    FieldTable table = EvenField(100);
    table[0].p = 101;      // 257.55
    table[1].p = 1e300;    // the largest integer ends in FF
    table[2].p = HUGE_VAL; // the same
    const auto rings = Draw(table).Of<drawn::Ellipse>();
    EXPECT_EQ((Colour{1, 1, 1}), rings[0].pen);
    EXPECT_EQ((Colour{255, 255, 255}), rings[1].pen);
    EXPECT_EQ((Colour{255, 255, 255}), rings[2].pen);
}

TEST(FieldPicture, LabelsEveryTwentyFifthRingTwice)
{
    FieldTable table = EvenField(80.3);
    table[225].p = 0; // black
    const RecordingSurface surface = Draw(table);
    const auto texts = surface.Of<drawn::Text>();
    ASSERT_EQ(20u, texts.size());
    for (std::int32_t k = 0; k < 10; ++k) {
        const auto& lower = texts[static_cast<std::size_t>(2 * k)];
        const auto& upper = texts[static_cast<std::size_t>(2 * k + 1)];
        EXPECT_EQ((Pixel{515, 260 + 25 * k}), lower.at);
        EXPECT_EQ((Pixel{515, 260 - 25 * k}), upper.at);
        EXPECT_EQ(lower.text, upper.text);
        EXPECT_EQ(kBlack, lower.colour);
    }
    // Rounded by the half that is added and once more by the format: 80.8 and 0.5.
    EXPECT_EQ("0.0\xB0->81%", texts[0].text);
    EXPECT_EQ("0.2\xB0->81%", texts[2].text); // 0.156 degrees
    EXPECT_EQ("1.4\xB0->0%", texts[18].text); // 1.356 degrees
    EXPECT_EQ(kBlack, surface.Of<drawn::Ellipse>()[225].pen);
}

TEST(FieldPicture, AFieldWithoutLightStaysEmpty)
{
    const RecordingSurface surface = Draw(EvenField(std::numeric_limits<double>::quiet_NaN()));
    ASSERT_EQ(1u, surface.calls.size());
    EXPECT_EQ((drawn::FillRect{{0, 0, 600, 540}, kWhite}), surface.Of<drawn::FillRect>()[0]);
}

TEST(FieldPicture, OfATelescope)
{
    COrrevaData telescope;
    telescope.GetFocalPlaneHeight();
    telescope.GetFocalPlaneHeight();
    FieldSimulation simulation;
    const RecordingSurface surface = Draw(simulation.Table(telescope, {}));
    const auto rings = surface.Of<drawn::Ellipse>();
    ASSERT_EQ(250u, rings.size());
    // Bright in the middle, darker outward.
    EXPECT_GT(rings[0].pen.red, 250);
    for (std::size_t i = 50; i < 250; i += 25) {
        EXPECT_LE(rings[i].pen.red, rings[i - 25].pen.red) << i;
    }
    EXPECT_LT(rings[249].pen.red, 150);
}

} // namespace

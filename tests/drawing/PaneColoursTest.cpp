#include "drawing/PaneColours.h"

#include "drawing/IlluminationPicture.h"
#include "support/Contrast.h"

#include <gtest/gtest.h>

namespace {

TEST(PaneColours, ContrastIsThatOfTheGuidelines)
{
    EXPECT_DOUBLE_EQ(21, Contrast(kBlack, kWhite));
    EXPECT_DOUBLE_EQ(1, Contrast({1, 2, 3}, {1, 2, 3}));
    // The lightest grey that the guidelines' own examples allow for text on white.
    EXPECT_NEAR(4.54, Contrast({118, 118, 118}, kWhite), 0.005);
    EXPECT_NEAR(4.00, Contrast({255, 0, 0}, kWhite), 0.005);
    EXPECT_NEAR(5.25, Contrast(kBlack, {255, 0, 0}), 0.005);
}

TEST(PaneColours, OfHighContrastAreReadAndTold)
{
    const SectionColours& c = kContrastSection;
    for (const Colour text : {c.scale, c.status, c.prompt, c.warning}) {
        EXPECT_GE(Contrast(text, c.background), kTextContrast);
        EXPECT_GE(Contrast(text, c.inside), kTextContrast);
    }
    for (const Colour shape : {c.ray, c.lostRay, c.mirror, c.litField, c.warning}) {
        EXPECT_GE(Contrast(shape, c.background), kShapeContrast);
        EXPECT_GE(Contrast(shape, c.inside), kShapeContrast);
    }
    // They cross the walls, the holder and the focal plane, or lie on them.
    for (const Colour shape : {c.ray, c.lostRay, c.mirror, c.litField}) {
        for (const Colour black : {c.wall, c.holder, c.focalPlane}) {
            EXPECT_GE(Contrast(shape, black), kShapeContrast);
        }
    }
    EXPECT_GE(Contrast(c.ray, c.lostRay), 2) << "told apart without colours";
}

TEST(PaneColours, OfTheHighContrastSummaryAreRead)
{
    EXPECT_GE(Contrast(kContrastSummary.text, kContrastSummary.field), kTextContrast);
    EXPECT_GE(Contrast(kContrastSummary.warning, kContrastSummary.field), kTextContrast);
}

TEST(ChartColours, AreReadAndTold)
{
    for (const ChartColours& c : {kLightChart, kDarkChart}) {
        EXPECT_GE(Contrast(c.text, c.background), kTextContrast);
        EXPECT_GE(Contrast(c.frame, c.background), kShapeContrast);
    }
}

TEST(IlluminationColours, AreReadAndTold)
{
    for (const IlluminationColours& c : {kLightIllumination, kDarkIllumination}) {
        for (const Colour line : {c.curve, c.other, c.obstruction, c.mark, c.wanted, c.eyepiece}) {
            EXPECT_GE(Contrast(line, c.chart.background), kShapeContrast);
        }
        for (const Colour band : c.bands) {
            EXPECT_GE(Contrast(c.bandText, band), kTextContrast);
        }
    }
}

} // namespace

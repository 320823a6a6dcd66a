#include "raytrace/ParallelStatus.h"

#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ParallelFigures Figures(double tilt)
{
    COrrevaData record;
    MakeRoundScope(record);
    return ParallelStatus(record, kHalfPi + tilt);
}

TEST(ParallelStatus, OverlapsTheMirrorWithTheDiagonalsShadow)
{
    struct Case {
        double tilt, degrees, image, illumination;
    };
    // r = 60 * 1000 / 200 / 200 = 1.5; the lens of circles of 1 and 1.5 worked out with forty digits.
    const Case cases[] = {
        {-0.02454369260546875, 1.40625, 49.08984951686, 75.31816743697},
        {-0.05, 2.864788975736, 100.0208385429, 15.81499616421},
        {0.02, -1.14591559029, 40.00133338667, 86.46695812572},
    };
    for (const Case& one : cases) {
        const ParallelFigures figures = Figures(one.tilt);
        EXPECT_NEAR(one.degrees, figures.angleDegrees, 1e-9);
        EXPECT_NEAR(one.image, figures.imageMm, 1e-8);
        EXPECT_NEAR(one.illumination, figures.illuminationPercent, 1e-8);
    }
}

TEST(ParallelStatus, KnowsTheTelescopeThatNewProposes)
{
    COrrevaData record;
    MakeDefaultScope(record);
    const ParallelFigures figures = ParallelStatus(record, kHalfPi - 0.0490873852109375 / 2);
    EXPECT_NEAR(1.40625, figures.angleDegrees, 1e-9);
    EXPECT_NEAR(73.634774275293, figures.imageMm, 1e-8);
    EXPECT_NEAR(16.939037309267, figures.illuminationPercent, 1e-8);
}

TEST(ParallelStatus, IsFullOnTheAxis)
{
    const ParallelFigures figures = Figures(0);
    EXPECT_NEAR(0, figures.imageMm, 1e-9);
    EXPECT_EQ(100, figures.illuminationPercent);
    EXPECT_EQ("Angle: 0.000\xB0 Image: 0.00 mm, Illumination: 100.00% ",
              FormatParallelStatus(kEnglish, {0, 0, figures.illuminationPercent}));
}

TEST(ParallelStatus, TellsCirclesThatDoNotCutByTheImagesSizeAlone)
{
    EXPECT_EQ(100, Figures(-0.005).illuminationPercent) << "image 10 mm: the mirror lies within the shadow";
    EXPECT_EQ(0, Figures(-0.1).illuminationPercent) << "image 200 mm";
    EXPECT_EQ(0, Figures(-0.3).illuminationPercent) << "image 604 mm";
}

TEST(ParallelStatus, GrowsAboveTheTubeAndTurnsNegativeBelow)
{
    EXPECT_NEAR(17.188733854, Figures(-0.3).angleDegrees, 1e-8);
    const ParallelFigures below = Figures(0.02);
    EXPECT_LT(below.angleDegrees, 0);
    EXPECT_GT(below.imageMm, 0);
}

TEST(ParallelStatus, HasNoThirdValueWithoutAFocalPlaneOrAMirror)
{
    for (const RecordSetter setter : {&COrrevaData::SetMirrorDiameter, &COrrevaData::SetFocalPlaneHeight}) {
        COrrevaData record;
        MakeRoundScope(record);
        (record.*setter)(0);
        const double small = ParallelStatus(record, kHalfPi - 0.01).illuminationPercent;
        EXPECT_EQ(100, small);
        const double large = ParallelStatus(record, kHalfPi - 0.2).illuminationPercent;
        EXPECT_EQ(0, large);
    }
}

TEST(ParallelStatus, IsFullWhereTheImageIsJustAsLargeAsTheDiagonal)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetMirrorDiameter(0); // so that the sizes alone decide
    constexpr double kAngle = kHalfPi - 0.02;
    const double image = ParallelStatus(record, kAngle).imageMm;
    ASSERT_GT(image, 0);
    record.SetSecondaryDiameter(image);
    EXPECT_EQ(100, ParallelStatus(record, kAngle).illuminationPercent);
    record.SetSecondaryDiameter(std::nextafter(image, 0));
    EXPECT_EQ(0, ParallelStatus(record, kAngle).illuminationPercent);
}

TEST(ParallelStatus, IsWrittenInBothLanguages)
{
    const ParallelFigures figures{1.40625, 49.0898, 75.318};
    EXPECT_EQ("Angle: 1.406\xB0 Image: 49.09 mm, Illumination: 75.32% ",
              FormatParallelStatus(kEnglish, figures));
    EXPECT_EQ("Einfallwinkel: 1.406\xB0 Bild: 49.09 mm, Ausleuchtung: 75.32% ",
              FormatParallelStatus(kGerman, figures));
}

TEST(ParallelStatus, WritesAnyNumber)
{
    EXPECT_EQ("Angle: inf\xB0 Image: -inf mm, Illumination: 0.00% ",
              FormatParallelStatus(kEnglish, {HUGE_VAL, -HUGE_VAL, 0}));
    EXPECT_GT(FormatParallelStatus(kGerman, {1e300, -1e300, 1e300}).size(), 900u);
}

} // namespace

#include "model/analysis/SecondaryFormulas.h"

#include "model/record/Formulas.h"

#include <gtest/gtest.h>

namespace {

/// Figures of three telescopes, worked out apart from the program.
struct FormulaCase {
    double D, F, L, m;
    double degrees, edberg_field, berry_field;
    double edberg, edberg_degrees, berry, berry_minutes, peters_pike;
    double francis, masson, dakin, varnholt;
    double axis_centre, axis_dakin, axis_edberg, axis_berry, axis_peters_pike;
};

class SecondaryFormulas : public testing::TestWithParam<FormulaCase> {};

TEST_P(SecondaryFormulas, AgreeWithFiguresWorkedOutApart)
{
    const FormulaCase& c = GetParam();
    constexpr double kNear = 1e-8;
    EXPECT_NEAR(c.edberg_field, WantedFieldEdberg(c.F, c.degrees), kNear);
    EXPECT_NEAR(c.berry_field, WantedFieldBerry(c.F, c.degrees), kNear);
    EXPECT_NEAR(c.edberg, FullFieldDiameter(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.edberg_degrees, FullFieldAngle(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.berry, FullFieldBerry(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.berry_minutes, FullFieldMinutesBerry(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.peters_pike, FullFieldPetersPike(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.francis, OffsetFrancis(c.D, c.F, c.m), kNear);
    EXPECT_NEAR(c.masson, OffsetMasson(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.dakin, OffsetDakin(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.varnholt, OffsetVarnholt(c.D, c.F, c.m, c.L), kNear);
    EXPECT_NEAR(c.axis_centre, MinorAxisForCentre(c.D, c.F, c.L), kNear);
    EXPECT_NEAR(c.axis_dakin, MinorAxisDakin(c.D, c.F, c.L, c.edberg_field), kNear);
    EXPECT_NEAR(c.axis_edberg, MinorAxisEdberg(c.D, c.F, c.L, c.edberg_field), kNear);
    EXPECT_NEAR(c.axis_berry, MinorAxisBerry(c.D, c.F, c.L, c.degrees), kNear);
    EXPECT_NEAR(c.axis_peters_pike, MinorAxisPetersPike(c.D, c.F, c.L, c.edberg_field), kNear);
}

INSTANTIATE_TEST_SUITE_P(Telescopes, SecondaryFormulas,
                         testing::Values(FormulaCase{200,
                                                     1200,
                                                     188,
                                                     46.482,
                                                     0.573,
                                                     12.000983959470414,
                                                     12.000883936369998,
                                                     17.962845849802374,
                                                     0.8576466983789439,
                                                     15.148666666666667,
                                                     43.39773326376605,
                                                     17.962845849802374,
                                                     1.93675,
                                                     1.7628022915019763,
                                                     1.778016917918782,
                                                     1.7730024501630997,
                                                     31.333333333333332,
                                                     41.76253503561814,
                                                     41.45416313915338,
                                                     43.33421726970333,
                                                     41.45416313915338},
                                         FormulaCase{200,
                                                     1200,
                                                     188,
                                                     30,
                                                     0.573,
                                                     12.000983959470414,
                                                     12.000883936369998,
                                                     -1.5810276679841897,
                                                     -0.075488499637589,
                                                     -1.3333333333333321,
                                                     -3.81971863431466,
                                                     -1.5810276679841884,
                                                     1.25,
                                                     1.2598814229249011,
                                                     1.2733977809601509,
                                                     1.2688326208872098,
                                                     31.333333333333332,
                                                     41.76253503561814,
                                                     41.45416313915338,
                                                     43.33421726970333,
                                                     41.45416313915338},
                                         FormulaCase{250,
                                                     1500,
                                                     214.25,
                                                     46.482,
                                                     0.4584,
                                                     12.000947950923779,
                                                     12.000883936369998,
                                                     12.568928640871087,
                                                     0.48009490037603236,
                                                     10.77366666666667,
                                                     24.691425195936855,
                                                     12.568928640871084,
                                                     1.93675,
                                                     1.8393785098191717,
                                                     1.8565850259268615,
                                                     1.850972490145054,
                                                     35.708333333333336,
                                                     46.346976953897254,
                                                     45.99514588526683,
                                                     47.70921726970333,
                                                     45.99514588526684}));

TEST(SecondaryObstruction, IsPerCentOfAreaAndOfDiameter)
{
    EXPECT_DOUBLE_EQ(25.0, LinearObstruction(200, 50));
    EXPECT_DOUBLE_EQ(6.25, ArealObstruction(200, 50));
    EXPECT_NEAR(5.40144081, ArealObstruction(200, 46.482), 1e-9);
}

} // namespace

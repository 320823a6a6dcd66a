#include "model/optics/StarDistance.h"

#include <gtest/gtest.h>

namespace {

class StarDialog : public testing::Test {
protected:
    StarDialog()
    {
        telescope.SetMirrorDiameter(200);
        telescope.SetFocalLength(1200);
    }

    COrrevaData telescope;
    StarDialogTexts dialog{telescope};
};

TEST(StarDistance, ByErrorAndByResolution)
{
    // 40000 / (36 * 512 * 29.378) * 1000
    EXPECT_NEAR(73.86952443627509, StarDistanceByError(20, 200, 1200), 1e-10);
    EXPECT_EQ(0.0, StarDistanceByError(0, 200, 1200));
    const auto distances = StarDistancesByResolution(0.05, 200);
    EXPECT_NEAR(179.36086956521743, distances[0], 1e-10);
    EXPECT_NEAR(149.46739130434787, distances[1], 1e-10);
    EXPECT_NEAR(177.8146551724138, distances[2], 1e-10);
}

TEST_F(StarDialog, OpensFromTheRecord)
{
    EXPECT_EQ("20.00", dialog.Precision());
    EXPECT_EQ("0.050", dialog.StarDiameter());
    EXPECT_EQ("73.87m", dialog.DistanceByError());
    EXPECT_EQ("179.36m (Sparrows)\r\n149.47m (Rayleigh)\r\n177.81m (Dawes)", dialog.DistanceByResolution());
    EXPECT_EQ(0, telescope.IsModified());
    telescope.SetStarPrecision(10);
    telescope.SetStarDiameter(0.1);
    EXPECT_EQ("36.93m", dialog.DistanceByError());
    EXPECT_EQ("358.72m (Sparrows)\r\n298.93m (Rayleigh)\r\n355.63m (Dawes)", dialog.DistanceByResolution());
}

TEST_F(StarDialog, ATypedPrecisionIsStoredAtOnceAndMarksTheTelescopeAsChanged)
{
    EXPECT_EQ("36.93m", dialog.TypePrecision("10"));
    EXPECT_EQ(10, telescope.star_precision);
    EXPECT_EQ(1, telescope.IsModified());
    EXPECT_EQ("0.00m", dialog.TypePrecision("0"));
    EXPECT_EQ("0.00m", dialog.TypePrecision(""));
    EXPECT_EQ("0.00m", dialog.TypePrecision("much"));
    EXPECT_EQ(0, telescope.star_precision);
}

TEST_F(StarDialog, ATypedStarIsStoredAtOnceAndMarksTheTelescopeAsChanged)
{
    EXPECT_EQ("358.72m (Sparrows)\r\n298.93m (Rayleigh)\r\n355.63m (Dawes)", dialog.TypeStarDiameter("0.1"));
    EXPECT_EQ(0.1, telescope.star_diameter);
    EXPECT_EQ(1, telescope.IsModified());
    EXPECT_EQ("0.00m (Sparrows)\r\n0.00m (Rayleigh)\r\n0.00m (Dawes)", dialog.TypeStarDiameter("abc"));
}

TEST_F(StarDialog, ACommaEndsATypedNumber)
{
    EXPECT_EQ("36.93m", dialog.TypePrecision("10,9"));
    EXPECT_EQ(10, telescope.star_precision);
    dialog.TypeStarDiameter("1,5");
    EXPECT_EQ(1, telescope.star_diameter);
}

TEST_F(StarDialog, TheResultFollowsTheTextAndNotTheRecord)
{
    // A number too large to be one is the record's unset mark; the dialog goes by what was typed.
    EXPECT_EQ("infm", dialog.TypePrecision("1e999"));
    EXPECT_EQ(HUGE_VAL, telescope.star_precision);
    EXPECT_EQ("73.87m", dialog.DistanceByError());
}

} // namespace

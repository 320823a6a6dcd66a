#include "model/optics/CentreMarks.h"

#include <gtest/gtest.h>

namespace {

TEST(CentreMarks, StayOutOfTheFullyIlluminatedField)
{
    // a = 1200 - 250; p = 70 / 2 - 2 * 950 / 1200; s = (p + 2) * 250 / 1200 - 2
    const CentreMarks marks = FindCentreMarks(70, 2, 1200, 250);
    EXPECT_NEAR(33.416666667, marks.primary, 1e-9);
    EXPECT_NEAR(5.378472222, marks.secondary, 1e-9);
}

TEST(CentreMarks, AValueBelowZeroBecomesZeroAndTheSecondUsesTheFirstBefore)
{
    // p = 33.02 / 2 - 60 * 950 / 1200 = -30.99
    const CentreMarks small = FindCentreMarks(33.02, 60, 1200, 250);
    EXPECT_EQ(0, small.primary);
    EXPECT_EQ(0, small.secondary);
    // With a negative field p counts before it is cut: w = -4: p = 1 + 4 * 3 / 4 = 4, s = 0 + 4
    const CentreMarks odd = FindCentreMarks(2, -4, 400, 100);
    EXPECT_EQ(4, odd.primary);
    EXPECT_EQ(4, odd.secondary);
    // p = -5 + 4 * 3 / 4 = -2, cut to 0; s = (-2 - 4) / 4 + 4 = 2.5, where the cut one would give 3
    const CentreMarks cut = FindCentreMarks(-10, -4, 400, 100);
    EXPECT_EQ(0, cut.primary);
    EXPECT_EQ(2.5, cut.secondary);
}

TEST(CentreMarks, MessageOfATelescope)
{
    COrrevaData telescope;
    telescope.GetFocalPlaneHeight();
    // p = 46.482 / 2 - 12 * 1285.75 / 1500 = 12.955; s = 24.955 * 214.25 / 1500 - 12 < 0
    EXPECT_EQ("Maximaler Durchmesser der Markierung auf dem Hauptspiegel: 12.96mm\n"
              "Maximaler Durchmesser der Markierung auf dem Fangspiegel: 0.00mm",
              CentreMarksMessage(telescope));
    telescope.SetSecondaryDiameter(19.05);
    telescope.SetWanted100PercentFow(60);
    EXPECT_EQ("Maximaler Durchmesser der Markierung auf dem Hauptspiegel: 0.00mm\n"
              "Maximaler Durchmesser der Markierung auf dem Fangspiegel: 0.00mm",
              CentreMarksMessage(telescope));
}

} // namespace

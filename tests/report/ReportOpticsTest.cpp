#include "report/Report.h"

#include <gtest/gtest.h>

namespace {

class ReportTests : public testing::Test {
protected:
    ReportTests()
    {
        telescope.SetMirrorDiameter(200);
        telescope.SetFocalLength(1200);
        telescope.GetFocalPlaneHeight();
        telescope.GetFocalPlaneHeight();
    }

    ReportLines Foucault(const ZoneOptions& options)
    {
        ReportLines lines;
        context.zones = options;
        FoucaultReport(context, [&](const std::string& line) {
            lines.push_back(line);
            return true;
        });
        return lines;
    }

    COrrevaData telescope;
    ReportContext context{telescope};
};

TEST_F(ReportTests, FoucaultAsThePageOpens)
{
    const ReportLines expected{
        "optimum\t3.3",
        "Zone\tInner Radius\tOuter Radius\tCorrected Center Radius (Carlin)\tSchnittweitendifferenz",
        "1\t22.3607 mm\t60.5530 mm\t43.6005 mm\t0.0000 mm",
        "2\t60.5530 mm\t82.6640 mm\t72.0339 mm\t0.6850 mm",
        "3\t82.6640 mm\t100.0000 mm\t91.5374 mm\t1.3496 mm",
    };
    EXPECT_EQ(expected, Foucault({}));
}

TEST_F(ReportTests, FoucaultWithTypedFieldsKeepsTheWantedNumberOfTheOpenedPage)
{
    // 10 per cent and 5 mm less: the optimum falls to 2.8, the wanted number stays 3.
    const ReportLines lines = Foucault({.zones = {}, .centre = "10", .edge = "5", .view = {}});
    EXPECT_EQ("optimum\t2.8", lines.at(0));
    EXPECT_EQ(5u, lines.size());
}

TEST_F(ReportTests, FoucaultByTheRadios)
{
    const ZoneOptions options{
        .zones = "1", .centre = {}, .edge = {}, .view = {kEverestPinstick, kTexereau, kFixedSource}};
    const ReportLines expected{"optimum\t3.3", "Zone\tCenter Radius (Texereau)\tSchnittweitendifferenz",
                               "1\t61.1803 mm\t0.0000 mm"}; // (22.3607 + 100) / 2
    EXPECT_EQ(expected, Foucault(options));
}

TEST_F(ReportTests, FoucaultHandsItsLinesOnOneByOne)
{
    // A reader that has seen enough of a thousand million zones.
    int lines = 0;
    context.zones.zones = "1e9";
    FoucaultReport(context, [&](const std::string&) { return ++lines < 1000; });
    EXPECT_EQ(1000, lines);
}

TEST_F(ReportTests, RonchiLineOrNothing)
{
    EXPECT_EQ((ReportLines{"+- 1/4 wavefront Fehler: parab. kann in einem Bereich von 0.39 bis 1.61 "
                           "ver\xE4ndert werden."}),
              RonchiReport(context));
    telescope.SetMirrorDiameter(0);
    EXPECT_TRUE(RonchiReport(context).empty());
}

TEST_F(ReportTests, StarAndItsThreeResolutions)
{
    const ReportLines expected{"error\t73.87m", "resolution\t179.36m (Sparrows)",
                               "resolution\t149.47m (Rayleigh)", "resolution\t177.81m (Dawes)"};
    EXPECT_EQ(expected, StarReport(context));
}

TEST_F(ReportTests, MarksAreTheTwoLinesOfTheMessage)
{
    telescope.SetSecondaryDiameter(19.05);
    telescope.SetWanted100PercentFow(60);
    const ReportLines expected{"Maximaler Durchmesser der Markierung auf dem Hauptspiegel: 0.00mm",
                               "Maximaler Durchmesser der Markierung auf dem Fangspiegel: 0.00mm"};
    EXPECT_EQ(expected, MarksReport(context));
}

TEST_F(ReportTests, FieldFromTheCentreOut)
{
    const ReportLines lines = FieldReport(context);
    ASSERT_EQ(250u, lines.size());
    EXPECT_EQ(0u, lines.front().find("0.006\t"));
    EXPECT_EQ(0u, lines.back().find("1.500\t"));
    telescope.SetSecondaryDiameter(0);
    EXPECT_EQ("0.006\tnan", FieldReport(context).front());
}

TEST_F(ReportTests, IlluminationFromTheCentreToTheEdgeOfTheDrawtube)
{
    telescope.SetSecondaryDiameter(50);
    telescope.SetFocuserDiameter(40);
    const ReportLines lines = IlluminationReport(context);
    ASSERT_EQ(41u, lines.size());
    EXPECT_EQ("0.00 mm\t0.000\xB0\t100.00 %\t0.000 mag\t93.75 %", lines[0]); // 1 - 1 / 16
    EXPECT_EQ(0u, lines[1].find("0.50 mm\t0.024\xB0\t100.00 %\t0.000 mag\t93.75 %"));
    EXPECT_EQ(0u, lines[40].find("20.00 mm\t0.955\xB0\t"));
    telescope.SetSecondaryDiameter(200);
    EXPECT_EQ(ReportLines{"no illumination"}, IlluminationReport(context));
}

TEST_F(ReportTests, IlluminationIsPrintedOnlyWhenNamed)
{
    const ReportPage* const page = FindReportPage("illumination");
    ASSERT_NE(nullptr, page);
    EXPECT_TRUE(page->only_when_named);
    for (const ReportPage& other : ReportPages()) {
        EXPECT_EQ(&other == page, other.only_when_named) << other.name;
    }
}

} // namespace

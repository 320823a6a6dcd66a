#include "report/Report.h"

#include "support/SampleScopes.h"

#include <gtest/gtest.h>

namespace {

TEST(ReportSummary, SetsHeadingsAloneAndMarksWarnings)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetWanted100PercentFow(30);
    record.SetTitle("two\nlines");
    const ReportLines lines = SummaryReport({record, 1.5, 20});
    ASSERT_EQ(25u, lines.size());
    EXPECT_EQ("two lines", lines[0]);
    EXPECT_EQ("Primary", lines[1]);
    EXPECT_EQ("Diameter:\t200.0 mm (7.87\")", lines[2]);
    EXPECT_EQ("Tube Front Diameter\t25.64 mm  (1.47\xB0)", lines[22]) << "never marked";
    EXPECT_EQ("Secondary\t20.00 mm (1.50\xB0)\t!", lines[23]);
    EXPECT_EQ("Focuser:\t32.00 mm  (1.83\xB0)", lines[24]);
}

TEST(ReportSummary, IsTheFirstPage)
{
    ASSERT_NE(nullptr, FindReportPage("summary"));
    EXPECT_EQ(&ReportPages()[0], FindReportPage("summary"));
}

} // namespace

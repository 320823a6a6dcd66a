#include "model/analysis/Cell.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

std::string Verdict(const CellFigures& figures, int language)
{
    return Utf8FromCp1252(CellVerdict(figures, language));
}

TEST(Cell, A200MmMirrorOf33MmReadsAsPublished)
{
    const CellFigures figures = ComputeCell(200, 33.33);
    EXPECT_EQ((std::vector<std::string>{"3 Point Support at the edge |   15.2",
                                        "3 Point Support at 70% of radius |   43.3",
                                        "9 Point Support |  388.6", "18 Point Support |  695.9"}),
              ShownList(CellRows(figures, kEnglish)));
    EXPECT_EQ((std::vector<std::string>{"3 Punkt Support am Rand |   15.2",
                                        "3 Punkt Support bei 70% des Radius |   43.3",
                                        "9 Punkt Support |  388.6", "18 Punkt Support |  695.9"}),
              ShownList(CellRows(figures, kGerman)));
    EXPECT_EQ("3 points of support at 70% Radius are OK,", Verdict(figures, kEnglish));
    EXPECT_EQ("Der Spiegel sollte auf einer 3 Punkt Spiegelzelle mit Punkten bei 70% des Radius gelagert "
              "werden.",
              Verdict(figures, kGerman));
}

TEST(Cell, ColumnsAreTypeAndWavefront)
{
    EXPECT_STREQ("Type", kCellColumns[0].title.In(kEnglish));
    EXPECT_STREQ("Typ", kCellColumns[0].title.In(kGerman));
    EXPECT_STREQ("lambda p/v", kCellColumns[1].title.In(kGerman));
    EXPECT_FALSE(kCellColumns[0].right_aligned);
    EXPECT_TRUE(kCellColumns[1].right_aligned);
}

TEST(Cell, ReadsTheRecordAsItIsNow)
{
    COrrevaData record;
    record.SetMirrorDiameter(200);
    record.SetMirrorThickness(33.33);
    EXPECT_NEAR(15.2, ComputeCell(record).three_at_edge, 0.05);
    record.SetMirrorThickness(50);
    EXPECT_DOUBLE_EQ(ComputeCell(200, 50).three_at_edge, ComputeCell(record).three_at_edge);
    EXPECT_EQ(4u, CellRows(ComputeCell(record), kEnglish).size());
    EXPECT_EQ(4u, CellRows(ComputeCell(record), kEnglish).size()) << "pressing twice adds nothing";
}

TEST(Cell, VeryThickBlanksGiveNegativeFigures)
{
    // The fits of the three-point cells change sign where t/d = sqrt(-b/a): 0.505 and 1.335.
    EXPECT_GT(ComputeCell(200, 0.50 * 200).three_at_70, 0);
    EXPECT_LT(ComputeCell(200, 0.51 * 200).three_at_70, 0);
    EXPECT_GT(ComputeCell(200, 1.33 * 200).three_at_edge, 0);
    EXPECT_LT(ComputeCell(200, 1.34 * 200).three_at_edge, 0);
    EXPECT_EQ("6 points of support are OK.", Verdict(ComputeCell(200, 1.4 * 200), kEnglish))
        << "negative figures fail, however stiff the blank";
}

TEST(Cell, TheVerdictNamesTheFirstCellOfLambda32OrBetter)
{
    struct Case {
        CellFigures figures;
        const char* english;
        const char* german;
    };
    const double nan = std::nan("");
    const Case kCases[] = {
        {{32, 32, 32, 32},
         "3 points of support at the edge are OK,",
         "Es reicht eine Spiegelzelle mit 3 Auflagepunkten am Rand."},
        {{31.999, 32, 32, 32},
         "3 points of support at 70% Radius are OK,",
         "Der Spiegel sollte auf einer 3 Punkt Spiegelzelle mit Punkten bei 70% des Radius gelagert werden."},
        {{-500, -500, 32, 10},
         "6 points of support are OK.",
         "Der Spiegel sollte auf einer 6 Punkt Spiegelzelle gelagert werden."},
        {{nan, nan, nan, 32},
         "Der Spiegel sollte auf einer 18 Punkt Spiegelzelle gelagert werden.",
         "Der Spiegel sollte auf einer 18 Punkt Spiegelzelle gelagert werden."},
        {{1, 2, 3, 31.9},
         "18 points of support are not enough!",
         "Der Spiegel sollte auf einer Spiegelzelle mit mehr als 18 Punkten gelagert werden."},
        {{nan, nan, nan, nan},
         "18 points of support are not enough!",
         "Der Spiegel sollte auf einer Spiegelzelle mit mehr als 18 Punkten gelagert werden."},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(c.english, Verdict(c.figures, kEnglish));
        EXPECT_EQ(c.german, Verdict(c.figures, kGerman));
    }
}

TEST(Cell, AMirrorWithoutThicknessOrDiameterIsPrintedAsItComesOut)
{
    EXPECT_EQ("   0.0", ShownValue(CellRows(ComputeCell(200, 0), kEnglish), "9 Point Support"))
        << "1 / infinity";
    EXPECT_EQ("   inf", ShownValue(CellRows(ComputeCell(0, 30), kEnglish), "9 Point Support"));
    EXPECT_EQ("18 points of support are not enough!", Verdict(ComputeCell(200, 0), kEnglish));
    EXPECT_EQ("18 points of support are not enough!", Verdict(ComputeCell(0, 0), kEnglish)) << "NaN";
}

} // namespace

#include "report/Report.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

#include <array>
#include <fstream>

namespace {

/// 200 mm f/6 with the measures that a builder would give, recalculated as the document does.
void MakeMirror200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.SetMirrorThickness(33.33);
    record.SetDensity(2.23);
    record.GetDistanceBack();
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

std::string ReportText(std::span<const ReportPage* const> pages, const ReportContext& context)
{
    std::string text;
    WriteReport(pages, context, [&](const std::string& line) {
        text += Utf8FromCp1252(line) + '\n';
        return true;
    });
    return text;
}

class Report : public testing::Test {
protected:
    Report() { MakeMirror200(m_record); }

    std::string Page(std::string_view name, int language = kEnglish, bool details = false)
    {
        ReportContext context{m_record};
        context.language = language;
        context.details = details;
        context.mirror_back_position = m_record.GetDistanceBack();
        context.eyepiece_path = ORREVA_SOURCE_DIR "/share/eyepiece.dat";
        const std::array<const ReportPage*, 1> pages{FindReportPage(name)};
        return pages[0] == nullptr ? "no such page" : ReportText(pages, context);
    }

    COrrevaData m_record;
};

TEST_F(Report, PrimaryPrintsTheListInUtf8)
{
    EXPECT_EQ("# primary\n"
              "Durchmesser\t200.0 mm (7.87 inch)\n"
              "Öffnungsverhältnis\tf/6.000\n"
              "Volumen des Rohlings\t1.047 dm^3\n"
              "Gewicht des Rohlings\t2.335 kg\n"
              "Sphärische Pfeiltiefe\t2.084 mm\n"
              "Parabolische Pfeiltiefe\t2.083 mm\n"
              "Maximale Vergrösserung (0,5mm Pupille)\t400.0x (3.0mm Okular)\n"
              "Minimale Vergrösserung (7mm Pupille)\t28.6x (42.0mm Okular)\n"
              "Auflösungsvermögen (Rayleigh)\t0.58\"\n"
              "Limiting Magnitude (1)\t15.39 mag\n"
              "Limiting Magnitude (2)\t14.01 mag\n"
              "Lichtsammelvermögen gegenüber dem bloßen menschlichen Auge\t816.33x\n",
              Page("primary", kGerman));
}

TEST_F(Report, PagesComputeFromWhatTheirFieldsShow)
{
    // The field shows 200.50, not 200.504.
    m_record.SetMirrorDiameter(200.504);
    m_record.SetMirrorThickness(1000 / 3.0);
    const std::string page = Page("primary");
    // 100.25 * 100.25 * pi * 333.33 in dm^3; the unrounded numbers would give 10.525.
    EXPECT_NE(std::string::npos, page.find("Volume of Blank\t10.524 dm^3\n")) << page;
}

TEST_F(Report, SecondaryEndsInItsVerdictAndKeepsTheSpacerRow)
{
    EXPECT_EQ("# secondary\n"
              "Wanted 100% FOV (Edberg)\t12.0 mm\n"
              "Wanted minimal Diameter of Minor Axis (Peters && Pike)\t41.5 mm\n"
              "\t\n"
              "Linear Obstruktion\t23.24 %\n"
              "Areal Obstruktion\t5.40 %\n"
              "Offset (Francis)\t1.94 mm\n"
              "100% FOV in mm (Edberg)\t17.96 mm\n"
              "100% FOV in Degrees (Edberg)\t0.86°\n"
              "Size of Secondary correct.\n",
              Page("secondary"));
    const std::string details = Page("secondary", kEnglish, true);
    EXPECT_NE(
        std::string::npos,
        details.find("Illumination at 42.5 mm FOV (2.03°)\t63.9% (-0.5 mag)\nSize of Secondary correct.\n"));
}

TEST_F(Report, TubePrintsTheListOfThePage)
{
    EXPECT_EQ("# tube\n"
              "Tube Length\t1195.33 mm (47.06\")\n"
              "Outer Diameter\t246.00 mm (9.69\")\n"
              "Inner Diameter\t236.00 mm (9.29\")\n"
              "Distace Promary to Secondary (Offset not considered)\t1012.00 mm (39.84\")\n"
              "Distace Focal Plane to optical Axis\t188.00 mm (7.40\")\n",
              Page("tube"));
}

TEST_F(Report, FocuserPrintsItsTypeAndSixFields)
{
    EXPECT_EQ("# focuser\n"
              "Focuser\n"
              "Inner Diameter (mm)\t50.8\n"
              "Hieght of retracted Focuser (mm)\t40.0\n"
              "Height of Focal Plane above retracted Focuser\t10.0\n"
              "Travel (mm)\t30.0\n"
              "Pipe Length\t40.0\n"
              "Travel (mm)\t100.0\n",
              Page("focuser"));
    m_record.SetFocuserType(-4);
    EXPECT_EQ("# focuser\n-4\n", Page("focuser").substr(0, 13));
}

TEST_F(Report, CellPrintsTheFourFiguresAndTheVerdict)
{
    EXPECT_EQ("# cell\n"
              "3 Point Support at the edge\t  15.2\n"
              "3 Point Support at 70% of radius\t  43.3\n"
              "9 Point Support\t 388.6\n"
              "18 Point Support\t 695.9\n"
              "3 points of support at 70% Radius are OK,\n",
              Page("cell"));
}

TEST_F(Report, EyepiecesStandInTheOrderOfTheDropDown)
{
    const std::string page = Page("eyepieces");
    EXPECT_EQ("# eyepieces\n"
              "Erfle 32\n"
              "Focal Length\t32.00°\n"
              "Apparent Filed of View\t65.00°\n"
              "Magnification\t37.50\n"
              "Exit Pupil\t5.33\n"
              "Actual Field of View\t1.73°\n"
              "Kellner 20\n",
              page.substr(0, page.find("Kellner 20\n") + 11));
    EXPECT_LT(page.find("Plössl 10\n"), page.find("Plössl 7.5\n"));
}

TEST_F(Report, WithoutAnEyepieceListThePageIsEmpty)
{
    ReportContext context{m_record};
    context.eyepiece_path = "/nowhere/eyepiece.dat";
    EyepiecesReport(context, [](const std::string&) {
        ADD_FAILURE() << "a line";
        return true;
    });
}

TEST_F(Report, EyepiecesEndWhenTheSinkIsFull)
{
    ReportContext context{m_record};
    context.eyepiece_path = ORREVA_SOURCE_DIR "/share/eyepiece.dat";
    ReportLines lines;
    EyepiecesReport(context, [&lines](const std::string& line) {
        lines.push_back(line);
        return lines.size() < 8;
    });
    EXPECT_EQ(8u, lines.size());
    EXPECT_EQ("Kellner 20", lines[6]);
}

TEST_F(Report, BalancePrintsNineRowsAndTwoSentences)
{
    for (const auto set :
         {&COrrevaData::SetWeightMirror, &COrrevaData::SetWeightCell, &COrrevaData::SetWeightBox,
          &COrrevaData::SetWeightTruss, &COrrevaData::SetWeightHat, &COrrevaData::SetWeightSecondary,
          &COrrevaData::SetWeightEyepiece, &COrrevaData::SetWeightFinder, &COrrevaData::SetWeightMisc}) {
        (m_record.*set)(1000);
    }
    for (const auto set :
         {&COrrevaData::SetBalanceMirror, &COrrevaData::SetBalanceCell, &COrrevaData::SetBalanceBox,
          &COrrevaData::SetBalanceTruss, &COrrevaData::SetBalanceHat, &COrrevaData::SetBalanceSecondary,
          &COrrevaData::SetBalanceEyepiece, &COrrevaData::SetBalanceFinder, &COrrevaData::SetBalanceMisc}) {
        (m_record.*set)(100);
    }
    const std::string page = Page("balance");
    EXPECT_EQ("# balance\nMirror\t1.000 kg\t100.0 mm\t50.0 mm hinter der Spiegeloberfläche\n",
              page.substr(0, page.find("Mirror Cell")));
    EXPECT_NE(std::string::npos,
              page.find("\nMiscellaneous\t1.000 kg\t100.0 mm\t100.0 mm vor dem Tubusende\n"
                        "Das Gesammtgewicht des Teleskopes beträgt ca. 9.0 kg.\n"
                        "The Center of Gravity is located 100.0 mm in Front of the Tube Rear End\n"));
}

TEST_F(Report, PagesComeInTheOrderAskedForAndAsOftenAsAsked)
{
    ReportContext context{m_record};
    const ReportPage* cell = FindReportPage("cell");
    const ReportPage* tube = FindReportPage("tube");
    ASSERT_NE(nullptr, cell);
    ASSERT_NE(nullptr, tube);
    const std::array<const ReportPage*, 3> pages{tube, cell, tube};
    const std::string text = ReportText(pages, context);
    EXPECT_EQ(0u, text.find("# tube\n"));
    EXPECT_LT(text.find("# cell\n"), text.rfind("# tube\n"));
    EXPECT_EQ(nullptr, FindReportPage("Tube"));
    EXPECT_EQ(nullptr, FindReportPage(""));
}

TEST(ReportLine, LineBreaksAndTabsInACellBecomeBlanks)
{
    EXPECT_EQ("a b c d e\tf", ReportLine({"a\tb\nc\r\nd\re", "f"}));
    EXPECT_EQ("end ", ReportLine({"end\r"}));
    EXPECT_EQ("\t", ReportLine({"", ""}));
    EXPECT_EQ("", ReportLine({""}));
}

} // namespace

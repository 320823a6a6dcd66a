#include "model/analysis/SidePanelRows.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> Shown(const std::vector<SidePanelRow>& rows)
{
    std::vector<std::string> lines;
    for (const SidePanelRow& row : rows) {
        lines.push_back((row.line_on_top ? "-- " : "") + Utf8FromCp1252(row.label + " | " + row.value));
    }
    return lines;
}

void Make200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

TEST(SidePanelRows, TubePanelListsTheTubeFromTheTop)
{
    COrrevaData record;
    Make200(record);
    EXPECT_EQ((std::vector<std::string>{
                  "Lenght: | 1195.3 mm (47.06\")",
                  "-- Inner Diameter: | 236.0 mm (9.29\")",
                  "-- Outer Diameter: | 246.0 mm (9.69\")",
                  "-- Tube Thickness: | 5.0 mm",
                  "-- Distance Tube Rear End to Primary Surface: | 50.0 mm",
                  "-- Distance Tube Front End to Focuser: | 100.0 mm",
                  "-- Distance Focal Plane to Tube: | 65.0 mm",
                  "-- Distance Focal optical Axis: | 188.0 mm",
              }),
              Shown(TubePanelRows(record, kEnglish)));
    EXPECT_EQ((std::vector<std::string>{
                  "Länge: | 1195.3 mm (47.06\")",
                  "-- Innendurchmesser: | 236.0 mm (9.29\")",
                  "-- Aussendurchmesser: | 246.0 mm (9.69\")",
                  "-- Wanddicke: | 5.0 mm",
                  "-- Abstand hinteres Tubusende - Oberfläche des Hauptspiegels: | 50.0 mm",
                  "-- Abstand vorderes Tubusende - Focuser: | 100.0 mm",
                  "-- Brennebene über Tubus: | 65.0 mm",
                  "-- Brennebene über optischer Achse: | 188.0 mm",
              }),
              Shown(TubePanelRows(record, kGerman)));
}

TEST(SidePanelRows, FieldsNeverSetShowTheirDefaults)
{
    COrrevaData record;
    record.GetFocalPlaneHeight();
    const std::vector<std::string> rows = Shown(TubePanelRows(record, kEnglish));
    EXPECT_EQ("-- Inner Diameter: | 286.0 mm (11.26\")", rows[1]);
    EXPECT_EQ("-- Tube Thickness: | 6.2 mm", rows[3]);
    EXPECT_DOUBLE_EQ(62.5, record.distance_back);
}

TEST(SidePanelRows, MirrorPanelIsGermanInEveryLanguage)
{
    COrrevaData record;
    EXPECT_EQ((std::vector<std::string>{"Spiegeldurchmesser: | 250.0 mm (9.84\")",
                                        "Brennweite: | 1500.0 mm (59.06\")"}),
              Shown(MirrorPanelRows(record)));
}

TEST(SidePanelRows, EmptiedAndOddFieldsArePrintedAsTheyComeOut)
{
    COrrevaData record;
    record.SetInsideDiameterHat(0);
    record.SetThicknessHat(-5);
    record.SetDistanceBack(-1e300);
    const std::vector<SidePanelRow> rows = TubePanelRows(record, kEnglish);
    EXPECT_EQ("0.0 mm (0.00\")", rows[1].value);
    EXPECT_EQ("-10.0 mm (-0.39\")", rows[2].value);
    EXPECT_EQ(307u, rows[4].value.size()) << "sign, 301 digits, one decimal and ' mm'";
}

} // namespace

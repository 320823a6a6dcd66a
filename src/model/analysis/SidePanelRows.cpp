#include "model/analysis/SidePanelRows.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "model/rows/RecordValue.h"

namespace {

std::string Millimetres(double mm) { return FormatText("%0.1f mm", mm); }

std::string MillimetresAndInches(double mm) { return FormatText("%0.1f mm (%0.2f\")", mm, mm / kInch); }

double OuterDiameter(COrrevaData& record)
{
    const double inside = record.GetInsideDiameterHat();
    return inside + 2 * record.GetThicknessHat();
}

struct TubePanelRow {
    Bilingual label;
    double (*value)(COrrevaData& record);
    std::string (*text)(double mm);
};

// Every row but the first has a line on top.
constexpr TubePanelRow kTubeRows[] = {
    {{"Lenght:", "Länge:"_cp1252}, RecordValue<&COrrevaData::GetTubeLength>, MillimetresAndInches},
    {{"Inner Diameter:", "Innendurchmesser:"},
     RecordValue<&COrrevaData::GetInsideDiameterHat>,
     MillimetresAndInches},
    {{"Outer Diameter:", "Aussendurchmesser:"}, OuterDiameter, MillimetresAndInches},
    {{"Tube Thickness:", "Wanddicke:"}, RecordValue<&COrrevaData::GetThicknessHat>, Millimetres},
    {{"Distance Tube Rear End to Primary Surface:",
      "Abstand hinteres Tubusende - Oberfläche des Hauptspiegels:"_cp1252},
     RecordValue<&COrrevaData::GetDistanceBack>,
     Millimetres},
    {{"Distance Tube Front End to Focuser:", "Abstand vorderes Tubusende - Focuser:"},
     RecordValue<&COrrevaData::GetDistanceFront>,
     Millimetres},
    {{"Distance Focal Plane to Tube:", "Brennebene über Tubus:"_cp1252},
     RecordValue<&COrrevaData::GetFocuserTotalHeight>,
     Millimetres},
    {{"Distance Focal optical Axis:", "Brennebene über optischer Achse:"_cp1252},
     RecordValue<&COrrevaData::GetFocalPlaneHeight>,
     Millimetres},
};

} // namespace

std::vector<SidePanelRow> TubePanelRows(COrrevaData& record, int language)
{
    std::vector<SidePanelRow> rows;
    for (const TubePanelRow& row : kTubeRows) {
        rows.push_back({row.label.In(language), row.text(row.value(record)), !rows.empty()});
    }
    return rows;
}

std::vector<SidePanelRow> MirrorPanelRows(COrrevaData& record)
{
    std::vector<SidePanelRow> rows;
    rows.push_back({"Spiegeldurchmesser:", MillimetresAndInches(record.GetMirrorDiameter()), false});
    rows.push_back({"Brennweite:", MillimetresAndInches(record.GetFocalLength()), false});
    return rows;
}

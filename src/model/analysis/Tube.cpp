#include "model/analysis/Tube.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"
#include "model/rows/RowMaker.h"
#include "model/rows/WantedField.h"

TubeTexts ReadTube(COrrevaData& record)
{
    TubeTexts texts;
    texts.wanted_field = ShowNumber(record, kWantedField);
    texts.wanted_degrees = WantedFieldDegrees(record, texts.wanted_field);
    texts.inside_diameter = ShowNumber(record, kTubeInsideDiameter);
    texts.thickness = ShowNumber(record, kTubeThickness);
    texts.distance_back = ShowNumber(record, kTubeDistanceBack);
    texts.distance_front = ShowNumber(record, kTubeDistanceFront);
    return texts;
}

void StoreTube(COrrevaData& record, const TubeTexts& texts)
{
    StoreNumber(record, kTubeThickness, texts.thickness);
    StoreNumber(record, kTubeInsideDiameter, texts.inside_diameter);
    StoreNumber(record, kTubeDistanceBack, texts.distance_back);
    StoreNumber(record, kTubeDistanceFront, texts.distance_front);
    StoreNumber(record, kWantedField, texts.wanted_field);
}

ListRows TubeRows(COrrevaData& record, const TubeTexts& texts, int language)
{
    const double t = TextToDouble(texts.thickness.c_str());
    const double id = TextToDouble(texts.inside_diameter.c_str());
    const double a = TextToDouble(texts.distance_back.c_str());
    const double b = TextToDouble(texts.distance_front.c_str());
    const double T = record.GetFocuserTotalHeight();
    const double F = record.GetFocalLength();
    const double s = record.GetMirrorThickness();
    const double z = T + t + id / 2;

    const auto text = [](double mm) { return FormatText("%0.2f mm (%0.2f\")", mm, mm / kInch); };
    RowMaker rows(language, false);
    rows.Add({"Distace Focal Plane to optical Axis", "Brennebene über Optischer Achse"_cp1252}, text(z));
    rows.Add({"Distace Promary to Secondary (Offset not considered)",
              "Abstand Hauptspiegel / Fangspiegel (Offset unberücksichtigt)"_cp1252},
             text(F - z));
    rows.Add({"Inner Diameter", "Innendurchmesser"}, text(id));
    rows.Add({"Outer Diameter", "Aussendurchmesser"}, text(2 * t + id));
    rows.Add({"Tube Length", "Tubuslänge"_cp1252}, text(F - id / 2 - t - T + (s + (a + b))));
    return rows.Take();
}

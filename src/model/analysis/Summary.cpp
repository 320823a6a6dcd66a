#include "model/analysis/Summary.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "model/record/Formulas.h"
#include "model/record/OrrevaData.h"
#include "model/rows/RecordValue.h"

namespace {

constexpr const char* kMmAndInches = "%0.1f mm (%0.2f\")";
constexpr const char* kMm = "%0.1f mm";
constexpr const char* kMmAndAngle = "%0.2f mm (%0.2f°)"_cp1252;
constexpr const char* kMmAndAngleApart = "%0.2f mm  (%0.2f°)"_cp1252;

/// A heading, or a number of the record: by `format`, which takes the value and then the value in inches.
struct Line {
    Bilingual label;
    const char* format = nullptr;
    double (*value)(COrrevaData&) = nullptr; ///< null for a heading
};

using Data = COrrevaData;
constexpr Line kLines[] = {
    {{"Primary", "Hauptspiegel"}},
    {{"Diameter:", "Durchmesser:"}, kMmAndInches, RecordValue<&Data::GetMirrorDiameter>},
    {{"Focal Length:", "Brennweite:"}, kMmAndInches, RecordValue<&Data::GetFocalLength>},
    {{"Focal Ratio:", "Öffnungsverhältnis:"_cp1252}, "f/%0.2f", FocalRatio},
    {{"Thickness:", "Dicke:"}, kMmAndInches, RecordValue<&Data::GetMirrorThickness>},
    {{"Secondary", "Fangspiegel"}},
    {{"Minor Axis Diameter:", "Durchmesser der kleinen Achse:"},
     kMmAndInches,
     RecordValue<&Data::GetSecondaryDiameter>},
    {{"Offset:", "Offset:"}, "%0.2f mm", RecordValue<&Data::GetSecondaryOffset>},
    {{"Tube", "Tubus"}},
    {{"Length:", "Länge:"_cp1252}, kMmAndInches, RecordValue<&Data::GetTubeLength>},
    {{"Diameter:", "Durchmesser:"}, kMmAndInches, RecordValue<&Data::GetInsideDiameterHat>},
    {{"Tube Thickness:", "Wanddicke:"}, kMm, RecordValue<&Data::GetThicknessHat>},
    {{"Focuser", "Focuser"}},
    {{"Diameter:", "Durchmesser:"}, kMmAndInches, RecordValue<&Data::GetFocuserDiameter>},
    {{"Height:", "Höhe:"_cp1252}, kMm, RecordValue<&Data::GetFocuserHeight>},
    {{"Extra Height:", "Extra Höhe für Zubehör:"_cp1252}, kMm, RecordValue<&Data::GetFocuserSpare>},
    {{"Dimensions:", "Maße:"_cp1252}},
    {{"Focal Plane to Tube:", "Brennebene über Tubus:"_cp1252},
     kMm,
     RecordValue<&Data::GetFocuserTotalHeight>},
    {{"Focal Plane to  optical Axis:", "Brennebene über optischer Achse:"_cp1252},
     kMm,
     RecordValue<&Data::GetFocalPlaneHeight>},
    {{"Primary to Center of Focuser:", "Hauptspiegel hinter OAZ-Centruem:"},
     kMm,
     RecordValue<&Data::GetPrimaryToFocuser>},
    {{"100% FOV limiting Factors:", "Begrenzende Faktoren des 100% FOV:"}},
};

constexpr Bilingual kTubeFront{"Tube Front Diameter", "Tubusöffnung:"_cp1252};
constexpr Bilingual kSecondary{"Secondary", "Fangspiegel:"};
constexpr Bilingual kFocuser{"Focuser:", "Focuser:"};

SummaryRow MakeRow(const Line& line, COrrevaData& record, int language)
{
    if (line.value == nullptr) {
        return {SummaryRow::kHeading, line.label.In(language), "", false};
    }
    const double value = line.value(record);
    return {SummaryRow::kValue, line.label.In(language), FiniteText(line.format, {value, value / kInch}),
            false};
}

SummaryRow LimitRow(const char* label, const char* format, const FullField& limit, bool warning)
{
    return {SummaryRow::kValue, label, FiniteText(format, {limit.diameter, limit.angle}), warning};
}

} // namespace

std::string SpokenValue(const SummaryRow& row, int language)
{
    constexpr Bilingual kBelow{", less than wanted", ", weniger als gewünscht"_cp1252};
    return row.warning ? row.value + kBelow.In(language) : row.value;
}

double FocalRatio(COrrevaData& record)
{
    const double f = record.GetFocalLength();
    return f / record.GetMirrorDiameter();
}

double TubeFieldLimit(COrrevaData& record)
{
    const double f = record.GetFocalLength();
    const double D = record.GetMirrorDiameter();
    const double I = record.GetInsideDiameterHat();
    const double T = record.GetThicknessHat();
    const double X = record.GetFocalPlaneHeight();
    return f * (I - D) / (f - I / 2 - T - X + record.GetDistanceFront());
}

double FocuserFieldLimit(COrrevaData& record)
{
    const double Df = record.GetFocuserDiameter();
    const double f = record.GetFocalLength();
    const double H = record.GetFocuserTotalHeight();
    const double T = record.GetThicknessHat();
    const double D = record.GetMirrorDiameter();
    return Df - (f - (f - H - T)) * (D / f);
}

std::vector<SummaryRow> SummaryRows(COrrevaData& record, const FullField& field, int language)
{
    std::vector<SummaryRow> rows;
    rows.push_back({SummaryRow::kTitle, record.GetTitle().GetText(), "", false});
    for (const Line& line : kLines) {
        rows.push_back(MakeRow(line, record, language));
    }
    const double f = record.GetFocalLength();
    const double wanted = record.GetWanted100PercentFow();
    const double tube = TubeFieldLimit(record);
    const double focuser = FocuserFieldLimit(record);
    rows.push_back(LimitRow(kTubeFront.In(language), kMmAndAngleApart, {tube, FieldAngle(f, tube)}, false));
    rows.push_back(LimitRow(kSecondary.In(language), kMmAndAngle, field, field.diameter < wanted));
    rows.push_back(LimitRow(kFocuser.In(language), kMmAndAngleApart, {focuser, FieldAngle(f, focuser)},
                            focuser < wanted));
    return rows;
}

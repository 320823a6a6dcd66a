#include "model/analysis/Values.h"

#include "lib/text/CodePage.h"
#include "model/analysis/Balance.h"
#include "model/analysis/Cell.h"
#include "model/analysis/Primary.h"
#include "model/analysis/SecondaryFormulas.h"
#include "model/analysis/Summary.h"
#include "model/optics/CentreMarks.h"
#include "model/optics/Illumination.h"
#include "model/optics/StarDistance.h"

#include <algorithm>

namespace {

using Data = COrrevaData;

template <double (Data::*getter)()>
double Get(const DesignState& design)
{
    return (design.record.*getter)();
}

template <double (*function)(Data&)>
double Of(const DesignState& design)
{
    return function(design.record);
}

template <double (*function)(double D)>
double OfDiameter(const DesignState& design)
{
    return function(design.record.GetMirrorDiameter());
}

template <double (*function)(double D, double m)>
double OfMirrors(const DesignState& design)
{
    const double D = design.record.GetMirrorDiameter();
    return function(D, design.record.GetSecondaryDiameter());
}

template <double CellFigures::*figure>
double OfCell(const DesignState& design)
{
    return ComputeCell(design.record).*figure;
}

template <double CentreMarks::*mark>
double OfMarks(const DesignState& design)
{
    return FindCentreMarks(design.record).*mark;
}

double Distance(const DesignState& design)
{
    const double precision = design.record.GetStarPrecision();
    const double D = design.record.GetMirrorDiameter();
    return StarDistanceByError(precision, D, design.record.GetFocalLength());
}

double FieldAt75Percent(const DesignState& design)
{
    return FieldDiameterAtShare(ReadIlluminationStops(design.record), 0.75);
}

/// A number that is not in the design file.
struct ComputedValue {
    const char* name;
    const char* unit;
    const char* concern; ///< see DesignValue
    double (*compute)(const DesignState&);
    Bilingual label;
};

constexpr ComputedValue kComputed[] = {
    {"focal_ratio", "1", "mirror/diameter", Of<FocalRatio>, {"Focal ratio", "Öffnungsverhältnis"_cp1252}},
    {"focuser_total_height",
     "mm",
     "focuser/height",
     Get<&Data::GetFocuserTotalHeight>,
     {"Focal plane above the tube", "Brennebene über dem Tubus"_cp1252}},
    {"focal_plane_height",
     "mm",
     "tube/inside_diameter_hat",
     Get<&Data::GetFocalPlaneHeight>,
     {"Focal plane above the optical axis", "Brennebene über der optischen Achse"_cp1252}},
    {"secondary_to_focus",
     "mm",
     "secondary/diameter",
     Get<&Data::GetSecondaryToFocus>,
     {"Secondary to focal point", "Fangspiegel bis Brennpunkt"}},
    {"primary_to_focuser",
     "mm",
     "mirror/focal_length",
     Get<&Data::GetPrimaryToFocuser>,
     {"Primary to focuser", "Hauptspiegel bis Okularauszug"}},
    {"tube_length",
     "mm",
     "mirror/focal_length",
     Get<&Data::GetTubeLength>,
     {"Length of the tube", "Länge des Tubus"_cp1252}},
    {"full_field",
     "mm",
     "secondary/diameter",
     [](const DesignState& design) { return design.field.diameter; },
     {"Fully lit field", "Voll ausgeleuchtetes Feld"}},
    {"full_field_angle",
     "deg",
     "secondary/diameter",
     [](const DesignState& design) { return design.field.angle; },
     {"Fully lit field, angle", "Voll ausgeleuchtetes Feld, Winkel"}},
    {"tube_field_limit",
     "mm",
     "tube/inside_diameter_hat",
     Of<TubeFieldLimit>,
     {"Field that the tube passes", "Feld, das der Tubus durchlässt"_cp1252}},
    {"focuser_field_limit",
     "mm",
     "focuser/diameter",
     Of<FocuserFieldLimit>,
     {"Field that the focuser passes", "Feld, das der Okularauszug durchlässt"_cp1252}},
    {"linear_obstruction",
     "%",
     "secondary/diameter",
     OfMirrors<LinearObstruction>,
     {"Linear obstruction", "Lineare Obstruktion"}},
    {"areal_obstruction",
     "%",
     "secondary/diameter",
     OfMirrors<ArealObstruction>,
     {"Obstruction by area", "Flächenbezogene Obstruktion"_cp1252}},
    {"resolution_dawes",
     "arcsec",
     "mirror/diameter",
     OfDiameter<ResolutionDawes>,
     {"Resolution (Dawes)", "Auflösung (Dawes)"_cp1252}},
    {"limiting_magnitude_1",
     "mag",
     "mirror/diameter",
     OfDiameter<LimitingMagnitude1>,
     {"Limiting magnitude (1)", "Grenzgröße (1)"_cp1252}},
    {"limiting_magnitude_2",
     "mag",
     "mirror/diameter",
     OfDiameter<LimitingMagnitude2>,
     {"Limiting magnitude (2)", "Grenzgröße (2)"_cp1252}},
    {"light_gathering",
     "1",
     "mirror/diameter",
     OfDiameter<LightGathering>,
     {"Light gathering power", "Lichtsammelvermögen"_cp1252}},
    {"cell_three_at_edge",
     "1",
     "mirror/thickness",
     OfCell<&CellFigures::three_at_edge>,
     {"Cell of 3 points at the edge", "Zelle mit 3 Punkten am Rand"}},
    {"cell_three_at_70",
     "1",
     "mirror/thickness",
     OfCell<&CellFigures::three_at_70>,
     {"Cell of 3 points at 70 %", "Zelle mit 3 Punkten bei 70 %"}},
    {"cell_nine",
     "1",
     "mirror/thickness",
     OfCell<&CellFigures::nine>,
     {"Cell of 9 points", "Zelle mit 9 Punkten"}},
    {"cell_eighteen",
     "1",
     "mirror/thickness",
     OfCell<&CellFigures::eighteen>,
     {"Cell of 18 points", "Zelle mit 18 Punkten"}},
    {"total_weight", "g", "weight/mirror", Of<TotalWeight>, {"Total weight", "Gesamtgewicht"}},
    {"centre_of_gravity", "mm", "balance/mirror", Of<CenterOfGravity>, {"Centre of gravity", "Schwerpunkt"}},
    {"centre_mark_primary",
     "mm",
     "secondary/diameter",
     OfMarks<&CentreMarks::primary>,
     {"Largest mark on the primary", "Größte Marke auf dem Hauptspiegel"_cp1252}},
    {"centre_mark_secondary",
     "mm",
     "secondary/diameter",
     OfMarks<&CentreMarks::secondary>,
     {"Largest mark on the secondary", "Größte Marke auf dem Fangspiegel"_cp1252}},
    {"star_distance",
     "m",
     "tests/artificial_star/precision",
     Distance,
     {"Distance of the artificial star", "Abstand des künstlichen Sterns"_cp1252}},
    {"field_at_75_percent",
     "mm",
     "secondary/diameter",
     FieldAt75Percent,
     {"Field with 75 % of the light at its edge", "Feld mit 75 % des Lichts am Rand"}},
};

bool IsNumber(const RecordField& field)
{
    return std::holds_alternative<RealField>(field.field) || std::holds_alternative<TypeField>(field.field);
}

std::vector<DesignValue> MakeValues()
{
    std::vector<DesignValue> values;
    for (const RecordField& field : RecordFields()) {
        if (IsNumber(field)) {
            values.push_back({field.key, field.unit, field.label, field.key, &field, nullptr});
        }
    }
    for (const ComputedValue& value : kComputed) {
        values.push_back({value.name, value.unit, value.label, value.concern, nullptr, value.compute});
    }
    return values;
}

double ReadField(COrrevaData& record, const RecordField& field)
{
    if (const auto* const real = std::get_if<RealField>(&field.field)) {
        return (record.*real->get)();
    }
    return (record.*std::get<TypeField>(field.field).get)();
}

} // namespace

std::span<const DesignValue> DesignValues()
{
    static const std::vector<DesignValue> kValues = MakeValues();
    return kValues;
}

const DesignValue* FindDesignValue(std::string_view name)
{
    const auto values = DesignValues();
    const auto found =
        std::ranges::find_if(values, [name](const DesignValue& value) { return value.name == name; });
    return found == values.end() ? nullptr : &*found;
}

double DesignValue::Read(const DesignState& design) const
{
    return field != nullptr ? ReadField(design.record, *field) : compute(design);
}

void SettleDesign(COrrevaData& record)
{
    const double weight = record.weight_mirror;
    if (!IsUnset(weight)) {
        record.GetDensity();
        record.SetWeightMirror(weight);
    }
    for (const DesignValue& value : DesignValues()) {
        if (value.field == nullptr) {
            break;
        }
        ReadField(record, *value.field);
    }
}

DesignCopy::DesignCopy(const TelescopeFields& fields)
{
    static_cast<TelescopeFields&>(m_record) = fields;
    Recalculate(m_record);
    m_field = Recalculate(m_record).field;
}

std::vector<double> ReadDesignValues(const DesignState& design)
{
    SettleDesign(design.record);
    std::vector<double> numbers;
    for (const DesignValue& value : DesignValues()) {
        numbers.push_back(value.Read(design));
    }
    return numbers;
}

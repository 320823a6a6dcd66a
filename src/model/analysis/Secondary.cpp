#include "model/analysis/Secondary.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"
#include "model/analysis/IlluminationTable.h"
#include "model/analysis/SecondaryFormulas.h"
#include "model/analysis/Values.h"
#include "model/rows/RowMaker.h"
#include "model/rows/WantedField.h"

#include <utility>

SecondaryTexts ReadSecondary(COrrevaData& record)
{
    SecondaryTexts texts;
    texts.wanted_field = ShowNumber(record, kWantedField);
    texts.minor_axis = ShowNumber(record, kSecondaryMinorAxis);
    texts.wanted_degrees = WantedFieldDegrees(record, texts.wanted_field);
    return texts;
}

void StoreSecondary(COrrevaData& record, const SecondaryTexts& texts)
{
    StoreNumber(record, kSecondaryMinorAxis, texts.minor_axis);
    StoreNumber(record, kWantedField, texts.wanted_field);
}

IlluminationStops StopsOf(const COrrevaData& record, const SecondaryTexts& texts)
{
    DesignCopy design(record);
    IlluminationStops stops = ReadIlluminationStops(design.State().record);
    stops.m = TextToDouble(texts.minor_axis.c_str());
    return stops;
}

namespace {

/// The primary and the light path of the record, with the typed minor axis.
struct Optics {
    double D;
    double F;
    double L;
    double m;
};

void AddFullField(RowMaker& rows, const Optics& o)
{
    const auto add_mm = [&](const Bilingual& label, double value, bool detail) {
        const std::string text = FormatText("%0.2f mm", value);
        detail ? rows.AddDetail(label, text) : rows.Add(label, text);
    };
    constexpr const char* kDegrees = "%0.2f°"_cp1252;
    rows.Add({"100% FOV in Degrees (Edberg)", "100% FOV in Grad (Edberg)"},
             FormatText(kDegrees, FullFieldAngle(o.D, o.F, o.m, o.L)));
    rows.AddDetail({"100% FOV in Grad (nach Berry)", "100% FOV in Grad (nach Berry)"},
                   FormatText(kDegrees, FullFieldMinutesBerry(o.D, o.F, o.m, o.L) / 60));
    add_mm({"100% FOV in mm (Edberg)", "100% FOV in mm (Edberg)"}, FullFieldDiameter(o.D, o.F, o.m, o.L),
           false);
    add_mm({"100% FOV in mm (Berry)", "100% FOV in mm (Berry)"}, FullFieldBerry(o.D, o.F, o.m, o.L), true);
    add_mm({"100% FOV in mm (Peters && Pike)", "100% FOV in mm (Peters && Pike)"},
           FullFieldPetersPike(o.D, o.F, o.m, o.L), true);
    add_mm({"Offset (Varnholt)", "Offset (Varnholt)"}, OffsetVarnholt(o.D, o.F, o.m, o.L), true);
    add_mm({"Offset (Dakin)", "Offset (Dakin)"}, OffsetDakin(o.D, o.F, o.m, o.L), true);
    add_mm({"Offset (Masson)", "Offset (Masson)"}, OffsetMasson(o.D, o.F, o.m, o.L), true);
    add_mm({"Offset (Francis)", "Offset (Francis)"}, OffsetFrancis(o.D, o.F, o.m), false);
}

void AddObstruction(RowMaker& rows, const Optics& o)
{
    rows.Add({"Areal Obstruktion", "Flächenbezogene Obstruktion"_cp1252},
             FormatText("%0.2f %%", ArealObstruction(o.D, o.m)));
    rows.Add({"Linear Obstruktion", "Lineare Obstruktion"},
             FormatText("%0.2f %%", LinearObstruction(o.D, o.m)));
}

void AddMinorAxis(RowMaker& rows, const Optics& o, double degrees)
{
    const double field = WantedFieldEdberg(o.F, degrees);
    const auto text = [](double value) { return FormatText("%0.1f mm", value); };
    rows.AddDetail(
        {"Minimal Diameter of Minor Axis for a 100% illuminated Field of 0 mm",
         "Minimalster Durchmesser der kleinen Achse für ein 100% ausgeleuchtetes Feld von 0 mm"_cp1252},
        text(MinorAxisForCentre(o.D, o.F, o.L)));
    rows.AddDetail({"Wanted minimal Diameter of Minor Axis (Dakin)",
                    "Gewünschter minimaler Durchmesser der kleinen Achse (Dakin)"_cp1252},
                   text(MinorAxisDakin(o.D, o.F, o.L, field)));
    rows.AddDetail({"Wanted minimal Diameter of Minor Axis (Edberg)",
                    "Gewünschter minimaler Durchmesser der kleinen Achse (Edberg)"_cp1252},
                   text(MinorAxisEdberg(o.D, o.F, o.L, field)));
    rows.AddDetail({"Wanted minimal Diameter of Minor Axis (Berry)",
                    "Gewünschter minimaler Durchmesser der kleinen Achse (Berry)"_cp1252},
                   text(MinorAxisBerry(o.D, o.F, o.L, degrees)));
    rows.Add({"Wanted minimal Diameter of Minor Axis (Peters && Pike)",
              "Gewünschter minimaler Durchmesser der kleinen Achse (Peters && Pike)"_cp1252},
             text(MinorAxisPetersPike(o.D, o.F, o.L, field)));
    rows.Add({"Wanted 100% FOV (Edberg)", "Gewünschtes 100% FOV (Edberg)"_cp1252}, text(field));
    rows.AddDetail({"Wanted 100% FOV (Berry)", "Gewünschtes 100% FOV (Berry)"_cp1252},
                   text(WantedFieldBerry(o.F, degrees)));
}

/// `wanted` is the typed field in mm, compared as it is.
std::string Verdict(const Optics& o, double wanted, int language)
{
    static constexpr Bilingual kNothingLit{
        "Secondary to mall..",
        "Der Fangspiegel ist zu klein, um überhaupt ein ausgeleuchtetes Bildfeld von 100% zu erzeugen."_cp1252};
    static constexpr Bilingual kTooSmall{
        "Secondary to mall..",
        "Der Fangspiegel ist zu klein um das gewümschte Bildfeld voll auszuleuchten."_cp1252};
    static constexpr Bilingual kObstructs{"Linear Obstruction of more than 50%.",
                                          "Die lineare Obstruktion beträgt mehr als 50%."_cp1252};
    static constexpr Bilingual kCorrect{"Size of Secondary correct.",
                                        "Der Fangspiegel ist ausreichend dimensioniert."};
    const double lit = FullFieldDiameter(o.D, o.F, o.m, o.L);
    if (lit <= 0) {
        return kNothingLit.In(language);
    }
    if (wanted > lit) {
        return kTooSmall.In(language);
    }
    if (LinearObstruction(o.D, o.m) > 50) {
        return kObstructs.In(language);
    }
    return kCorrect.In(language);
}

} // namespace

SecondaryResult AnalyseSecondary(COrrevaData& record, const SecondaryTexts& texts, bool details, int language)
{
    Optics optics{};
    optics.D = record.GetMirrorDiameter();
    optics.F = record.GetFocalLength();
    optics.L = record.GetFocalPlaneHeight();
    optics.m = TextToDouble(texts.minor_axis.c_str());

    SecondaryResult result;
    if (details) {
        const double opening = record.GetFocuserDiameter();
        result.rows =
            IlluminationRows(ComputeIllumination(optics.D, optics.F, optics.L, optics.m, opening), language);
    }
    RowMaker rows(language, details);
    AddFullField(rows, optics);
    AddObstruction(rows, optics);
    rows.Add({"", ""}, "");
    AddMinorAxis(rows, optics, TextToDouble(texts.wanted_degrees.c_str()));
    for (ListRow& row : rows.Take()) {
        result.rows.push_back(std::move(row));
    }
    result.verdict = Verdict(optics, TextToDouble(texts.wanted_field.c_str()), language);
    return result;
}

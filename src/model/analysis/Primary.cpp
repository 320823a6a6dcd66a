#include "model/analysis/Primary.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"
#include "model/rows/RowMaker.h"

#include <cmath>

namespace {

/// pi times 3.5 squared, with the pi of the formulas: the pupil of the naked eye, mm2.
constexpr double kEyePupilArea = 38.484510005375;

struct ScaledUnit {
    double at_least;
    const char* format;
};

constexpr ScaledUnit kMassUnits[] = {{1000000, "%0.3f t"}, {1000, "%0.3f kg"}};
constexpr ScaledUnit kVolumeUnits[] = {
    {1000000000, "%0.3f m^3"}, {1000000, "%0.3f dm^3"}, {1000, "%0.3f cm^3"}};

/// In the first unit that the value reaches, else as it is.
std::string Scaled(double value, std::span<const ScaledUnit> units, const char* format)
{
    for (const ScaledUnit& unit : units) {
        if (value >= unit.at_least) {
            return FormatText(unit.format, value / unit.at_least);
        }
    }
    return FormatText(format, value);
}

/// The magnification that gives an exit pupil of `pupil` mm, and the eyepiece for it.
std::string MagnificationText(double D, double F, double pupil)
{
    const double magnification = D / pupil;
    const double eyepiece = F / magnification;
    return FormatText("%0.1fx (%0.1fmm Okular)", magnification, eyepiece);
}

} // namespace

PrimaryTexts ReadPrimary(COrrevaData& record)
{
    PrimaryTexts texts;
    texts.focal_length = ShowNumber(record, kPrimaryFocalLength);
    texts.diameter = ShowNumber(record, kPrimaryDiameter);
    texts.thickness = ShowNumber(record, kPrimaryThickness);
    texts.density = ShowNumber(record, kPrimaryDensity);
    return texts;
}

void StorePrimary(COrrevaData& record, const PrimaryTexts& texts)
{
    StoreNumber(record, kPrimaryFocalLength, texts.focal_length);
    StoreNumber(record, kPrimaryDiameter, texts.diameter);
    StoreNumber(record, kPrimaryThickness, texts.thickness);
    StoreNumber(record, kPrimaryDensity, texts.density);
}

std::string UsualThickness(const std::string& diameter)
{
    return FormatText("%0.2f", ThicknessForDiameter(TextToDouble(diameter.c_str())));
}

double LightGathering(double D) { return kPi * (D / 2) * (D / 2) / kEyePupilArea; }

double LimitingMagnitude1(double D) { return 2.5 * std::log10(D * D * 0.7 / 49) + 8.5; }

double LimitingMagnitude2(double D) { return 5 * std::log10(D / 10) + 7.5; }

double ResolutionDawes(double D) { return 116 / D; }

ListRows PrimaryRows(const PrimaryTexts& texts, bool details, int language)
{
    const double D = TextToDouble(texts.diameter.c_str());
    const double F = TextToDouble(texts.focal_length.c_str());
    const double t = TextToDouble(texts.thickness.c_str());
    const double rho = TextToDouble(texts.density.c_str());
    const double r = D / 2;
    const double spherical = 2 * F - std::sqrt((2 * F) * (2 * F) - (D / 2) * (D / 2));
    const double parabolic = D * D / 16 / F;
    const double volume = r * r * kPi * t;
    const double mass = volume * rho / 1000;

    // The mixed-up names of the resolutions and the one language of the magnitudes are kept: people compare
    // these lists in forums.
    RowMaker rows(language, details);
    rows.Add({"Light Gathering Power", "Lichtsammelvermögen gegenüber dem bloßen menschlichen Auge"_cp1252},
             FormatText("%0.2fx", LightGathering(D)));
    rows.Add({"Limiting Magnitude (2)", "Limiting Magnitude (2)"},
             FormatText("%0.2f mag", LimitingMagnitude2(D)));
    rows.Add({"Limiting Magnitude (1)", "Limiting Magnitude (1)"},
             FormatText("%0.2f mag", LimitingMagnitude1(D)));
    rows.AddDetail({"Resolution (Sparrows)", "Auflösungsvermögen (Sparrows)"_cp1252},
                   FormatText("%0.2f\"", 115 / D));
    rows.AddDetail({"Resolution (Sparrows)", "Auflösungsvermögen (Rayleigh)"_cp1252},
                   FormatText("%0.2f\"", 138 / D));
    rows.Add({"Resolution (Dawes)", "Auflösungsvermögen (Rayleigh)"_cp1252},
             FormatText("%0.2f\"", ResolutionDawes(D)));
    rows.Add({"Minimal Magnification (7mm Pupil)", "Minimale Vergrösserung (7mm Pupille)"_cp1252},
             MagnificationText(D, F, 7));
    rows.Add({"Maximal Magnification (0.5mm Pupil)", "Maximale Vergrösserung (0,5mm Pupille)"_cp1252},
             MagnificationText(D, F, 0.5));
    rows.Add({"Parabolic Sagitta", "Parabolische Pfeiltiefe"}, FormatText("%0.3f mm", parabolic));
    rows.Add({"Spherical Sagitta", "Sphärische Pfeiltiefe"_cp1252}, FormatText("%0.3f mm", spherical));
    rows.Add({"Weight of Blank", "Gewicht des Rohlings"}, Scaled(mass, kMassUnits, "%0.3f g"));
    rows.Add({"Volume of Blank", "Volumen des Rohlings"}, Scaled(volume, kVolumeUnits, "%0.3f mm^3"));
    rows.Add({"Focal Ratio", "Öffnungsverhältnis"_cp1252}, D == 0 ? "f/?" : FormatText("f/%0.3f", F / D));
    rows.Add({"Diameter", "Durchmesser"}, FormatText("%0.1f mm (%0.2f inch)", D, D / kInch));
    return rows.Take();
}

std::span<const Material> Materials()
{
    static constexpr Material kMaterials[] = {
        {"Plate-Glass", {"Plate Glas", "Fensterglas"}, 6000, 0.22, 2.45},
        {"Duran 50", {"Duran 50", "Duran 50"}, 6300, 0.20, 2.23},
        {"Pyrex", {"Pyrex", "Pyrex"}, 6400, 0.20, 2.23},
        {"Zerodur", {"Zerodur", "Zerodur"}, 9100, 0.24, 2.48},
        {"Quarzglas", {"Fused Silica", "Quarzglas"}, 7400, 0.17, 2.22},
    };
    return kMaterials;
}

MaterialTexts TextsOf(const Material& material)
{
    return {FormatText("%0.0f", material.modulus), FormatText("%0.2f", material.poisson),
            FormatText("%0.2f", material.density)};
}

std::string UnknownMaterialText(std::int32_t index)
{
    return FormatText("Err-47328: Unbekannter Offset %d!", index);
}

#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"
#include "model/rows/NumberField.h"

#include <cstdint>
#include <span>
#include <string>

/// The page Primary: what a mirror of the typed measures will do.

inline constexpr NumberField kPrimaryFocalLength{&COrrevaData::GetFocalLength, &COrrevaData::SetFocalLength,
                                                 "%0.2f"};
inline constexpr NumberField kPrimaryDiameter{&COrrevaData::GetMirrorDiameter,
                                              &COrrevaData::SetMirrorDiameter, "%0.2f"};
inline constexpr NumberField kPrimaryThickness{&COrrevaData::GetMirrorThickness,
                                               &COrrevaData::SetMirrorThickness, "%0.2f"};
inline constexpr NumberField kPrimaryDensity{&COrrevaData::GetDensity, &COrrevaData::SetDensity, "%0.2f"};

inline constexpr ListColumn kPrimaryColumns[] = {{{"Property", "Eigenschaft"}, 280},
                                                 {{"Value", "Wert"}, 150}};

/// The page's fields as typed: mm, the density in g/cm3.
struct PrimaryTexts {
    std::string focal_length;
    std::string diameter;
    std::string thickness;
    std::string density;
};

PrimaryTexts ReadPrimary(COrrevaData& record);
void StorePrimary(COrrevaData& record, const PrimaryTexts& texts);

/// A sixth of the typed diameter, as the text of the field for the thickness.
std::string UsualThickness(const std::string& diameter);

/// What a mirror of the diameter D, mm, does.
double LightGathering(double D);     ///< times the light of the naked eye
double LimitingMagnitude1(double D); ///< mag
double LimitingMagnitude2(double D); ///< mag
double ResolutionDawes(double D);    ///< seconds of arc

/// The performance list, computed from the texts alone.
ListRows PrimaryRows(const PrimaryTexts& texts, bool details, int language);

/// A glass of the drop-down. What the list says and what the record stores differ.
struct Material {
    const char* entry;
    Bilingual stored_name;
    double modulus; ///< a bare number, for information
    double poisson;
    double density; ///< g/cm3
};

std::span<const Material> Materials();

/// The three fields that a glass fills in.
struct MaterialTexts {
    std::string modulus;
    std::string poisson;
    std::string density;
};
MaterialTexts TextsOf(const Material& material);

/// The message for an index that the drop-down cannot produce, in this one language.
std::string UnknownMaterialText(std::int32_t index);

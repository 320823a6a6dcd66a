#pragma once

#include "model/optics/Illumination.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"
#include "model/rows/NumberField.h"

#include <string>

/// The page Secondary: how a flat of the typed minor axis lights the field of the record's telescope.

inline constexpr NumberField kSecondaryMinorAxis{&COrrevaData::GetSecondaryDiameter,
                                                 &COrrevaData::SetSecondaryDiameter, "%0.2f"};

/// The titles are swapped against every other page. Kept: manuals and screenshots out there show them so.
inline constexpr ListColumn kSecondaryColumns[] = {{{"Eigenschaft", "Property"}, 380},
                                                   {{"Wert", "Value"}, 100}};

/// The page's fields; the angle is computed from the millimetres (WantedFieldDegrees).
struct SecondaryTexts {
    std::string wanted_field;
    std::string wanted_degrees;
    std::string minor_axis;
};

SecondaryTexts ReadSecondary(COrrevaData& record);
/// Stores the minor axis, then the wanted field.
void StoreSecondary(COrrevaData& record, const SecondaryTexts& texts);

/// What the light of the record's telescope passes with the typed minor axis; the record stays as it is.
IlluminationStops StopsOf(const COrrevaData& record, const SecondaryTexts& texts);

struct SecondaryResult {
    ListRows rows;
    std::string verdict;
};

/// From the texts, and the primary and focuser of the record.
SecondaryResult AnalyseSecondary(COrrevaData& record, const SecondaryTexts& texts, bool details,
                                 int language);

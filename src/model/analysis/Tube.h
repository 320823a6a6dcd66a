#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"
#include "model/rows/NumberField.h"

#include <string>

/// The page Tube: the solid tube's measures and the lengths that follow from them.

inline constexpr NumberField kTubeInsideDiameter{&COrrevaData::GetInsideDiameterHat,
                                                 &COrrevaData::SetInsideDiameterHat, "%0.1f"};
inline constexpr NumberField kTubeThickness{&COrrevaData::GetThicknessHat, &COrrevaData::SetThicknessHat,
                                            "%0.1f"};
inline constexpr NumberField kTubeDistanceBack{&COrrevaData::GetDistanceBack, &COrrevaData::SetDistanceBack,
                                               "%0.1f"};
inline constexpr NumberField kTubeDistanceFront{&COrrevaData::GetDistanceFront,
                                                &COrrevaData::SetDistanceFront, "%0.1f"};

inline constexpr ListColumn kTubeColumns[] = {{{"Property", "Eigenschaft"}, 280}, {{"Value", "Wert"}, 150}};

/// The page's fields, mm; the angle is computed from the wanted field (WantedFieldDegrees).
struct TubeTexts {
    std::string wanted_field;
    std::string wanted_degrees;
    std::string inside_diameter;
    std::string thickness;
    std::string distance_back;
    std::string distance_front;
};

TubeTexts ReadTube(COrrevaData& record);

/// Stores thickness, inner diameter, the two distances and the wanted field, in this order.
void StoreTube(COrrevaData& record, const TubeTexts& texts);

/// From the texts, and the focuser and primary of the record.
ListRows TubeRows(COrrevaData& record, const TubeTexts& texts, int language);

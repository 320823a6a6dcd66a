#pragma once

#include "model/analysis/Tube.h"
#include "model/analysis/TubeTypes.h"
#include "model/rows/NumberField.h"

#include <cstdint>
#include <string>
#include <vector>

/// The sheet of the tube design, in which every keystroke goes into the record at once. The coupling of its
/// field in degrees and mm is WantedField's. What changes views and sheets is not decided here.

/// The radio buttons of the first page.
enum TubeDesign { kSolidTube = 0, kTrussTube = 1 };

/// The radio that a kind of tube selects.
TubeDesign DesignOf(std::int32_t tube_type);

/// The fields of the first page that reach the record.
struct TubeMeasures {
    std::string inside_diameter;
    std::string distance_back;
    std::string distance_front;
    std::string wanted_field;
};

TubeMeasures ReadTubeMeasures(COrrevaData& record);

/// Stores the measures in the order of the struct, then the design: a solid tube is kind 0; a truss tube
/// keeps the kind of truss that it has, or becomes kind 1. Then all caches are unset.
void StoreTubeMeasures(COrrevaData& record, const TubeMeasures& texts, TubeDesign design);

/// The second page of a solid tube: the wall's thickness (kTubeThickness), after which all caches are unset.
void StoreWallThickness(COrrevaData& record, const std::string& text);

/// A reset button of the first page or of the wall's thickness: the field's new text. All caches are unset.
std::string ResetTubeMeasure(COrrevaData& record, const NumberField& field);

inline constexpr NumberField kTrussBoxThickness{&COrrevaData::GetThicknessBox, &COrrevaData::SetThicknessBox,
                                                "%0.1f"};
inline constexpr NumberField kTrussBoxHeight{&COrrevaData::GetHeightBox, &COrrevaData::SetHeightBox, "%0.1f"};
/// The cage is the upper end of the tube and shares its wall.
inline constexpr const NumberField& kTrussCageThickness = kTubeThickness;
inline constexpr NumberField kTrussCageHeight{&COrrevaData::GetHeightHat, &COrrevaData::SetHeightHat,
                                              "%0.1f"};

/// The second page of a truss tube, mm.
struct TrussTexts {
    std::string box_thickness;
    std::string box_height;
    std::string cage_thickness;
    std::string cage_height;
};

TrussTexts ReadTruss(COrrevaData& record);

/// Stores the thickness of box and cage, then the heights of box and cage.
void StoreTruss(COrrevaData& record, const TrussTexts& texts);

/// The gap between mirror box and upper cage, mm; may be negative.
double TrussGap(COrrevaData& record);
std::string TrussGapText(COrrevaData& record);

/// The kinds of tube as the drop-down shows them, from its top: "Tubus" first.
std::vector<TubeType> TrussChoices();

/// The drop-down's row of a kind of tube, -1 if there is none.
std::int32_t TrussChoiceOf(std::int32_t tube_type);

/// Stores the kind of a row of the drop-down, after which all caches are unset. No selection does nothing and
/// gives false.
bool StoreTrussChoice(COrrevaData& record, std::int32_t row);

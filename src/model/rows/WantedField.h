#pragma once

#include "model/rows/NumberField.h"

#include <string>

/// The wanted field of the pages Tube and Secondary and of the tube design: as a size in the focal plane (mm)
/// and as an angle (degrees). Both are texts, coupled through the record's focal length.

inline constexpr NumberField kWantedField{&COrrevaData::GetWanted100PercentFow,
                                          &COrrevaData::SetWanted100PercentFow, "%0.2f"};

/// The angle for the typed millimetres, with four decimals.
std::string WantedFieldDegrees(COrrevaData& record, const std::string& millimetres);

/// The millimetres for the typed angle, with one decimal.
std::string WantedFieldMillimetres(COrrevaData& record, const std::string& degrees);

/// Stores the size of a field of 0.6 degrees, a little more than the full moon.
void StoreMoonSizedField(COrrevaData& record);

#pragma once

#include "model/rows/NumberField.h"

/// The fields of the page Setup of the matching Ronchi test, in the order in which they are stored.
inline constexpr NumberField kRonchiGrating{&COrrevaData::GetRonchiGrating, &COrrevaData::SetRonchiGrating,
                                            "%0.2f"}; ///< lines/mm
inline constexpr NumberField kRonchiConstant{&COrrevaData::GetRonchiConstant, &COrrevaData::SetRonchiConstant,
                                             "%0.2f"}; ///< 0 sphere, 1 paraboloid

#pragma once

#include "raytrace/Lines.h"
#include "raytrace/ViewSwitches.h"

#include <cstdint>
#include <string>
#include <vector>

class COrrevaData;

/// The cross-section in sentences with its measures, for those who do not see it: part by part what the
/// picture shows, `pointer` (mm) being where the rays start from. Without a loaded telescope one that tells
/// how to come by one. Bytes of code page 1252.
std::vector<std::string> SectionSentences(COrrevaData& record, const ViewSwitches& switches, Point pointer,
                                          std::int32_t zoom, int language);

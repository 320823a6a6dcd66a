#pragma once

#include "drawing/PaneColours.h"
#include "drawing/RowLayout.h"

class COrrevaData;
struct FullField;

/// Paints the design summary on its field. Labels wrap at the value column and move what follows down;
/// the columns stay where they are for every font. Without a loaded telescope the field stays plain.
void PaintSummary(Surface& surface, COrrevaData& record, const FullField& field, int language,
                  std::int32_t fontHeight = kScreenFontHeight, const SummaryColours& colours = kUsualSummary);

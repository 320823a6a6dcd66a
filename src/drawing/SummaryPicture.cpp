#include "drawing/SummaryPicture.h"

#include "model/analysis/Summary.h"
#include "model/record/OrrevaData.h"

namespace {

constexpr std::int32_t kTop = 2;
constexpr std::int32_t kGapAboveHeading = 10;

} // namespace

void PaintSummary(Surface& surface, COrrevaData& record, const FullField& field, int language,
                  std::int32_t fontHeight, const SummaryColours& colours)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, colours.field);
    if (!record.HasFile()) {
        return;
    }
    std::int32_t y = kTop;
    for (const SummaryRow& row : SummaryRows(record, field, language)) {
        const bool bold = row.kind != SummaryRow::kValue;
        const Font font{fontHeight, bold ? Font::kBold : Font::kNormal};
        y += row.kind == SummaryRow::kHeading ? kGapAboveHeading : 0;
        if (row.kind == SummaryRow::kValue) {
            y += PaintRow(surface, y, row.label, row.value, font, colours.text,
                          row.warning ? colours.warning : colours.text);
        } else {
            const std::int32_t right = row.kind == SummaryRow::kTitle ? kRowRight : kValueLeft;
            y += PaintCell(surface, kLabelLeft, right, y, row.label, font, colours.text);
        }
    }
}

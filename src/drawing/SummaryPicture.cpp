#include "drawing/SummaryPicture.h"

#include "model/OrrevaData.h"
#include "model/Summary.h"

#include <algorithm>

namespace {

constexpr Colour kField{51, 153, 102};
constexpr Colour kText{240, 240, 240};
constexpr Colour kWarning{255, 0, 0};

constexpr std::int32_t kTop = 2;
constexpr std::int32_t kLabelLeft = 2;
constexpr std::int32_t kValueLeft = 160;
constexpr std::int32_t kRight = 400;
constexpr std::int32_t kBoxHeight = 1000;
constexpr std::int32_t kGapAboveHeading = 10;

} // namespace

void PaintSummary(Surface& surface, COrrevaData& record, const FullField& field, int language,
                  std::int32_t fontHeight)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, kField);
    if (!record.HasFile()) {
        return;
    }
    std::int32_t y = kTop;
    for (const SummaryRow& row : SummaryRows(record, field, language)) {
        const bool bold = row.kind != SummaryRow::kValue;
        const Font font{fontHeight, bold ? Font::kBold : Font::kNormal};
        y += row.kind == SummaryRow::kHeading ? kGapAboveHeading : 0;
        const std::int32_t labelRight = row.kind == SummaryRow::kTitle ? kRight : kValueLeft;
        std::int32_t used =
            surface.WrappedText({kLabelLeft, y, labelRight, y + kBoxHeight}, row.label, font, kText);
        if (row.kind == SummaryRow::kValue) {
            const Colour colour = row.warning ? kWarning : kText;
            used = std::max(
                used, surface.WrappedText({kValueLeft, y, kRight, y + kBoxHeight}, row.value, font, colour));
        }
        y += used;
    }
}

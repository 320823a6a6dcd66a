#include "drawing/SidePanelPicture.h"

#include "drawing/RowLayout.h"

void PaintPanelBackground(Surface& surface, Colour background)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, background);
}

std::int32_t PaintSidePanelRows(Surface& surface, const std::vector<SidePanelRow>& rows, Colour text)
{
    constexpr std::int32_t kTop = 20;
    constexpr Font kFont{kScreenFontHeight, Font::kNormal};
    std::int32_t y = kTop;
    for (const SidePanelRow& row : rows) {
        if (row.line_on_top) {
            PaintThinLine(surface, y);
        }
        y += PaintRow(surface, y, row.label, row.value, kFont, text, text);
    }
    return y;
}

void PaintThinLine(Surface& surface, std::int32_t y)
{
    constexpr Colour kGrey{144, 144, 144};
    surface.Line({0, y}, {kRowRight, y}, kGrey);
}

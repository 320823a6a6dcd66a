#include "drawing/RowLayout.h"

#include <algorithm>

std::int32_t PaintCell(Surface& surface, std::int32_t left, std::int32_t right, std::int32_t y,
                       std::string_view text, const Font& font, Colour colour)
{
    constexpr std::int32_t kBoxHeight = 1000; // texts are not clipped
    return surface.WrappedText({left, y, right, y + kBoxHeight}, text, font, colour);
}

std::int32_t PaintRow(Surface& surface, std::int32_t y, std::string_view label, std::string_view value,
                      const Font& font, Colour label_colour, Colour value_colour)
{
    const std::int32_t by_label = PaintCell(surface, kLabelLeft, kValueLeft, y, label, font, label_colour);
    const std::int32_t by_value = PaintCell(surface, kValueLeft, kRowRight, y, value, font, value_colour);
    return std::max(by_label, by_value);
}

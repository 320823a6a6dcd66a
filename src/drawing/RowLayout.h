#pragma once

#include "drawing/Surface.h"

/// The rows of label and value that the summary and the panels are made of. Texts wrap within their column;
/// the columns stay where they are for every font.

inline constexpr std::int32_t kScreenFontHeight = 14;
inline constexpr std::int32_t kPaperFontHeight = 24;

inline constexpr std::int32_t kLabelLeft = 2;
inline constexpr std::int32_t kValueLeft = 160;
inline constexpr std::int32_t kRowRight = 400;

/// One text in the columns from `left` to `right`; the height that it used.
std::int32_t PaintCell(Surface& surface, std::int32_t left, std::int32_t right, std::int32_t y,
                       std::string_view text, const Font& font, Colour colour);

/// A label and its value; the greater of the heights that they used.
std::int32_t PaintRow(Surface& surface, std::int32_t y, std::string_view label, std::string_view value,
                      const Font& font, Colour label_colour, Colour value_colour);

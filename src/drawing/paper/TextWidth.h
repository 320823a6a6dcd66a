#pragma once

#include "drawing/Surface.h"

#include <string>
#include <string_view>

/// The width of a text, code page 1252, in the units of the font's height: by Arial's own advances, which its
/// metric twins share, so that pages are laid out without a font at hand. Kerning may draw a text a little
/// closer.
double TextWidth(std::string_view text, const Font& font);

/// The text, or as much of it as is not wider than `width`, with an ellipsis in the place of the rest.
std::string CutToWidth(std::string_view text, const Font& font, double width);

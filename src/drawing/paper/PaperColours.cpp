#include "drawing/paper/PaperColours.h"

#include <algorithm>

namespace {

/// Light colours of the blue picture in a dark shade of themselves; what is dark already is black.
Colour InkFor(Colour colour)
{
    const int brightest = std::max({colour.red, colour.green, colour.blue});
    if (brightest < 128) {
        return kBlack;
    }
    const auto shade = [](std::uint8_t part) { return static_cast<std::uint8_t>(part / 2); };
    return colour == kWhite ? kBlack : Colour{shade(colour.red), shade(colour.green), shade(colour.blue)};
}

/// Areas that are white stay so, and the blue ground becomes white.
Colour AreaFor(Colour colour)
{
    constexpr Colour kGround{0, 102, 153};
    return colour == kGround || colour == kWhite ? kWhite : InkFor(colour);
}

} // namespace

void PaperColours::FillRect(const PixelRect& rect, Colour colour) { m_page.FillRect(rect, AreaFor(colour)); }

void PaperColours::Line(Pixel from, Pixel to, Colour colour) { m_page.Line(from, to, InkFor(colour)); }

void PaperColours::Polygon(std::span<const Pixel> points, Colour pen, Colour brush)
{
    m_page.Polygon(points, InkFor(pen), AreaFor(brush));
}

void PaperColours::Ellipse(const PixelRect& box, Colour pen, std::int32_t width)
{
    m_page.Ellipse(box, InkFor(pen), width);
}

void PaperColours::Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen)
{
    m_page.Arc(box, from, to, InkFor(pen));
}

void PaperColours::Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush)
{
    m_page.Chord(box, from, to, InkFor(pen), AreaFor(brush));
}

void PaperColours::Image(Pixel at, std::int32_t width, std::span<const Colour> pixels)
{
    m_page.Image(at, width, pixels);
}

void PaperColours::Text(Pixel at, std::string_view text, const Font& font, Colour colour)
{
    m_page.Text(at, text, font, InkFor(colour));
}

std::int32_t PaperColours::WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                                       Colour colour)
{
    return m_page.WrappedText(box, text, font, InkFor(colour));
}

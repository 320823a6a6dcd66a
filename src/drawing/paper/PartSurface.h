#pragma once

#include "drawing/Surface.h"

/// A part of a page as a surface of pixels, each `scale` units wide, for pictures that are made for a screen.
/// Nothing that they paint leaves the part.
class PartSurface : public Surface {
public:
    /// The page stays the caller's and must outlive the surface.
    PartSurface(Surface& page, const PixelRect& place, std::int32_t scale);

    std::int32_t Width() const override { return (m_place.right - m_place.left) / m_scale; }
    std::int32_t Height() const override { return (m_place.bottom - m_place.top) / m_scale; }
    void FillRect(const PixelRect& rect, Colour colour) override;
    void Line(Pixel from, Pixel to, Colour colour) override;
    void Polygon(std::span<const Pixel> points, Colour pen, Colour brush) override;
    void Ellipse(const PixelRect& box, Colour pen, std::int32_t width) override;
    void Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen) override;
    void Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush) override;
    void Image(Pixel at, std::int32_t width, std::span<const Colour> pixels) override;
    void Text(Pixel at, std::string_view text, const Font& font, Colour colour) override;
    std::int32_t WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                             Colour colour) override;

private:
    std::int32_t Across(std::int32_t x) const;
    std::int32_t Down(std::int32_t y) const;
    Pixel Corner(Pixel pixel) const { return {Across(pixel.x), Down(pixel.y)}; }
    Pixel Middle(Pixel pixel) const;
    PixelRect Scaled(const PixelRect& rect) const;
    bool IsInside(const PixelRect& rect) const;

    Surface& m_page;
    PixelRect m_place;
    std::int32_t m_scale;
};

#pragma once

#include "drawing/Surface.h"

/// A surface for the cross-section's colours on white paper: what is light there is white or black here.
class PaperColours : public Surface {
public:
    /// The page stays the caller's and must outlive the surface.
    explicit PaperColours(Surface& page) : m_page(page) {}

    std::int32_t Width() const override { return m_page.Width(); }
    std::int32_t Height() const override { return m_page.Height(); }
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
    Surface& m_page;
};

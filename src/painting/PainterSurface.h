#pragma once

#include "drawing/Surface.h"

#include <QFont>
#include <QPen>

#include <vector>

class QPainter;

/// A Surface over a painter, whose origin is the surface's upper left corner. On devices of pixels lines and
/// polygons are the program's own pixels; on paper and in vector files they stay lines and polygons. Paper,
/// whose units are much finer than a pen, is told by a pen wider than one.
class PainterSurface : public Surface {
public:
    /// The painter stays the caller's and must outlive the surface.
    PainterSurface(QPainter& device, std::int32_t surfaceWidth, std::int32_t surfaceHeight,
                   std::int32_t vectorPen = 1);

    std::int32_t Width() const override { return m_width; }
    std::int32_t Height() const override { return m_height; }
    void FillRect(const PixelRect& rect, Colour colour) override;
    void Line(Pixel from, Pixel to, Colour colour) override;
    void Polygon(std::span<const Pixel> points, Colour pen, Colour brush) override;
    void Ellipse(const PixelRect& box, Colour pen, std::int32_t penWidth) override;
    void Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen) override;
    void Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush) override;
    void Image(Pixel at, std::int32_t imageWidth, std::span<const Colour> pixels) override;
    void Text(Pixel at, std::string_view text, const Font& font, Colour colour) override;
    std::int32_t WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                             Colour colour) override;

private:
    bool IsPaper() const { return m_vectorPen > 1; }
    double Farthest() const;
    PixelRect Clip() const { return {0, 0, m_width, m_height}; }
    void PaintRuns(Colour colour);
    void VectorLine(Pixel from, Pixel to, Colour colour);
    void VectorPolygon(std::span<const Pixel> points, Colour pen, Colour brush);
    QPen VectorPen(Colour colour, std::int32_t penWidth = 1) const;
    const QFont& DeviceFont(const Font& font);

    QPainter& m_painter;
    std::int32_t m_width;
    std::int32_t m_height;
    bool m_isRaster;
    std::int32_t m_vectorPen;      ///< width of what is one unit wide
    std::vector<PixelRect> m_runs; ///< of the shape being painted
    Font m_lastFont{0};
    QFont m_deviceFont; ///< made for lastFont
};

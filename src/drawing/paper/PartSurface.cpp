#include "drawing/paper/PartSurface.h"

#include "drawing/ClipSegment.h"
#include "drawing/paper/TextWidth.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

Point PlaceOfUnit(Pixel unit) { return {static_cast<double>(unit.x), static_cast<double>(unit.y)}; }

Pixel UnitOf(Point place) { return {TruncToInt32(std::round(place.x)), TruncToInt32(std::round(place.y))}; }

/// How far a point lies on the inner side of one of the four sides of a rectangle; negative outside.
double InsideBy(Point at, const PixelRect& rect, int side)
{
    const double distances[] = {at.x - rect.left, rect.right - at.x, at.y - rect.top, rect.bottom - at.y};
    return distances[side];
}

/// The part of a polygon within a rectangle, cut by one side after the other (by Sutherland and Hodgman).
std::vector<Point> ClippedPolygon(std::vector<Point> points, const PixelRect& rect)
{
    for (int side = 0; side < 4 && !points.empty(); ++side) {
        std::vector<Point> kept;
        Point from = points.back();
        for (const Point to : points) {
            const double before = InsideBy(from, rect, side);
            const double after = InsideBy(to, rect, side);
            if ((before < 0) != (after < 0)) {
                const double share = before / (before - after);
                kept.push_back({from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share});
            }
            if (after >= 0) {
                kept.push_back(to);
            }
            from = to;
        }
        points = std::move(kept);
    }
    return points;
}

} // namespace

PartSurface::PartSurface(Surface& page, const PixelRect& place, std::int32_t scale)
    : m_page(page), m_place(place), m_scale(scale)
{}

std::int32_t PartSurface::Across(std::int32_t x) const
{
    return TruncToInt32(m_place.left + static_cast<double>(x) * m_scale);
}

std::int32_t PartSurface::Down(std::int32_t y) const
{
    return TruncToInt32(m_place.top + static_cast<double>(y) * m_scale);
}

Pixel PartSurface::Middle(Pixel pixel) const
{
    const double half = m_scale / 2.0;
    return {TruncToInt32(m_place.left + static_cast<double>(pixel.x) * m_scale + half),
            TruncToInt32(m_place.top + static_cast<double>(pixel.y) * m_scale + half)};
}

PixelRect PartSurface::Scaled(const PixelRect& rect) const
{
    return {Across(rect.left), Down(rect.top), Across(rect.right), Down(rect.bottom)};
}

bool PartSurface::IsInside(const PixelRect& rect) const
{
    return rect.left >= m_place.left && rect.top >= m_place.top && rect.right <= m_place.right &&
           rect.bottom <= m_place.bottom;
}

void PartSurface::FillRect(const PixelRect& rect, Colour colour)
{
    const PixelRect whole = Scaled(rect);
    const PixelRect seen{std::max(whole.left, m_place.left), std::max(whole.top, m_place.top),
                         std::min(whole.right, m_place.right), std::min(whole.bottom, m_place.bottom)};
    if (seen.left < seen.right && seen.top < seen.bottom) {
        m_page.FillRect(seen, colour);
    }
}

void PartSurface::Line(Pixel from, Pixel to, Colour colour)
{
    const Point start = PlaceOfUnit(Middle(from));
    const Point end = PlaceOfUnit(Middle(to));
    const auto part = ClipSegment(start, end, PlaceOfUnit({m_place.left, m_place.top}),
                                  PlaceOfUnit({m_place.right, m_place.bottom}));
    if (part) {
        const auto on = [&](double share) {
            return UnitOf({start.x + (end.x - start.x) * share, start.y + (end.y - start.y) * share});
        };
        m_page.Line(on(part->enter), on(part->leave), colour);
    }
}

void PartSurface::Polygon(std::span<const Pixel> points, Colour pen, Colour brush)
{
    std::vector<Point> whole;
    for (const Pixel point : points) {
        whole.push_back(PlaceOfUnit(Middle(point)));
    }
    std::vector<Pixel> seen;
    for (const Point point : ClippedPolygon(std::move(whole), m_place)) {
        seen.push_back(UnitOf(point));
    }
    if (!seen.empty()) {
        m_page.Polygon(seen, pen, brush);
    }
}

// Curves are painted whole or not at all: no picture for paper has one that leaves it.
// -------------------------

void PartSurface::Ellipse(const PixelRect& box, Colour pen, std::int32_t width)
{
    if (IsInside(Scaled(box))) {
        m_page.Ellipse(Scaled(box), pen, width);
    }
}

void PartSurface::Arc(const PixelRect& box, Pixel from, Pixel to, Colour pen)
{
    if (IsInside(Scaled(box))) {
        m_page.Arc(Scaled(box), Middle(from), Middle(to), pen);
    }
}

void PartSurface::Chord(const PixelRect& box, Pixel from, Pixel to, Colour pen, Colour brush)
{
    if (IsInside(Scaled(box))) {
        m_page.Chord(Scaled(box), Middle(from), Middle(to), pen, brush);
    }
}

void PartSurface::Image(Pixel at, std::int32_t width, std::span<const Colour> pixels)
{
    for (std::size_t i = 0; width > 0 && i < pixels.size(); ++i) {
        const auto x = at.x + static_cast<std::int32_t>(i % static_cast<std::size_t>(width));
        const auto y = at.y + static_cast<std::int32_t>(i / static_cast<std::size_t>(width));
        FillRect({x, y, x + 1, y + 1}, pixels[i]);
    }
}

void PartSurface::Text(Pixel at, std::string_view text, const Font& font, Colour colour)
{
    const Pixel corner = Corner(at);
    if (IsInside({corner.x, corner.y, corner.x, corner.y})) {
        const std::int32_t room = font.upright ? corner.y - m_place.top : m_place.right - corner.x;
        m_page.Text(corner, CutToWidth(text, font.Scaled(m_scale), room), font.Scaled(m_scale), colour);
    }
}

std::int32_t PartSurface::WrappedText(const PixelRect& box, std::string_view text, const Font& font,
                                      Colour colour)
{
    return m_page.WrappedText(Scaled(box), text, font.Scaled(m_scale), colour) / m_scale;
}

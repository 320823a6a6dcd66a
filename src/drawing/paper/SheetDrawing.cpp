#include "drawing/paper/SheetDrawing.h"

#include "drawing/ClipSegment.h"
#include "drawing/paper/Paper.h"
#include "drawing/paper/TextWidth.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// The angles at which an arc's ellipse crosses the sides of a box, brought into its own turn.
std::vector<double> Crossings(const SheetArc& arc, const SheetBox& box)
{
    std::vector<double> angles;
    const auto add = [&](double angle) {
        const double turns = std::ceil((arc.from - angle) / SheetArc::kWhole);
        angle += turns * SheetArc::kWhole;
        if (angle > arc.from && angle < arc.to) {
            angles.push_back(angle);
        }
    };
    for (const double x : {box.low.x, box.high.x}) {
        const double share = (x - arc.centre.x) / arc.half_width;
        if (std::fabs(share) <= 1) {
            add(std::acos(share));
            add(-std::acos(share));
        }
    }
    for (const double y : {box.low.y, box.high.y}) {
        const double share = (arc.centre.y - y) / arc.half_height;
        if (std::fabs(share) <= 1) {
            add(std::asin(share));
            add(std::numbers::pi - std::asin(share));
        }
    }
    std::ranges::sort(angles);
    return angles;
}

/// Room for what rounding leaves of a drawing that fills its window.
SheetBox Widened(const SheetBox& box)
{
    constexpr double kRounding = 1e-6;
    return {{box.low.x - kRounding, box.low.y - kRounding}, {box.high.x + kRounding, box.high.y + kRounding}};
}

Point OnPage(const SheetWindow& window, Point at)
{
    return {at.x - window.part.low.x + window.corner.x, at.y - window.part.low.y + window.corner.y};
}

void PaintSheetLine(Surface& page, const SheetLine& line, const SheetWindow& window)
{
    const auto part = ClipSegment(line.from, line.to, window.part.low, window.part.high);
    if (!part) {
        return;
    }
    const auto on = [&](double share) {
        const Point at{line.from.x + (line.to.x - line.from.x) * share,
                       line.from.y + (line.to.y - line.from.y) * share};
        return PaperPixel(OnPage(window, at));
    };
    page.Line(on(part->enter), on(part->leave), line.colour);
}

void PaintSheetArc(Surface& page, const SheetArc& arc, const SheetWindow& window)
{
    const Point low = OnPage(window, {arc.centre.x - arc.half_width, arc.centre.y - arc.half_height});
    const Point high = OnPage(window, {arc.centre.x + arc.half_width, arc.centre.y + arc.half_height});
    const Pixel first = PaperPixel(low);
    const Pixel last = PaperPixel(high);
    // The outline runs through the middles of the box's outer units.
    const PixelRect outline{first.x, first.y, last.x + 1, last.y + 1};
    for (const SheetArc& part : VisibleParts(arc, Widened(window.part))) {
        if (part.IsWhole()) {
            page.Ellipse(outline, part.colour, 1);
            continue;
        }
        const Pixel from = PaperPixel(OnPage(window, part.At(part.from)));
        const Pixel to = PaperPixel(OnPage(window, part.At(part.to)));
        if (from != to) { // which would be the whole outline
            page.Arc(outline, from, to, part.colour);
        }
    }
}

void PaintSheetText(Surface& page, const SheetText& text, const SheetWindow& window)
{
    if (!window.part.Has(text.middle)) {
        return;
    }
    const Point half = text.HalfSize();
    const auto inward = [](double at, double room, double low, double high) {
        return std::max(std::min(at, high - room), low + room);
    };
    const Point at{inward(text.middle.x, half.x, window.part.low.x, window.part.high.x),
                   inward(text.middle.y, half.y, window.part.low.y, window.part.high.y)};
    // An upright text begins at its lower left corner.
    const Point corner{at.x - half.x, text.upright ? at.y + half.y : at.y - half.y};
    page.Text(PaperPixel(OnPage(window, corner)), text.text, text.PaperFont(), text.colour);
}

} // namespace

Point SheetArc::At(double angle) const
{
    return {centre.x + half_width * std::cos(angle), centre.y - half_height * std::sin(angle)};
}

Font SheetText::PaperFont() const { return ::PaperFont(height, bold ? Font::kBold : Font::kNormal, upright); }

Point SheetText::HalfSize() const
{
    const double along = TextWidth(text, PaperFont()) / kUnitsPerMm / 2;
    return upright ? Point{height / 2, along} : Point{along, height / 2};
}

void SheetDrawing::Cross(Point at, double arm, Colour colour)
{
    lines.push_back({{at.x - arm, at.y}, {at.x + arm, at.y}, colour});
    lines.push_back({{at.x, at.y - arm}, {at.x, at.y + arm}, colour});
}

void SheetDrawing::Rect(const SheetBox& rect, Colour colour)
{
    const std::array<Point, 4> corners{
        {rect.low, {rect.high.x, rect.low.y}, rect.high, {rect.low.x, rect.high.y}}};
    for (std::size_t i = 0; i < corners.size(); ++i) {
        lines.push_back({corners[i], corners[(i + 1) % corners.size()], colour});
    }
}

std::vector<SheetArc> VisibleParts(const SheetArc& arc, const SheetBox& box)
{
    std::vector<double> ends = Crossings(arc, box);
    ends.insert(ends.begin(), arc.from);
    ends.push_back(arc.to);
    std::vector<SheetArc> parts;
    for (std::size_t i = 0; i + 1 < ends.size(); ++i) {
        if (!box.Has(arc.At((ends[i] + ends[i + 1]) / 2))) {
            continue;
        }
        if (!parts.empty() && parts.back().to == ends[i]) {
            parts.back().to = ends[i + 1]; // the ellipse only touches a side there
        } else {
            parts.push_back(arc);
            parts.back().from = ends[i];
            parts.back().to = ends[i + 1];
        }
    }
    return parts;
}

void PaintDrawing(Surface& page, const SheetDrawing& drawing, const SheetWindow& window)
{
    for (const SheetLine& line : drawing.lines) {
        PaintSheetLine(page, line, window);
    }
    for (const SheetArc& arc : drawing.arcs) {
        PaintSheetArc(page, arc, window);
    }
    for (const SheetText& text : drawing.texts) {
        PaintSheetText(page, text, window);
    }
}

std::size_t CountIn(const SheetDrawing& drawing, const SheetBox& box)
{
    const auto crosses = [&](const SheetLine& line) {
        return ClipSegment(line.from, line.to, box.low, box.high).has_value();
    };
    const auto bends = [&](const SheetArc& arc) { return !VisibleParts(arc, box).empty(); };
    const auto covers = [&](const SheetText& text) {
        const Point half = text.HalfSize();
        return text.middle.x + half.x > box.low.x && text.middle.x - half.x < box.high.x &&
               text.middle.y + half.y > box.low.y && text.middle.y - half.y < box.high.y;
    };
    return static_cast<std::size_t>(std::ranges::count_if(drawing.lines, crosses) +
                                    std::ranges::count_if(drawing.arcs, bends) +
                                    std::ranges::count_if(drawing.texts, covers));
}

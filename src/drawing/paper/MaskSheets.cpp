#include "drawing/paper/SheetParts.h"
#include "drawing/paper/TextWidth.h"
#include "lib/text/CodePage.h"
#include "model/optics/CouderMask.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Bilingual kNoMirror{"the mirror has no diameter", "der Spiegel hat keinen Durchmesser"};

/// The zones as of a mask that was taken over from the calculator; those that are no rings are left out.
std::vector<ZoneEdges> RingsOf(COrrevaData& record, double D, const SheetZones& zones)
{
    const CouderMask mask(record.GetFocalLength(), D, zones.centre_percent, 0, kCouderMask,
                          std::clamp(zones.count, 0, MAX_MASK_ZONES));
    std::vector<ZoneEdges> rings;
    for (std::int32_t i = 0; i < mask.zone_count; ++i) {
        const ZoneEdges edges{mask.GetInnerRadius(i), mask.GetOuterRadius(i)};
        if (edges.inner >= 0 && edges.outer > edges.inner && std::isfinite(edges.outer)) {
            rings.push_back(edges);
        }
    }
    return rings;
}

bool IsLength(double length) { return length > 0 && std::isfinite(length); }

double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

// The mask -------------------------------------------------------------------------------------------------

// Neighbours share a radius. So that the mask stays one piece, the windows of every other zone stand above
// the mirror's axis and the rest below, each a bridge's half away from it.
constexpr double kHalfBridge = 1; // mm
constexpr double kSteepest = 20;  // of the edge beside the axis, degrees
constexpr double kSpan = 22;      // of a window, degrees

/// The two windows of a ring: on the right and on the left, above or below the axis.
void AddWindows(SheetDrawing& drawing, const ZoneEdges& ring, bool above)
{
    // Without an excluded centre the innermost windows would meet in its point.
    const double inner = std::max(ring.inner, std::min(2 * kHalfBridge, ring.outer / 2));
    const double start = std::min(std::asin(std::min(kHalfBridge / inner, 1.0)), Radians(kSteepest));
    const double end = start + Radians(kSpan);
    for (const bool right : {true, false}) {
        const double from = right ? start : std::numbers::pi - end;
        const double turn = above ? 0 : std::numbers::pi; // the other side lies half a turn on
        const SheetArc outside{{0, 0}, ring.outer, ring.outer, from + turn, from + Radians(kSpan) + turn};
        SheetArc inside = outside;
        inside.half_width = inside.half_height = inner;
        drawing.arcs.push_back(outside);
        drawing.arcs.push_back(inside);
        drawing.lines.push_back({inside.At(inside.from), outside.At(outside.from)});
        drawing.lines.push_back({inside.At(inside.to), outside.At(outside.to)});
    }
}

/// The ring's number, on the side of the axis where it has no window.
void AddRingNumber(SheetDrawing& drawing, const ZoneEdges& ring, std::size_t number, bool above)
{
    constexpr double kLargest = 4;
    constexpr double kSmallest = 1.2;
    constexpr double kNumberAt = 12; // degrees off the axis
    const double height = std::min(kLargest, 0.8 * (ring.outer - ring.inner));
    if (height < kSmallest) {
        return;
    }
    const double middle = (ring.inner + ring.outer) / 2;
    const SheetArc circle{{0, 0}, middle, middle};
    for (const double angle : {Radians(kNumberAt), Radians(180 - kNumberAt)}) {
        drawing.texts.push_back({circle.At(above ? -angle : angle), std::to_string(number), height});
    }
}

// The pinstick ---------------------------------------------------------------------------------------------

constexpr double kPinLength = 8; // of a mark, mm
constexpr double kNumberHeight = 2.6;
constexpr double kNumberGap = 0.8; // between neighbours
constexpr double kBelowNumbers = 3;

/// Numbers below marks, in as many rows as keep them apart.
class NumberRows {
public:
    /// The row for a number around x; those to its left came before.
    std::size_t Take(double x, double half)
    {
        std::size_t row = 0;
        while (row < m_ends.size() && m_ends[row] + kNumberGap > x - half) {
            ++row;
        }
        m_ends.resize(std::max(m_ends.size(), row + 1));
        m_ends[row] = x + half;
        return row;
    }
    double Height() const { return static_cast<double>(m_ends.size()) * kNumberHeight; }

private:
    std::vector<double> m_ends; ///< of each row
};

struct PinMark {
    double x;
    std::size_t number;
};

/// The boundaries of the rings from the left to the right, each on both sides; 0 is that of the centre.
std::vector<PinMark> PinMarks(const std::vector<ZoneEdges>& rings)
{
    std::vector<PinMark> marks;
    const auto add = [&](double radius, std::size_t number) {
        marks.push_back({-radius, number});
        if (radius > 0) {
            marks.push_back({radius, number});
        }
    };
    if (!rings.empty()) {
        add(rings.front().inner, 0);
    }
    for (std::size_t i = 0; i < rings.size(); ++i) {
        add(rings[i].outer, i + 1);
    }
    std::ranges::sort(marks, {}, &PinMark::x);
    return marks;
}

} // namespace

SheetResult CouderMaskSheet(COrrevaData& record, const SheetZones& zones)
{
    const double D = record.GetMirrorDiameter();
    if (!IsLength(D)) {
        return kNoMirror;
    }
    SheetContent sheet;
    SheetDrawing& drawing = sheet.drawing;
    drawing.box = {{-D / 2, -D / 2}, {D / 2, D / 2}};
    drawing.arcs.push_back({{0, 0}, D / 2, D / 2});
    drawing.Cross({0, 0}, std::min(5.0, D / 10));
    const std::vector<ZoneEdges> rings = RingsOf(record, D, zones);
    for (std::size_t i = 0; i < rings.size(); ++i) {
        const bool above = i % 2 == 0;
        AddWindows(drawing, rings[i], above);
        AddRingNumber(drawing, rings[i], i + 1, above);
    }
    return sheet;
}

SheetResult EverestSheet(COrrevaData& record, const SheetZones& zones)
{
    const double D = record.GetMirrorDiameter();
    if (!IsLength(D)) {
        return kNoMirror;
    }
    SheetContent sheet;
    SheetDrawing& drawing = sheet.drawing;
    NumberRows rows;
    for (const PinMark& mark : PinMarks(RingsOf(record, D, zones))) {
        drawing.lines.push_back({{mark.x, 0}, {mark.x, kPinLength}});
        SheetText number{{mark.x, 0}, std::to_string(mark.number), kNumberHeight};
        const double half = number.HalfSize().x;
        number.middle.x = std::max(std::min(mark.x, D / 2 - half - 0.5), half + 0.5 - D / 2);
        const auto row = static_cast<double>(rows.Take(number.middle.x, half));
        number.middle.y = kPinLength + 1 + (row + 0.5) * kNumberHeight;
        drawing.lines.push_back(
            {{mark.x, kPinLength}, {mark.x, number.middle.y - kNumberHeight / 2}, kSheetHelp});
        drawing.texts.push_back(number);
    }
    drawing.box = {{-D / 2, 0}, {D / 2, kPinLength + 1 + rows.Height() + kBelowNumbers}};
    drawing.Rect(drawing.box);
    drawing.lines.push_back({{0, 0}, {0, drawing.box.high.y}, kSheetHelp});
    return sheet;
}

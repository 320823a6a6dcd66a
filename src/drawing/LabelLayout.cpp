#include "drawing/LabelLayout.h"

#include "drawing/ClipSegment.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

/// How far a label's box may stand from its line, across and down, in pixels: its own height and a bit.
constexpr double kNearby = 20;

} // namespace

LabelLayout::LabelLayout(std::int32_t nWidth, std::int32_t nHeight, const Font& font)
    : m_nWidth(nWidth), m_nHeight(nHeight), m_font(font)
{}

void LabelLayout::AddLine(Point from, Point to) { m_lines.push_back({from, to}); }

void LabelLayout::AddEllipse(Point centre, double dHalfWidth, double dHalfHeight)
{
    AddArc(centre, dHalfWidth, dHalfHeight, centre, centre);
}

void LabelLayout::AddArc(Point centre, double dHalfWidth, double dHalfHeight, Point from, Point to)
{
    constexpr int kChords = 48;
    const auto direction = [&](Point at) {
        return std::atan2((at.x - centre.x) / dHalfWidth, (at.y - centre.y) / dHalfHeight);
    };
    const double dStart = direction(from);
    const double dTurn = direction(to) - dStart;
    const double dStep = (dTurn > 0 ? dTurn : dTurn + 2 * kPi) / kChords;
    const auto on = [&](int i) {
        const double a = dStart + dStep * i;
        return Point{centre.x + std::sin(a) * dHalfWidth, centre.y + std::cos(a) * dHalfHeight};
    };
    for (int i = 0; i < kChords; ++i) {
        AddLine(on(i), on(i + 1));
    }
}

Pixel LabelLayout::Beside(Point from, Point to, std::string_view text)
{
    constexpr double kParts[] = {0.5, 0.42, 0.58, 0.34, 0.66};
    return BesideParts({from, to}, kParts, text);
}

Pixel LabelLayout::Halfway(Point from, Point to, std::string_view text)
{
    constexpr double kParts[] = {0.5};
    return BesideParts({from, to}, kParts, text);
}

Pixel LabelLayout::Near(Point at, std::string_view text) { return Around(at, {at, at}, at, text); }

Pixel LabelLayout::At(Point at, std::string_view text)
{
    const Box half = BoxAround({0, 0}, text);
    Point best = at;
    std::ptrdiff_t nFewest = std::numeric_limits<std::ptrdiff_t>::max();
    for (const double dAcross : {0.0, -0.5, 0.5, -1.0, 1.0}) {
        for (const double dDown : {0.0, -0.5, 0.5, -1.0, 1.0}) {
            const Point middle{at.x + dAcross * half.dRight, at.y + dDown * half.dBottom};
            const std::ptrdiff_t nCrossings = Crossings(BoxAround(middle, text));
            if (nCrossings < nFewest) {
                nFewest = nCrossings;
                best = middle;
            }
        }
    }
    return Take(best, text);
}

Pixel LabelLayout::BesideParts(const Segment& line, std::span<const double> parts, std::string_view text)
{
    const Point from = line.from;
    const double dx = line.to.x - from.x;
    const double dy = line.to.y - from.y;
    const double dLength = std::hypot(dx, dy);
    const Point along = dLength > 0 ? Point{dx / dLength, dy / dLength} : Point{1, 0};
    const Point normal{along.y, -along.x};
    const Box box = BoxAround({0, 0}, text);
    // So far from the line its box just touches it.
    const double dTouch = std::fabs(normal.x) * box.dRight + std::fabs(normal.y) * box.dBottom;

    const auto middle = [&](double dPart, double dOff) {
        return Point{from.x + dx * dPart + normal.x * dOff, from.y + dy * dPart + normal.y * dOff};
    };
    for (const double dGap : {3.0, 8.0, 14.0}) {
        for (const double dPart : parts) {
            for (const double dSide : {1.0, -1.0}) {
                const Point place = middle(dPart, dSide * (dTouch + dGap));
                if (IsClear(place, text)) {
                    return Take(place, text);
                }
            }
        }
    }
    return Around(middle(0.5, 0), line, middle(0.5, dTouch + 3), text);
}

/// The first clear place in growing rings around a point, not far from the label's line.
Pixel LabelLayout::Around(Point middle, const Segment& line, Point fallback, std::string_view text)
{
    const Box half = BoxAround({0, 0}, text);
    const double dMost = std::hypot(half.dRight + kNearby, half.dBottom + kNearby);
    constexpr int kDirections = 96;
    for (double dOff = 0; dOff <= dMost; dOff += 1) {
        for (int i = 0; i < kDirections; ++i) {
            const double a = 2 * kPi * i / kDirections;
            const Point place{middle.x + std::sin(a) * dOff, middle.y + std::cos(a) * dOff};
            Box reach = BoxAround(place, text);
            reach = {reach.dLeft - kNearby, reach.dTop - kNearby, reach.dRight + kNearby,
                     reach.dBottom + kNearby};
            if (Crosses(line, reach) && IsClear(place, text)) {
                return Take(place, text);
            }
        }
    }
    return Take(fallback, text);
}

Pixel LabelLayout::Take(Point middle, std::string_view text)
{
    const Box box = BoxAround(middle, text);
    m_labels.push_back(box);
    return NearestPixel({box.dLeft, box.dTop});
}

LabelLayout::Box LabelLayout::BoxAround(Point middle, std::string_view text) const
{
    const double dHalfWidth = static_cast<double>(text.size()) * m_font.height / 4;
    const double dHalfHeight = m_font.height / 2.0;
    return {middle.x - dHalfWidth, middle.y - dHalfHeight, middle.x + dHalfWidth, middle.y + dHalfHeight};
}

bool LabelLayout::IsInside(const Box& box) const
{
    return box.dLeft >= 0 && box.dTop >= 0 && box.dRight <= m_nWidth && box.dBottom <= m_nHeight;
}

/// Lines and labels that a box would stand on.
std::ptrdiff_t LabelLayout::Crossings(const Box& box) const
{
    const auto nLabels = std::count_if(m_labels.begin(), m_labels.end(), [&](const Box& other) {
        return box.dLeft < other.dRight && other.dLeft < box.dRight && box.dTop < other.dBottom &&
               other.dTop < box.dBottom;
    });
    return nLabels + std::count_if(m_lines.begin(), m_lines.end(),
                                   [&](const Segment& segment) { return Crosses(segment, box); });
}

bool LabelLayout::IsClear(Point middle, std::string_view text) const
{
    const Box box = BoxAround(middle, text);
    return IsInside(box) && Crossings(box) == 0;
}

bool LabelLayout::Crosses(const Segment& segment, const Box& box)
{
    return ClipSegment(segment.from, segment.to, {box.dLeft, box.dTop}, {box.dRight, box.dBottom})
        .has_value();
}

Pixel NearestPixel(Point at) { return {TruncToInt32(std::round(at.x)), TruncToInt32(std::round(at.y))}; }

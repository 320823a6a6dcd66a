#include "drawing/LabelLayout.h"

#include "lib/Numbers.h"

#include <algorithm>
#include <cmath>

LabelLayout::LabelLayout(std::int32_t nWidth, std::int32_t nHeight, const Font& font)
    : m_nWidth(nWidth), m_nHeight(nHeight), m_font(font)
{}

void LabelLayout::AddLine(Point from, Point to) { m_lines.push_back({from, to}); }

void LabelLayout::AddEllipse(Point centre, double dHalfWidth, double dHalfHeight)
{
    constexpr int kChords = 48;
    const auto on = [&](int i) {
        const double a = 2 * kPi * i / kChords;
        return Point{centre.x + std::sin(a) * dHalfWidth, centre.y + std::cos(a) * dHalfHeight};
    };
    for (int i = 0; i < kChords; ++i) {
        AddLine(on(i), on(i + 1));
    }
}

Pixel LabelLayout::Beside(Point from, Point to, std::string_view text)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
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
        for (const double dPart : {0.5, 0.42, 0.58, 0.34, 0.66}) {
            for (const double dSide : {1.0, -1.0}) {
                const Point place = middle(dPart, dSide * (dTouch + dGap));
                if (IsClear(place, text)) {
                    return Take(place, text);
                }
            }
        }
    }
    return Near(middle(0.5, dTouch + 3), text);
}

Pixel LabelLayout::Near(Point at, std::string_view text)
{
    constexpr int kDirections = 16;
    for (int nOff = 0; nOff <= 100; nOff += 3) {
        for (int i = 0; i < kDirections; ++i) {
            const double a = 2 * kPi * i / kDirections;
            const Point place{at.x + std::sin(a) * nOff, at.y + std::cos(a) * nOff};
            if (IsClear(place, text)) {
                return Take(place, text);
            }
        }
    }
    return Take(at, text);
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

bool LabelLayout::IsClear(Point middle, std::string_view text) const
{
    const Box box = BoxAround(middle, text);
    if (!(box.dLeft >= 0 && box.dTop >= 0 && box.dRight <= m_nWidth && box.dBottom <= m_nHeight)) {
        return false;
    }
    const bool bOnLabel = std::any_of(m_labels.begin(), m_labels.end(), [&](const Box& other) {
        return box.dLeft < other.dRight && other.dLeft < box.dRight && box.dTop < other.dBottom &&
               other.dTop < box.dBottom;
    });
    return !bOnLabel && std::none_of(m_lines.begin(), m_lines.end(),
                                     [&](const Segment& segment) { return Crosses(segment, box); });
}

/// Clips the segment to the box, side by side (Liang and Barsky).
bool LabelLayout::Crosses(const Segment& segment, const Box& box)
{
    const double dx = segment.to.x - segment.from.x;
    const double dy = segment.to.y - segment.from.y;
    const double kSides[4][2] = {{-dx, segment.from.x - box.dLeft},
                                 {dx, box.dRight - segment.from.x},
                                 {-dy, segment.from.y - box.dTop},
                                 {dy, box.dBottom - segment.from.y}};
    double dEnter = 0;
    double dLeave = 1;
    for (const auto& [dStep, dRoom] : kSides) {
        if (dStep < 0) {
            dEnter = std::max(dEnter, dRoom / dStep);
        } else if (dStep > 0) {
            dLeave = std::min(dLeave, dRoom / dStep);
        } else if (dRoom < 0) {
            return false;
        }
    }
    return dEnter <= dLeave;
}

Pixel NearestPixel(Point at) { return {TruncToInt32(std::round(at.x)), TruncToInt32(std::round(at.y))}; }

#pragma once

#include "drawing/paper/Paper.h"
#include "drawing/paper/TextWidth.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

/// The calls that paint a page.
inline RecordingSurface Painted(const PaperPage& page)
{
    RecordingSurface surface(PaperUnits(page.width), PaperUnits(page.height));
    page.paint(surface);
    return surface;
}

/// All that is written on a page.
inline std::vector<std::string> WordsOf(const RecordingSurface& page)
{
    std::vector<std::string> words;
    for (const drawn::Text& text : page.Of<drawn::Text>()) {
        words.push_back(text.text);
    }
    return words;
}

inline bool Says(const RecordingSurface& page, const std::string& words)
{
    return std::ranges::count(WordsOf(page), words) > 0;
}

/// The smallest way from anything on a page to its edge, mm. Arcs count by their ends and by what of their
/// ellipse's sides they pass.
class NearestToEdge {
public:
    static double Of(const PaperPage& page)
    {
        NearestToEdge nearest(page);
        for (const drawn::Call& call : Painted(page).calls) {
            std::visit([&](const auto& one) { nearest.Add(one); }, call);
        }
        return nearest.m_nearest / kUnitsPerMm;
    }

private:
    explicit NearestToEdge(const PaperPage& page)
        : m_width(page.width * kUnitsPerMm), m_height(page.height * kUnitsPerMm)
    {}

    void Point(double x, double y) { m_nearest = std::min({m_nearest, x, y, m_width - x, m_height - y}); }
    void Box(const PixelRect& box)
    {
        Point(box.left, box.top);
        Point(box.right, box.bottom);
    }
    void Add(const drawn::FillRect& call) { Box(call.rect); }
    void Add(const drawn::Line& call)
    {
        Point(call.from.x, call.from.y);
        Point(call.to.x, call.to.y);
    }
    void Add(const drawn::Polygon& call)
    {
        for (const Pixel point : call.points) {
            Point(point.x, point.y);
        }
    }
    void Add(const drawn::Ellipse& call) { Box(call.box); }
    void Add(const drawn::Arc& call)
    {
        Point(call.from.x, call.from.y);
        Point(call.to.x, call.to.y);
        const double cx = (call.box.left + call.box.right - 1) / 2.0;
        const double cy = (call.box.top + call.box.bottom - 1) / 2.0;
        const auto angle = [&](Pixel at) { return std::atan2(cy - at.y, at.x - cx); };
        const double turn = 2 * std::acos(-1.0);
        double length = angle(call.to) - angle(call.from);
        length += length <= 0 ? turn : 0;
        for (int i = 0; i <= 200; ++i) {
            const double at = angle(call.from) + length * i / 200;
            Point(cx + (call.box.right - 1 - cx) * std::cos(at),
                  cy - (call.box.bottom - 1 - cy) * std::sin(at));
        }
    }
    void Add(const drawn::Chord&) { ADD_FAILURE() << "no page has chords"; }
    void Add(const drawn::Image&) { ADD_FAILURE() << "no page has images"; }
    void Add(const drawn::Text& call)
    {
        const double along = TextWidth(call.text, call.font);
        Point(call.at.x, call.at.y);
        if (call.font.upright) {
            Point(call.at.x + call.font.height, call.at.y - along);
        } else {
            Point(call.at.x + along, call.at.y + call.font.height);
        }
    }
    void Add(const drawn::WrappedText& call) { Box(call.box); }

    double m_width;
    double m_height;
    double m_nearest = std::numeric_limits<double>::infinity();
};

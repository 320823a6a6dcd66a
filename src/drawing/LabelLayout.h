#pragma once

#include "drawing/Surface.h"
#include "raytrace/Lines.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

/// Finds places for the labels of a drawing, so that each stays near its line and clear of the lines and of
/// the labels before it. All lines are told first. The width of a label is taken as half of the font's height
/// a character, which is room enough for numbers. Coordinates are pixels.
class LabelLayout {
public:
    LabelLayout(std::int32_t nWidth, std::int32_t nHeight, const Font& font);

    void AddLine(Point from, Point to);
    void AddEllipse(Point centre, double dHalfWidth, double dHalfHeight);
    /// The part of an ellipse from the direction of `from` to the direction of `to`, as Surface::Arc draws
    /// it.
    void AddArc(Point centre, double dHalfWidth, double dHalfHeight, Point from, Point to);

    /// Upper left corner for a label beside the middle of a line, on the left of the way from `from` to `to`
    /// where there is room, else on its right, further along or further off; never more than 20 pixels off.
    Pixel Beside(Point from, Point to, std::string_view text);
    /// The same, but not further along while there is room beside the very middle.
    Pixel Halfway(Point from, Point to, std::string_view text);
    /// The same for a label with its middle at `at`, or a few pixels from it where there is more room.
    Pixel Near(Point at, std::string_view text);
    /// The same for a label that has to stand at `at`: its middle is there, or another place of its box at
    /// which it crosses less.
    Pixel At(Point at, std::string_view text);

private:
    struct Box {
        double dLeft, dTop, dRight, dBottom;
    };
    struct Segment {
        Point from, to;
    };

    Pixel BesideParts(const Segment& line, std::span<const double> parts, std::string_view text);
    Pixel Around(Point middle, const Segment& line, Point fallback, std::string_view text);
    Pixel Take(Point middle, std::string_view text);
    Box BoxAround(Point middle, std::string_view text) const;
    bool IsInside(const Box& box) const;
    std::ptrdiff_t Crossings(const Box& box) const;
    bool IsClear(Point middle, std::string_view text) const;
    static bool Crosses(const Segment& segment, const Box& box);

    std::int32_t m_nWidth;
    std::int32_t m_nHeight;
    Font m_font;
    std::vector<Segment> m_lines;
    std::vector<Box> m_labels;
};

/// The pixel nearest to a place; the ends of the range for one that is no pixel.
Pixel NearestPixel(Point at);

#pragma once

#include "drawing/Surface.h"
#include "raytrace/Lines.h"

#include <numbers>
#include <string>
#include <vector>

/// A drawing in true scale, as data: places are millimetres of paper, x to the right and y downward, from an
/// origin of the drawing's own. Texts are code page 1252.

inline constexpr Colour kSheetInk = kBlack;
inline constexpr Colour kSheetHelp{130, 130, 130}; ///< axes, joints, lines that only lead somewhere

struct SheetLine {
    Point from;
    Point to;
    Colour colour = kSheetInk;
};

/// A part of an ellipse whose axes lie along the page: from one angle to a larger one, counter-clockwise as
/// it is seen, 0 to the right; radians of the ellipse's own parameter, which for a circle is the direction.
struct SheetArc {
    static constexpr double kWhole = 2 * std::numbers::pi;

    Point centre;
    double half_width;
    double half_height;
    double from = 0;
    double to = kWhole;
    Colour colour = kSheetInk;

    Point At(double angle) const;
    bool IsWhole() const { return to - from >= kWhole; }
};

struct SheetText {
    Point middle;
    std::string text;
    double height = 2.8; ///< of a line
    bool bold = false;
    bool upright = false; ///< to be read from below
    Colour colour = kSheetInk;

    Font PaperFont() const;
    /// Half of what it covers.
    Point HalfSize() const;
};

/// The rectangle between two corners.
struct SheetBox {
    Point low;
    Point high;

    double Width() const { return high.x - low.x; }
    double Height() const { return high.y - low.y; }
    Point Middle() const { return {(low.x + high.x) / 2, (low.y + high.y) / 2}; }
    bool Has(Point at) const { return at.x >= low.x && at.x <= high.x && at.y >= low.y && at.y <= high.y; }
};

struct SheetDrawing {
    std::vector<SheetLine> lines{};
    std::vector<SheetArc> arcs{};
    std::vector<SheetText> texts{};
    SheetBox box{}; ///< what has to be on the paper

    void Cross(Point at, double arm, Colour colour = kSheetHelp);
    void Rect(const SheetBox& rect, Colour colour = kSheetInk);
};

/// The parts of an arc that lie in a box, in its own angles.
std::vector<SheetArc> VisibleParts(const SheetArc& arc, const SheetBox& box);

/// Where a part of a drawing stands on a page.
struct SheetWindow {
    SheetBox part;  ///< of the drawing
    Point corner{}; ///< of the page, mm: there stands the part's upper left corner
};

/// Paints what of the drawing lies in the window, cut at its edges. A text is painted whole where its middle
/// lies in the window, moved inward as far as it needs.
void PaintDrawing(Surface& page, const SheetDrawing& drawing, const SheetWindow& window);

/// How many of the drawing's lines, arcs and texts touch a box.
std::size_t CountIn(const SheetDrawing& drawing, const SheetBox& box);

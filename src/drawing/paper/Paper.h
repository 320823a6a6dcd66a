#pragma once

#include "drawing/Surface.h"
#include "raytrace/Lines.h"

#include <cmath>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Paper is a surface of 100 units a millimetre: what is painted on it stands there in true scale. A line
/// that is one unit wide is drawn as wide as a fine pen (see PaperFile).

inline constexpr double kUnitsPerMm = 100;

/// A kind of paper, mm, held upright.
struct PaperSize {
    const char* name;
    double width;
    double height;
};

inline constexpr PaperSize kPapers[] = {
    {"A4", 210, 297}, {"A3", 297, 420}, {"Letter", 215.9, 279.4}, {"Tabloid", 279.4, 431.8}};

/// The paper of a name, null if there is none.
constexpr const PaperSize* FindPaper(std::string_view name)
{
    for (const PaperSize& paper : kPapers) {
        if (paper.name == name) {
            return &paper;
        }
    }
    return nullptr;
}

/// Nothing stands nearer to the edge of a page: printers leave so much of it white. Millimetres.
inline constexpr double kWhiteEdge = 6;

/// One page: its size in mm, as it is read, and what paints it on a surface of that size.
struct PaperPage {
    double width = 0;
    double height = 0;
    std::function<void(Surface& surface)> paint{};
};

struct PaperDocument {
    std::string title; ///< code page 1252
    std::vector<PaperPage> pages{};
};

/// The unit nearest to a length of so many millimetres that stands on a page.
inline std::int32_t PaperUnits(double millimetres)
{
    return static_cast<std::int32_t>(std::lround(millimetres * kUnitsPerMm));
}

inline Pixel PaperPixel(Point millimetres) { return {PaperUnits(millimetres.x), PaperUnits(millimetres.y)}; }

/// The font whose lines are so many millimetres high.
inline Font PaperFont(double millimetres, std::int32_t weight = Font::kNormal, bool upright = false)
{
    return {PaperUnits(millimetres), weight, upright};
}

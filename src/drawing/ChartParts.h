#pragma once

#include "drawing/ChartTicks.h"
#include "drawing/Surface.h"
#include "raytrace/Lines.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

/// A chart as data: what the curves of all pages and windows are painted from. Places are in the units of the
/// axes; what is not finite or outside of the axes is not seen. Texts are bytes of code page 1252.

struct ChartColours {
    Colour background;
    Colour text;
    Colour frame;
    Colour grid;
    bool operator==(const ChartColours&) const = default;
};

inline constexpr ChartColours kLightChart{{255, 255, 255}, {30, 30, 30}, {90, 90, 90}, {225, 225, 225}};
inline constexpr ChartColours kDarkChart{{32, 34, 37}, {225, 225, 225}, {150, 150, 150}, {62, 65, 70}};

struct ChartAxis {
    std::string title{};
    ChartRange range{};
    /// Round numbers if there are none.
    std::vector<ChartTick> ticks{};
};

/// What the y of a place belongs to.
enum class ChartSide { kLeft, kRight };

struct ChartLine {
    std::vector<Point> points{}; ///< parted where one is not finite
    Colour colour{};
    bool bold = false; ///< two pixels wide
    ChartSide side = ChartSide::kLeft;
    std::string name{}; ///< told above the plot, unless empty
};

/// A filled range of y over all of the plot's width, behind the lines.
struct ChartZone {
    ChartRange y{};
    Colour colour{};
};

/// A dotted line across the plot, at an x (upright) or at a y of the left axis (level), with a label beside
/// it that makes way for others; one that finds no room is left out.
struct ChartMark {
    double at = 0;
    Colour colour{};
    std::string label{};
    bool solid = false;
};

/// A small full disc with a label beside it.
struct ChartDot {
    Point at{};
    Colour colour{};
    std::string label{};
    ChartSide side = ChartSide::kLeft;
};

/// A stretch of the coloured band below the plot, its name in the middle where there is room.
struct ChartStretch {
    ChartRange x{};
    Colour colour{};
    Colour text{};
    std::string name{};
};

struct Chart {
    std::string title{};
    ChartAxis bottom{};
    ChartAxis left{};
    std::optional<ChartAxis> top{};   ///< another scale of the bottom's places, by its ticks
    std::optional<ChartAxis> right{}; ///< another scale of the left's places by its ticks, or one of its own
    std::vector<ChartZone> zones{};
    std::vector<ChartLine> lines{};
    std::vector<ChartMark> uprights{};
    std::vector<ChartMark> levels{};
    std::vector<ChartDot> dots{};
    std::vector<ChartStretch> band{};
    std::string message{}; ///< in the middle of the plot, for a chart that has nothing to show
};

/// Where the plot stands on a surface, and how its pixels are read.
struct ChartPlot {
    PixelRect rect{}; ///< with the frame's pixels; empty where there is no room for a plot
    ChartRange x{};
    ChartRange left{};
    ChartRange right{};

    bool IsEmpty() const { return rect.right <= rect.left || rect.bottom <= rect.top; }
    bool Has(Pixel at) const
    {
        return at.x >= rect.left && at.x < rect.right && at.y >= rect.top && at.y < rect.bottom;
    }
    /// The x and the left y of a pixel; the pixel, still with fractions, of a place.
    Point PlaceOf(Pixel at) const;
    Point PixelOf(Point place, ChartSide side = ChartSide::kLeft) const;
};

inline constexpr std::int32_t kChartFontHeight = 14;

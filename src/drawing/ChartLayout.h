#pragma once

#include "drawing/ChartParts.h"

/// How a chart's parts share the surface; made once for a painting.
struct ChartLayout {
    std::int32_t font_height = kChartFontHeight;
    ChartPlot plot{};
    std::vector<ChartTick> bottom{}; ///< of each axis, as they are painted; texts that would collide are gone
    std::vector<ChartTick> left{};
    std::vector<ChartTick> top{};
    std::vector<ChartTick> right{};
    Pixel title{};              ///< upper left corner
    std::vector<Pixel> names{}; ///< of the samples before the lines' names, in the order of the named lines
    std::int32_t band_top = 0;  ///< of the coloured band; its height is BandHeight
};

inline constexpr std::int32_t kTickLength = 4;

ChartLayout LayOutChart(const Chart& chart, std::int32_t width, std::int32_t height, std::int32_t fontHeight);

/// Pixels that a text takes at most, as far as that can be told without the font: digits are half as wide as
/// a line of Arial is high.
std::int32_t ChartTextWidth(const std::string& text, std::int32_t fontHeight);

std::int32_t ChartBandHeight(std::int32_t fontHeight);
/// The sample of the colour before a line's name.
std::int32_t ChartSampleWidth(std::int32_t fontHeight);

/// Where a value stands in a range: 0 at its start, 1 at its end.
double ShareOf(double value, const ChartRange& range);

#pragma once

#include "drawing/ChartParts.h"

/// The plot of a chart that is painted on `width` by `height` pixels.
ChartPlot PlotOf(const Chart& chart, std::int32_t width, std::int32_t height,
                 std::int32_t fontHeight = kChartFontHeight);

/// Fills the surface with the chart. The width of a text is taken as half of the font's height a character.
void PaintChart(Surface& surface, const Chart& chart, const ChartColours& colours,
                std::int32_t fontHeight = kChartFontHeight);

#include "drawing/ChartLayout.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr std::int32_t kGap = 4;
constexpr int kTicksAtMost = 12;
constexpr std::int32_t kSmallestPlot = 8;

std::int32_t WidestText(const std::vector<ChartTick>& ticks, std::int32_t fontHeight)
{
    std::int32_t widest = 0;
    for (const ChartTick& tick : ticks) {
        widest = std::max(widest, ChartTextWidth(tick.text, fontHeight));
    }
    return widest;
}

/// The axis' ticks on `pixels`, each text of its own with room around it.
std::vector<ChartTick> TicksUpward(const ChartAxis& axis, std::int32_t pixels, std::int32_t fontHeight)
{
    return axis.ticks.empty() ? RoundTicks(axis.range, std::clamp(pixels / (2 * fontHeight), 1, kTicksAtMost))
                              : axis.ticks;
}

std::vector<ChartTick> TicksAcross(const ChartAxis& axis, std::int32_t pixels, std::int32_t fontHeight)
{
    if (!axis.ticks.empty()) {
        return axis.ticks;
    }
    int atMost = kTicksAtMost;
    std::vector<ChartTick> ticks = RoundTicks(axis.range, atMost);
    while (atMost > 1 && (WidestText(ticks, fontHeight) + fontHeight) * atMost > pixels) {
        ticks = RoundTicks(axis.range, --atMost);
    }
    return ticks;
}

/// Takes away ticks that are not on the axis, and texts that would touch the one before.
void KeepApart(std::vector<ChartTick>& ticks, const ChartPlot& plot, bool upward, std::int32_t fontHeight,
               const auto& pixelOf)
{
    const double first = upward ? plot.rect.top : plot.rect.left;
    const double last = upward ? plot.rect.bottom : plot.rect.right;
    std::erase_if(ticks, [&](const ChartTick& tick) {
        const double pixel = pixelOf(tick.value);
        return !(pixel >= first - 0.5 && pixel <= last - 0.5);
    });
    double busyFrom = std::numeric_limits<double>::infinity();
    double busyTo = -std::numeric_limits<double>::infinity();
    for (ChartTick& tick : ticks) {
        const double half =
            upward ? fontHeight / 2.0 : ChartTextWidth(tick.text, fontHeight) / 2.0 + kGap / 2.0;
        const double from = pixelOf(tick.value) - half;
        const double to = pixelOf(tick.value) + half;
        if (to > busyFrom && from < busyTo) {
            tick.text.clear();
        } else if (!tick.text.empty()) {
            busyFrom = std::min(busyFrom, from);
            busyTo = std::max(busyTo, to);
        }
    }
}

/// Places the names of the lines in rows; the height that they use.
std::int32_t PlaceNames(const Chart& chart, std::int32_t width, std::int32_t top, ChartLayout& layout)
{
    const std::int32_t fontHeight = layout.font_height;
    std::int32_t x = kGap;
    std::int32_t y = top;
    for (const ChartLine& line : chart.lines) {
        if (line.name.empty()) {
            continue;
        }
        const std::int32_t wide =
            ChartSampleWidth(fontHeight) + ChartTextWidth(line.name, fontHeight) + fontHeight;
        if (x > kGap && x + wide > width) {
            x = kGap;
            y += fontHeight + 2;
        }
        layout.names.push_back({x, y});
        x += wide;
    }
    return layout.names.empty() ? 0 : y + fontHeight + kGap - top;
}

/// What an axis across takes beside the plot.
std::int32_t AcrossHeight(const ChartAxis& axis, std::int32_t fontHeight)
{
    return kTickLength + fontHeight + 2 + (axis.title.empty() ? 0 : fontHeight + 2);
}

std::int32_t UpwardWidth(const ChartAxis& axis, const std::vector<ChartTick>& ticks, std::int32_t fontHeight)
{
    return kTickLength + 2 + WidestText(ticks, fontHeight) + kGap + (axis.title.empty() ? 0 : fontHeight + 2);
}

/// Upper and lower edge of the plot.
void ShareHeight(const Chart& chart, std::int32_t width, std::int32_t height, ChartLayout& layout)
{
    const std::int32_t fontHeight = layout.font_height;
    std::int32_t top = kGap;
    layout.title = {kGap, top};
    top += chart.title.empty() ? 0 : fontHeight + kGap;
    top += PlaceNames(chart, width, top, layout);
    top += chart.top ? AcrossHeight(*chart.top, fontHeight) : fontHeight / 2;
    std::int32_t bottom = height - kGap - AcrossHeight(chart.bottom, fontHeight);
    layout.band_top = bottom;
    if (!chart.band.empty()) {
        layout.band_top = bottom - ChartBandHeight(fontHeight);
        bottom = layout.band_top;
    }
    layout.plot.rect.top = top;
    layout.plot.rect.bottom = bottom;
}

void ShareWidth(const Chart& chart, std::int32_t width, ChartLayout& layout)
{
    const std::int32_t fontHeight = layout.font_height;
    PixelRect& rect = layout.plot.rect;
    layout.left = TicksUpward(chart.left, rect.bottom - rect.top, fontHeight);
    rect.left = UpwardWidth(chart.left, layout.left, fontHeight);
    rect.right = width - 2 * fontHeight; // half of the last text below
    if (chart.right) {
        layout.right = TicksUpward(*chart.right, rect.bottom - rect.top, fontHeight);
        rect.right = std::min(rect.right, width - UpwardWidth(*chart.right, layout.right, fontHeight));
    }
}

} // namespace

std::int32_t ChartTextWidth(const std::string& text, std::int32_t fontHeight)
{
    constexpr std::size_t kLongest = 1000;
    return static_cast<std::int32_t>(std::min(text.size(), kLongest)) * fontHeight / 2;
}

std::int32_t ChartBandHeight(std::int32_t fontHeight) { return fontHeight + 2; }

std::int32_t ChartSampleWidth(std::int32_t fontHeight) { return 2 * fontHeight; }

ChartLayout LayOutChart(const Chart& chart, std::int32_t width, std::int32_t height, std::int32_t fontHeight)
{
    ChartLayout layout;
    layout.font_height = std::max(fontHeight, 2);
    fontHeight = layout.font_height;
    ShareHeight(chart, width, height, layout);
    ShareWidth(chart, width, layout);
    PixelRect& rect = layout.plot.rect;
    if (rect.right - rect.left < kSmallestPlot || rect.bottom - rect.top < kSmallestPlot) {
        rect = {};
        return layout;
    }
    layout.plot.x = chart.bottom.range;
    layout.plot.left = chart.left.range;
    layout.plot.right = chart.right ? chart.right->range : chart.left.range;

    layout.bottom = TicksAcross(chart.bottom, rect.right - rect.left, fontHeight);
    const ChartPlot& plot = layout.plot;
    const auto across = [&](double x) { return plot.PixelOf({x, plot.left.from}).x; };
    const auto upward = [&](ChartSide side) {
        return [&plot, side](double y) { return plot.PixelOf({plot.x.from, y}, side).y; };
    };
    KeepApart(layout.bottom, plot, false, fontHeight, across);
    KeepApart(layout.left, plot, true, fontHeight, upward(ChartSide::kLeft));
    KeepApart(layout.right, plot, true, fontHeight, upward(ChartSide::kRight));
    if (chart.top) {
        layout.top = TicksAcross(*chart.top, rect.right - rect.left, fontHeight);
        KeepApart(layout.top, plot, false, fontHeight, across);
    }
    return layout;
}

double ShareOf(double value, const ChartRange& range)
{
    return (value - range.from) / (range.to - range.from);
}

Point ChartPlot::PlaceOf(Pixel at) const
{
    const double across = (at.x - static_cast<double>(rect.left)) / (rect.right - 1.0 - rect.left);
    const double down = (at.y - static_cast<double>(rect.top)) / (rect.bottom - 1.0 - rect.top);
    return {x.from + across * (x.to - x.from), left.to + down * (left.from - left.to)};
}

Point ChartPlot::PixelOf(Point place, ChartSide side) const
{
    const double across = ShareOf(place.x, x);
    const double up = ShareOf(place.y, side == ChartSide::kLeft ? left : right);
    return {rect.left + across * (rect.right - 1.0 - rect.left),
            rect.bottom - 1.0 - up * (rect.bottom - 1.0 - rect.top)};
}

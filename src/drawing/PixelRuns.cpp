#include "drawing/PixelRuns.h"

#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

std::int64_t Difference(std::int32_t a, std::int32_t b) { return std::int64_t{a} - b; }

PixelRect Turned(const PixelRect& rect) { return {rect.top, rect.left, rect.bottom, rect.right}; }
Pixel Turned(Pixel pixel) { return {pixel.y, pixel.x}; }

/// A line that runs further in x than in y: one pixel to a column. `append` takes the runs.
template <class Append>
void RunAlongX(Pixel from, Pixel to, const PixelRect& clip, Append append)
{
    const std::int64_t dx = Difference(to.x, from.x);
    const double slope =
        dx == 0 ? 0.0 : static_cast<double>(Difference(to.y, from.y)) / static_cast<double>(dx);
    const std::int64_t first = std::max<std::int64_t>(std::min(from.x, to.x), clip.left);
    const std::int64_t last = std::min<std::int64_t>(std::max(from.x, to.x), std::int64_t{clip.right} - 1);
    const auto rowAt = [&](std::int64_t x) {
        return from.y + static_cast<std::int64_t>(std::floor(static_cast<double>(x - from.x) * slope + 0.5));
    };
    for (std::int64_t x = first; x <= last;) {
        const std::int64_t y = rowAt(x);
        std::int64_t end = x + 1;
        while (end <= last && rowAt(end) == y) {
            ++end;
        }
        if (y >= clip.top && y < clip.bottom) {
            append(PixelRect{static_cast<std::int32_t>(x), static_cast<std::int32_t>(y),
                             static_cast<std::int32_t>(end), static_cast<std::int32_t>(y + 1)});
        }
        x = end;
    }
}

/// The first column whose centre lies right of where the edge a-b crosses the centre line of the row y.
std::int64_t CrossingColumn(Pixel a, Pixel b, std::int32_t y)
{
    const double down = static_cast<double>(Difference(y, a.y)) + 0.5;
    const double along =
        down * static_cast<double>(Difference(b.x, a.x)) / static_cast<double>(Difference(b.y, a.y));
    return a.x + static_cast<std::int64_t>(std::ceil(along - 0.5));
}

} // namespace

void AppendLine(Pixel from, Pixel to, const PixelRect& clip, std::vector<PixelRect>& runs)
{
    if (std::abs(Difference(to.x, from.x)) >= std::abs(Difference(to.y, from.y))) {
        RunAlongX(from, to, clip, [&](const PixelRect& run) { runs.push_back(run); });
    } else {
        RunAlongX(Turned(from), Turned(to), Turned(clip),
                  [&](const PixelRect& run) { runs.push_back(Turned(run)); });
    }
}

void AppendPolygon(std::span<const Pixel> points, const PixelRect& clip, std::vector<PixelRect>& runs)
{
    if (points.empty()) {
        return;
    }
    const auto [highest, lowest] =
        std::minmax_element(points.begin(), points.end(), [](Pixel a, Pixel b) { return a.y < b.y; });
    std::vector<std::int64_t> columns;
    for (std::int32_t y = std::max(highest->y, clip.top); y < std::min(lowest->y, clip.bottom); ++y) {
        columns.clear();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const Pixel a = points[i];
            const Pixel b = points[(i + 1) % points.size()];
            if ((a.y <= y) != (b.y <= y)) {
                columns.push_back(CrossingColumn(a, b, y));
            }
        }
        std::sort(columns.begin(), columns.end());
        for (std::size_t i = 0; i + 1 < columns.size(); i += 2) {
            const std::int64_t left = std::max<std::int64_t>(columns[i], clip.left);
            const std::int64_t right = std::min<std::int64_t>(columns[i + 1], clip.right);
            if (left < right) {
                runs.push_back({static_cast<std::int32_t>(left), y, static_cast<std::int32_t>(right), y + 1});
            }
        }
    }
}

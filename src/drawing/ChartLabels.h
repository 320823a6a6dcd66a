#pragma once

#include "drawing/Surface.h"
#include "raytrace/Lines.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

/// Finds room for the labels in a plot. The plot is cut into small cells, and each knows whether a line or a
/// label is in it, so that a label costs no more for many lines.
class ChartLabels {
public:
    ChartLabels(const PixelRect& plot, std::int32_t fontHeight);

    /// A line in pixels that labels keep clear of as long as there is room elsewhere.
    void AddLine(Point from, Point to);

    /// The first of `places` (upper left corners) at which the text lies in the plot clear of lines and
    /// labels, or else of labels; none if there is no such place. The place is taken.
    std::optional<Pixel> Take(std::span<const Pixel> places, const std::string& text);

private:
    enum Content : std::uint8_t { kLine = 1, kLabel = 2 };

    std::size_t CellAt(std::int32_t row, std::int32_t column) const;
    PixelRect BoxAt(Pixel at, const std::string& text) const;
    bool IsInside(const PixelRect& box) const;
    /// All that is in the cells of a box.
    unsigned ContentOf(const PixelRect& box) const;
    template <class Visit>
    void VisitCells(const PixelRect& box, Visit visit) const;

    PixelRect m_plot;
    std::int32_t m_fontHeight;
    std::int32_t m_columns;
    std::int32_t m_rows;
    std::vector<std::uint8_t> m_cells;
};

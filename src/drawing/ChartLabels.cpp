#include "drawing/ChartLabels.h"

#include "drawing/ChartLayout.h"
#include "drawing/ClipSegment.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace {

constexpr std::int32_t kCell = 4; // pixels

std::int32_t CellsOf(std::int32_t pixels) { return std::max(pixels, 0) / kCell + 1; }

} // namespace

ChartLabels::ChartLabels(const PixelRect& plot, std::int32_t fontHeight)
    : m_plot(plot), m_fontHeight(fontHeight), m_columns(CellsOf(plot.right - plot.left)),
      m_rows(CellsOf(plot.bottom - plot.top)),
      m_cells(static_cast<std::size_t>(m_columns) * static_cast<std::size_t>(m_rows))
{}

std::size_t ChartLabels::CellAt(std::int32_t row, std::int32_t column) const
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}

void ChartLabels::AddLine(Point from, Point to)
{
    const double left = m_plot.left;
    const double top = m_plot.top;
    const auto part = ClipSegment(from, to, {left, top}, {m_plot.right - 1.0, m_plot.bottom - 1.0});
    if (!part) {
        return;
    }
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::max(std::fabs(dx), std::fabs(dy)) * (part->leave - part->enter);
    const int steps = static_cast<int>(length * 2 / kCell) + 1;
    for (int i = 0; i <= steps; ++i) {
        const double share = part->enter + (part->leave - part->enter) * i / steps;
        const auto column = static_cast<std::int32_t>((from.x + dx * share - left) / kCell);
        const auto row = static_cast<std::int32_t>((from.y + dy * share - top) / kCell);
        m_cells[CellAt(row, column)] |= kLine;
    }
}

std::optional<Pixel> ChartLabels::Take(std::span<const Pixel> places, const std::string& text)
{
    for (const unsigned unwanted : {unsigned{kLine} | kLabel, unsigned{kLabel}}) {
        for (const Pixel at : places) {
            const PixelRect box = BoxAt(at, text);
            if (IsInside(box) && (ContentOf(box) & unwanted) == 0) {
                VisitCells(box, [&](std::size_t cell) { m_cells[cell] |= kLabel; });
                return at;
            }
        }
    }
    return std::nullopt;
}

PixelRect ChartLabels::BoxAt(Pixel at, const std::string& text) const
{
    return {at.x, at.y, at.x + ChartTextWidth(text, m_fontHeight), at.y + m_fontHeight};
}

bool ChartLabels::IsInside(const PixelRect& box) const
{
    return box.left >= m_plot.left && box.right <= m_plot.right && box.top >= m_plot.top &&
           box.bottom <= m_plot.bottom;
}

unsigned ChartLabels::ContentOf(const PixelRect& box) const
{
    unsigned content = 0;
    VisitCells(box, [&](std::size_t cell) { content |= m_cells[cell]; });
    return content;
}

template <class Visit>
void ChartLabels::VisitCells(const PixelRect& box, Visit visit) const
{
    const std::int32_t lastRow = (box.bottom - 1 - m_plot.top) / kCell;
    const std::int32_t lastColumn = (box.right - 1 - m_plot.left) / kCell;
    for (std::int32_t row = (box.top - m_plot.top) / kCell; row <= lastRow; ++row) {
        for (std::int32_t column = (box.left - m_plot.left) / kCell; column <= lastColumn; ++column) {
            visit(CellAt(row, column));
        }
    }
}

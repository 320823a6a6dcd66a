#pragma once

#include "drawing/paper/Paper.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

/// A report as data, before it is laid out on pages. Texts are code page 1252.

/// Rows of cells under a heading. A row of one cell is a sentence, or, before a row of more, the heading of
/// what follows; a row of empty cells is a gap.
struct ReportTable {
    std::string heading;
    std::vector<std::string> columns{}; ///< their titles, none for a table without
    std::vector<std::vector<std::string>> rows{};
};

/// A picture as wide as the page.
struct ReportPicture {
    std::string heading{};
    double height = 0; ///< mm
    /// Paints on the place of the page.
    std::function<void(Surface& page, const PixelRect& place)> paint{};
};

using ReportPart = std::variant<ReportPicture, ReportTable>;

struct PaperReport {
    std::string title;
    std::string date;
    std::string description{}; ///< lines parted by LF or CR LF
    std::vector<ReportPart> parts{};
};

inline constexpr double kReportMargin = 16; ///< of a page, mm
inline constexpr std::size_t kMostReportPages =
    8; ///< what is behind them is not printed, which the last one says
inline constexpr std::size_t kMostTableRows = 300; ///< of one table, likewise

/// How wide pictures and tables are on a paper, mm.
constexpr double ReportWidth(const PaperSize& paper) { return paper.width - 2 * kReportMargin; }

/// Lays the report out on pages with a running title and their numbers. Headings stay with their rows; tables
/// that are long and narrow stand side by side with themselves.
PaperDocument LayOutReport(const PaperReport& report, const PaperSize& paper, int language);

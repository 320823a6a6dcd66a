#pragma once

#include "model/optics/ReadingSeries.h"
#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

// What becomes of the series that the builder has chosen: one figure each, or one of their mean.
// -------------

struct SeriesFigure {
    std::string name;
    std::optional<Figure> figure;
    std::string fault; ///< why it has none; of a mean, what was left out
};

/// Those series as one: the mean over the ones that can be reduced. Otherwise each for itself, side by side.
/// One series alone is always itself. Indices that the book does not have are passed over. D, f: mm.
std::vector<SeriesFigure> FiguresOfSeries(const ReadingBook& book, std::span<const std::size_t> chosen,
                                          bool averaged, double D, double f, int language);

/// The list of results: a column of names, then one for each figure, with a dash where there is none.
std::vector<std::string> SeriesResultTitles(std::span<const SeriesFigure> figures, int language);
ListRows SeriesResultRows(std::span<const SeriesFigure> figures, int language);

/// The sentences below: a verdict for each figure, and every fault, each with its series if there are
/// several.
std::string SeriesVerdict(std::span<const SeriesFigure> figures, int language);

// The table of the series --------------------------------------------------------------------------------

inline constexpr ListColumn kSeriesColumns[] = {{{"Name", "Name"}, 150},
                                                {{"Date", "Datum"}, 90},
                                                {{"Source", "Lichtquelle"}, 80},
                                                {{"Mask / Pinstick", "Maske / Pinstick"}, 150},
                                                {{"Readings", "Messwerte"}, 80, true}};

/// A row of that table, name and all.
ListRow SeriesRow(const ReadingSeries& series, int language);

/// A mask in words: its kind and its zones.
std::string MaskName(std::int32_t mask_type, std::size_t zones, int language);

#pragma once

#include "lib/text/Table.h"
#include "model/optics/Figure.h"

#include <span>
#include <string>

/// A figure of a mirror of the diameter D, mm, as `figure` prints it, in UTF-8: its zones, an empty line and
/// its numbers with their units; in csv the zones alone; in JSON the zones, the numbers and the profile.
std::string FigureReport(const Figure& figure, double D, TableFormat format);

/// The figure of one series of a file that holds several.
struct NamedFigure {
    std::string name; ///< UTF-8
    Figure figure;
};

/// The figures of several series, one after the other: in text each below the line "# NAME", in csv with the
/// series as a first column, in JSON an array of objects whose first key is the series.
std::string SeriesFiguresReport(std::span<const NamedFigure> figures, double D, TableFormat format);

#pragma once

#include "lib/text/Table.h"
#include "model/optics/Figure.h"

#include <string>

/// A figure of a mirror of the diameter D, mm, as `figure` prints it, in UTF-8: its zones, an empty line and
/// its numbers with their units; in csv the zones alone; in JSON the zones, the numbers and the profile.
std::string FigureReport(const Figure& figure, double D, TableFormat format);

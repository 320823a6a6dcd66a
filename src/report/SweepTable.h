#pragma once

#include "lib/text/Table.h"
#include "model/analysis/Variation.h"

#include <functional>
#include <string_view>

/// Takes the bytes of a table piece by piece; false when it can take no more.
using TableSink = std::function<bool(std::string_view bytes)>;

/// Writes all rows of a variation in their order, computed by `jobs` threads in blocks of which only a few
/// exist at any time. Ends early once the sink takes no more.
void WriteSweep(const Variation& variation, const TableLayout& layout, int jobs, const TableSink& sink);

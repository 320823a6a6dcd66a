#pragma once

#include <string>
#include <vector>

/// One row of a result list: its cells, as bytes of code page 1252.
using ListRow = std::vector<std::string>;

/// Rows in the order of making. A list inserts each at its top, so that the user reads them in reverse,
/// unless the list's own maker says that it appends.
using ListRows = std::vector<ListRow>;

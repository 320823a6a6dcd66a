#pragma once

#include <string>

/// Appends the number with the fewest digits that read back as the same double; "nan", "inf", "-inf".
void AppendNumber(std::string& out, double value);

#pragma once

#include <initializer_list>
#include <string>

/// As FormatText, for real numbers alone: in the place of one that is not finite stands an en dash. `format`
/// has a conversion for each of the numbers at the most; numbers without one are left out.
std::string FiniteText(const char* format, std::initializer_list<double> values);

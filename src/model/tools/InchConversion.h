#pragma once

#include <string>

/// The result texts of the inch calculator, with six decimals, for what was typed into the other field.
std::string MmToInchText(const std::string& mm);
std::string InchToMmText(const std::string& inch);

#pragma once

#include "model/analysis/Values.h"

#include <string>
#include <vector>

/// A text or number of two designs beside one another.
struct ComparedRow {
    const char* name;
    const char* unit; ///< empty for a text
    Bilingual label;
    bool is_text = false;
    std::string first_text{}; ///< bytes of code page 1252
    std::string second_text{};
    double first = 0;
    double second = 0;

    /// Two NaN do not differ.
    bool Differs() const;
};

/// The texts of the design file, then all values of the table. Settles both designs.
std::vector<ComparedRow> CompareDesigns(const DesignState& first, const DesignState& second);

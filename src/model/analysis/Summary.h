#pragma once

#include "model/analysis/Recalculation.h"

#include <string>
#include <vector>

/// One row of the design summary; texts are bytes of code page 1252.
struct SummaryRow {
    enum Kind {
        kTitle,   ///< the telescope's title, in bold over both columns
        kHeading, ///< a section's heading, in bold, without a value
        kValue,   ///< a label with its value
    };
    Kind kind = kValue;
    std::string label;
    std::string value;
    bool warning = false; ///< the value is below the wanted fully lit field
    bool operator==(const SummaryRow&) const = default;
};

/// The rows of the summary from the top down. A number that is not finite is an en dash: a new telescope has
/// no angle of its field until the next recalculation.
std::vector<SummaryRow> SummaryRows(COrrevaData& record, const FullField& field, int language);

/// The value of a row as it is told to those who do not see its colour.
std::string SpokenValue(const SummaryRow& row, int language);

double FocalRatio(COrrevaData& record);

/// The limits of the fully lit field, mm. The first divides by less than the run from the primary to the
/// tube's front end: half the tube's width counts twice. Kept: builders compare by it.
double TubeFieldLimit(COrrevaData& record);
double FocuserFieldLimit(COrrevaData& record);

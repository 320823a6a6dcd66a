#pragma once

#include <string>
#include <vector>

class COrrevaData;

/// The 100% illuminated field as the document keeps it.
struct FullField {
    double diameter = 0.0; ///< mm in the focal plane
    double angle = 0.0;    ///< full angle in degrees
};

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

/// The rows of the summary from the top down.
std::vector<SummaryRow> SummaryRows(COrrevaData& record, const FullField& field, int language);

/// The limits of the fully lit field, mm. The first divides by less than the run from the primary to the
/// tube's front end: half the tube's width counts twice. Kept: builders compare by it.
double TubeFieldLimit(COrrevaData& record);
double FocuserFieldLimit(COrrevaData& record);

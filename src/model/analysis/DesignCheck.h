#pragma once

#include "model/analysis/Values.h"

#include <cstddef>
#include <string>
#include <vector>

/// What is wrong with a design, and what to do.

enum class Severity { kError, kWarning, kNote };

/// "error", "warning", "note": the word for scripts, in English always.
const char* SeverityWord(Severity severity);
/// The word for the user.
extern const Bilingual kSeverityNames[3];

struct DesignFinding {
    Severity severity;
    const char* code;
    const DesignValue* value; ///< the number at fault
    const char* concern;      ///< the key of the field by which a user would mend it
    std::string sentence;     ///< bytes of code page 1252
    std::string remedy;

    /// Both sentences.
    std::string Text() const { return sentence + " " + remedy; }
};

/// All findings in the order of the codes. A NaN is neither below nor above anything; an infinity counts.
/// Reads the design, and settles it, as ReadDesignValues does.
std::vector<DesignFinding> CheckDesign(const DesignState& design, int language);

/// How many of the findings are errors or warnings.
std::size_t CountProblems(const std::vector<DesignFinding>& findings, Severity severity);

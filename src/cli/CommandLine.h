#pragma once

#include "cli/words/ProgramWords.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The command line, taken apart: the verb, the words that are no options, and the options in their order.
struct CommandLine {
    Verb verb = kReport;
    std::vector<std::string> plain;
    std::vector<std::pair<std::string, std::string>> options;
    bool help = false;
    bool version = false;

    bool Has(std::string_view option) const;
    /// The last value given for an option.
    std::optional<std::string> Value(std::string_view option) const;
    std::vector<std::string> Values(std::string_view option) const;
};

/// Thrown where the command line is not understood. The program ends with status 2 and the line on standard
/// error.
struct UsageFault {
    std::string line; ///< without its end
};

/// Takes `arguments` (behind the program's name) apart. A word that is not understood is a UsageFault.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);

/// Throws a UsageFault whose line names the word at fault.
[[noreturn]] void UsageError(const std::string& reason, const std::string& word);

// Values that must be understood whole; others are a UsageFault -----------------------------------------

/// The index of a value among `choices`.
std::size_t ChoiceOf(const std::string& option, const std::string& value,
                     std::initializer_list<std::string_view> choices);
/// A whole number between two ends, both included.
std::int32_t WholeNumber(const std::string& option, const std::string& value, std::int32_t low,
                         std::int32_t high);
/// Two numbers with decimal points, "X,Y".
std::pair<double, double> NumberPair(const std::string& option, const std::string& value);
/// Two whole numbers parted by `separator`.
std::pair<std::int32_t, std::int32_t> WholePair(const std::string& option, const std::string& value,
                                                char separator, std::int32_t low, std::int32_t high);

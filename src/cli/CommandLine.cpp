#include "cli/CommandLine.h"

#include "lib/text/CharTools.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool LooksLikeOption(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

/// The first word that is neither an option nor the value of one; the number of words if there is none.
std::size_t FindVerb(const std::vector<std::string>& words)
{
    for (std::size_t i = 0; i < words.size(); ++i) {
        const OptionWords* const option = FindOptionWords(words[i]);
        if (option != nullptr) {
            i += option->value.empty() ? 0U : 1U;
        } else if (!LooksLikeOption(words[i])) {
            return i;
        }
    }
    return words.size();
}

} // namespace

bool CommandLine::Has(std::string_view option) const { return !Values(option).empty(); }

std::optional<std::string> CommandLine::Value(std::string_view option) const
{
    const std::vector<std::string> values = Values(option);
    return values.empty() ? std::nullopt : std::optional(values.back());
}

std::vector<std::string> CommandLine::Values(std::string_view option) const
{
    std::vector<std::string> values;
    for (const auto& [name, value] : options) {
        if (name == option) {
            values.push_back(value);
        }
    }
    return values;
}

CommandLine ParseCommandLine(const std::vector<std::string>& arguments)
{
    CommandLine words;
    const std::size_t verbAt = FindVerb(arguments);
    const bool hasVerb = verbAt < arguments.size();
    if (hasVerb) {
        const VerbWords* const verb = FindVerbWords(arguments[verbAt]);
        if (verb == nullptr) {
            UsageError("unknown verb", arguments[verbAt]);
        }
        words.verb = verb->verb;
    }

    bool optionsEnded = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (i == verbAt) {
            continue;
        }
        const OptionWords* const option = optionsEnded ? nullptr : FindOptionWords(word);
        const bool belongs = option != nullptr && (option->verbs & words.verb) != 0;
        if (belongs && !option->value.empty()) {
            if (i + 1 == arguments.size()) {
                UsageError("a value is missing behind", word);
            }
            words.options.emplace_back(word, arguments[++i]);
            if (word == "-o" && arguments[i].empty()) {
                UsageError("a file name is missing behind", word);
            }
        } else if (belongs) {
            words.options.emplace_back(word, "");
        } else if (!optionsEnded && word == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && LooksLikeOption(word) && words.verb != kCalc) {
            UsageError("unknown option", word);
        } else {
            words.plain.push_back(word);
        }
    }
    words.help = words.Has("--help");
    words.version = words.Has("--version");
    if (!hasVerb && !words.help && !words.version) {
        UsageError("a verb is missing; see", "--help");
    }
    return words;
}

void UsageError(const std::string& reason, const std::string& word)
{
    std::string line = "orreva-cli: " + reason + " " + word;
    std::ranges::replace_if(
        line, [](char c) { return c == '\n' || c == '\r'; }, ' ');
    throw UsageFault{line};
}

std::size_t ChoiceOf(const std::string& option, const std::string& value,
                     std::initializer_list<std::string_view> choices)
{
    const auto found = std::ranges::find(choices, value);
    if (found == choices.end()) {
        UsageError(option + " does not take", value);
    }
    return static_cast<std::size_t>(found - choices.begin());
}

std::int32_t WholeNumber(const std::string& option, const std::string& value, std::int32_t low,
                         std::int32_t high)
{
    std::int32_t number = 0;
    const char* const end = value.data() + value.size();
    const auto read = std::from_chars(value.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end || number < low || number > high) {
        UsageError(option + " does not take", value);
    }
    return number;
}

std::pair<double, double> NumberPair(const std::string& option, const std::string& value)
{
    const std::size_t comma = value.find(',');
    const auto number = [&](const std::string& text) {
        double read = 0.0;
        const char* const end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, read);
        if (result.ec != std::errc() || result.ptr != end || !std::isfinite(read)) {
            UsageError(option + " does not take", value);
        }
        return read;
    };
    if (comma == std::string::npos) {
        UsageError(option + " does not take", value);
    }
    return {number(value.substr(0, comma)), number(value.substr(comma + 1))};
}

std::pair<std::int32_t, std::int32_t> WholePair(const std::string& option, const std::string& value,
                                                char separator, std::int32_t low, std::int32_t high)
{
    const std::size_t at = value.find(separator);
    if (at == std::string::npos) {
        UsageError(option + " does not take", value);
    }
    return {WholeNumber(option, value.substr(0, at), low, high),
            WholeNumber(option, value.substr(at + 1), low, high)};
}

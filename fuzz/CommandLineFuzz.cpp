#include "cli/CommandLine.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

// Any lines as the companion's words: they are understood or named at fault, and so is each as a number.

namespace {

void Require(bool held, const char* what)
{
    if (!held) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

/// Runs a reader of words; a fault has one line.
template <class Read>
void ReadOrFail(Read read)
{
    try {
        read();
    } catch (const UsageFault& fault) {
        Require(fault.line.starts_with("orreva-cli: "), "the fault does not say whose it is");
        Require(fault.line.find_first_of("\r\n") == std::string::npos, "the fault has two lines");
    }
}

void Parse(const std::vector<std::string>& arguments)
{
    const CommandLine words = ParseCommandLine(arguments);
    std::size_t taken = words.plain.size();
    for (const auto& [name, value] : words.options) {
        Require(name.size() > 1 && name.front() == '-', "an option without a dash");
        Require(words.Has(name) && words.Value(name).has_value(), "an option is lost");
        taken += value.empty() ? 1u : 2u;
    }
    Require(taken <= arguments.size(), "a word counts twice");
    Require(words.help == words.Has("--help") && words.version == words.Has("--version"), "help is lost");
}

void ReadNumbers(const std::string& word)
{
    constexpr std::int32_t kLow = -70;
    constexpr std::int32_t kHigh = 90000;
    ReadOrFail([&] {
        const std::int32_t number = WholeNumber("--seed", word, kLow, kHigh);
        Require(kLow <= number && number <= kHigh, "a whole number beyond its ends");
        Require(number == std::atoi(word.c_str()), "another whole number");
    });
    ReadOrFail([&] {
        const auto [x, y] = NumberPair("--pointer", word);
        Require(std::isfinite(x) && std::isfinite(y), "a pair that is not finite");
        Require(std::count(word.begin(), word.end(), ',') == 1, "a pair without a comma, or with two");
    });
    ReadOrFail([&] {
        const auto [width, height] = WholePair("--size", word, 'x', 1, kHigh);
        Require(1 <= width && width <= kHigh && 1 <= height && height <= kHigh, "a size beyond its ends");
    });
    ReadOrFail([&] {
        const std::string_view choices[] = {"en", "de"};
        Require(choices[ChoiceOf("--language", word, {"en", "de"})] == word, "another choice");
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view text(reinterpret_cast<const char*>(data), size);
    text = text.substr(0, text.find('\0')); // a word ends there before the program gets it
    std::vector<std::string> arguments;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        arguments.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    ReadOrFail([&] { Parse(arguments); });
    for (const std::string& word : arguments) {
        ReadNumbers(word);
    }
    return 0;
}

#include "cli/VerbTools.h"

std::string OutputPath(const CommandLine& words) { return words.Value("-o").value_or(""); }

std::optional<std::string> FileWord(const CommandLine& words, std::size_t first)
{
    if (words.plain.size() > first + 1) {
        UsageError("too many words:", words.plain[first + 1]);
    }
    return words.plain.size() > first ? std::optional(words.plain[first]) : std::nullopt;
}

TableFormat FormatOf(const CommandLine& words)
{
    constexpr TableFormat kFormats[] = {TableFormat::kText, TableFormat::kCsv, TableFormat::kJson};
    const auto format = words.Value("--format");
    return format ? kFormats[ChoiceOf("--format", *format, {"text", "csv", "json"})] : TableFormat::kText;
}

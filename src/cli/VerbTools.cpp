#include "cli/VerbTools.h"

DesignState DesignOf(COrrevaDoc& document)
{
    document.Recalculate();
    return {*document.active_record, {document.field_diameter_100, document.field_angle_100}};
}

const DesignValue& ValueOf(const std::string& option, const std::string& name)
{
    const DesignValue* const value = FindDesignValue(name);
    if (value == nullptr) {
        UsageError("unknown name in " + option, name);
    }
    return *value;
}

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

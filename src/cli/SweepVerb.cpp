#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "cli/Verbs.h"
#include "lib/text/Numbers.h"
#include "report/SweepTable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <thread>

namespace {

constexpr std::size_t kMostVaried = 4;
constexpr std::int64_t kMostRows = 100'000'000;
constexpr int kMostJobs = 256;

/// A number as `--set` reads it, which must be one from its first character to its last.
std::optional<double> WholeReal(const std::string& text)
{
    if (!IsNumberText(text.c_str())) {
        return std::nullopt;
    }
    const double value = TextToDouble(text.c_str());
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// Digits alone; nothing for a number from which no table can be made.
std::optional<std::int64_t> PointCount(const std::string& text)
{
    std::int64_t count = 0;
    const char* const end = text.data() + text.size();
    const bool digits = !text.empty() && text.front() != '-';
    const auto read = std::from_chars(text.data(), end, count);
    return digits && read.ec == std::errc() && read.ptr == end && count >= 1 ? std::optional(count)
                                                                             : std::nullopt;
}

/// Takes the text before the first colon off `rest`; nothing if there is none.
std::optional<std::string> TakePart(std::string& rest)
{
    const std::size_t colon = rest.find(':');
    if (colon == std::string::npos) {
        return std::nullopt;
    }
    std::string part = rest.substr(0, colon);
    rest.erase(0, colon + 1);
    return part;
}

VariedField VariedOf(const std::string& word)
{
    const std::size_t equals = word.find('=');
    if (equals == std::string::npos) {
        UsageError("--vary takes KEY=FROM:TO:COUNT and not", word);
    }
    const RecordField* const field = FindRecordField(word.substr(0, equals).c_str());
    if (field == nullptr || !std::holds_alternative<RealField>(field->field)) {
        UsageError("no key of a real number in --vary", word);
    }
    std::string count = word.substr(equals + 1);
    const auto from = TakePart(count);
    const auto to = TakePart(count);
    if (!from || !to) {
        UsageError("--vary takes KEY=FROM:TO:COUNT and not", word);
    }
    const auto first = WholeReal(*from);
    const auto last = WholeReal(*to);
    if (!first || !last) {
        UsageError("FROM and TO must be numbers in --vary", word);
    }
    const auto points = PointCount(count);
    if (!points) {
        UsageError("COUNT must be a whole number from 1 in --vary", word);
    }
    return {field, *first, *last, *points};
}

std::vector<VariedField> VariedFields(const CommandLine& words)
{
    std::vector<VariedField> fields;
    std::int64_t rows = 1;
    for (const std::string& word : words.Values("--vary")) {
        const VariedField varied = VariedOf(word);
        if (std::ranges::count(fields, varied.field, &VariedField::field) > 0) {
            UsageError("a key is varied twice:", word);
        }
        if (fields.size() == kMostVaried) {
            UsageError("four --vary are the most, and one too many is", word);
        }
        if (varied.count > kMostRows / rows) {
            UsageError("more than 100000000 rows by", word);
        }
        rows *= varied.count;
        fields.push_back(varied);
    }
    if (fields.empty()) {
        UsageError("sweep needs", "--vary");
    }
    return fields;
}

std::vector<const DesignValue*> ShownValues(const CommandLine& words)
{
    std::vector<std::string> names = words.Values("--show");
    if (names.empty()) {
        names = {"full_field", "linear_obstruction", "tube_length", "focal_plane_height"};
    }
    std::vector<const DesignValue*> shown;
    for (const std::string& name : names) {
        shown.push_back(&ValueOf("--show", name));
    }
    return shown;
}

std::vector<std::string> Columns(const std::vector<VariedField>& fields,
                                 const std::vector<const DesignValue*>& shown, TableFormat format)
{
    std::vector<std::string> columns;
    for (const VariedField& varied : fields) {
        columns.push_back(varied.field->key);
    }
    for (const DesignValue* const value : shown) {
        if (format == TableFormat::kJson && std::ranges::count(columns, value->name) > 0) {
            UsageError("JSON holds a name once and not twice:", value->name);
        }
        columns.push_back(value->name);
    }
    return columns;
}

int Jobs(const CommandLine& words)
{
    if (const auto jobs = words.Value("--jobs")) {
        return WholeNumber("--jobs", *jobs, 1, kMostJobs);
    }
    return static_cast<int>(std::clamp(std::thread::hardware_concurrency(), 1u, unsigned{kMostJobs}));
}

} // namespace

int SweepVerb(const CommandLine& words)
{
    const TableFormat format = FormatOf(words);
    const std::vector<VariedField> fields = VariedFields(words);
    const std::vector<const DesignValue*> shown = ShownValues(words);
    const TableLayout layout(format, Columns(fields, shown, format), true);
    const int jobs = Jobs(words);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!StartTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    const Variation variation(*terminal.document.active_record, fields, shown);
    Output output(OutputPath(words));
    WriteSweep(variation, layout, jobs, [&](std::string_view bytes) { return output.Write(bytes); });
    return output.Finish();
}

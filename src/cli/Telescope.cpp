#include "cli/Telescope.h"

#include "cli/CommandLine.h"
#include "cli/Input.h"
#include "document/TelescopeFile.h"
#include "document/XmlScanner.h"
#include "lib/text/CodePage.h"
#include "lib/text/Numbers.h"
#include "model/record/RecordFields.h"

#include <cstdio>

namespace {

constexpr const char* kUnset = "unset";

struct Setting {
    const RecordField* field;
    std::string value;
};

/// Stores a value through the field's setter, as the pages read it.
struct Store {
    COrrevaData& data;
    const std::string& value;
    bool unset;

    void operator()(const TextField& field) const
    {
        (data.*field.set)(unset ? "" : Cp1252FromUtf8(value).c_str());
    }
    void operator()(const RealField& field) const
    {
        (data.*field.set)(unset ? HUGE_VAL : TextToDouble(value.c_str()));
    }
    void operator()(const TypeField& field) const
    {
        (data.*field.set)(unset ? -1 : IntegerValue(value.c_str()));
    }
    void operator()(const UnusedField&) const {}
};

std::vector<Setting> Settings(const CommandLine& words)
{
    std::vector<Setting> settings;
    for (const std::string& word : words.Values("--set")) {
        const std::size_t equals = word.find('=');
        if (equals == std::string::npos) {
            UsageError("--set takes KEY=VALUE and not", word);
        }
        const RecordField* const field = FindRecordField(word.substr(0, equals).c_str());
        if (field == nullptr || std::holds_alternative<UnusedField>(field->field)) {
            UsageError("unknown key in --set", word);
        }
        settings.push_back({field, word.substr(equals + 1)});
    }
    return settings;
}

/// What the command Open does with a file, for bytes that are read already.
void OpenText(COrrevaDoc& document, const std::string& path, std::string_view text)
{
    COrrevaData& record = *document.active_record;
    record.Reset();
    record.LoadBy(path.c_str(),
                  [text](COrrevaData& opened) { ReadTelescope(XmlScanner::FromText(text), opened); });
    document.Recalculate();
    record.SetModified(0);
}

} // namespace

void TerminalHost::ShowMessage(const char* text)
{
    warned = true;
    std::fprintf(stderr, "%s\n", Utf8FromCp1252(text).c_str());
}

bool TerminalHost::AskQuickNew(QuickNewTexts& texts)
{
    texts = quick_new.value_or(texts);
    return true;
}

std::optional<std::size_t> StartTelescope(const CommandLine& words, const std::optional<std::string>& file,
                                          TerminalHost& host, COrrevaDoc& document)
{
    const std::vector<Setting> settings = Settings(words);
    if (file) {
        for (const char* const option : {"--diameter", "--focal-length", "--title"}) {
            if (words.Has(option)) {
                UsageError("a file does not go together with", option);
            }
        }
        const auto text = ReadInputWord(*file);
        if (!text) {
            return std::nullopt;
        }
        OpenText(document, *file, *text);
    } else {
        // What the dialog proposes, with the fields changed that are given.
        QuickNewTexts texts = kQuickNewTexts;
        texts.title = Cp1252FromUtf8(words.Value("--title").value_or(texts.title));
        texts.aperture = words.Value("--diameter").value_or(texts.aperture);
        texts.focal_length = words.Value("--focal-length").value_or(texts.focal_length);
        host.quick_new = texts;
        document.OnFileNewQuick();
    }
    for (const Setting& setting : settings) {
        std::visit(Store{*document.active_record, setting.value, setting.value == kUnset},
                   setting.field->field);
    }
    return settings.size();
}

bool MakeTelescope(const CommandLine& words, const std::optional<std::string>& file, TerminalHost& host,
                   COrrevaDoc& document)
{
    const auto stored = StartTelescope(words, file, host, document);
    if (stored.value_or(0) > 0) {
        document.Recalculate();
    }
    return stored.has_value();
}

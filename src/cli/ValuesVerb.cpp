#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "cli/Verbs.h"
#include "lib/text/Json.h"

#include <algorithm>

namespace {

std::vector<const DesignValue*> ChosenValues(const CommandLine& words, TableFormat format)
{
    std::vector<const DesignValue*> chosen;
    for (const std::string& name : words.Values("--only")) {
        const DesignValue& value = ValueOf("--only", name);
        if (format == TableFormat::kJson && std::ranges::count(chosen, &value) > 0) {
            UsageError("JSON holds a name once and not twice:", name);
        }
        chosen.push_back(&value);
    }
    if (chosen.empty()) {
        for (const DesignValue& value : DesignValues()) {
            chosen.push_back(&value);
        }
    }
    return chosen;
}

std::string ValuesTable(const std::vector<const DesignValue*>& values, const DesignState& design,
                        TableFormat format)
{
    const TableLayout layout(format, {"name", "value", "unit"}, false);
    std::string text;
    layout.AppendHead(text);
    for (const DesignValue* const value : values) {
        const TableCell cells[] = {value->name, value->Read(design), value->unit};
        layout.AppendRow(text, cells, false);
    }
    return text;
}

std::string ValuesJson(const std::vector<const DesignValue*>& values, const DesignState& design)
{
    std::string text;
    JsonWriter json(text);
    json.BeginObject();
    for (const DesignValue* const value : values) {
        json.Key(value->name);
        json.BeginObject();
        json.Key("value");
        json.Number(value->Read(design));
        json.Key("unit");
        json.Text(value->unit);
        json.EndObject();
    }
    json.EndObject();
    return text;
}

} // namespace

int ValuesVerb(const CommandLine& words)
{
    const TableFormat format = FormatOf(words);
    const std::vector<const DesignValue*> values = ChosenValues(words, format);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    const DesignState design = DesignOf(terminal.document);
    SettleDesign(design.record);
    return WriteOutput(OutputPath(words), format == TableFormat::kJson ? ValuesJson(values, design)
                                                                       : ValuesTable(values, design, format));
}

#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "cli/Verbs.h"
#include "lib/text/CodePage.h"
#include "model/analysis/Comparison.h"

int CompareVerb(const CommandLine& words)
{
    const TableLayout layout(FormatOf(words), {"value", "first", "second", "unit"}, true);
    if (words.plain.size() < 2) {
        UsageError("compare needs two files behind", words.plain.empty() ? "compare" : words.plain.front());
    }
    if (words.plain.size() > 2) {
        UsageError("too many words:", words.plain[2]);
    }
    if (words.plain[0] == "-" && words.plain[1] == "-") {
        UsageError("standard input is read once, not for both files:", "-");
    }
    TerminalDocument first;
    TerminalDocument second;
    if (!MakeTelescope(words, words.plain[0], first.host, first.document) ||
        !MakeTelescope(words, words.plain[1], second.host, second.document)) {
        return kFailed;
    }
    std::string text;
    layout.AppendHead(text);
    bool empty = true;
    for (const ComparedRow& row : CompareDesigns(DesignOf(first.document), DesignOf(second.document))) {
        if (!row.Differs()) {
            continue;
        }
        const std::string firstText = Utf8FromCp1252(row.first_text);
        const std::string secondText = Utf8FromCp1252(row.second_text);
        const TableCell texts[] = {row.name, firstText, secondText, row.unit};
        const TableCell numbers[] = {row.name, row.first, row.second, row.unit};
        layout.AppendRow(text, row.is_text ? texts : numbers, empty);
        empty = false;
    }
    layout.AppendFoot(text, empty);
    return WriteOutput(OutputPath(words), text);
}

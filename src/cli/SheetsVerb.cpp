#include "cli/CommandLine.h"
#include "cli/Output.h"
#include "cli/PaperOutput.h"
#include "cli/VerbTools.h"
#include "cli/Verbs.h"
#include "drawing/paper/Sheets.h"
#include "lib/text/CodePage.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <iterator>

namespace {

std::vector<const SheetName*> SheetsOf(const CommandLine& words)
{
    std::vector<const SheetName*> sheets;
    for (const std::string& word : words.Values("--sheet")) {
        sheets.push_back(FindSheet(word));
        if (sheets.back() == nullptr) {
            UsageError("unknown sheet", word);
        }
    }
    if (sheets.empty()) {
        std::ranges::transform(kSheets, std::back_inserter(sheets),
                               [](const SheetName& sheet) { return &sheet; });
    }
    return sheets;
}

/// The words' zones, read as the fields of the calculator, and what it proposes for those that are not there.
void ReadZones(const CommandLine& words, SheetZones& zones)
{
    if (const auto count = words.Value("--zones")) {
        zones.count = IntegerValue(count->c_str());
        if (zones.count > MAX_MASK_ZONES) {
            UsageError("--zones does not take", *count);
        }
    }
    if (const auto centre = words.Value("--centre")) {
        zones.centre_percent = DecimalValue(centre->c_str());
    }
}

} // namespace

int SheetsVerb(const CommandLine& words)
{
    if (!words.Has("-o")) {
        UsageError("sheets needs", "-o");
    }
    const std::string path = OutputPath(words);
    // Standard output has no ending; sheets have one form alone.
    if (path != "-" && !path.starts_with("/dev/") && !path.starts_with("/proc/") && !IsPaperFile(path)) {
        UsageError("sheets do not go into", path);
    }
    const std::vector<const SheetName*> sheets = SheetsOf(words);
    const PaperSize& paper = PaperOf(words);
    SheetZones asked;
    ReadZones(words, asked);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    COrrevaData& record = DesignOf(terminal.document).record;
    SheetZones zones = ZonesOfMask(nullptr, record);
    ReadZones(words, zones);
    const std::string title = record.GetTitle().GetText();
    PaperDocument document{title.empty() ? "Orreva" : title};
    for (const SheetName* const sheet : sheets) {
        SheetPages pages = MakeSheet(sheet->kind, record, zones, paper, g_nLanguage);
        if (pages.fault) {
            return Fail(sheet->word + (": " + Utf8FromCp1252(pages.fault->In(g_nLanguage))));
        }
        std::ranges::move(pages.pages, std::back_inserter(document.pages));
    }
    return WritePaper(path, document);
}

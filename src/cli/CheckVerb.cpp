#include "cli/Output.h"
#include "cli/VerbTools.h"
#include "cli/Verbs.h"
#include "lib/text/CodePage.h"
#include "model/analysis/DesignCheck.h"

#include <algorithm>

int CheckVerb(const CommandLine& words)
{
    const TableLayout layout(FormatOf(words), {"severity", "code", "name", "text"}, false);
    const auto file = FileWord(words, 0);
    TerminalDocument terminal;
    if (!MakeTelescope(words, file, terminal.host, terminal.document)) {
        return kFailed;
    }
    const std::vector<DesignFinding> findings = CheckDesign(DesignOf(terminal.document), g_nLanguage);
    std::string text;
    layout.AppendHead(text);
    for (const DesignFinding& finding : findings) {
        const std::string sentences = Utf8FromCp1252(finding.Text());
        const TableCell cells[] = {SeverityWord(finding.severity), finding.code, finding.value->name,
                                   sentences};
        layout.AppendRow(text, cells, &finding == &findings.front());
    }
    layout.AppendFoot(text, findings.empty());
    Output output(OutputPath(words));
    output.Write(text);
    const int status = output.Finish();
    const bool faulty = std::ranges::any_of(
        findings, [](const DesignFinding& finding) { return finding.severity != Severity::kNote; });
    return status == kDone && faulty && !output.IsReaderGone() ? kFaults : status;
}

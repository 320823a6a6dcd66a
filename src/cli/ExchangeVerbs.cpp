#include "cli/ExchangeVerbs.h"

#include "cli/Input.h"
#include "cli/Output.h"
#include "document/FtaExport.h"
#include "document/OrrevaDoc.h"
#include "document/OsloExport.h"
#include "document/TelescopeFile.h"

#include <algorithm>
#include <iterator>

namespace {

int ExportOslo(COrrevaDoc& document, const std::string& output)
{
    document.Recalculate();
    return WriteOutput(output, OsloExport(*document.active_record));
}

int ExportFta(COrrevaDoc& document, const std::string& output)
{
    const auto text = FtaExport(*document.active_record);
    if (!text) {
        document.Host().ShowMessage("Error writing...");
        return kFailed;
    }
    return WriteOutput(output, *text);
}

constexpr ExportForm kExports[] = {{"oslo", ExportOslo}, {"fta", ExportFta}};

} // namespace

int ImportVerb(COrrevaDoc& document, const std::string& old_file, const std::string& output)
{
    const auto bytes = ReadInputWord(old_file);
    if (!bytes || !document.OpenOldBytes(old_file.c_str(), *bytes)) {
        return kFailed;
    }
    return WriteOutput(output, WriteTelescope(*document.active_record));
}

const ExportForm* FindExport(std::string_view word)
{
    const auto found = std::ranges::find(kExports, word, &ExportForm::word);
    return found == std::end(kExports) ? nullptr : found;
}

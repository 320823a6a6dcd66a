#include "cli/RescueVerb.h"

#include "cli/CommandLine.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "document/RescueCopies.h"
#include "lib/text/CodePage.h"

#include <charconv>

int ListRescueCopies(TableFormat format, const std::string& output)
{
    const TableLayout layout(format, {"number", "time", "reason", "title", "path"}, false);
    std::string table;
    layout.AppendHead(table);
    const std::vector<RescueCopy> copies = RescueCopies().List();
    for (std::size_t i = 0; i < copies.size(); ++i) {
        const std::string title = Utf8FromCp1252(copies[i].title);
        const TableCell cells[] = {static_cast<double>(i + 1), copies[i].time,
                                   RescueReasonWord(copies[i].reason), title, copies[i].path};
        layout.AppendRow(table, cells, i == 0);
    }
    layout.AppendFoot(table, copies.empty());
    return WriteOutput(output, table);
}

int WriteRescueCopy(const std::string& number, const std::string& output)
{
    if (number.empty() || number.find_first_not_of("0123456789") != std::string::npos) {
        UsageError("rescue takes the number of a copy and not", number);
    }
    const std::vector<RescueCopy> copies = RescueCopies().List();
    std::size_t place = 0;
    const char* const end = number.data() + number.size();
    const auto read = std::from_chars(number.data(), end, place);
    if (read.ec != std::errc() || place < 1 || place > copies.size()) {
        return Fail("no rescue copy of the number " + number);
    }
    const auto bytes = ReadInputWord(copies[place - 1].file);
    return bytes ? WriteOutput(output, *bytes) : kFailed;
}

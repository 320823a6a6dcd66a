#include "cli/Report.h"

#include "lib/CodePage.h"

#include <algorithm>

const ReportPage* FindReportPage(std::string_view name)
{
    for (const ReportPage& page : ReportPages()) {
        if (page.name == name) {
            return &page;
        }
    }
    return nullptr;
}

std::string ReportText(std::span<const ReportPage* const> pages, const ReportContext& context)
{
    std::string text;
    for (const ReportPage* page : pages) {
        text += std::string("# ") + page->name + '\n';
        for (const std::string& line : page->lines(context)) {
            text += line + '\n';
        }
    }
    return Utf8FromCp1252(text);
}

std::string ReportLine(const ListRow& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        std::string cell = cells[i];
        std::ranges::replace_if(
            cell, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
        line += (i == 0 ? "" : "\t") + cell;
    }
    return line;
}

void AppendRows(ReportLines& lines, const ListRows& rows)
{
    std::transform(rows.rbegin(), rows.rend(), std::back_inserter(lines), ReportLine);
}

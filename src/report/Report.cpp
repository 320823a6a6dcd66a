#include "report/Report.h"

#include <algorithm>
#include <iterator>

const ReportPage* FindReportPage(std::string_view name)
{
    for (const ReportPage& page : ReportPages()) {
        if (page.name == name) {
            return &page;
        }
    }
    return nullptr;
}

void WriteReport(std::span<const ReportPage* const> pages, const ReportContext& context,
                 const ReportSink& sink)
{
    bool more = true;
    const ReportSink forward = [&](const std::string& line) { return more = more && sink(line); };
    for (std::size_t i = 0; i < pages.size() && forward(std::string("# ") + pages[i]->name); ++i) {
        pages[i]->write(context, forward);
    }
}

std::string ReportLine(const ListRow& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        line += i == 0 ? "" : "\t";
        for (std::size_t k = 0; k < cells[i].size(); ++k) {
            const char c = cells[i][k];
            if (c == '\r' && cells[i][k + 1] == '\n') {
                continue; // one line break, one blank
            }
            line += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
        }
    }
    return line;
}

ListRow CellsOfLine(const std::string& line)
{
    ListRow cells;
    std::size_t from = 0;
    for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', from)) {
        cells.push_back(line.substr(from, tab - from));
        from = tab + 1;
    }
    cells.push_back(line.substr(from));
    return cells;
}

void AppendRows(ReportLines& lines, const ListRows& rows)
{
    std::transform(rows.rbegin(), rows.rend(), std::back_inserter(lines), ReportLine);
}

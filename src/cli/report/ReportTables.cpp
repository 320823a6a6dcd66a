#include "cli/report/Report.h"
#include "lib/text/CodePage.h"
#include "lib/text/Json.h"
#include "lib/text/Table.h"

#include <algorithm>

namespace {

using Cells = std::vector<std::string>;

/// The cells of a line of the report, in UTF-8; none of them holds a TAB of its own.
Cells CellsOf(const std::string& line)
{
    Cells cells;
    std::size_t from = 0;
    for (std::size_t tab = line.find('\t'); tab != std::string::npos; tab = line.find('\t', from)) {
        cells.push_back(Utf8FromCp1252(std::string_view(line).substr(from, tab - from)));
        from = tab + 1;
    }
    cells.push_back(Utf8FromCp1252(std::string_view(line).substr(from)));
    return cells;
}

std::vector<Cells> RowsOf(const ReportPage& page, const ReportContext& context)
{
    std::vector<Cells> rows;
    page.write(context, [&rows](const std::string& line) {
        rows.push_back(CellsOf(line));
        return true;
    });
    return rows;
}

} // namespace

std::string CsvReport(std::span<const ReportPage* const> pages, const ReportContext& context)
{
    std::vector<Cells> rows;
    std::size_t width = 1;
    for (const ReportPage* const page : pages) {
        for (Cells& cells : RowsOf(*page, context)) {
            cells.insert(cells.begin(), page->name);
            width = std::max(width, cells.size());
            rows.push_back(std::move(cells));
        }
    }
    Cells head{"page"};
    while (head.size() < width) {
        head.push_back("cell" + std::to_string(head.size()));
    }
    const TableLayout layout(TableFormat::kCsv, head, true);
    std::string csv;
    layout.AppendHead(csv);
    for (Cells& cells : rows) {
        cells.resize(width);
        layout.AppendRow(csv, std::vector<TableCell>(cells.begin(), cells.end()), false);
    }
    return csv;
}

std::string JsonReport(std::span<const ReportPage* const> pages, const ReportContext& context)
{
    std::string text;
    JsonWriter json(text);
    json.BeginArray();
    for (const ReportPage* const page : pages) {
        json.BeginObject();
        json.Key("page");
        json.Text(page->name);
        json.Key("rows");
        json.BeginArray();
        for (const Cells& cells : RowsOf(*page, context)) {
            json.BeginArray();
            for (const std::string& cell : cells) {
                json.Text(cell);
            }
            json.EndArray();
        }
        json.EndArray();
        json.EndObject();
    }
    json.EndArray();
    return text;
}

#include "lib/text/CodePage.h"
#include "lib/text/Json.h"
#include "lib/text/Table.h"
#include "report/Report.h"

#include <algorithm>

namespace {

using Cells = std::vector<std::string>;

/// The cells of a line of the report, in UTF-8.
Cells Utf8CellsOf(const std::string& line)
{
    Cells cells = CellsOfLine(line);
    std::ranges::transform(cells, cells.begin(), Utf8FromCp1252);
    return cells;
}

std::vector<Cells> RowsOf(const ReportPage& page, const ReportContext& context)
{
    std::vector<Cells> rows;
    page.write(context, [&rows](const std::string& line) {
        rows.push_back(Utf8CellsOf(line));
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

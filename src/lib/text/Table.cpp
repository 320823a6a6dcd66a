#include "lib/text/Table.h"

#include "lib/text/Json.h"
#include "lib/text/ShortestNumber.h"

void AppendCsvField(std::string& out, std::string_view utf8)
{
    if (utf8.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += utf8;
        return;
    }
    out += '"';
    for (const char c : utf8) {
        out += c;
        if (c == '"') {
            out += c;
        }
    }
    out += '"';
}

void AppendTextCell(std::string& out, std::string_view utf8)
{
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const char c = utf8[i];
        if (c == '\r' && i + 1 < utf8.size() && utf8[i + 1] == '\n') {
            continue; // one line break, one blank
        }
        out += c == '\t' || c == '\n' || c == '\r' ? ' ' : c;
    }
}

TableLayout::TableLayout(TableFormat format, std::vector<std::string> columns, bool textHeader)
    : m_format(format), m_columns(std::move(columns)), m_textHeader(textHeader)
{
    for (const std::string& column : m_columns) {
        std::string key = m_keys.empty() ? "  {\n    " : ",\n    ";
        AppendJsonText(key, column);
        m_keys.push_back(key + ": ");
    }
}

void TableLayout::AppendHead(std::string& out) const
{
    if (m_format == TableFormat::kJson) {
        out += '[';
    } else if (m_format == TableFormat::kCsv || m_textHeader) {
        AppendRow(out, std::vector<TableCell>(m_columns.begin(), m_columns.end()), true);
    }
}

void TableLayout::AppendRow(std::string& out, std::span<const TableCell> cells, bool first) const
{
    if (m_format == TableFormat::kJson) {
        AppendJsonRow(out, cells, first);
        return;
    }
    const bool csv = m_format == TableFormat::kCsv;
    const char* separator = "";
    for (const TableCell& cell : cells) {
        out += separator;
        separator = csv ? "," : "\t";
        if (const double* const number = std::get_if<double>(&cell)) {
            AppendNumber(out, *number);
        } else {
            (csv ? AppendCsvField : AppendTextCell)(out, std::get<std::string_view>(cell));
        }
    }
    out += '\n';
}

void TableLayout::AppendJsonRow(std::string& out, std::span<const TableCell> cells, bool first) const
{
    out += first ? "\n" : ",\n";
    for (std::size_t i = 0; i < cells.size(); ++i) {
        out += m_keys[i];
        if (const double* const number = std::get_if<double>(&cells[i])) {
            AppendJsonNumber(out, *number);
        } else {
            AppendJsonText(out, std::get<std::string_view>(cells[i]));
        }
    }
    out += "\n  }";
}

void TableLayout::AppendFoot(std::string& out, bool empty) const
{
    if (m_format == TableFormat::kJson) {
        out += empty ? "]\n" : "\n]\n";
    }
}

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// How a table goes out.
enum class TableFormat {
    kText, ///< cells parted by TAB
    kCsv,  ///< RFC 4180 with LF
    kJson, ///< one document
};

/// Appends a field of a csv line, in quotes only where it must be.
void AppendCsvField(std::string& out, std::string_view utf8);

/// Appends a cell of a text line: a line break or TAB inside it becomes a blank.
void AppendTextCell(std::string& out, std::string_view utf8);

/// A text in UTF-8, or a number.
using TableCell = std::variant<std::string_view, double>;

/// The form of a table whose rows have one cell for each column; in JSON it is an array of objects. Rows are
/// appended to a text of the caller's, so that several threads may write parts of one table. Constant, and
/// free of memory of its own per row.
class TableLayout {
public:
    /// `columns` in UTF-8. `textHeader`: whether the text form begins with the names of the columns, as csv
    /// does.
    TableLayout(TableFormat format, std::vector<std::string> columns, bool textHeader);

    void AppendHead(std::string& out) const;
    /// `first`: no row stands before it.
    void AppendRow(std::string& out, std::span<const TableCell> cells, bool first) const;
    /// `empty`: there was no row.
    void AppendFoot(std::string& out, bool empty) const;

private:
    void AppendJsonRow(std::string& out, std::span<const TableCell> cells, bool first) const;

    TableFormat m_format;
    std::vector<std::string> m_columns;
    std::vector<std::string> m_keys; ///< of JSON, with what stands around them
    bool m_textHeader;
};

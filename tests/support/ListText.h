#pragma once

#include "lib/text/CodePage.h"
#include "model/rows/ListRow.h"

#include <string>
#include <vector>

/// The rows of a list as the user reads them, from its top down: the cells parted by " | ", in UTF-8.
inline std::vector<std::string> ShownList(const ListRows& rows)
{
    std::vector<std::string> lines;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        std::string line;
        for (std::size_t i = 0; i < row->size(); ++i) {
            line += (i == 0 ? "" : " | ") + (*row)[i];
        }
        lines.push_back(Utf8FromCp1252(line));
    }
    return lines;
}

/// The value beside a label (UTF-8) in a list of two columns; "no such row" if there is none.
inline std::string ShownValue(const ListRows& rows, const std::string& label)
{
    for (const ListRow& row : rows) {
        if (Utf8FromCp1252(row.at(0)) == label) {
            return Utf8FromCp1252(row.at(1));
        }
    }
    return "no such row";
}

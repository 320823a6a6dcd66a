#pragma once

#include "lib/text/Language.h"
#include "model/rows/ListRow.h"

#include <string>
#include <utility>

/// Collects the rows of a list of label and value.
class RowMaker {
public:
    RowMaker(int language, bool details) : m_language(language), m_details(details) {}

    void Add(const Bilingual& label, std::string value)
    {
        m_rows.push_back({label.In(m_language), std::move(value)});
    }
    /// A row that only Show Details brings up.
    void AddDetail(const Bilingual& label, std::string value)
    {
        if (m_details) {
            Add(label, std::move(value));
        }
    }
    ListRows Take() { return std::move(m_rows); }

private:
    int m_language;
    bool m_details;
    ListRows m_rows;
};

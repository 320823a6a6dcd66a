#include "model/analysis/Comparison.h"

#include <cmath>

bool ComparedRow::Differs() const
{
    if (is_text) {
        return first_text != second_text;
    }
    return first != second && !(std::isnan(first) && std::isnan(second));
}

std::vector<ComparedRow> CompareDesigns(const DesignState& first, const DesignState& second)
{
    std::vector<ComparedRow> rows;
    for (const RecordField& field : RecordFields()) {
        if (const auto* const text = std::get_if<TextField>(&field.field)) {
            rows.push_back({field.key, field.unit, field.label, true, (first.record.*text->place).GetText(),
                            (second.record.*text->place).GetText()});
        }
    }
    const std::vector<double> firstNumbers = ReadDesignValues(first);
    const std::vector<double> secondNumbers = ReadDesignValues(second);
    for (std::size_t i = 0; i < firstNumbers.size(); ++i) {
        const DesignValue& value = DesignValues()[i];
        ComparedRow row{value.name, value.unit, value.label};
        row.first = firstNumbers[i];
        row.second = secondNumbers[i];
        rows.push_back(std::move(row));
    }
    return rows;
}

#pragma once

#include "model/analysis/Values.h"

#include <cstdint>
#include <span>
#include <vector>

/// A number of the design file that runs over a range in equal steps.
struct VariedField {
    const RecordField* field; ///< of a real number
    double from = 0;
    double to = 0;
    std::int64_t count = 1; ///< of points, at least 1

    /// from + i (to - from) / (count - 1); `from` alone for one point.
    double Point(std::int64_t i) const;
};

/// A table of designs: every combination of the varied fields is a row, the first field running slowest. A
/// row is the base with the varied numbers stored in their order and then recalculated twice. Constant, so
/// that several readers may compute its rows at once.
class Variation {
public:
    /// The rows' cells are the varied numbers, then the `shown` values. The product of the counts fits 64
    /// bits.
    Variation(const TelescopeFields& base, std::vector<VariedField> fields,
              std::vector<const DesignValue*> shown);

    std::int64_t RowCount() const { return m_rows; }
    std::size_t ColumnCount() const { return m_fields.size() + m_shown.size(); }

    /// Computes rows on a record of its own.
    class Reader {
    public:
        explicit Reader(const Variation& variation) : m_variation(variation) {}
        /// The cells of `row`, from 0, into `cells`, of which there are ColumnCount.
        void Read(std::int64_t row, std::span<double> cells);

    private:
        const Variation& m_variation;
        COrrevaData m_record{};
    };

private:
    TelescopeFields m_base;
    std::vector<VariedField> m_fields;
    std::vector<const DesignValue*> m_shown;
    std::int64_t m_rows = 1;
};

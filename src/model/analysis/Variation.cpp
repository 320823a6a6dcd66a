#include "model/analysis/Variation.h"

double VariedField::Point(std::int64_t i) const
{
    return count == 1 ? from : from + static_cast<double>(i) * (to - from) / static_cast<double>(count - 1);
}

Variation::Variation(const TelescopeFields& base, std::vector<VariedField> fields,
                     std::vector<const DesignValue*> shown)
    : m_base(base), m_fields(std::move(fields)), m_shown(std::move(shown))
{
    // No number rests on a text, and a short one is copied faster.
    m_base.title.Empty();
    m_base.description.Empty();
    m_base.material.Empty();
    for (const VariedField& field : m_fields) {
        m_rows *= field.count;
    }
}

void Variation::Reader::Read(std::int64_t row, std::span<double> cells)
{
    const std::vector<VariedField>& fields = m_variation.m_fields;
    for (std::size_t i = fields.size(); i-- > 0; row /= fields[i].count) {
        cells[i] = fields[i].Point(row % fields[i].count);
    }
    static_cast<TelescopeFields&>(m_record) = m_variation.m_base;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        (m_record.*std::get<RealField>(fields[i].field->field).set)(cells[i]);
    }
    Recalculate(m_record);
    const DesignState design{m_record, Recalculate(m_record).field};
    SettleDesign(m_record);
    for (std::size_t i = 0; i < m_variation.m_shown.size(); ++i) {
        cells[fields.size() + i] = m_variation.m_shown[i]->Read(design);
    }
}

#pragma once

#include "lib/text/Language.h"
#include "model/analysis/Recalculation.h"
#include "model/record/RecordFields.h"

#include <span>
#include <string_view>
#include <vector>

/// Every number of a design has one name, one unit and one function: the numbers of the design file by their
/// key paths, in the order of the file, then what is computed of them. All that names, prints, compares,
/// checks or draws numbers reads this table.

/// A design whose numbers are to be read: its record, and the fully lit field of its last recalculation. It
/// is read after two recalculations at least, so that no first reading shows.
struct DesignState {
    COrrevaData& record;
    FullField field{};
};

struct DesignValue {
    const char* name;
    const char* unit; ///< "1" for a number without one
    Bilingual label;
    const char* concern;                             ///< the key of the field by which a user would change it
    const RecordField* field;                        ///< where a number of the design file stands, else null
    double (*compute)(const DesignState&) = nullptr; ///< what is not in the file

    /// The number, of a design that is settled.
    double Read(const DesignState& design) const;
};

std::span<const DesignValue> DesignValues();

/// The value of a name, null if there is none.
const DesignValue* FindDesignValue(std::string_view name);

/// Reads every number of the design file in its order, so that what is unset takes its default, whatever is
/// read later. A density that is unset would clear the mirror's weight; a weight that was given stands.
void SettleDesign(COrrevaData& record);

/// A copy of a design that is recalculated twice: who looks at a design leaves it as it is.
class DesignCopy {
public:
    explicit DesignCopy(const TelescopeFields& fields);
    DesignState State() { return {m_record, m_field}; }

private:
    COrrevaData m_record{};
    FullField m_field;
};

/// Settles the design and reads all numbers, in the order of the table.
std::vector<double> ReadDesignValues(const DesignState& design);

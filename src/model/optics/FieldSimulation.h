#pragma once

#include "model/record/OrrevaData.h"
#include "model/rows/ListRow.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>

/// What the simulated field depends on, all mm.
struct FieldInputs {
    double I; ///< inside diameter of the tube
    double D; ///< diameter of the primary
    double S; ///< minor axis of the secondary
    double f; ///< focal length
    double A; ///< primary to focuser
    double F; ///< focuser to the front opening
    bool operator==(const FieldInputs&) const = default;
};

FieldInputs ReadFieldInputs(COrrevaData& telescope);

/// One ring of the field.
struct FieldRing {
    double angle; ///< off axis, degrees
    double p;     ///< brightness in per cent of the centre; NaN when no light reaches even the centre
};

constexpr std::size_t kFieldRings = 250;
using FieldTable = std::array<FieldRing, kFieldRings>;

/// Called before each count of light paths: the progress of the work.
using FieldProgress = std::function<void()>;

/// The brightness of all rings, counted anew; logs the circles on the axis.
FieldTable CountField(const FieldInputs& inputs, const FieldProgress& progress);

/// The table of the telescope that was last asked for.
class FieldSimulation {
public:
    /// Counts only if the telescope differs from the one before; `progress` may be empty.
    const FieldTable& Table(COrrevaData& telescope, const FieldProgress& progress);

private:
    std::optional<FieldInputs> m_inputs;
    FieldTable m_table{};
};

/// The rings as rows in their order: the angle in degrees and the brightness before rounding.
ListRows FieldRows(const FieldTable& table);

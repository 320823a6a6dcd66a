#pragma once

class COrrevaData;

/// The 100% illuminated field as the document keeps it.
struct FullField {
    double diameter = 0.0; ///< mm in the focal plane
    double angle = 0.0;    ///< full angle in degrees
};

/// What the document keeps of its record between two recalculations; mm.
struct Recalculation {
    FullField field;
    double mirror_back_position = 0.0; ///< the mirror's faces, from the rear end of the tube
    double mirror_front_position = 0.0;
};

/// What every change of a record ends in. It reads the record twice, and the first reading of a fresh one is
/// infinite: the angle is then a NaN, and right only after the next recalculation. Kept.
Recalculation Recalculate(COrrevaData& record);

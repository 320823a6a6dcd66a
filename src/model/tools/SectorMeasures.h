#pragma once

#include <cstdint>

/// The row of the sector calculator's list that the program takes to be the angle. The list is sorted by the
/// texts of its language, so it is the angle in German alone; in English that row says sagitta. Kept.
inline constexpr std::int32_t kSectorAngleType = 2;

/// What the sector calculator is told.
struct SectorInput {
    double dDiameter = 0.0;  ///< of the circle
    double dValue = 0.0;     ///< the angle in degrees
    std::int32_t nType = -1; ///< row of the list, -1 before the dialog starts
};

/// Texts and row that the dialog starts with.
inline constexpr const char* kSectorStartDiameter = "100";
inline constexpr const char* kSectorStartValue = "90";
inline constexpr std::int32_t kSectorStartType = kSectorAngleType;

/// Measures of a segment of a circle, in the unit of the diameter.
struct SectorMeasures {
    double dHalfAngle; ///< radians
    double dSagitta;
    double dRadius;
    double dChord;
};
SectorMeasures MeasureSector(const SectorInput& input);

/// Why a sector cannot be drawn; null when it can.
const char* SectorRefusal(const SectorInput& input, int language);

#pragma once

#include <cstdint>

/// Rows of the polygon calculator's list of types, German in both languages; row i has i + 3 sides.
inline constexpr std::int32_t kPolygonTypeCount = 10;
/// Null for a row that the list does not have.
const char* PolygonTypeName(std::int32_t nType);

/// What the polygon calculator is told.
struct PolygonInput {
    double dDiameter = 0.0;  ///< of the circle that the tube's boards touch from outside, mm
    double dThickness = 0.0; ///< of the boards, mm
    std::int32_t nType = -1; ///< row of the list, -1 before the dialog starts
};

/// Texts and row that the dialog starts with.
inline constexpr const char* kPolygonStartDiameter = "225.0";
inline constexpr const char* kPolygonStartThickness = "6.5";
inline constexpr std::int32_t kPolygonStartType = 5;

/// Cutting measures of a polygonal tube, in the unit of the input.
struct PolygonMeasures {
    std::int32_t nSides;
    double dAngle;       ///< of one side, radians
    double dInnerRadius; ///< centre to inner corner
    double dCornerWall;  ///< wall at the corner
    double dOuterRadius; ///< centre to outer corner
    double dOverhang;    ///< of a board at each end
    double dInnerSide;
    double dOuterSide;
    double dBoard; ///< length of a board
};

/// `input.nType` must be a row of the list. A diameter of 0 gives infinities and NaNs.
PolygonMeasures MeasurePolygon(const PolygonInput& input);

/// Why a polygon cannot be drawn; null when it can.
const char* PolygonRefusal(const PolygonInput& input, int language);

#pragma once

#include "model/record/OrrevaData.h"

/// A telescope of round numbers: 200 mm, f/5, a tube of 240 mm outside, the focal plane 80 mm above it and
/// 200 mm off the axis, a secondary of 60 mm whose offset is 3 mm. Its frame, without the offset:
///   tube 97 to 1067 mm along and 80 to 320 mm across, axis at 200, focuser at 197,
///   primary at 997 from 100 to 300, diagonal from (167, 170) to (227, 230).
inline void MakeRoundScope(COrrevaData& record)
{
    record.Reset();
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1000);
    record.SetMirrorThickness(20);
    record.SetInsideDiameterHat(220);
    record.SetThicknessHat(10);
    record.SetFocuserType(1);
    record.SetFocuserHeight(60);
    record.SetFocuserSpare(20);
    record.SetOazTravel(50);
    record.SetOazLength(60);
    record.SetFocuserDiameter(50);
    record.SetSecondaryDiameter(60);
    record.SetDistanceBack(50);
    record.SetDistanceFront(100);
    record.SetHeightBox(150);
    record.SetHeightHat(160);
}

/// A telescope of which only aperture and focal length are entered, its defaults settled.
inline void MakeDefaultScope(COrrevaData& record, double diameter = 250, double focalLength = 1500)
{
    record.Reset();
    record.SetMirrorDiameter(diameter);
    record.SetFocalLength(focalLength);
    record.GetFocalPlaneHeight(); // the first reading gives infinity
    record.GetFocalPlaneHeight();
}

/// Numbers that no telescope has.
inline constexpr double kOddNumbers[] = {0.0,       -1.0,     -1e300, 1e300,       5e-324,
                                         -HUGE_VAL, HUGE_VAL, 1e17,   2147483648.0};

/// The setters that rule the cross-section and the rays.
using RecordSetter = void (COrrevaData::*)(double);
inline constexpr RecordSetter kScopeSetters[] = {
    &COrrevaData::SetMirrorDiameter,    &COrrevaData::SetFocalLength,       &COrrevaData::SetMirrorThickness,
    &COrrevaData::SetInsideDiameterHat, &COrrevaData::SetThicknessHat,      &COrrevaData::SetFocuserHeight,
    &COrrevaData::SetFocuserSpare,      &COrrevaData::SetOazTravel,         &COrrevaData::SetOazLength,
    &COrrevaData::SetFocuserDiameter,   &COrrevaData::SetSecondaryDiameter, &COrrevaData::SetSecondaryOffset,
    &COrrevaData::SetDistanceBack,      &COrrevaData::SetDistanceFront,     &COrrevaData::SetHeightBox,
    &COrrevaData::SetHeightHat,
};

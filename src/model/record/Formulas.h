#pragma once

#include <cmath>

/// The unset mark of a number: positive infinity; a NaN counts as unset too.
inline bool IsUnset(double value) { return !(value < HUGE_VAL); }

/// Full angle in degrees of a field of `w` mm in the focal plane of the focal length `f` (mm).
double FieldAngle(double f, double w);

/// Linear size in mm, 2 f tan(angle / 2), of a field of `degrees`: the inverse of FieldAngle.
double FieldSize(double f, double degrees);

/// Full angle in degrees of the 100% illuminated field of a primary D, f with a secondary of the minor axis m
/// whose focal plane lies z off the axis (all mm); by Edberg.
double FullFieldAngle(double D, double f, double m, double z);

/// Its diameter in the focal plane, mm; by Edberg.
double FullFieldDiameter(double D, double f, double m, double z);

/// The standard focuser opening, mm, for a wanted opening `raw`: 0.96 and 1.25 inch, then whole inches.
double StandardFocuserDiameter(double raw);

/// The standard minor axis, mm, not smaller than `raw`; beyond the table the next whole inch.
double StandardSecondaryDiameter(double raw);

/// A usual thickness, mm, for a mirror of the diameter D.
double ThicknessForDiameter(double D);

/// A usual focal ratio for a new mirror of the diameter D, mm.
double FocalRatioForDiameter(double D);

#pragma once

/// The formulas for the flat secondary by the authors who published them, each as its author wrote it.
/// Lengths are mm; D and F belong to the primary, m is the minor axis of the secondary, L the distance from
/// the optical axis to the focal plane. A division by zero gives what the floating point gives.

// Wanted field, mm, for an angle in degrees --------------------------------------------------------------

double WantedFieldEdberg(double F, double degrees);
double WantedFieldBerry(double F, double degrees);

// Fully illuminated field; by Edberg see FullFieldDiameter and FullFieldAngle
// ---------------------------------

double FullFieldBerry(double D, double F, double m, double L);        ///< mm
double FullFieldMinutesBerry(double D, double F, double m, double L); ///< arc minutes
double FullFieldPetersPike(double D, double F, double m, double L);   ///< mm

// Obstruction, per cent -----------------------------------------------------------------------------------

double ArealObstruction(double D, double m);
double LinearObstruction(double D, double m);

// Offset of the secondary, mm -----------------------------------------------------------------------------

double OffsetFrancis(double D, double F, double m);
double OffsetMasson(double D, double F, double m, double L);
double OffsetDakin(double D, double F, double m, double L);
double OffsetVarnholt(double D, double F, double m, double L);

// Smallest minor axis, mm, that fully lights a field of `field` mm or `degrees`
// ------------------------------

double MinorAxisForCentre(double D, double F, double L);
double MinorAxisDakin(double D, double F, double L, double field);
double MinorAxisEdberg(double D, double F, double L, double field);
double MinorAxisBerry(double D, double F, double L, double degrees);
double MinorAxisPetersPike(double D, double F, double L, double field);

#include "model/analysis/SecondaryFormulas.h"

#include "lib/text/Numbers.h"
#include "model/record/Formulas.h"

#include <cmath>

double WantedFieldEdberg(double F, double degrees) { return FieldSize(F, degrees); }

double WantedFieldBerry(double F, double degrees) { return 2 * F * kPi * degrees / 360; }

double FullFieldBerry(double D, double F, double m, double L) { return m - (D / F) * L; }

double FullFieldMinutesBerry(double D, double F, double m, double L)
{
    return FullFieldBerry(D, F, m, L) * 360 / 2 / kPi / F * 60;
}

double FullFieldPetersPike(double D, double F, double m, double L) { return (m - L * D / F) / (1 - L / F); }

double ArealObstruction(double D, double m) { return std::pow(m, 2) / std::pow(D, 2) * 100; }

double LinearObstruction(double D, double m) { return m / D * 100; }

double OffsetFrancis(double D, double F, double m) { return D * m / 4 / F; }

double OffsetMasson(double D, double F, double m, double L) { return (D - m) * m / 4 / (F - L); }

double OffsetDakin(double D, double F, double m, double L)
{
    const double v = F - D * D / 16 / F;
    const double w = (F * m - L * D) / (F - L);
    const double u = D - w;
    const double n = v * w + u * L;
    return (n / (2 * v - u) - n / (2 * v + u)) / 2;
}

double OffsetVarnholt(double D, double F, double m, double L)
{
    const double doubled = ((F - L) + (F - L)) / (D - m);
    const double near_part = (-m * (F - L) / (D - m)) / (1 - doubled);
    const double far_part = (m * (F - L) / (D - m)) / (1 + doubled);
    return (near_part - far_part) / 2;
}

double MinorAxisForCentre(double D, double F, double L) { return L * D / F; }

double MinorAxisDakin(double D, double F, double L, double field)
{
    const double v = F - D * D / 16 / F;
    const double u = D - field;
    const double n = v * field + u * L;
    return n / (2 * v - u) + n / (2 * v + u);
}

double MinorAxisEdberg(double D, double F, double L, double field) { return ((F - L) * field + L * D) / F; }

double MinorAxisBerry(double D, double F, double L, double degrees)
{
    return (F * degrees / 360) * 2 * kPi + D / F * L;
}

double MinorAxisPetersPike(double D, double F, double L, double field) { return (D - field) * L / F + field; }

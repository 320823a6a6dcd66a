#include "model/analysis/Recalculation.h"

#include "model/record/Formulas.h"
#include "model/record/OrrevaData.h"

namespace {

/// `formula` of the record's optics, read anew.
double ReadOptics(COrrevaData& record, double (*formula)(double D, double f, double m, double z))
{
    const double z = record.GetFocalPlaneHeight();
    const double m = record.GetSecondaryDiameter();
    const double f = record.GetFocalLength();
    const double D = record.GetMirrorDiameter();
    return formula(D, f, m, z);
}

} // namespace

Recalculation Recalculate(COrrevaData& record)
{
    Recalculation result;
    result.field.angle = ReadOptics(record, FullFieldAngle);
    result.field.diameter = ReadOptics(record, FullFieldDiameter);
    result.mirror_back_position = record.GetDistanceBack();
    result.mirror_front_position = record.GetMirrorThickness() + result.mirror_back_position;
    // The menus ask for the kind of tube at every refresh, so that it never stays unset.
    record.GetTubeType();
    return result;
}

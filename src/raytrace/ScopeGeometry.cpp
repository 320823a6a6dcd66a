#include "raytrace/ScopeGeometry.h"

#include "model/record/OrrevaData.h"

ScopeGeometry BuildGeometry(COrrevaData& record, bool show_offset)
{
    ScopeGeometry g;
    // A read may write: each one is a statement of its own, in this order.
    g.distanceFront = record.GetDistanceFront();
    g.top = record.GetFocuserTotalHeight();
    g.tubeLength = record.GetTubeLength();
    g.frontX = g.tubeLength / 10;
    const double inside = record.GetInsideDiameterHat();
    const double wall = record.GetThicknessHat();
    g.tubeWidth = inside + 2 * wall;
    g.axisY = g.top + g.tubeWidth / 2;
    const double back = record.GetDistanceBack();
    const double thickness = record.GetMirrorThickness();
    g.mirrorX = g.frontX + g.tubeLength - back - thickness;
    const double D = record.GetMirrorDiameter();
    g.mirrorTop = g.axisY - D / 2;
    g.mirrorBottom = g.axisY + D / 2;
    g.focuserX = g.frontX + g.distanceFront;
    const double s = record.GetSecondaryDiameter() / 2;
    const double o = show_offset ? record.GetSecondaryOffset() : 0.0;
    g.secondaryLeft = g.focuserX - s + o;
    g.secondaryTop = g.axisY - s + o;
    g.secondaryRight = g.focuserX + s + o;
    g.secondaryBottom = g.axisY + s + o;
    return g;
}

#include "raytrace/ParallelStatus.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "lib/text/LibString.h"
#include "lib/text/Numbers.h"
#include "model/analysis/IlluminationTable.h"
#include "model/record/Formulas.h"
#include "model/record/OrrevaData.h"

#include <cmath>

ParallelFigures ParallelStatus(COrrevaData& record, double a)
{
    const double f = record.GetFocalLength();
    const double D = record.GetMirrorDiameter();
    const double S = record.GetSecondaryDiameter();
    const double L = record.GetFocalPlaneHeight();

    ParallelFigures figures;
    const double g = a / kPi * 360 / -2;
    figures.angleDegrees = g + 90;
    const double e = FieldSize(f, figures.angleDegrees);
    figures.imageMm = std::fabs(e) + std::fabs(e);
    const double r = S * f / L / D;
    const double d = (f - L) * figures.imageMm / L / D;
    figures.illuminationPercent = OverlapPercent(d, r);
    if (!std::isfinite(figures.illuminationPercent)) {
        figures.illuminationPercent = figures.imageMm > S ? 0.0 : 100.0;
    }
    return figures;
}

std::string FormatParallelStatus(int language, const ParallelFigures& figures)
{
    constexpr Bilingual kText{
        "Angle: %0.3f° Image: %0.2f mm, Illumination: %0.2f%% "_cp1252,
        "Einfallwinkel: %0.3f° Bild: %0.2f mm, Ausleuchtung: %0.2f%% "_cp1252,
    };
    LibString line;
    line.Format(kText.In(language), figures.angleDegrees, figures.imageMm, figures.illuminationPercent);
    return line.GetText();
}

#include "model/optics/CentreMarks.h"

#include "lib/text/FormatText.h"

CentreMarks FindCentreMarks(double m, double w, double F, double z)
{
    const double a = F - z;
    const double p = m / 2 - w * a / F;
    const double s = (p + w) * (F - a) / F - w;
    return {p < 0 ? 0 : p, s < 0 ? 0 : s};
}

CentreMarks FindCentreMarks(COrrevaData& telescope)
{
    const double m = telescope.GetSecondaryDiameter();
    const double w = telescope.GetWanted100PercentFow();
    const double F = telescope.GetFocalLength();
    const double z = telescope.GetFocalPlaneHeight();
    return FindCentreMarks(m, w, F, z);
}

std::string CentreMarksMessage(COrrevaData& telescope)
{
    const CentreMarks marks = FindCentreMarks(telescope);
    return FormatText("Maximaler Durchmesser der Markierung auf dem Hauptspiegel: %0.2fmm\n"
                      "Maximaler Durchmesser der Markierung auf dem Fangspiegel: %0.2fmm",
                      marks.primary, marks.secondary);
}

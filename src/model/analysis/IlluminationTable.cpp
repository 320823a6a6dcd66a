#include "model/analysis/IlluminationTable.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "model/analysis/SecondaryFormulas.h"
#include "model/record/Formulas.h"

#include <cmath>

namespace {

constexpr std::size_t kLast = std::tuple_size_v<IlluminationTable> - 1;
constexpr double kWorthShowing = 60; // per cent

/// Magnitudes that are lost at `percent` of the light.
double MagnitudeLoss(double percent) { return 2.5 * std::log(100 / percent) / 2.302585092994046; }

void PlacePoints(IlluminationTable& table, double F, double focuser_opening)
{
    const double edge = focuser_opening > 10 ? std::floor(focuser_opening / 10) * 10 : focuser_opening;
    for (std::size_t i = 1; i < kLast; ++i) {
        table[i].field = table[i - 1].field + edge / 20;
    }
    table[kLast].field = edge;
    for (IlluminationPoint& point : table) {
        const double minutes = point.field * 360 * 60 / 2 / kPi / F;
        point.degrees = minutes / 60;
    }
}

std::string RowValue(const IlluminationPoint& point)
{
    std::string text = FormatText("%0.1f%%", point.percent);
    if (!IsUnset(point.loss) && point.loss != 0) {
        text += FormatText(" (-%0.1f mag)", point.loss);
    }
    return text;
}

} // namespace

double OverlapPercent(double x, double r)
{
    const double c1 = (x * x + 1 - r * r) / 2 / x;
    const double c2 = (x * x + r * r - 1) / 2 / x / r;
    return (std::acos(c1) - std::sqrt(1 - c1 * c1) * x + r * r * std::acos(c2)) * 100 / kPi;
}

IlluminationTable ComputeIllumination(double D, double F, double L, double m, double focuser_opening)
{
    IlluminationTable table{};
    PlacePoints(table, F, focuser_opening);

    const double r = m * F / L / D;
    const auto percent_at = [&](double field) { return OverlapPercent((F - L) * field / L / D, r); };
    const bool lights_the_centre = m >= MinorAxisForCentre(D, F, L);

    // A point is bad where one circle lies within the other, the usual state of the fully lit core. Going
    // inward, the step between computable and bad points sets what all bad points after it take; it replaces
    // the point at the step itself in either direction. Bad is judged on the values as computed, so that a
    // table that is bad throughout takes the 0 of the start.
    double carry = 0.0;
    table[kLast].percent = percent_at(table[kLast].field);
    table[kLast].loss = MagnitudeLoss(table[kLast].percent);
    bool outer_bad = IsUnset(table[kLast].percent);
    for (std::size_t i = kLast; i-- > 0;) {
        IlluminationPoint& point = table[i];
        point.percent = percent_at(point.field);
        const bool bad = IsUnset(point.percent);
        if (bad != outer_bad) {
            carry = lights_the_centre ? 100.0 : table[i + 1].percent;
        }
        if (bad || outer_bad) {
            point.percent = carry;
        }
        point.loss = MagnitudeLoss(point.percent);
        outer_bad = bad;
    }
    return table;
}

ListRows IlluminationRows(const IlluminationTable& table, int language)
{
    static constexpr Bilingual kLabel{"Illumination at %0.1f mm FOV (%0.2f°)"_cp1252,
                                      "Ausleuchtung bei %0.1f mm FOV (%0.2f°)"_cp1252};
    std::size_t count = table.size();
    while (count > 0 && (IsUnset(table[count - 1].percent) || !(table[count - 1].percent >= kWorthShowing))) {
        --count;
    }
    ListRows rows;
    for (std::size_t i = count; i-- > 0;) {
        const IlluminationPoint& point = table[i];
        rows.push_back({FormatText(kLabel.In(language), point.field, point.degrees), RowValue(point)});
    }
    return rows;
}

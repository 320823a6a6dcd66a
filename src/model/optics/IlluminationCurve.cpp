#include "model/optics/IlluminationCurve.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace {

constexpr int kPageIntervals = 40;
constexpr int kStretchSamples = 200;

/// A number that rounds to 0 has no sign.
std::string SignedText(const char* format, double value)
{
    std::string text = FiniteText(format, {value});
    const bool isZero = text.find_first_of("123456789") == text.npos;
    if (isZero && text.starts_with('-')) {
        text.erase(0, 1);
    }
    return text;
}

/// The place between `from` and `to` at which another stop takes over from the one at `from`.
double BorderBetween(const IlluminationStops& stops, double from, double to)
{
    const CuttingStop stop = CuttingStopAt(stops, from);
    for (int i = 0; i < 14; ++i) {
        const double middle = 0.5 * from + 0.5 * to;
        (CuttingStopAt(stops, middle) == stop ? from : to) = middle;
    }
    return to;
}

} // namespace

IlluminationCurvePoint CurvePointAt(const IlluminationStops& stops, double h)
{
    const double light = LightAt(stops, h);
    const double share = light / CentreLight(stops);
    IlluminationCurvePoint point;
    point.h = h;
    point.degrees = std::atan(h / stops.f) * 180 / std::numbers::pi;
    point.of_centre = share * 100;
    point.loss = -2.5 * std::log10(share);
    point.of_mirror = light * 100;
    return point;
}

std::vector<IlluminationCurvePoint> IlluminationCurve(const IlluminationStops& stops, double reach,
                                                      std::size_t count)
{
    std::vector<IlluminationCurvePoint> points;
    if (!HasIllumination(stops) || !std::isfinite(reach)) {
        return points;
    }
    const std::size_t last = std::max<std::size_t>(count, 2) - 1;
    points.reserve(last + 1);
    for (std::size_t i = 0; i <= last; ++i) {
        points.push_back(CurvePointAt(stops, reach * (static_cast<double>(i) / static_cast<double>(last))));
    }
    return points;
}

std::vector<CuttingStretch> CuttingStretches(const IlluminationStops& stops, double reach)
{
    std::vector<CuttingStretch> stretches;
    if (!HasIllumination(stops) || !(reach > 0) || !std::isfinite(reach)) {
        return stretches;
    }
    stretches.push_back({0, reach, CuttingStopAt(stops, 0)});
    double before = 0;
    for (int i = 1; i <= kStretchSamples; ++i) {
        const double h = reach * i / kStretchSamples;
        const CuttingStop stop = CuttingStopAt(stops, h);
        if (stop != stretches.back().stop) {
            const double border = BorderBetween(stops, before, h);
            stretches.back().to = border;
            stretches.push_back({border, reach, stop});
        }
        before = h;
    }
    return stretches;
}

Bilingual NameOf(CuttingStop stop)
{
    static constexpr Bilingual kNames[] = {{"whole mirror", "ganzer Spiegel"},
                                           {"tube", "Tubus"},
                                           {"secondary", "Fangspiegel"},
                                           {"drawtube", "Auszug"}};
    return kNames[static_cast<std::size_t>(stop)];
}

std::string IlluminationReading(const IlluminationStops& stops, double diameter, int language)
{
    if (!HasIllumination(stops) || !std::isfinite(diameter)) {
        return {};
    }
    const IlluminationCurvePoint point = CurvePointAt(stops, diameter / 2);
    return SignedText("%0.1f mm", diameter) + SignedText(" (%0.3f°)"_cp1252, 2 * point.degrees) +
           SignedText(": %0.1f %%", point.of_centre) + " (" + SignedText("%0.3f mag", point.loss) + "), " +
           NameOf(CuttingStopAt(stops, point.h)).In(language);
}

ListRow IlluminationCells(const IlluminationCurvePoint& point)
{
    return {SignedText("%0.2f mm", point.h), SignedText("%0.3f°"_cp1252, point.degrees),
            SignedText("%0.2f %%", point.of_centre), SignedText("%0.3f mag", point.loss),
            SignedText("%0.2f %%", point.of_mirror)};
}

ListRows IlluminationPageRows(const IlluminationStops& stops)
{
    ListRows rows;
    if (!HasIllumination(stops)) {
        return rows;
    }
    for (int i = 0; i <= kPageIntervals; ++i) {
        rows.push_back(IlluminationCells(CurvePointAt(stops, i * stops.d / (2 * kPageIntervals))));
    }
    return rows;
}

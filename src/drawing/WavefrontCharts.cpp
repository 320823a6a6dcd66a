#include "drawing/WavefrontCharts.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/optics/FigureTexts.h"

#include <algorithm>
#include <cmath>

namespace {

// Hues that stand apart on a light and on a dark ground.
constexpr Colour kSeriesColours[] = {{38, 110, 200}, {200, 75, 40},  {40, 140, 70},
                                     {150, 80, 180}, {170, 125, 20}, {20, 140, 150}};
constexpr Colour kZoneMark{140, 140, 140};
constexpr Colour kEighthWave{60, 150, 80};
constexpr Colour kQuarterWave{205, 60, 60};
constexpr Colour kToleranceBand{205, 232, 210};
constexpr Bilingual kNoFigure{"no figure yet", "noch keine Fläche"_cp1252};
constexpr Bilingual kRadiusTitle{"Radius (mm)", "Radius (mm)"};

Colour CurveColour(std::size_t index) { return kSeriesColours[index % std::size(kSeriesColours)]; }

std::size_t FiniteCurves(std::span<const WavefrontCurve> curves)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        curves, [](const WavefrontCurve& curve) { return std::isfinite(curve.figure->pv); }));
}

/// The chart without its curves: the mirror's radius at the bottom, and the zones of the first figure.
Chart MirrorChart(std::span<const WavefrontCurve> curves, double D, int language)
{
    Chart chart;
    chart.bottom = {kRadiusTitle.In(language), {0, D > 0 ? D / 2 : 1}};
    if (FiniteCurves(curves) == 0) {
        chart.message = kNoFigure.In(language);
        return chart;
    }
    const std::vector<FigureZone>& zones = curves.front().figure->zones;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        chart.uprights.push_back({zones[i].radius, kZoneMark, std::to_string(i + 1)});
    }
    return chart;
}

void AddLevels(Chart& chart, double at, Colour colour, const std::string& label)
{
    chart.levels.push_back({at, colour, '+' + label});
    chart.levels.push_back({-at, colour, '-' + label});
}

} // namespace

Chart WavefrontChart(std::span<const WavefrontCurve> curves, double D, double wavelength, int language)
{
    constexpr Bilingual kHeight{"Wavefront (nm)", "Wellenfront (nm)"};
    Chart chart = MirrorChart(curves, D, language);
    double largest = 1.1 * wavelength / 4;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        ChartLine line{{}, CurveColour(i), true, ChartSide::kLeft, curves[i].name};
        for (const auto& [radius, height] : ProfileOf(*curves[i].figure, D)) {
            line.points.push_back({radius, height});
            largest = std::isfinite(height) ? std::max(largest, std::abs(height)) : largest;
        }
        chart.lines.push_back(std::move(line));
    }
    if (curves.size() == 1 && chart.message.empty()) {
        chart.title = FigureTitle(*curves.front().figure, language);
    }
    chart.left = {kHeight.In(language), RoundRange(-largest, largest)};
    AddLevels(chart, wavelength / 8, kEighthWave, "lambda/8");
    AddLevels(chart, wavelength / 4, kQuarterWave, "lambda/4");
    return chart;
}

Chart TransverseChart(std::span<const WavefrontCurve> curves, double D, int language)
{
    constexpr Bilingual kTransverse{"Transverse (Airy radii)", "Querabweichung (Airy-Radien)"};
    Chart chart = MirrorChart(curves, D, language);
    double largest = 1.5;
    for (std::size_t i = 0; i < curves.size(); ++i) {
        ChartLine line{{}, CurveColour(i), false, ChartSide::kLeft, curves[i].name};
        for (const FigureZone& zone : curves[i].figure->zones) {
            line.points.push_back({zone.radius, zone.transverse});
            chart.dots.push_back({line.points.back(), CurveColour(i)});
            largest = std::isfinite(zone.transverse) ? std::max(largest, std::abs(zone.transverse)) : largest;
        }
        chart.lines.push_back(std::move(line));
    }
    chart.left = {kTransverse.In(language), RoundRange(-largest, largest)};
    chart.zones.push_back({{-1, 1}, kToleranceBand});
    return chart;
}

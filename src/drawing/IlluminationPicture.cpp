#include "drawing/IlluminationPicture.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/FormatText.h"
#include "lib/text/Language.h"
#include "model/analysis/SecondaryChoice.h"
#include "model/optics/IlluminationCurve.h"
#include "model/record/Formulas.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr Bilingual kFieldTitle{"diameter of the field in mm", "Durchmesser des Felds in mm"};
constexpr Bilingual kLightTitle{"% of the centre's light", "% des Lichts der Mitte"};
constexpr Bilingual kNothing{"No illumination.", "Keine Ausleuchtung."};

/// Where the magnitudes have their ticks; those that find no room lose their text.
constexpr double kMagnitudes[] = {-1, -0.5, -0.2, 0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.75, 1, 1.5, 2, 3, 5};
constexpr std::size_t kCurvePoints = 161;
constexpr std::size_t kThinCurvePoints = 81;

std::vector<Point> CurveOver(const IlluminationStops& stops, double field, std::size_t count)
{
    std::vector<Point> points;
    for (const IlluminationCurvePoint& point : IlluminationCurve(stops, field / 2, count)) {
        points.push_back({2 * point.h, point.of_centre});
    }
    return points;
}

/// From a round number below all curves to one above them, so that a curve at 100 % is clear of the frame.
ChartRange LightRange(const std::vector<ChartLine>& lines)
{
    double lowest = 70;
    double highest = 102;
    for (const ChartLine& line : lines) {
        for (const Point& point : line.points) {
            lowest = std::min(lowest, point.y);
            highest = std::max(highest, point.y);
        }
    }
    return RoundRange(lowest, highest, 10);
}

std::vector<ChartTick> DegreeTicks(const IlluminationStops& stops, double field)
{
    const double degrees = 2 * std::atan(field / 2 / stops.f) * 180 / std::numbers::pi;
    std::vector<ChartTick> ticks = RoundTicks({0, degrees}, 8);
    for (ChartTick& tick : ticks) {
        tick.value = FieldSize(stops.f, tick.value);
    }
    return ticks;
}

std::vector<ChartTick> MagnitudeTicks()
{
    std::vector<ChartTick> ticks;
    for (const double magnitude : kMagnitudes) {
        ticks.push_back({100 * std::pow(10, -0.4 * magnitude), FormatText("%g", magnitude)});
    }
    return ticks;
}

/// The axes that all curves of light have, and a chart without a curve where there is no light.
Chart LightChart(const IlluminationStops& stops, double wanted, std::vector<ChartLine> lines, int language)
{
    Chart chart;
    const double field = ShownField(stops, wanted);
    chart.lines = std::move(lines);
    chart.bottom = {kFieldTitle.In(language), {0, field}};
    chart.left = {kLightTitle.In(language), LightRange(chart.lines)};
    if (!HasIllumination(stops)) {
        chart.lines.clear();
        chart.message = kNothing.In(language);
        return chart;
    }
    static constexpr Bilingual kDegrees{"degrees", "Grad"};
    static constexpr Bilingual kLoss{"loss in magnitudes", "Verlust in Größenklassen"_cp1252};
    chart.top = ChartAxis{kDegrees.In(language), {}, DegreeTicks(stops, field)};
    chart.right = ChartAxis{kLoss.In(language), chart.left.range, MagnitudeTicks()};
    return chart;
}

void AddFieldMark(Chart& chart, const char* label, double field, Colour colour)
{
    if (std::isfinite(field) && field > 0) {
        chart.uprights.push_back({field, colour, FormatText("%s %0.1f mm", label, field)});
    }
}

void AddBand(Chart& chart, const IlluminationStops& stops, double field, const IlluminationColours& colours,
             int language)
{
    for (const CuttingStretch& stretch : CuttingStretches(stops, field / 2)) {
        chart.band.push_back({{2 * stretch.from, 2 * stretch.to},
                              colours.bands[static_cast<std::size_t>(stretch.stop)],
                              colours.bandText,
                              NameOf(stretch.stop).In(language)});
    }
}

} // namespace

std::vector<FieldStop> FieldStopsOf(const std::vector<Eyepiece>& eyepieces, double f, double widest)
{
    constexpr std::size_t kStopsAtMost = 40;
    std::vector<FieldStop> stops;
    for (const Eyepiece& eyepiece : eyepieces) {
        if (!(eyepiece.focal_length > 0) || !(eyepiece.apparent_field > 0) || stops.size() == kStopsAtMost) {
            continue;
        }
        const double magnification = f / eyepiece.focal_length;
        const double diameter = FieldSize(f, eyepiece.apparent_field / magnification);
        if (diameter > 0 && diameter <= widest) {
            stops.push_back({eyepiece.name, diameter});
        }
    }
    return stops;
}

double ShownField(const IlluminationStops& stops, double wanted)
{
    if (!HasIllumination(stops)) {
        return 1;
    }
    const double half = FieldDiameterAtShare(stops, 0.5);
    const double field = std::max(stops.d, std::min(half * 1.05, 1.5 * stops.d));
    return wanted > field && wanted < 10 * field ? wanted : field;
}

Chart IlluminationChart(const IlluminationStops& stops, double wanted, std::span<const FieldStop> fieldStops,
                        const IlluminationColours& colours, int language)
{
    const double field = ShownField(stops, wanted);
    Chart chart =
        LightChart(stops, wanted, {{CurveOver(stops, field, kCurvePoints), colours.curve, true}}, language);
    if (chart.lines.empty()) {
        return chart;
    }
    static constexpr Bilingual kWanted{"wanted", "gewünscht"_cp1252};
    static constexpr Bilingual kFull{"fully lit", "voll ausgeleuchtet"};
    AddFieldMark(chart, kWanted.In(language), wanted, colours.wanted);
    AddFieldMark(chart, kFull.In(language), FullyLitField(stops), colours.mark);
    AddFieldMark(chart, "75 %", FieldDiameterAtShare(stops, 0.75), colours.mark);
    AddFieldMark(chart, "50 %", FieldDiameterAtShare(stops, 0.5), colours.mark);
    for (const FieldStop& stop : fieldStops) {
        chart.uprights.push_back({stop.diameter, colours.eyepiece, stop.name});
    }
    AddBand(chart, stops, field, colours, language);
    return chart;
}

Chart MinorAxesChart(const IlluminationStops& stops, double wanted, const std::vector<double>& minorAxes,
                     const IlluminationColours& colours, int language)
{
    const double field = ShownField(stops, wanted);
    std::vector<ChartLine> lines;
    for (const double axis : minorAxes) {
        IlluminationStops changed = stops;
        changed.m = axis;
        lines.push_back({CurveOver(changed, field, kThinCurvePoints), colours.other});
    }
    lines.push_back({CurveOver(stops, field, kThinCurvePoints), colours.curve, true});
    Chart chart = LightChart(stops, wanted, std::move(lines), language);
    for (std::size_t i = 0; i < chart.lines.size() && i < minorAxes.size(); ++i) {
        if (!chart.lines[i].points.empty()) {
            chart.dots.push_back(
                {chart.lines[i].points.back(), colours.other, FormatText("%0.1f", minorAxes[i])});
        }
    }
    return chart;
}

Chart SecondaryChoiceChart(const IlluminationStops& stops, double wanted, const IlluminationColours& colours,
                           int language)
{
    static constexpr Bilingual kMinorAxis{"minor axis of the secondary in mm",
                                          "kleine Achse des Fangspiegels in mm"};
    static constexpr Bilingual kFields{"diameter in mm", "Durchmesser in mm"};
    static constexpr Bilingual kObstruction{"obstruction in %", "Obstruktion in %"};
    static constexpr Bilingual kFullField{"fully lit field", "voll ausgeleuchtetes Feld"};
    static constexpr Bilingual kField75{"field with 75 % at its edge", "Feld mit 75 % am Rand"};
    static constexpr Bilingual kObstructionName{"linear obstruction (right)", "lineare Obstruktion (rechts)"};
    static constexpr Bilingual kPresent{"present", "jetzt"};
    static constexpr Bilingual kWanted{"wanted field", "gewünschtes Feld"_cp1252};

    ChartLine full{{}, colours.other, true, ChartSide::kLeft, kFullField.In(language)};
    ChartLine at75{{}, colours.curve, true, ChartSide::kLeft, kField75.In(language)};
    ChartLine obstruction{{}, colours.obstruction, false, ChartSide::kRight, kObstructionName.In(language)};
    Chart chart;
    double largest = 0;
    const std::vector<SecondaryChoice> choices = SecondaryChoices(stops, StandardMinorAxes(stops.D));
    for (const SecondaryChoice& choice : choices) {
        full.points.push_back({choice.minor_axis, choice.full_field});
        at75.points.push_back({choice.minor_axis, choice.field_at_75});
        obstruction.points.push_back({choice.minor_axis, choice.obstruction});
        largest = std::max(largest, std::isfinite(choice.field_at_75) ? choice.field_at_75 : 0);
        for (const ChartLine* line : {&full, &at75, &obstruction}) {
            chart.dots.push_back({line->points.back(), line->colour, {}, line->side});
        }
    }
    chart.bottom = {kMinorAxis.In(language), {}};
    chart.left = {kFields.In(language),
                  RoundRange(0, std::max(largest, wanted < 10 * largest ? wanted : 0.0))};
    chart.right = ChartAxis{kObstruction.In(language), {0, 60}};
    if (!(largest > 0)) {
        chart.dots.clear();
        chart.message = kNothing.In(language);
        return chart;
    }
    const double last = std::max(choices.back().minor_axis, std::min(stops.m, 0.6 * stops.D));
    chart.bottom.range = RoundRange(std::min(choices.front().minor_axis, stops.m), last);
    chart.lines = {std::move(full), std::move(at75), std::move(obstruction)};
    chart.uprights.push_back({stops.m, colours.mark, FormatText("%s %0.2f", kPresent.In(language), stops.m)});
    chart.levels.push_back({wanted, colours.wanted, FormatText("%s %0.1f mm", kWanted.In(language), wanted)});
    return chart;
}

#include "drawing/SectionScale.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"
#include "model/record/OrrevaData.h"
#include "raytrace/ScopeGeometry.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace {

constexpr Font kSmallFont{10, Font::kNormal, true};
constexpr Font kClearFont{12, Font::kNormal, true};
constexpr std::int32_t kClearGap = 3; ///< pixels between a tick and its number

/// A tube that is longer than any has no more ticks than this.
constexpr int kMostTicks = 10000;
constexpr double kLongestNumber = 1e6; ///< mm

/// The distances of the scale's ticks, mm.
struct ScaleSteps {
    double above; ///< the tube's length from which on they hold
    std::int32_t step;
    std::int32_t major;
};
constexpr ScaleSteps kScaleSteps[] = {{3000, 50, 500}, {1500, 20, 200}};
constexpr ScaleSteps kFinestSteps{0, 10, 100};

ScaleSteps StepsFor(double tubeLength)
{
    for (const ScaleSteps& steps : kScaleSteps) {
        if (tubeLength > steps.above) {
            return steps;
        }
    }
    return kFinestSteps;
}

/// Calls `visit(i, isMajor)` for each tick, by its distance from the rear end.
template <class Visit>
void VisitTicks(const SectionScale& scale, Visit visit)
{
    const ScaleSteps steps = StepsFor(scale.rear - scale.front);
    for (int tick = 0; tick < kMostTicks; ++tick) {
        const std::int32_t i = tick * steps.step;
        if (!(scale.front < scale.rear - i)) {
            break;
        }
        visit(i, i % steps.major == 0);
    }
}

void Upright(Surface& surface, const SectionMapping& map, double x, double y, double half, Colour colour)
{
    surface.Line(map.WorldToScreen(x, y - half), map.WorldToScreen(x, y + half), colour);
}

void PaintLines(Surface& surface, const SectionMapping& map, const SectionScale& scale, Colour colour)
{
    surface.Line(map.WorldToScreen(scale.front, scale.y), map.WorldToScreen(scale.rear, scale.y), colour);
}

constexpr double kMinorTick = 5;

/// What stands at the front end; none for a tube that is no tube.
std::optional<std::int32_t> LastNumber(const SectionScale& scale)
{
    const double length = std::round(scale.rear - scale.front);
    return length > 0 && length < kLongestNumber ? std::optional(TruncToInt32(length)) : std::nullopt;
}

std::string NumberText(std::int32_t number) { return FormatText("%d", number); }

std::int32_t TextLength(const std::string& text, const Font& font)
{
    // Digits are a little less than half as wide as a line is high.
    return (static_cast<std::int32_t>(text.size()) * font.height + 1) / 2;
}

} // namespace

SectionScale ScaleOf(const ScopeGeometry& geometry, COrrevaData& record)
{
    constexpr double kBelowTube = 60;
    return {geometry.frontX, geometry.frontX + geometry.tubeLength,
            geometry.top + geometry.tubeWidth + TruncToInt32(record.GetThicknessHat()) + kBelowTube};
}

void PaintScale(Surface& surface, const SectionMapping& map, const SectionScale& scale, Colour colour,
                double pixelScale)
{
    const Font font = kSmallFont.Scaled(pixelScale);
    PaintLines(surface, map, scale, colour);
    VisitTicks(scale, [&](std::int32_t i, bool major) {
        const double x = scale.rear - i;
        Upright(surface, map, x, scale.y, major ? SectionScale::kTick : kMinorTick, colour);
        if (major) {
            surface.Text(map.WorldToScreen(x, TruncToInt32(scale.y - 2)), NumberText(i), font, colour);
        }
    });
}

void PaintClearScale(Surface& surface, const SectionMapping& map, const SectionScale& scale, Colour colour,
                     double pixelScale)
{
    const Font font = kClearFont.Scaled(pixelScale);
    const std::int32_t gap = TruncToInt32(kClearGap * pixelScale + 0.5);
    // As real numbers: a pixel may stand at the very end of what pixels count.
    const auto screenX = [&](double i) -> double { return map.WorldToScreen(scale.rear - i, scale.y).x; };
    const double rightmost = screenX(0) + gap; // the picture's edge is no closer
    const auto number = [&](std::int32_t i) {
        Upright(surface, map, scale.rear - i, scale.y, SectionScale::kTick, colour);
        const std::string text = NumberText(i);
        const double x = std::min(screenX(i) - font.height / 2, rightmost - font.height);
        const double y = map.WorldToScreen(scale.rear - i, scale.y + SectionScale::kTick).y;
        surface.Text({TruncToInt32(x), TruncToInt32(y + gap + TextLength(text, font))}, text, font, colour);
    };
    PaintLines(surface, map, scale, colour);
    const std::optional<std::int32_t> last = LastNumber(scale);
    const auto isApart = [&](std::int32_t i, std::int32_t other) {
        return std::fabs(screenX(i) - screenX(other)) >= font.height;
    };
    std::optional<std::int32_t> previous;
    VisitTicks(scale, [&](std::int32_t i, bool major) {
        const bool room = (!previous || isApart(i, *previous)) && (!last || isApart(i, *last));
        if (major && room) {
            number(i);
            previous = i;
        } else {
            Upright(surface, map, scale.rear - i, scale.y, major ? SectionScale::kTick : kMinorTick, colour);
        }
    });
    if (last) {
        number(*last);
    }
}

std::int32_t ClearScaleRoom(const SectionScale& scale)
{
    return kClearGap + TextLength(NumberText(LastNumber(scale).value_or(0)), kClearFont) + 1;
}

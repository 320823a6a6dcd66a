#include "drawing/FieldPicture.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <cmath>

namespace {

constexpr Pixel kCentre{260, 260};
constexpr std::int32_t kLabelX = 515;
constexpr std::int32_t kLabelSpacing = 25; // rings
constexpr std::int32_t kPenWidth = 2;

/// The low byte of the grey; more light than at the centre starts over at black.
Colour GreyOf(double p)
{
    const auto grey = static_cast<std::uint8_t>(TruncToInt32(p * 255 / 100) & 0xFF);
    return {grey, grey, grey};
}

void DrawLabels(Surface& surface, std::int32_t radius, const FieldRing& ring)
{
    const std::string text = FormatText("%0.1f°->%0.0f%%"_cp1252, ring.angle, ring.p + 0.5);
    surface.Text({kLabelX, kCentre.y + radius}, text, Font{}, kBlack);
    surface.Text({kLabelX, kCentre.y - radius}, text, Font{}, kBlack);
}

} // namespace

void DrawFieldPicture(Surface& surface, const FieldTable& table)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, kWhite);
    for (std::size_t i = 0; i < table.size(); ++i) {
        const FieldRing& ring = table[i];
        if (std::isnan(ring.p)) {
            continue;
        }
        const auto radius = static_cast<std::int32_t>(i);
        // The outline runs through the box's outer pixels: those on the far side belong to it.
        surface.Ellipse(
            {kCentre.x - radius, kCentre.y - radius, kCentre.x + radius + 1, kCentre.y + radius + 1},
            GreyOf(ring.p), kPenWidth);
        if (radius % kLabelSpacing == 0) {
            DrawLabels(surface, radius, ring);
        }
    }
}

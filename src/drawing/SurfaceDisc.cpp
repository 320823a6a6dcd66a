#include "drawing/SurfaceDisc.h"

#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace {

constexpr std::int32_t kDiscMargin = 8;
constexpr std::int32_t kScaleWidth = 84; ///< of the coloured bar and its texts
constexpr std::int32_t kBarWidth = 16;
constexpr Colour kUnknownGlass{160, 160, 160};
constexpr Font kScaleFont{};

/// The disc's place: its diameter and its upper left corner; none where there is no room.
struct DiscPlace {
    std::int32_t size;
    Pixel corner;
};

DiscPlace PlaceDisc(const Surface& surface)
{
    const std::int32_t width = surface.Width() - kScaleWidth - 2 * kDiscMargin;
    const std::int32_t height = surface.Height() - 2 * kDiscMargin;
    const std::int32_t size = std::max(std::min(width, height), 0);
    return {size, {kDiscMargin + (width - size) / 2, kDiscMargin + (height - size) / 2}};
}

/// The colours along the radius: the picture is round, so that each is worked out once.
std::vector<Colour> RadialColours(const Figure* figure, double D, double largest, std::int32_t steps)
{
    std::vector<Colour> colours;
    for (std::int32_t i = 0; i <= steps; ++i) {
        colours.push_back(figure == nullptr
                              ? kUnknownGlass
                              : HeightColour(figure->wavefront.At(D / 2 * i / steps) / largest));
    }
    return colours;
}

void PaintDiscImage(Surface& surface, const DiscPlace& place, const std::vector<Colour>& colours,
                    Colour background)
{
    std::vector<Colour> pixels;
    pixels.reserve(static_cast<std::size_t>(place.size) * static_cast<std::size_t>(place.size));
    const double middle = (place.size - 1) / 2.0;
    const double radius = place.size / 2.0;
    for (std::int32_t y = 0; y < place.size; ++y) {
        for (std::int32_t x = 0; x < place.size; ++x) {
            const double share = std::hypot(x - middle, y - middle) / radius;
            const auto step = static_cast<std::size_t>(share * static_cast<double>(colours.size() - 1));
            pixels.push_back(share <= 1 ? colours[step] : background);
        }
    }
    surface.Image(place.corner, place.size, pixels);
}

void PaintZoneRings(Surface& surface, const DiscPlace& place, const Figure& figure, double D)
{
    constexpr Colour kRing{90, 90, 90};
    for (const FigureZone& zone : figure.zones) {
        const std::int32_t inset = TruncToInt32(place.size / 2.0 * (1 - 2 * zone.radius / D));
        surface.Ellipse({place.corner.x + inset, place.corner.y + inset, place.corner.x + place.size - inset,
                         place.corner.y + place.size - inset},
                        kRing, 1);
    }
}

void PaintHeightScale(Surface& surface, const DiscPlace& place, double largest, Colour text)
{
    const std::int32_t left = surface.Width() - kScaleWidth;
    const std::int32_t height = std::max(place.size, 1);
    for (std::int32_t y = 0; y < place.size; ++y) {
        const std::int32_t top = place.corner.y + y;
        surface.FillRect({left, top, left + kBarWidth, top + 1}, HeightColour(1 - 2.0 * y / height));
    }
    // The glass stands half as high as the wavefront.
    const std::array<double, 3> heights{largest / 2, 0, -largest / 2};
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const std::int32_t y =
            place.corner.y + static_cast<std::int32_t>(i) * (place.size - kScaleFont.height) / 2;
        surface.Text({left + kBarWidth + 6, y}, FormatText(i == 1 ? "%0.0f nm" : "%+0.1f nm", heights[i]),
                     kScaleFont, text);
    }
}

double LargestHeight(const Figure& figure, double D)
{
    double largest = 0;
    for (const auto& [radius, height] : ProfileOf(figure, D)) {
        largest = std::max(largest, std::abs(height));
    }
    return largest;
}

} // namespace

Colour HeightColour(double height)
{
    const double share = std::isfinite(height) ? std::clamp(height, -1.0, 1.0) : 0.0;
    const auto faded = static_cast<std::uint8_t>(255 - TruncToInt32(std::abs(share) * 215));
    const auto full = static_cast<std::uint8_t>(255 - TruncToInt32(std::abs(share) * 45));
    return share < 0 ? Colour{faded, faded, full} : Colour{full, faded, faded};
}

void PaintSurfaceDisc(Surface& surface, const Figure* figure, double D, Colour background, Colour text)
{
    surface.FillRect({0, 0, surface.Width(), surface.Height()}, background);
    const DiscPlace place = PlaceDisc(surface);
    if (place.size == 0) {
        return;
    }
    const bool known = figure != nullptr && std::isfinite(figure->pv);
    const double largest = known ? std::max(LargestHeight(*figure, D), 1e-9) : 1;
    PaintDiscImage(surface, place, RadialColours(known ? figure : nullptr, D, largest, place.size),
                   background);
    if (known) {
        PaintZoneRings(surface, place, *figure, D);
        PaintHeightScale(surface, place, largest, text);
    }
}

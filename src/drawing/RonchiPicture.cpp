#include "drawing/RonchiPicture.h"

#include "lib/text/FormatText.h"
#include "model/optics/RonchiTolerance.h"

namespace {

constexpr std::int32_t kRadius = 100;
constexpr std::int32_t kLabelDistance = 92;

} // namespace

std::vector<Colour> RonchiPatterns(const RonchiTest& test, RonchiGenerator& generator)
{
    constexpr std::ptrdiff_t kSide = RonchiBlock::kSide;
    std::vector<Colour> pixels(static_cast<std::size_t>(kSide * kSide), kWhite);
    const RonchiMirror mirror(test);
    for (const RonchiPattern& pattern : kRonchiPatterns) {
        Colour* const centre = pixels.data() + (pattern.centre.y - RonchiBlock::kAt.y) * kSide +
                               (pattern.centre.x - RonchiBlock::kAt.x);
        const RonchiPlaces thrown = ThrowRonchiDots(generator);
        const RonchiPlaces lit = mirror.LitPlaces(pattern.offset);
        const std::uint8_t* place = thrown.data();
        const std::uint8_t* passes = lit.data();
        for (std::int32_t row = 0; row < kRonchiSteps; ++row) {
            Colour* const above = centre - mirror.PixelOf(row) * kSide;
            Colour* const below = centre + mirror.PixelOf(row) * kSide;
            for (std::int32_t column = 0; column < kRonchiSteps; ++column) {
                if ((*place++ & *passes++) != 0) {
                    const std::int32_t px = mirror.PixelOf(column);
                    above[-px] = above[px] = below[-px] = below[px] = kBlack;
                }
            }
        }
    }
    return pixels;
}

void DrawRonchiPicture(Surface& surface, COrrevaData& telescope, double grating, double constant,
                       std::uint32_t seed)
{
    const double D = telescope.GetMirrorDiameter();
    const double F = telescope.GetFocalLength();
    RonchiGenerator generator(seed);
    const RonchiTest test(D, F, grating, constant);

    surface.FillRect({0, 0, surface.Width(), surface.Height()}, kWhite);
    surface.Image(RonchiBlock::kAt, RonchiBlock::kSide, RonchiPatterns(test, generator));
    if (const auto tolerance = FindRonchiTolerance(D, F)) {
        surface.Text({0, 0}, RonchiToleranceText(*tolerance), Font{}, kBlack);
    }
    for (const auto& [centre, offset] : kRonchiPatterns) {
        surface.Ellipse({centre.x - kRadius, centre.y - kRadius, centre.x + kRadius, centre.y + kRadius},
                        kBlack, 1);
        surface.Text({centre.x - kLabelDistance, centre.y - kLabelDistance}, FormatText("%1.1f ", offset),
                     Font{}, kBlack);
    }
}

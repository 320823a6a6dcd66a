#include "drawing/RonchiPicture.h"

#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace {

constexpr std::int32_t kCentresX[] = {110, 320, 530};
constexpr std::int32_t kCentresY[] = {150, 360, 570};
constexpr double kOffsets[] = {-0.7, -0.5, -0.3, -0.1, 0.1, 0.3, 0.5, 0.7, 0.9};

/// A picture as pixels of the whole surface.
class Pixels {
public:
    Pixels() : m_pixels(kWidth * kHeight, kWhite) {}
    Colour& At(std::int32_t x, std::int32_t y)
    {
        return m_pixels.at(static_cast<std::size_t>(y * kWidth + x));
    }
    void Put(const drawn::Image& image)
    {
        for (std::size_t i = 0; i < image.pixels.size(); ++i) {
            const auto at = static_cast<std::int32_t>(i);
            At(image.at.x + at % image.width, image.at.y + at / image.width) = image.pixels[i];
        }
    }
    bool operator==(const Pixels&) const = default;

private:
    static constexpr std::int32_t kWidth = 640;
    static constexpr std::int32_t kHeight = 680;
    std::vector<Colour> m_pixels;
};

/// The nine patterns as they are defined, pixel by pixel.
Pixels PatternsDirectly(double D, double F, double grating, double constant, std::uint32_t seed)
{
    RonchiGenerator random(seed);
    const double r = D / 25.4 / 2;
    const double R = 2 * (F / 25.4);
    double g = grating * 25.4;
    if (g == 0) {
        g = 0.1;
    }
    const double w = 1 / (2 * g);
    Pixels pixels;
    for (int pattern = 0; pattern < 9; ++pattern) {
        const std::int32_t cx = kCentresX[pattern % 3];
        const std::int32_t cy = kCentresY[pattern / 3];
        const double o = kOffsets[pattern];
        for (int i = 0; i < 15000; ++i) {
            const double x = static_cast<int>(random() % 105) * r / 105;
            const double y = static_cast<int>(random() % 105) * r / 105;
            const double rad = std::sqrt(std::pow(x, 2) + std::pow(y, 2));
            if (rad > r) {
                continue;
            }
            const double c = std::pow(rad, 2) * constant / R + R;
            double u = (2 * o + R - c) * x / c;
            u = std::abs(u);
            const int n = static_cast<int>(u / w + 0.5);
            if (static_cast<double>(n / 2) != n / 2.0) {
                continue;
            }
            const int px = static_cast<int>(x * 100 / r);
            const int py = static_cast<int>(y * 100 / r);
            pixels.At(cx - px, cy - py) = kBlack;
            pixels.At(cx - px, cy + py) = kBlack;
            pixels.At(cx + px, cy - py) = kBlack;
            pixels.At(cx + px, cy + py) = kBlack;
        }
    }
    return pixels;
}

RecordingSurface Draw(double D, double F, double grating, double constant, std::uint32_t seed)
{
    COrrevaData telescope;
    telescope.SetMirrorDiameter(D);
    telescope.SetFocalLength(F);
    RecordingSurface surface(640, 680);
    DrawRonchiPicture(surface, telescope, grating, constant, seed);
    return surface;
}

Pixels DotsOf(const RecordingSurface& surface)
{
    const auto images = surface.Of<drawn::Image>();
    EXPECT_EQ(1u, images.size());
    Pixels pixels;
    pixels.Put(images.at(0));
    return pixels;
}

/// Columns of a pattern, by their distance from its middle, that hold a black dot.
std::set<std::int32_t> LitColumns(Pixels& pixels, int pattern)
{
    std::set<std::int32_t> lit;
    for (std::int32_t x = 0; x <= 100; ++x) {
        for (std::int32_t y = -100; y <= 100; ++y) {
            if (pixels.At(kCentresX[pattern % 3] + x, kCentresY[pattern / 3] + y) == kBlack) {
                lit.insert(x);
            }
        }
    }
    return lit;
}

TEST(RonchiPicture, DotsAreThoseOfTheDefinition)
{
    const struct {
        double D, F, grating, constant;
    } rows[] = {{250, 1500, 5, 1}, {250, 1500, 5, 0},    {200, 1200, 4, 1.5}, {400, 1600, 10, -1},
                {114, 900, 0, 1},  {300, 1500, -3, 0.5}, {150, 1350, 0.01, 1}};
    for (std::uint32_t seed = 1; seed < 4; ++seed) {
        for (const auto& [D, F, grating, constant] : rows) {
            EXPECT_TRUE(PatternsDirectly(D, F, grating, constant, seed) ==
                        DotsOf(Draw(D, F, grating, constant, seed)))
                << D << " " << grating << " " << constant << " " << seed;
        }
    }
}

TEST(RonchiPicture, EqualSeedsGiveEqualPicturesAndOthersGiveOtherDotsUnderTheSameLimits)
{
    const RecordingSurface one = Draw(250, 1500, 5, 1, 7);
    const RecordingSurface same = Draw(250, 1500, 5, 1, 7);
    const RecordingSurface other = Draw(250, 1500, 5, 1, 8);
    EXPECT_TRUE(one.calls == same.calls);
    EXPECT_FALSE(DotsOf(one) == DotsOf(other));
    EXPECT_EQ(one.Of<drawn::Text>(), other.Of<drawn::Text>());
}

TEST(RonchiPicture, CirclesAndTexts)
{
    const RecordingSurface surface = Draw(250, 1500, 5, 1, 1);
    const auto circles = surface.Of<drawn::Ellipse>();
    const auto texts = surface.Of<drawn::Text>();
    ASSERT_EQ(9u, circles.size());
    ASSERT_EQ(10u, texts.size());
    EXPECT_EQ((drawn::Text{{0, 0},
                           "+- 1/4 wavefront Fehler: parab. kann in einem Bereich von 0.51 bis 1.49 "
                           "ver\xE4ndert werden.",
                           Font{},
                           kBlack}),
              texts[0]);
    const char* const offsets[] = {"-0.7 ", "-0.5 ", "-0.3 ", "-0.1 ", "0.1 ",
                                   "0.3 ",  "0.5 ",  "0.7 ",  "0.9 "};
    for (std::size_t i = 0; i < 9; ++i) {
        const std::int32_t cx = kCentresX[i % 3];
        const std::int32_t cy = kCentresY[i / 3];
        EXPECT_EQ((drawn::Ellipse{{cx - 100, cy - 100, cx + 100, cy + 100}, kBlack, 1}), circles[i]);
        EXPECT_EQ((drawn::Text{{cx - 92, cy - 92}, offsets[i], Font{}, kBlack}), texts[i + 1]);
    }
}

TEST(RonchiPicture, TheCentreLineIsAlwaysLit)
{
    Pixels pixels = DotsOf(Draw(250, 1500, 5, 1, 3));
    for (int pattern = 0; pattern < 9; ++pattern) {
        int dots = 0;
        for (std::int32_t y = 0; y < 100; ++y) {
            dots += pixels.At(kCentresX[pattern % 3], kCentresY[pattern / 3] + y) == kBlack;
        }
        EXPECT_GT(dots, 60) << pattern; // chance alone leaves gaps
    }
}

TEST(RonchiPicture, EachPatternIsSymmetricalInBothAxes)
{
    Pixels pixels = DotsOf(Draw(250, 1500, 5, 1, 3));
    for (int pattern = 0; pattern < 9; ++pattern) {
        const std::int32_t cx = kCentresX[pattern % 3];
        const std::int32_t cy = kCentresY[pattern / 3];
        for (std::int32_t x = 0; x <= 100; ++x) {
            for (std::int32_t y = 0; y <= 100; ++y) {
                const Colour dot = pixels.At(cx + x, cy + y);
                ASSERT_EQ(dot, pixels.At(cx - x, cy + y));
                ASSERT_EQ(dot, pixels.At(cx + x, cy - y));
                ASSERT_EQ(dot, pixels.At(cx - x, cy - y));
            }
        }
    }
}

TEST(RonchiPicture, ASphereShowsStraightBands)
{
    // u = 2 o x / R: a column is lit as a whole or dark as a whole. The mirror is 250 mm of f/6 behind 5
    // lines/mm, so R = 3000 / 25.4 and w = 1 / 254 inches.
    Pixels pixels = DotsOf(Draw(250, 1500, 5, 0, 5));
    for (int pattern = 0; pattern < 9; ++pattern) {
        std::set<std::int32_t> expected;
        for (int i = 0; i < 105; ++i) {
            const double x = i * (250 / 25.4 / 2) / 105;
            const double u = std::abs(2 * kOffsets[pattern] * x / (3000 / 25.4));
            if (static_cast<int>(u * 254 + 0.5) % 2 == 0) {
                expected.insert(static_cast<std::int32_t>(i * 100 / 105.0));
            }
        }
        const std::set<std::int32_t> lit = LitColumns(pixels, pattern);
        for (const std::int32_t column : lit) {
            EXPECT_TRUE(expected.contains(column)) << pattern << " " << column;
        }
        EXPECT_LT(expected.size(), 100u) << pattern;
        EXPECT_GT(lit.size() + 8, expected.size()) << pattern; // the rim has few points
    }
}

TEST(RonchiPicture, AMirrorWithoutLimitsIsDrawnWithoutTheLine)
{
    for (const double D : {0.0, 10.0, 1e-320, 1e300}) {
        const RecordingSurface surface = Draw(D, 1500, 5, 1, 1);
        EXPECT_EQ(9u, surface.Of<drawn::Text>().size()) << D;
        EXPECT_EQ(9u, surface.Of<drawn::Ellipse>().size()) << D;
        EXPECT_EQ(kBlack, DotsOf(surface).At(110, 150)) << D;
    }
}

TEST(RonchiPicture, SurvivesAnyNumber)
{
    const double values[] = {0, -1, 1e-320, 5e-324, 1e-160, 1e160, 5e306, -1e308, 1.7e308};
    for (const double D : values) {
        for (const double F : values) {
            for (const double grating : {5.0, 5e-324, -1.7e308}) {
                RonchiGenerator generator(1);
                const auto pixels = RonchiPatterns(RonchiTest(D, F, grating, F), generator);
                ASSERT_EQ(621u * 621u, pixels.size());
            }
        }
    }
}

} // namespace

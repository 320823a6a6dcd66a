#include "drawing/PixelRuns.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

/// How often each pixel of a picture is covered, a row a string: '.' for never.
std::vector<std::string> Covered(const std::vector<PixelRect>& runs, std::int32_t width, std::int32_t height)
{
    std::vector<std::string> rows(static_cast<std::size_t>(height),
                                  std::string(static_cast<std::size_t>(width), '.'));
    for (const PixelRect& run : runs) {
        EXPECT_LE(0, run.left);
        EXPECT_LE(0, run.top);
        EXPECT_GE(width, run.right);
        EXPECT_GE(height, run.bottom);
        for (std::int32_t y = run.top; y < run.bottom; ++y) {
            for (std::int32_t x = run.left; x < run.right; ++x) {
                char& count = rows.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x));
                count = count == '.' ? '1' : static_cast<char>(count + 1);
            }
        }
    }
    return rows;
}

using Rows = std::vector<std::string>;

Rows Line(Pixel from, Pixel to, std::int32_t width, std::int32_t height)
{
    std::vector<PixelRect> runs;
    AppendLine(from, to, {0, 0, width, height}, runs);
    return Covered(runs, width, height);
}

Rows Polygon(const std::vector<Pixel>& points, std::int32_t width, std::int32_t height)
{
    std::vector<PixelRect> runs;
    AppendPolygon(points, {0, 0, width, height}, runs);
    return Covered(runs, width, height);
}

/// The rule read word for word: a pixel belongs to the polygon if a ray from its centre to the left crosses
/// an odd number of edges. Corners stand on the corners of pixels, so no centre lies on a level edge; one
/// that lies on a sloping edge is left of it.
Rows PolygonByItsRule(const std::vector<Pixel>& points, std::int32_t width, std::int32_t height)
{
    Rows rows(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), '.'));
    for (std::int32_t y = 0; y < height; ++y) {
        for (std::int32_t x = 0; x < width; ++x) {
            int crossings = 0;
            for (std::size_t i = 0; i < points.size(); ++i) {
                const Pixel a = points[i];
                const Pixel b = points[(i + 1) % points.size()];
                if ((a.y <= y) == (b.y <= y)) {
                    continue;
                }
                // On which side of the edge the centre lies, in whole numbers.
                const int side = (2 * y + 1 - 2 * a.y) * (b.x - a.x) - (2 * x + 1 - 2 * a.x) * (b.y - a.y);
                crossings += (b.y > a.y ? side <= 0 : side >= 0) ? 1 : 0;
            }
            if (crossings % 2 != 0) {
                rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = '1';
            }
        }
    }
    return rows;
}

TEST(PixelRuns, ALineHasOnePixelToAStepOfItsLongerWay)
{
    EXPECT_EQ((Rows{"11.....", "..111..", ".....11"}), Line({0, 0}, {6, 2}, 7, 3));
    EXPECT_EQ((Rows{"1..", "1..", ".1.", ".1.", ".1.", "..1", "..1"}), Line({0, 0}, {2, 6}, 3, 7));
    EXPECT_EQ((Rows{"1", "1", "1"}), Line({0, 2}, {0, 0}, 1, 3));
    EXPECT_EQ((Rows{"...", ".1.", "..."}), Line({1, 1}, {1, 1}, 3, 3));
    EXPECT_EQ((Rows{"1..", ".1.", "..1"}), Line({2, 2}, {0, 0}, 3, 3)) << "equal ways";
}

TEST(PixelRuns, ALineOutsideTheClipHasNone)
{
    for (const auto& [from, to] : {std::pair<Pixel, Pixel>{{-5, -1}, {9, -1}},
                                   {{-5, 3}, {9, 3}},
                                   {{-1, -5}, {-1, 9}},
                                   {{4, -5}, {4, 9}},
                                   {{-9, 2}, {-1, 2}},
                                   {{4, 2}, {9, 2}},
                                   {{kMost, kMost}, {kMost, kLeast}}}) {
        EXPECT_EQ(Rows(3, "...."), Line(from, to, 4, 3)) << from.x << " " << from.y;
    }
}

TEST(PixelRuns, APolygonHasThePixelsWhoseCentresLieInside)
{
    EXPECT_EQ((Rows{".....", ".11..", ".11..", "....."}), Polygon({{1, 1}, {3, 1}, {3, 3}, {1, 3}}, 5, 4));
    // The long side passes through the centres of the diagonal: they are the left side's.
    EXPECT_EQ((Rows{"....", "1...", "11..", "111."}), Polygon({{0, 0}, {4, 4}, {0, 4}}, 4, 4));
    EXPECT_EQ((Rows{"1111", ".111", "..11", "...1"}), Polygon({{0, 0}, {4, 0}, {4, 4}}, 4, 4));
}

TEST(PixelRuns, APolygonThatCoversAPlaceTwiceLeavesItOpen)
{
    // A pentagram: its points are filled, its middle is not.
    const std::vector<Pixel> star{{10, 0}, {16, 19}, {0, 7}, {20, 7}, {4, 19}};
    const Rows rows = Polygon(star, 20, 19);
    EXPECT_EQ('.', rows[10][10]);
    EXPECT_EQ('1', rows[4][10]);
    EXPECT_EQ('1', rows[8][3]);
    EXPECT_EQ('1', rows[16][6]);
    EXPECT_EQ(PolygonByItsRule(star, 20, 19), rows);
    // Twice around in the same direction: open as well.
    const std::vector<Pixel> twice{{1, 1}, {5, 1}, {5, 5}, {1, 5}, {1, 1}, {5, 1}, {5, 5}, {1, 5}};
    EXPECT_EQ(Rows(6, "......"), Polygon(twice, 6, 6));
}

TEST(PixelRuns, PolygonsFollowTheirRuleWhateverTheirShape)
{
    unsigned seed = 1;
    const auto next = [&seed](unsigned below) {
        seed = seed * 1103515245u + 12345u;
        return static_cast<std::int32_t>((seed >> 16) % below);
    };
    for (int i = 0; i < 500; ++i) {
        std::vector<Pixel> points;
        for (std::int32_t n = 3 + next(5); n > 0; --n) {
            points.push_back({next(40) - 10, next(30) - 10});
        }
        ASSERT_EQ(PolygonByItsRule(points, 20, 11), Polygon(points, 20, 11)) << "polygon " << i;
    }
}

TEST(PixelRuns, PolygonsOfNothingHaveNone)
{
    EXPECT_EQ(Rows(2, "..."), Polygon({}, 3, 2));
    EXPECT_EQ(Rows(2, "..."), Polygon({{1, 1}}, 3, 2));
    EXPECT_EQ(Rows(2, "..."), Polygon({{0, 0}, {3, 2}}, 3, 2)) << "there and back";
    EXPECT_EQ(Rows(2, "111"),
              Polygon({{kLeast, kLeast}, {kMost, kLeast}, {kMost, kMost}, {kLeast, kMost}}, 3, 2));
}

} // namespace

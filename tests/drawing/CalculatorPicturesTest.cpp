#include "drawing/LabelLayout.h"
#include "drawing/PolygonPicture.h"
#include "drawing/SectorPicture.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr Colour kGrey{192, 192, 192};

RecordingSurface Polygon(double dDiameter, double dThickness, std::int32_t nType, Pixel size = {400, 320})
{
    RecordingSurface surface(size.x, size.y);
    PaintPolygon(surface, {dDiameter, dThickness, nType}, kEnglish);
    return surface;
}

RecordingSurface Sector(double dDiameter, double dValue, std::int32_t nType = kSectorAngleType,
                        Pixel size = {320, 300})
{
    RecordingSurface surface(size.x, size.y);
    PaintSector(surface, {dDiameter, dValue, nType}, kEnglish);
    return surface;
}

std::vector<std::string> Texts(const RecordingSurface& surface)
{
    std::vector<std::string> texts;
    for (const drawn::Text& text : surface.Of<drawn::Text>()) {
        texts.push_back(text.text);
        EXPECT_EQ((Font{.height = 12}), text.font);
    }
    return texts;
}

std::vector<drawn::Line> Lines(const RecordingSurface& surface, Colour colour)
{
    std::vector<drawn::Line> lines;
    for (const drawn::Line& line : surface.Of<drawn::Line>()) {
        if (line.colour == colour) {
            lines.push_back(line);
        }
    }
    return lines;
}

TEST(PolygonPicture, LabelsEightMeasuresInTheirOrder)
{
    const RecordingSurface surface = Polygon(225, 6.5, 5);
    EXPECT_EQ((std::vector<std::string>{"121.769", "45.00°"_cp1252, "9.269", "93.198", "98.583", "7.036",
                                        "112.500", "111.583"}),
              Texts(surface));
}

TEST(PolygonPicture, DrawsTheCircleTheSidesAndTheMeasures)
{
    // 300 pixels for 2 * 128.8048 units: 1.164553 pixels per unit, so the circle's radius is 131.01.
    const RecordingSurface surface = Polygon(225, 6.5, 5);
    const auto circles = surface.Of<drawn::Ellipse>();
    ASSERT_EQ(1u, circles.size());
    EXPECT_EQ((PixelRect{69, 29, 331, 291}), circles[0].box);
    // Eight times three lines; the direction may come round to its start once more.
    const auto grey = Lines(surface, kGrey);
    EXPECT_TRUE(grey.size() == 24 || grey.size() == 27) << grey.size();
    // Straight up: 121.769 units are 141.81 pixels.
    EXPECT_EQ((drawn::Line{{200, 160}, {200, 18}, kGrey}), grey[0]);
    const auto black = Lines(surface, kBlack);
    ASSERT_EQ(7u, black.size());
    EXPECT_EQ((drawn::Line{{200, 160}, {200, 18}, kBlack}), black[0]);
    // The centre to the circle in the direction of the seventh corner: 6 * 45 degrees from the top, to the
    // right.
    EXPECT_EQ((drawn::Line{{200, 160}, {331, 160}, kBlack}), black[5]);
    // The outer corner straight below is one end of the fourth side.
    EXPECT_EQ((Pixel{200, 310}), black[3].to);
    const auto arcs = surface.Of<drawn::Arc>();
    ASSERT_EQ(1u, arcs.size());
    EXPECT_EQ(95, arcs[0].box.right - arcs[0].box.left) << "a quarter of 380";
    EXPECT_EQ(75, arcs[0].box.bottom - arcs[0].box.top) << "a quarter of 300";
}

TEST(PolygonPicture, TheBoardReachesOverTheSideByTheOverhang)
{
    const RecordingSurface surface = Polygon(200, 10, 1);
    const auto black = Lines(surface, kBlack);
    const drawn::Line& side = black[2];
    const drawn::Line& board = black[6];
    const auto length = [](const drawn::Line& line) {
        return std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
    };
    EXPECT_NEAR(220.0 / 200.0, length(board) / length(side), 0.01);
}

struct Place {
    double x, y;
};

/// The polygon's measures in pixels, for a size and a number of sides, worked out apart from the program.
struct PolygonInPixels {
    PolygonInPixels(double dDiameter, double dThickness, int nSides, Pixel size)
        : centre{size.x / 2.0, size.y / 2.0}, alpha(6.283185307 / nSides)
    {
        const double dHalf = dDiameter / 2;
        const double dOuter = (dHalf + dThickness) / std::cos(alpha / 2);
        scale = (std::min(size.x, size.y) - 20) / (2 * dOuter);
        circle = dHalf * scale;
        inner = dHalf / std::cos(alpha / 2) * scale;
        outer = dOuter * scale;
        over = dThickness / std::sin(alpha) * scale;
    }
    /// At a distance in the direction of corner k, counted from the top to the left.
    Place Corner(int k, double r) const
    {
        const double a = k * alpha - 3.1415926535;
        return {centre.x + std::sin(a) * r, centre.y + std::cos(a) * r};
    }

    Place centre;
    double alpha, scale, circle, inner, outer, over;
};

void ExpectAt(Place expected, Pixel found, const std::string& name)
{
    EXPECT_NEAR(expected.x, found.x, 0.51) << name;
    EXPECT_NEAR(expected.y, found.y, 0.51) << name;
}

/// The sector i / (99 / N) of each of the eight counters.
struct SectorsOfCounters {
    int nSides;
    int k0, k18, k19, k22, k40, k60, k80, k88;
};
constexpr SectorsOfCounters kSectors[] = {
    {3, 0, 0, 0, 0, 1, 1, 2, 2},    {4, 0, 0, 0, 0, 1, 2, 3, 3},  {5, 0, 0, 1, 1, 2, 3, 4, 4},
    {6, 0, 1, 1, 1, 2, 3, 5, 5},    {7, 0, 1, 1, 1, 2, 4, 5, 6},  {8, 0, 1, 1, 1, 3, 5, 6, 7},
    {9, 0, 1, 1, 2, 3, 5, 7, 8},    {10, 0, 2, 2, 2, 4, 6, 8, 9}, {11, 0, 2, 2, 2, 4, 6, 8, 9},
    {12, 0, 2, 2, 2, 5, 7, 10, 11},
};

TEST(PolygonPicture, DrawsEachMeasureInTheSectorOfItsCounter)
{
    for (const Pixel size : {Pixel{420, 420}, Pixel{700, 500}}) {
        for (const SectorsOfCounters& row : kSectors) {
            const std::string name = std::to_string(row.nSides) + " sides, ";
            const PolygonInPixels p(225, 6.5, row.nSides, size);
            const RecordingSurface surface = Polygon(225, 6.5, row.nSides - 3, size);
            const auto black = Lines(surface, kBlack);
            ASSERT_EQ(7u, black.size());
            const auto expect = [&](std::size_t i, Place from, Place to, const char* pszWhich) {
                ExpectAt(from, black[i].from, name + pszWhich + " from");
                ExpectAt(to, black[i].to, name + pszWhich + " to");
            };
            expect(0, p.centre, p.Corner(row.k0, p.inner), "Ri");
            expect(1, p.Corner(row.k19, p.circle), p.Corner(row.k19, p.inner), "Ri - D / 2");
            expect(2, p.Corner(row.k22, p.inner), p.Corner(row.k22 + 1, p.inner), "Si");
            expect(3, p.Corner(row.k40, p.outer), p.Corner(row.k40 + 1, p.outer), "So");
            expect(4, p.Corner(row.k60, p.inner), p.Corner(row.k60, p.outer), "Wc");
            expect(5, p.centre, p.Corner(row.k80, p.circle), "D / 2");
            const Place from = p.Corner(row.k88, p.inner);
            const Place to = p.Corner(row.k88 + 1, p.inner);
            const double dSide = std::hypot(to.x - from.x, to.y - from.y);
            const Place over{(to.x - from.x) / dSide * p.over, (to.y - from.y) / dSide * p.over};
            expect(6, {from.x - over.x, from.y - over.y}, {to.x + over.x, to.y + over.y}, "B");

            const auto arcs = surface.Of<drawn::Arc>();
            ASSERT_EQ(1u, arcs.size());
            // A quarter of the painted width and height, around the centre.
            const PixelRect& box = arcs[0].box;
            ExpectAt({p.centre.x - (size.x - 20) / 8.0, p.centre.y - (size.y - 20) / 8.0},
                     {box.left, box.top}, name);
            ExpectAt({p.centre.x + (size.x - 20) / 8.0, p.centre.y + (size.y - 20) / 8.0},
                     {box.right, box.bottom}, name);
            EXPECT_EQ(kBlack, arcs[0].pen);
            // From corner to corner, counter-clockwise.
            const auto direction = [&](Pixel at) { return std::atan2(at.x - p.centre.x, at.y - p.centre.y); };
            const auto expectDirection = [&](int k, Pixel at) {
                const double dOff = direction(at) - (k * p.alpha - 3.1415926535);
                EXPECT_NEAR(0, std::remainder(dOff, 6.283185307), 0.02) << name << k;
            };
            expectDirection(row.k18, arcs[0].from);
            expectDirection(row.k18 + 1, arcs[0].to);
        }
    }
}

/// Half of the font's height a character, 12 pixels high.
PixelRect BoxOf(const drawn::Text& text)
{
    return {text.at.x, text.at.y, text.at.x + static_cast<std::int32_t>(text.text.size()) * 6,
            text.at.y + 12};
}

double DistanceToBox(Place at, const PixelRect& box)
{
    const double dx = std::max({box.left - at.x, at.x - box.right, 0.0});
    const double dy = std::max({box.top - at.y, at.y - box.bottom, 0.0});
    return std::hypot(dx, dy);
}

TEST(PolygonPicture, TheLabelOfTheAngleStandsAtItsPlace)
{
    for (const Pixel size : {Pixel{320, 300}, Pixel{420, 420}, Pixel{900, 420}}) {
        for (const SectorsOfCounters& row : kSectors) {
            const PolygonInPixels p(225, 6.5, row.nSides, size);
            const double a = row.k18 * p.alpha - 3.1415926535;
            // 2 across and 2.8 down.
            const Place place{p.centre.x + std::sin(p.alpha / 2 + a) * p.inner / 3.5,
                              p.centre.y + std::cos(p.alpha / 2.8 + a) * p.inner / 3.5};
            const auto texts = Polygon(225, 6.5, row.nSides - 3, size).Of<drawn::Text>();
            ASSERT_EQ(8u, texts.size());
            EXPECT_LE(DistanceToBox(place, BoxOf(texts[1])), 1.0) << row.nSides << " sides, " << size.x;
        }
    }
}

double DistanceToBox(const drawn::Line& line, const PixelRect& box)
{
    constexpr int kSteps = 1000;
    double dNearest = HUGE_VAL;
    for (int i = 0; i <= kSteps; ++i) {
        const double t = static_cast<double>(i) / kSteps;
        const Place at{line.from.x + (line.to.x - line.from.x) * t,
                       line.from.y + (line.to.y - line.from.y) * t};
        dNearest = std::min(dNearest, DistanceToBox(at, box));
    }
    return dNearest;
}

TEST(PolygonPicture, LabelsStandNearTheirLines)
{
    for (const Pixel size : {Pixel{320, 300}, Pixel{420, 420}, Pixel{900, 420}, Pixel{1100, 900}}) {
        for (int nType = 0; nType < kPolygonTypeCount; ++nType) {
            const RecordingSurface surface = Polygon(225, 6.5, nType, size);
            auto texts = surface.Of<drawn::Text>();
            ASSERT_EQ(8u, texts.size());
            texts.erase(texts.begin() + 1); // the angle's
            const auto black = Lines(surface, kBlack);
            for (std::size_t i = 0; i < black.size(); ++i) {
                EXPECT_LE(DistanceToBox(black[i], BoxOf(texts[i])), 21)
                    << PolygonTypeName(nType) << " " << size.x << " " << texts[i].text;
            }
        }
    }
}

TEST(SectorPicture, LabelsStandNearTheirLines)
{
    for (const Pixel size : {Pixel{320, 300}, Pixel{420, 420}, Pixel{900, 420}}) {
        for (int nAngle = 0; nAngle <= 360; nAngle += 5) {
            const RecordingSurface surface = Sector(100, nAngle, kSectorAngleType, size);
            const auto texts = surface.Of<drawn::Text>();
            const auto lines = surface.Of<drawn::Line>();
            ASSERT_EQ(4u, texts.size());
            ASSERT_EQ(4u, lines.size());
            const std::string name = std::to_string(size.x) + " wide, " + std::to_string(nAngle);
            EXPECT_LE(DistanceToBox(lines[3], BoxOf(texts[0])), 21) << name << " chord";
            EXPECT_LE(DistanceToBox(lines[2], BoxOf(texts[1])), 21) << name << " sagitta";
            EXPECT_LE(DistanceToBox(lines[1], BoxOf(texts[2])), 21) << name << " radius";
            if (size.x < 420) {
                continue;
            }
            // Halfway down the sagitta; its own height higher or lower where it would stand on the small arc
            // or, on a sagitta that is lower than the label, on the circle.
            const double dLength = lines[2].to.y - lines[2].from.y;
            const double dMiddle = (lines[2].to.y + lines[2].from.y) / 2.0;
            const double dArc = size.y / 2.0 + (size.y - 20) / 8.0;
            const bool bRoom = dLength > 24 && std::fabs(dMiddle - dArc) > 20;
            EXPECT_NEAR(dMiddle, texts[1].at.y + 6, bRoom ? 1.5 : dLength > 24 ? 12.0 : 30.0) << name;
        }
    }
}

TEST(PolygonPicture, RefusesAndLeavesOut)
{
    const RecordingSurface refused = Polygon(10, 5.1, 5);
    const auto texts = refused.Of<drawn::Text>();
    ASSERT_EQ(1u, texts.size());
    EXPECT_EQ("He, I can not draw that!", texts[0].text);
    EXPECT_EQ((Pixel{10, 10}), texts[0].at);
    EXPECT_TRUE(refused.Of<drawn::Line>().empty());
    for (const std::int32_t nType : {-4, -3, -1, 10, 1000000}) {
        EXPECT_EQ(1u, Polygon(225, 6.5, nType).calls.size()) << "the background alone";
    }
    EXPECT_EQ(8u, Texts(Polygon(10, 5, 5)).size()) << "exactly half the diameter";
}

TEST(PolygonPicture, PaintsAnythingThatPassesTheTest)
{
    for (const double d : {0.0, -1.0, 1e-300, 1e300, HUGE_VAL}) {
        for (std::int32_t nType = 0; nType < 10; ++nType) {
            EXPECT_EQ(8u, Texts(Polygon(d, -1e300, nType)).size());
            EXPECT_EQ(8u, Texts(Polygon(d, d / 2, nType)).size());
        }
    }
    RecordingSurface tiny(1, 1);
    PaintPolygon(tiny, {225, 6.5, 5}, kGerman);
    EXPECT_EQ(8u, tiny.Of<drawn::Text>().size());
}

TEST(SectorPicture, LabelsItsMeasures)
{
    EXPECT_EQ((std::vector<std::string>{"70.71", "14.64", "50.00", "90.00°"_cp1252}), Texts(Sector(100, 90)));
    EXPECT_EQ((std::vector<std::string>{"0.00", "100.00", "50.00", "360.00°"_cp1252}),
              Texts(Sector(100, 360)));
    EXPECT_EQ((std::vector<std::string>{"0.00", "0.00", "50.00", "0.00°"_cp1252}), Texts(Sector(100, 0)));
}

TEST(SectorPicture, DrawsTheSegmentDownward)
{
    // The radius is 140 pixels; 140 * sqrt(1/2) = 98.99.
    const RecordingSurface surface = Sector(100, 90);
    EXPECT_EQ((std::vector<drawn::Ellipse>{{{20, 10, 300, 290}, kGrey, 1}}), surface.Of<drawn::Ellipse>());
    EXPECT_EQ((std::vector<drawn::Line>{{{160, 150}, {259, 249}, kGrey},
                                        {{160, 150}, {61, 249}, kGrey},
                                        {{160, 249}, {160, 290}, kGrey},
                                        {{61, 249}, {259, 249}, kBlack}}),
              surface.Of<drawn::Line>());
    EXPECT_EQ((std::vector<drawn::Arc>{{{20, 10, 300, 290}, {61, 249}, {259, 249}, kBlack},
                                       {{125, 115, 195, 185}, {61, 249}, {259, 249}, kBlack}}),
              surface.Of<drawn::Arc>());
}

TEST(SectorPicture, AFullTurnIsAWholeArcAndNoAngleIsNone)
{
    EXPECT_EQ(2u, Sector(100, 360).Of<drawn::Arc>().size());
    EXPECT_EQ(0u, Sector(100, 0).Of<drawn::Arc>().size());
}

TEST(SectorPicture, Refuses)
{
    const auto refusal = [](const RecordingSurface& surface) {
        const auto texts = surface.Of<drawn::Text>();
        EXPECT_EQ(1u, texts.size());
        EXPECT_EQ((Pixel{10, 10}), texts.at(0).at);
        EXPECT_TRUE(surface.Of<drawn::Line>().empty());
        return texts.at(0).text;
    };
    EXPECT_EQ("Sorry, only Angles, yet.", refusal(Sector(100, 90, 0)));
    EXPECT_EQ("Sorry, only Angles between 0° und 360°."_cp1252, refusal(Sector(100, 361)));
    EXPECT_EQ("Error in Diameter.", refusal(Sector(0, 90)));
}

TEST(SectorPicture, PaintsAnyDiameter)
{
    for (const double d : {1e-300, 1e300, HUGE_VAL, 5e-324}) {
        EXPECT_EQ(4u, Texts(Sector(d, 359.9)).size());
    }
}

bool Touches(const drawn::Line& line, const PixelRect& box)
{
    const int nSteps = std::max(std::abs(line.to.x - line.from.x), std::abs(line.to.y - line.from.y));
    for (int i = 0; i <= nSteps; ++i) {
        const double t = nSteps > 0 ? static_cast<double>(i) / nSteps : 0;
        const double x = line.from.x + (line.to.x - line.from.x) * t;
        const double y = line.from.y + (line.to.y - line.from.y) * t;
        // A pixel of rounding on each side is left out.
        if (x > box.left + 1 && x < box.right - 1 && y > box.top + 1 && y < box.bottom - 1) {
            return true;
        }
    }
    return false;
}

/// An arc, or with equal ends a whole ellipse, of points.
bool Touches(const drawn::Arc& arc, const PixelRect& box)
{
    const double hw = (arc.box.right - arc.box.left) / 2.0;
    const double hh = (arc.box.bottom - arc.box.top) / 2.0;
    const double cx = arc.box.left + hw;
    const double cy = arc.box.top + hh;
    const auto direction = [&](Pixel at) { return std::atan2((at.x - cx) / hw, (at.y - cy) / hh); };
    const double dStart = direction(arc.from);
    double dEnd = direction(arc.to);
    dEnd += dEnd > dStart ? 0 : 6.283185307;
    for (int i = 0; i <= 2000; ++i) {
        const double a = dStart + (dEnd - dStart) * i / 2000;
        const double x = cx + std::sin(a) * hw;
        const double y = cy + std::cos(a) * hh;
        // A chord lies a little inside of its arc: two pixels.
        if (x > box.left + 2 && x < box.right - 2 && y > box.top + 2 && y < box.bottom - 2) {
            return true;
        }
    }
    return false;
}

/// `pszFixed` is a label that cannot move away from lines.
void ExpectReadable(const RecordingSurface& surface, const std::string& name, const char* pszFixed = nullptr)
{
    std::vector<drawn::Arc> arcs = surface.Of<drawn::Arc>();
    for (const drawn::Ellipse& ellipse : surface.Of<drawn::Ellipse>()) {
        arcs.push_back({ellipse.box, {ellipse.box.right, 0}, {ellipse.box.right, 0}, kGrey});
    }
    const auto texts = surface.Of<drawn::Text>();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const PixelRect box = BoxOf(texts[i]);
        EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= surface.Width() &&
                    box.bottom <= surface.Height())
            << name << " " << texts[i].text;
        if (pszFixed == nullptr || texts[i].text != pszFixed) {
            for (const drawn::Line& line : surface.Of<drawn::Line>()) {
                EXPECT_FALSE(Touches(line, box)) << name << " " << texts[i].text;
            }
            for (const drawn::Arc& arc : arcs) {
                EXPECT_FALSE(Touches(arc, box)) << name << " " << texts[i].text << " arc";
            }
        }
        for (std::size_t j = 0; j < i; ++j) {
            const PixelRect other = BoxOf(texts[j]);
            EXPECT_FALSE(box.left + 1 < other.right && other.left + 1 < box.right &&
                         box.top + 1 < other.bottom && other.top + 1 < box.bottom)
                << name << " " << texts[i].text << " on " << texts[j].text;
        }
    }
}

TEST(CalculatorPictures, KeepTheirLabelsClearOfLinesAndOfOneAnother)
{
    for (const Pixel size : {Pixel{320, 300}, Pixel{420, 420}, Pixel{900, 420}, Pixel{1100, 900}}) {
        const std::string name = std::to_string(size.x) + " wide, ";
        for (std::int32_t nType = 0; nType < kPolygonTypeCount; ++nType) {
            for (const double dThickness : {1.0, 6.5, 20.0}) {
                const RecordingSurface surface = Polygon(225, dThickness, nType, size);
                // The angle's label has its one place; where that is too narrow it stands on a line.
                const std::string angle = surface.Of<drawn::Text>()[1].text;
                const bool bRoom = size.x >= 420 && dThickness < 20;
                ExpectReadable(surface, name + PolygonTypeName(nType), bRoom ? nullptr : angle.c_str());
            }
        }
        // Of an almost full turn the smallest picture has no room for the chord above the circle.
        for (int nAngle = 0; nAngle <= (size.x >= 420 ? 360 : 330); nAngle += 5) {
            ExpectReadable(Sector(100, nAngle, kSectorAngleType, size), name + std::to_string(nAngle));
        }
    }
}

} // namespace

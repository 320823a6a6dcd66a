#include "drawing/LabelLayout.h"
#include "drawing/PolygonPicture.h"
#include "drawing/SectorPicture.h"

#include "lib/CodePage.h"
#include "lib/Language.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

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

/// Half of the font's height a character, 12 pixels high.
PixelRect BoxOf(const drawn::Text& text)
{
    return {text.at.x, text.at.y, text.at.x + static_cast<std::int32_t>(text.text.size()) * 6,
            text.at.y + 12};
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

void ExpectReadable(const RecordingSurface& surface, const std::string& name)
{
    const auto texts = surface.Of<drawn::Text>();
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const PixelRect box = BoxOf(texts[i]);
        EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= surface.Width() &&
                    box.bottom <= surface.Height())
            << name << " " << texts[i].text;
        for (const drawn::Line& line : surface.Of<drawn::Line>()) {
            EXPECT_FALSE(Touches(line, box)) << name << " " << texts[i].text;
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
                ExpectReadable(Polygon(225, dThickness, nType, size), name + PolygonTypeName(nType));
            }
        }
        for (int nAngle = 0; nAngle <= 360; nAngle += 5) {
            ExpectReadable(Sector(100, nAngle, kSectorAngleType, size), name + std::to_string(nAngle));
        }
    }
}

} // namespace

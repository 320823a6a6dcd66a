#include "drawing/Chart.h"

#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr ChartColours kColours{{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}};
constexpr Colour kRed{255, 0, 0};
constexpr Colour kBlue{0, 0, 255};

Chart Plain()
{
    Chart chart;
    chart.bottom = {"field mm", {0, 10}};
    chart.left = {"light %", {0, 100}};
    return chart;
}

class ChartPicture : public ::testing::Test {
protected:
    RecordingSurface& Paint()
    {
        surface.calls.clear();
        PaintChart(surface, chart, kColours);
        return surface;
    }
    std::vector<drawn::Line> LinesOf(Colour colour)
    {
        std::vector<drawn::Line> lines = Paint().Of<drawn::Line>();
        std::erase_if(lines, [=](const drawn::Line& line) { return line.colour != colour; });
        return lines;
    }
    std::vector<std::string> Texts()
    {
        std::vector<std::string> texts;
        for (const drawn::Text& text : Paint().Of<drawn::Text>()) {
            texts.push_back(text.text);
        }
        return texts;
    }
    std::optional<drawn::Text> TextOf(const std::string& text)
    {
        for (const drawn::Text& one : Paint().Of<drawn::Text>()) {
            if (one.text == text) {
                return one;
            }
        }
        return std::nullopt;
    }
    PixelRect Rect() const { return PlotOf(chart, surface.Width(), surface.Height()).rect; }

    Chart chart = Plain();
    RecordingSurface surface{500, 300};
};

TEST_F(ChartPicture, FillsTheSurfaceAndFramesThePlot)
{
    EXPECT_EQ((drawn::FillRect{{0, 0, 500, 300}, kColours.background}), Paint().Of<drawn::FillRect>().at(0));
    const PixelRect rect = Rect();
    const std::vector<drawn::Line> frame = LinesOf(kColours.frame);
    const Pixel upperLeft{rect.left, rect.top};
    const Pixel lowerRight{rect.right - 1, rect.bottom - 1};
    EXPECT_EQ(upperLeft, frame.at(0).from);
    EXPECT_EQ((Pixel{lowerRight.x, upperLeft.y}), frame.at(0).to);
    EXPECT_EQ(lowerRight, frame.at(2).from);
    EXPECT_EQ(upperLeft, frame.at(3).to);
}

TEST_F(ChartPicture, HasRoundTicksWithGridLinesOnBothAxes)
{
    const PixelRect rect = Rect();
    const std::vector<drawn::Line> grid = LinesOf(kColours.grid);
    const ChartPlot plot = PlotOf(chart, 500, 300);
    const auto column = static_cast<std::int32_t>(std::lround(plot.PixelOf({2, 0}).x));
    EXPECT_NE(
        grid.end(),
        std::ranges::find(grid, drawn::Line{{column, rect.top}, {column, rect.bottom - 1}, kColours.grid}));
    for (const char* text : {"0", "5", "10", "20", "100", "field mm", "light %"}) {
        EXPECT_TRUE(TextOf(text)) << text;
    }
    // Middle of the text under its tick, and right ends of the texts before theirs.
    EXPECT_EQ(column, TextOf("2")->at.x + 14 / 4);
    EXPECT_LT(TextOf("2")->at.y, 300 - 14);
    EXPECT_GE(TextOf("2")->at.y, rect.bottom);
    EXPECT_EQ(TextOf("80")->at.x, TextOf("100")->at.x + 7);
    EXPECT_TRUE(TextOf("light %")->font.upright);
    EXPECT_LT(TextOf("light %")->at.x, TextOf("100")->at.x);
}

TEST_F(ChartPicture, ReadsPixelsAsItPaintsThem)
{
    const ChartPlot plot = PlotOf(chart, 500, 300);
    const PixelRect& rect = plot.rect;
    EXPECT_EQ((Point{0, 100}), plot.PlaceOf({rect.left, rect.top}));
    EXPECT_EQ((Point{10, 0}), plot.PlaceOf({rect.right - 1, rect.bottom - 1}));
    const Point pixel = plot.PixelOf({2.5, 25});
    EXPECT_NEAR(rect.left + 0.25 * (rect.right - 1 - rect.left), pixel.x, 1e-9);
    EXPECT_NEAR(rect.bottom - 1 - 0.25 * (rect.bottom - 1 - rect.top), pixel.y, 1e-9);
    EXPECT_TRUE(plot.Has({rect.left, rect.top}));
    EXPECT_FALSE(plot.Has({rect.right, rect.top}));
    EXPECT_FALSE(plot.Has({rect.left, rect.top - 1}));
}

TEST_F(ChartPicture, DrawsLinesOnTheirAxisAndCutsThemAtTheFrame)
{
    chart.right = ChartAxis{"mag", {0, 2}};
    chart.lines.push_back({{{0, 0}, {10, 100}}, kRed});
    chart.lines.push_back({{{-10, 1}, {20, 1}}, kBlue, true, ChartSide::kRight});
    const PixelRect rect = Rect();
    EXPECT_EQ((std::vector<drawn::Line>{{{rect.left, rect.bottom - 1}, {rect.right - 1, rect.top}, kRed}}),
              LinesOf(kRed));
    const std::vector<drawn::Line> blue = LinesOf(kBlue);
    ASSERT_EQ(2u, blue.size()); // bold
    const auto middle = static_cast<std::int32_t>(std::lround((rect.top + rect.bottom - 1) / 2.0));
    EXPECT_EQ((drawn::Line{{rect.left, middle}, {rect.right - 1, middle}, kBlue}), blue[0]);
    EXPECT_EQ((drawn::Line{{rect.left, middle + 1}, {rect.right - 1, middle + 1}, kBlue}), blue[1]);
}

TEST_F(ChartPicture, PartsALineWhereItIsNotFinite)
{
    chart.lines.push_back({{{0, 10}, {1, 10}, {2, kNan}, {3, 10}, {4, 10}, {HUGE_VAL, 10}}, kRed});
    EXPECT_EQ(2u, LinesOf(kRed).size());
    chart.lines[0].points = {{0, 200}, {10, 300}}; // above
    EXPECT_TRUE(LinesOf(kRed).empty());
    chart.lines[0].points = {{5, -1e300}, {5, 1e300}};
    const PixelRect rect = Rect();
    const std::vector<drawn::Line> whole = LinesOf(kRed);
    ASSERT_EQ(1u, whole.size());
    EXPECT_EQ(rect.top, std::min(whole[0].from.y, whole[0].to.y));
    EXPECT_EQ(rect.bottom - 1, std::max(whole[0].from.y, whole[0].to.y));
}

TEST_F(ChartPicture, TellsTheNamesOfItsLinesAboveThePlot)
{
    chart.title = "Illumination";
    chart.lines = {{{}, kRed, false, ChartSide::kLeft, "first"},
                   {{}, kBlue},
                   {{}, kBlue, true, ChartSide::kLeft, "second"}};
    const PixelRect rect = Rect();
    EXPECT_EQ(Font::kBold, TextOf("Illumination")->font.weight);
    ASSERT_TRUE(TextOf("first") && TextOf("second"));
    EXPECT_EQ(TextOf("first")->at.y, TextOf("second")->at.y);
    EXPECT_GE(TextOf("second")->at.x, TextOf("first")->at.x + 5 * 7);
    EXPECT_LT(TextOf("first")->at.y + 14, rect.top);
    const auto fills = Paint().Of<drawn::FillRect>();
    EXPECT_EQ(1, std::ranges::count(fills, kRed, &drawn::FillRect::colour));
    // Names that do not fit beside each other go below each other.
    chart.lines[0].name = std::string(60, 'n');
    EXPECT_LT(TextOf(chart.lines[0].name)->at.y, TextOf("second")->at.y);
    EXPECT_GT(Rect().top, rect.top);
}

TEST_F(ChartPicture, PaintsZonesBehindTheLinesAndWithinThePlot)
{
    chart.zones.push_back({{50, 500}, kRed});
    chart.lines.push_back({{{0, 60}, {10, 60}}, kBlue});
    const PixelRect rect = Rect();
    const auto& calls = Paint().calls;
    const auto middle = static_cast<std::int32_t>(std::lround((rect.top + rect.bottom - 1) / 2.0));
    const auto zone = std::ranges::find(
        calls, drawn::Call(drawn::FillRect{{rect.left, rect.top, rect.right, middle}, kRed}));
    ASSERT_NE(calls.end(), zone);
    const auto line = std::ranges::find_if(calls, [](const drawn::Call& call) {
        const auto* one = std::get_if<drawn::Line>(&call);
        return one != nullptr && one->colour == kBlue;
    });
    EXPECT_LT(zone, line);
}

TEST_F(ChartPicture, DotsItsMarksAndNamesThem)
{
    chart.uprights.push_back({5, kRed, "here"});
    chart.levels.push_back({50, kBlue, "so high"});
    const PixelRect rect = Rect();
    const std::vector<drawn::Line> upright = LinesOf(kRed);
    ASSERT_GT(upright.size(), 10u);
    for (const drawn::Line& dash : upright) {
        EXPECT_EQ(upright[0].from.x, dash.from.x);
        EXPECT_EQ(dash.from.x, dash.to.x);
        EXPECT_LE(dash.to.y, rect.bottom - 1);
    }
    EXPECT_EQ(rect.top, upright[0].from.y);
    EXPECT_EQ(3, upright[0].to.y - upright[0].from.y);
    EXPECT_EQ(8, upright[1].from.y - upright[0].from.y);
    for (const drawn::Line& dash : LinesOf(kBlue)) {
        EXPECT_EQ(dash.from.y, dash.to.y);
    }
    EXPECT_GT(TextOf("here")->at.x, upright[0].from.x);
    EXPECT_LT(TextOf("so high")->at.y, LinesOf(kBlue)[0].from.y);
    chart.uprights[0].solid = true;
    EXPECT_EQ(1u, LinesOf(kRed).size());
    chart.uprights[0].at = 10.01;
    EXPECT_TRUE(LinesOf(kRed).empty());
    EXPECT_FALSE(TextOf("here"));
    chart.uprights[0].at = kNan;
    EXPECT_FALSE(TextOf("here"));
}

TEST_F(ChartPicture, KeepsLabelsFromTouchingEachOther)
{
    std::mt19937 bits(3);
    std::uniform_real_distribution<double> place(0, 10);
    for (int round = 0; round < 50; ++round) {
        chart = Plain();
        for (int i = 0; i < 25; ++i) {
            chart.uprights.push_back({place(bits), kRed, "label " + std::to_string(i)});
            chart.levels.push_back({place(bits) * 10, kRed, "level " + std::to_string(i)});
            chart.dots.push_back({{place(bits), place(bits) * 10}, kBlue, "dot " + std::to_string(i)});
        }
        const PixelRect rect = Rect();
        std::vector<PixelRect> boxes;
        for (const drawn::Text& text : Paint().Of<drawn::Text>()) {
            if (text.text.find(' ') == std::string::npos || text.at.x < rect.left ||
                text.at.y >= rect.bottom) {
                continue;
            }
            const auto wide = static_cast<std::int32_t>(text.text.size()) * 7;
            const PixelRect box{text.at.x, text.at.y, text.at.x + wide, text.at.y + 14};
            EXPECT_TRUE(box.right <= rect.right && box.top >= rect.top && box.bottom <= rect.bottom);
            for (const PixelRect& other : boxes) {
                EXPECT_TRUE(box.right <= other.left || other.right <= box.left || box.bottom <= other.top ||
                            other.bottom <= box.top);
            }
            boxes.push_back(box);
        }
        EXPECT_GT(boxes.size(), 20u);
    }
}

TEST_F(ChartPicture, LabelsMakeWayForTheCurve)
{
    chart.uprights.push_back({2, kRed, "75 %"});
    const Pixel before = TextOf("75 %")->at;
    // A curve along the top of the plot, where the label stood.
    const double y = PlotOf(chart, 500, 300).PlaceOf({0, before.y + 7}).y;
    chart.lines.push_back({{{0, y}, {10, y}}, kBlue});
    const Pixel after = TextOf("75 %")->at;
    EXPECT_GE(after.y, before.y + 7);
}

TEST_F(ChartPicture, ShowsDotsThatAreInThePlot)
{
    chart.dots = {{{5, 50}, kRed, "now"}, {{11, 50}, kBlue, "beyond"}, {{kNan, 50}, kBlue, "nowhere"}};
    EXPECT_TRUE(TextOf("now"));
    EXPECT_FALSE(TextOf("beyond"));
    EXPECT_FALSE(TextOf("nowhere"));
    const auto fills = Paint().Of<drawn::FillRect>();
    EXPECT_EQ(7, std::ranges::count(fills, kRed, &drawn::FillRect::colour));
    EXPECT_EQ(0, std::ranges::count(fills, kBlue, &drawn::FillRect::colour));
}

TEST_F(ChartPicture, PaintsItsBandBetweenPlotAndTicks)
{
    chart.band = {{{0, 5}, kRed, kBlack, "tube"},
                  {{5, 5.05}, kBlue, kBlack, "narrow"},
                  {{5.05, 100}, kBlue, kBlack, "secondary"}};
    const PixelRect rect = Rect();
    const auto fills = Paint().Of<drawn::FillRect>();
    ASSERT_EQ(4u, fills.size());
    EXPECT_EQ(rect.bottom, fills[1].rect.top);
    EXPECT_EQ(rect.left, fills[1].rect.left);
    EXPECT_LT(fills[1].rect.bottom, TextOf("field mm")->at.y) << "the axis stands below it";
    EXPECT_LE(TextOf("field mm")->at.y + TextOf("field mm")->font.height, surface.Height());
    EXPECT_EQ(fills[1].rect.right, fills[2].rect.left);
    EXPECT_EQ(rect.right, fills[3].rect.right);
    EXPECT_TRUE(TextOf("tube"));
    EXPECT_FALSE(TextOf("narrow"));
    EXPECT_GT(TextOf("10")->at.y, fills[1].rect.bottom);
}

TEST_F(ChartPicture, HasScalesOfItsOwnAboveAndOnTheRight)
{
    chart.top = ChartAxis{"degrees", {}, {{0, "0"}, {5, "0.19"}, {5.1, "0.20"}, {12, "0.5"}}};
    chart.right = ChartAxis{"mag", chart.left.range, {{100, "0.0"}, {63.1, "0.5"}, {-5, "99"}}};
    EXPECT_TRUE(TextOf("degrees"));
    EXPECT_TRUE(TextOf("mag"));
    ASSERT_TRUE(TextOf("0.19"));
    EXPECT_LT(TextOf("0.19")->at.y, Rect().top);
    EXPECT_FALSE(TextOf("0.20")) << "too near to the one before";
    EXPECT_FALSE(TextOf("0.5") && TextOf("0.5")->at.y < Rect().top) << "beyond the axis";
    EXPECT_GT(TextOf("0.0")->at.x, Rect().right);
    EXPECT_EQ(Rect().top, TextOf("0.0")->at.y + 7);
    EXPECT_FALSE(TextOf("99"));
}

TEST_F(ChartPicture, TellsItsMessageInThePlot)
{
    chart.message = "no illumination";
    const auto message = Paint().Of<drawn::WrappedText>();
    ASSERT_EQ(1u, message.size());
    EXPECT_EQ("no illumination", message[0].text);
    EXPECT_GT(message[0].box.left, Rect().left);
}

TEST_F(ChartPicture, TakesAnySizeAndAnyNumbers)
{
    for (const std::int32_t width : {1, 2, 40, 100, 16384}) {
        for (const std::int32_t height : {1, 2, 40, 100, 16384}) {
            for (const double number : {0.0, 1e-300, -1e300, 1e300, HUGE_VAL, -HUGE_VAL, kNan}) {
                Chart any = Plain();
                any.right = ChartAxis{"r", {number, 1}};
                any.bottom.range.to = number;
                any.lines = {{{{0, 0}, {number, number}, {1, 1}}, kRed, true, ChartSide::kRight, "name"}};
                any.uprights = {{number, kRed, "mark"}};
                any.levels = {{number, kRed, "level"}};
                any.dots = {{{number, number}, kRed, "dot"}};
                any.zones = {{{number, -number}, kRed}};
                any.band = {{{0, number}, kRed, kBlue, "band"}};
                RecordingSurface small(width, height);
                PaintChart(small, any, kColours);
                EXPECT_LT(small.calls.size(), 20000u);
                for (const drawn::Line& line : small.Of<drawn::Line>()) {
                    EXPECT_TRUE(std::abs(line.from.x) <= 20000 && std::abs(line.to.y) <= 20000);
                }
            }
        }
    }
}

} // namespace

#include "drawing/SectionPicture.h"

#include "drawing/PaneColours.h"
#include "lib/text/Language.h"
#include "support/RecordingSurface.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr Colour kBackground{0, 102, 153};
constexpr Colour kGreen{0, 255, 64};
constexpr Colour kYellow{255, 255, 0};
constexpr Colour kOlive{192, 192, 0};
constexpr Colour kGrey{143, 128, 128};
constexpr Colour kDark{0, 64, 64};
constexpr Colour kLightGrey{240, 240, 240};
constexpr Colour kRed{255, 0, 0};
constexpr Font kSmallFont{10, 200, true};
constexpr Font kTextFont{14, 200, false};

using drawn::Call;

/// A window in which the round scope is mapped pixel for millimetre: (x, y) to (x + 5, y + 162.5), rounded.
class SectionPicture : public ::testing::Test {
protected:
    SectionPicture() { MakeRoundScope(record); }

    RecordingSurface Paint(const SectionPointer& pointer = Pixel{0, 0}, int language = kEnglish)
    {
        RecordingSurface window(1077, 1000);
        PaintSection(window, view, record, switches, pointer, language);
        return window;
    }
    static bool Has(const RecordingSurface& window, const Call& call)
    {
        return std::find(window.calls.begin(), window.calls.end(), call) != window.calls.end();
    }
    /// A bar of the picture in whole world millimetres.
    Call Bar(int x0, int y0, int x1, int y1, Colour colour) const
    {
        return drawn::FillRect{{x0 + 5, y0 + down, x1 + 6, y1 + down + 1}, colour};
    }

    int down = 163; ///< pixels of a bar's upper edge below its y
    COrrevaData record;
    ViewSwitches switches;
    SectionZoom view;
};

TEST_F(SectionPicture, IsMadeOfItsPartsInTheirOrder)
{
    record.SetFocuserType(0); // a drawtube at mid travel: the focal plane 25 mm higher
    record.SetFocuserHeight(35);
    record.SetOazLength(60);
    switches.show_offset = 0;
    switches.show_box_and_cage = 1;
    const RecordingSurface window = Paint();
    // top = 35 + 20 + 25 = 80 again, so the frame is the round scope's; the extended focuser counts 325.
    const std::vector<Call> before = {
        drawn::FillRect{{0, 0, 1077, 1000}, kBackground},
        drawn::FillRect{{102, 249, 1073, 490}, kWhite}, // inside of the tube
        drawn::FillRect{{102, 239, 1073, 250}, kDark},  // walls of 10 mm outside of it
        drawn::FillRect{{102, 489, 1073, 500}, kDark},
        drawn::FillRect{{177, 214, 228, 250}, kWhite}, // focuser box
        drawn::FillRect{{167, 214, 172, 250}, kDark},  // base bars
        drawn::FillRect{{233, 214, 238, 250}, kDark},
        drawn::FillRect{{173, 214, 178, 275}, kDark}, // drawtube walls
        drawn::FillRect{{227, 214, 232, 275}, kDark},
        drawn::FillRect{{177, 167, 228, 172}, kOlive},  // focal plane
        drawn::FillRect{{190, 167, 216, 172}, kYellow}, // w = 60 - 175 / 5 = 25
    };
    ASSERT_GT(window.calls.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(before[i], window.calls[i]) << i;
    }
    // Scale at 80 + 240 + 10 + 60 = 390: the base line, 97 ticks of which ten with numbers.
    std::size_t next = before.size();
    EXPECT_EQ((Call{drawn::Line{{102, 559}, {1072, 559}, kWhite}}), window.calls[next]);
    next += 1 + 97 + 10;
    const std::vector<Call> after = {
        drawn::Polygon{{{172, 339}, {232, 399}, {228, 399}, {168, 339}}, kGreen, kGreen},
        drawn::Polygon{{{164, 339}, {224, 399}, {134, 399}, {134, 339}}, kBlack, kBlack},
        drawn::Text{{182, 339}, "Attention: Display without Secondary Offset!", kTextFont, kRed},
        drawn::FillRect{{1002, 269, 1023, 470}, kGreen}, // primary
        drawn::FillRect{{922, 249, 1073, 490}, kDark},   // box
        drawn::FillRect{{102, 249, 263, 490}, kDark},    // cage
    };
    ASSERT_EQ(next + after.size(), window.calls.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        EXPECT_EQ(after[i], window.calls[next + i]) << i;
    }
}

TEST_F(SectionPicture, ShowsOnlyTheBackgroundInASmallWindow)
{
    for (const Pixel size : {Pixel{29, 400}, Pixel{400, 29}, Pixel{1, 1}}) {
        for (const bool loaded : {true, false}) {
            if (!loaded) {
                record.Clear();
            }
            view = {3, 50, 60};
            RecordingSurface window(size.x, size.y);
            PaintSection(window, view, record, switches, Pixel{}, kEnglish);
            EXPECT_EQ((std::vector<Call>{drawn::FillRect{{0, 0, size.x, size.y}, kBackground}}),
                      window.calls);
            EXPECT_EQ((SectionZoom{3, 50, 60}), view) << "not clamped yet";
        }
    }
}

TEST_F(SectionPicture, AsksForATelescopeWhenNoneIsLoaded)
{
    record.Clear();
    switches.ray_parallel = 1;
    view = {2, 9999, -3};
    RecordingSurface window(30, 30);
    PaintSection(window, view, record, switches, Pixel{}, kEnglish);
    EXPECT_EQ((std::vector<Call>{
                  drawn::FillRect{{0, 0, 30, 30}, kBackground},
                  drawn::Text{{10, 10},
                              "Please create a new set of data (Menu:File/New) or open an existing set "
                              "(Menu:File/Open).",
                              kTextFont,
                              kLightGrey},
              }),
              window.calls);
    EXPECT_EQ((SectionZoom{2, 30, 0}), view) << "the scroll is pulled back all the same";
    const RecordingSurface german = Paint(Pixel{}, kGerman);
    EXPECT_EQ("Lege bitte einen neuen Datensatz an (Men\xFC:Datei/Neu) oder \xF6"
              "ffne einen vorhandenen Daten (Men\xFC:Datei/\xD6"
              "ffnen).",
              german.Of<drawn::Text>().at(0).text);
}

TEST_F(SectionPicture, ShowsASlidingFocuserAsABoxAlone)
{
    record.SetFocuserType(1);
    switches.show_extended_focuser = 0;
    const RecordingSurface retracted = Paint();
    EXPECT_TRUE(Has(retracted, Bar(172, 20, 222, 80, kWhite)));
    // The two tube walls are all that is dark.
    int dark = 0;
    for (const auto& bar : retracted.Of<drawn::FillRect>()) {
        dark += bar.colour == kDark ? 1 : 0;
    }
    EXPECT_EQ(2, dark);
    switches.show_extended_focuser = 1;
    EXPECT_EQ(retracted.calls, Paint().calls);
}

TEST_F(SectionPicture, MovesTheDrawtubeOutByItsTravel)
{
    for (const std::int32_t type : {0, 2}) {
        record.SetFocuserType(type);
        record.SetFocuserHeight(35);
        record.SetOazLength(60);
        switches.show_extended_focuser = 1;
        down = 169; // (1000 - 325) / 4 and a half: the extended focuser is 325 mm high with the tube
        const RecordingSurface window = Paint();
        EXPECT_TRUE(Has(window, Bar(168, 45 - 50, 172, 105 - 50, kDark))) << type;
        EXPECT_TRUE(Has(window, Bar(222, 45 - 50, 226, 105 - 50, kDark))) << type;
        EXPECT_TRUE(Has(window, Bar(162, 45, 166, 80, kDark))) << "the base stays";
    }
}

TEST_F(SectionPicture, HasNoYellowBarForATooSmallSecondary)
{
    // 20 + 60 + 110 + 10 = 200 mm at f/5: the cone is 40 mm wide at the secondary.
    record.SetSecondaryDiameter(41);
    EXPECT_TRUE(Has(Paint(), drawn::FillRect{{202, 161, 204, 166}, kYellow}));
    record.SetSecondaryDiameter(40);
    const auto bars = Paint().Of<drawn::FillRect>();
    EXPECT_TRUE(
        std::none_of(bars.begin(), bars.end(), [](const auto& bar) { return bar.colour == kYellow; }));
}

TEST_F(SectionPicture, CountsTheScaleFromTheRearEnd)
{
    const RecordingSurface window = Paint();
    EXPECT_TRUE(Has(window, drawn::Line{{1072, 538}, {1072, 568}, kWhite}));
    EXPECT_TRUE(Has(window, drawn::Text{{1072, 551}, "0", kSmallFont, kWhite}));
    EXPECT_TRUE(Has(window, drawn::Line{{1062, 548}, {1062, 558}, kWhite}));
    EXPECT_TRUE(Has(window, drawn::Text{{972, 551}, "100", kSmallFont, kWhite}));
    EXPECT_TRUE(Has(window, drawn::Text{{172, 551}, "900", kSmallFont, kWhite}));
}

TEST_F(SectionPicture, SetsTheScaleBelowTheTubeByWholeMillimetresOfItsWall)
{
    // The tube is 220 + 21.8 = 241.8 mm wide, the picture 351.8 mm high: offset (1000 - 351.8) / 4 = 162.05.
    record.SetThicknessHat(10.9);
    // 80 + 241.8 + 10 + 60 = 391.8, and 554.35 with the offset and a half; the wall's 10.9 would give 555.25.
    EXPECT_EQ((drawn::Line{{102, 554}, {1072, 554}, kWhite}), Paint().Of<drawn::Line>().at(0));
}

TEST_F(SectionPicture, WidensTheScalesStepsWithTheTube)
{
    struct Case {
        double front;        // the tube is 870 mm longer
        std::size_t ticks;   // while i is below the length
        const char* numbers; // the second one
    };
    const Case cases[] = {{630, 150, "100"}, {631, 76, "200"}, {2130, 150, "200"}, {2131, 61, "500"}};
    for (const Case& one : cases) {
        record.SetDistanceFront(one.front);
        const RecordingSurface window = Paint();
        EXPECT_EQ(one.ticks + 1, window.Of<drawn::Line>().size()) << one.front;
        EXPECT_EQ(one.numbers, window.Of<drawn::Text>().at(1).text) << one.front;
    }
}

TEST_F(SectionPicture, DrawsTheRaysOfTheModeOverTheTubeAndUnderTheScale)
{
    switches.ray_from_mouse = 1;
    const RecordingSurface window = Paint(Point{600, 210});
    // In the order of painting: the lit field's bar, rays, the scale's base line.
    const auto place = [&](const Call& call) {
        return std::find(window.calls.begin(), window.calls.end(), call) - window.calls.begin();
    };
    const auto field = place(Bar(187, -2, 207, 2, kYellow));
    const auto base = place(drawn::Line{{102, 553}, {1072, 553}, kWhite});
    ASSERT_LT(base, static_cast<std::ptrdiff_t>(window.calls.size()));
    std::size_t yellow = 0;
    std::size_t grey = 0;
    for (auto i = field + 1; i < base; ++i) {
        const auto& line = std::get<drawn::Line>(window.calls[static_cast<std::size_t>(i)]);
        yellow += line.colour == kYellow ? 1u : 0u;
        grey += line.colour == kGrey ? 1u : 0u;
    }
    EXPECT_EQ(static_cast<std::size_t>(base - field - 1), yellow + grey);
    EXPECT_GT(yellow, 10u);
    EXPECT_GT(grey, 10u);
    EXPECT_EQ((Pixel{605, 373}), window.Of<drawn::Line>().at(0).from);
    switches.miss_in_grey = 0;
    for (const auto& line : Paint(Point{600, 210}).Of<drawn::Line>()) {
        EXPECT_NE(kGrey, line.colour);
    }
}

TEST_F(SectionPicture, ReadsThePointersPixelWithoutZoomAndScroll)
{
    switches.ray_from_mouse = 1;
    const Pixel pointer{605, 372};
    // Pixel for millimetre: (605 - 5, 372 - 162.5).
    EXPECT_EQ(Paint(Point{600, 209.5}).calls, Paint(pointer).calls);
    // At zoom 2 the picture is 2154 by 2000: scale 2144 / 1067, offsets 5 and (2000 - 350 scale) / 4.
    view = {2, 300, 200};
    const double scale = 2144.0 / 1067;
    const Point place{(605 - 5) / scale, (372 - (2000 - 350 * scale) / 4) / scale};
    const auto byPixel = Paint(pointer).Of<drawn::Line>();
    const auto byPlace = Paint(place).Of<drawn::Line>();
    EXPECT_EQ(byPlace[0].from, byPixel[0].from);
    EXPECT_NEAR(605 - 300, byPixel[0].from.x, 1) << "drawn where the pixel lies in the picture";
}

TEST_F(SectionPicture, TellsTheStatusOfTheParallelRays)
{
    switches.ray_parallel = 1;
    const RecordingSurface window = Paint(Point{0, 80});
    EXPECT_EQ(
        (drawn::Text{{4, 0}, "Angle: 1.406\xB0 Image: 49.09 mm, Illumination: 75.32% ", kTextFont, kWhite}),
        window.Of<drawn::Text>().at(0));
    view = {3, 20, 10};
    EXPECT_EQ((Pixel{-16, -10}), Paint(Point{0, 80}).Of<drawn::Text>().at(0).at)
        << "in pixels of the picture";
    view = {};
    EXPECT_EQ("Einfallwinkel: 1.406\xB0 Bild: 49.09 mm, Ausleuchtung: 75.32% ",
              Paint(Point{0, 80}, kGerman).Of<drawn::Text>().at(0).text);
}

TEST_F(SectionPicture, WarnsOfAMissingOffsetInBothLanguages)
{
    switches.show_offset = 0;
    const auto texts = Paint(Pixel{}, kGerman).Of<drawn::Text>();
    EXPECT_EQ((drawn::Text{{182, 333},
                           "Achtung: es wird kein Fangspiegel Offset ber\xFC"
                           "cksichtigt!",
                           kTextFont,
                           kRed}),
              texts.back());
    switches.show_offset = 1;
    EXPECT_NE(kRed, Paint().Of<drawn::Text>().back().colour);
    EXPECT_EQ((Pixel{175, 336}), Paint().Of<drawn::Polygon>().at(0).points.at(0)) << "moved by 3 mm";
}

TEST_F(SectionPicture, PaintsAPartByTheWholePicturesPixels)
{
    view = {2, 300, 200};
    const RecordingSurface part = Paint();
    RecordingSurface whole(2154, 2000);
    SectionZoom one;
    PaintSection(whole, one, record, switches, Pixel{}, kEnglish);
    ASSERT_EQ(whole.calls.size(), part.calls.size());
    const auto wholeBars = whole.Of<drawn::FillRect>();
    const auto partBars = part.Of<drawn::FillRect>();
    for (std::size_t i = 1; i < wholeBars.size(); ++i) {
        const PixelRect& w = wholeBars[i].rect;
        EXPECT_EQ((PixelRect{w.left - 300, w.top - 200, w.right - 300, w.bottom - 200}), partBars[i].rect);
    }
}

TEST_F(SectionPicture, PullsTheScrollBackAtEachPainting)
{
    view = {3, 5000, 4000};
    Paint();
    EXPECT_EQ((SectionZoom{3, 2154, 2000}), view);
    RecordingSurface small(100, 50);
    PaintSection(small, view, record, switches, Pixel{}, kEnglish);
    EXPECT_EQ((SectionZoom{3, 200, 100}), view);
}

TEST_F(SectionPicture, EndsForEveryNumberInTheRecord)
{
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            for (const RecordSetter second : {&COrrevaData::SetFocalLength, &COrrevaData::SetThicknessHat}) {
                MakeRoundScope(record);
                (record.*setter)(odd);
                (record.*second)(odd);
                switches.ray_parallel = 1;
                switches.show_box_and_cage = 1;
                switches.show_offset = odd > 0 ? 1 : 0;
                const RecordingSurface window = Paint(Pixel{500, 300});
                EXPECT_LT(window.calls.size(), 12000u);
                EXPECT_GT(window.calls.size(), 10u);
            }
        }
    }
}

TEST_F(SectionPicture, ATubeWhoseLengthIsNoNumberHasNoTicks)
{
    record.SetFocuserHeight(-HUGE_VAL);
    record.SetDistanceFront(-HUGE_VAL);
    ASSERT_TRUE(std::isnan(record.GetTubeLength()));
    const RecordingSurface window = Paint();
    EXPECT_TRUE(std::ranges::none_of(window.Of<drawn::Text>(), [](const drawn::Text& text) {
        return text.text.find_first_not_of("0123456789") == std::string::npos;
    }));
    EXPECT_LT(window.calls.size(), 100u);
}

TEST_F(SectionPicture, AtAScaleOfTheCallersIsTheSamePicture)
{
    RecordingSurface atOne(1077, 1000);
    PaintSectionAtScale(atOne, record, 1);
    EXPECT_EQ(Paint().calls, atOne.calls) << "the window has room for a pixel a millimetre";

    // Half the size, in the middle: x / 2 + (1077 - 533.5) / 2, y / 2 + (1000 - 175) / 4.
    RecordingSurface half(1077, 1000);
    PaintSectionAtScale(half, record, 0.5);
    const auto* const tube = std::get_if<drawn::FillRect>(&half.calls.at(1));
    ASSERT_NE(nullptr, tube);
    EXPECT_EQ(320, tube->rect.left); // 97 / 2 + 271.75
    for (const double odd : {0.0, -1.0, 1e300, static_cast<double>(HUGE_VAL), std::nan("")}) {
        PaintSectionAtScale(half, record, odd);
    }
}

std::vector<std::string> NumbersOf(const RecordingSurface& window)
{
    std::vector<std::string> numbers;
    for (const auto& text : window.Of<drawn::Text>()) {
        if (text.font.upright) {
            numbers.push_back(text.text);
        }
    }
    return numbers;
}

TEST_F(SectionPicture, InHighContrastHasTheSameShapesInOtherColours)
{
    const auto usual = Paint().Of<drawn::FillRect>();
    const auto usualQuads = Paint().Of<drawn::Polygon>();
    switches.high_contrast = 1;
    const auto clear = Paint().Of<drawn::FillRect>();
    const auto clearQuads = Paint().Of<drawn::Polygon>();
    ASSERT_EQ(usual.size(), clear.size());
    for (std::size_t i = 0; i < usual.size(); ++i) {
        EXPECT_EQ(usual[i].rect, clear[i].rect) << i;
    }
    ASSERT_EQ(2u, clearQuads.size());
    for (std::size_t i = 0; i < clearQuads.size(); ++i) {
        EXPECT_EQ(usualQuads[i].points, clearQuads[i].points) << i;
    }
    EXPECT_EQ(kWhite, clear.front().colour);
    EXPECT_EQ(kBlack, clear.at(2).colour) << "the upper wall";
    EXPECT_EQ(kContrastSection.mirror, clear.back().colour);
    EXPECT_EQ(kContrastSection.mirror, clearQuads[0].brush);
}

TEST_F(SectionPicture, InHighContrastHasTheScalesNumbersBelowItsTicks)
{
    switches.high_contrast = 1;
    const RecordingSurface window = Paint();
    constexpr Font kClear{12, 200, true};
    EXPECT_TRUE(Has(window, drawn::Line{{102, 553}, {1072, 553}, kBlack}));
    EXPECT_TRUE(Has(window, drawn::Line{{972, 538}, {972, 568}, kBlack}));
    // Three pixels below the tick's end and 18 high: three digits, each half as wide as a line of 12 is high.
    EXPECT_TRUE(Has(window, drawn::Text{{966, 568 + 3 + 18}, "100", kClear, kBlack}));
    // The first one is pulled in: the window ends 5 pixels behind the tube.
    EXPECT_TRUE(Has(window, drawn::Text{{1063, 568 + 3 + 6}, "0", kClear, kBlack}));
    EXPECT_TRUE(Has(window, drawn::Line{{102, 538}, {102, 568}, kBlack})) << "the front end has a tick";
    EXPECT_EQ("970", NumbersOf(window).back());
}

TEST_F(SectionPicture, InHighContrastReadsTheTubesLengthAtItsFrontEnd)
{
    switches.high_contrast = 1;
    record.SetDistanceFront(2630); // the tube is 870 mm longer
    EXPECT_EQ((std::vector<std::string>{"0", "500", "1000", "1500", "2000", "2500", "3000", "3500"}),
              NumbersOf(Paint()));
    record.SetDistanceFront(984.4);
    EXPECT_EQ((std::vector<std::string>{"0", "200", "400", "600", "800", "1000", "1200", "1400", "1600",
                                        "1800", "1854"}),
              NumbersOf(Paint()));
    // In a window of 300 pixels 54 mm are less than a line's height: the tube's own length stays.
    RecordingSurface narrow(300, 600);
    PaintSection(narrow, view, record, switches, Pixel{}, kEnglish);
    const auto numbers = NumbersOf(narrow);
    EXPECT_EQ("1854", numbers.back());
    EXPECT_EQ("1600", numbers.at(numbers.size() - 2));
}

TEST_F(SectionPicture, InHighContrastHasNumbersApartAndInsideTheWindow)
{
    switches.high_contrast = 1;
    for (const double front : {100.0, 2630.0, 9000.0, 60000.0}) {
        record.SetDistanceFront(front);
        for (const Pixel size : {Pixel{1077, 1000}, Pixel{3000, 400}, Pixel{300, 220}, Pixel{700, 160}}) {
            view = {};
            RecordingSurface window(size.x, size.y);
            PaintSection(window, view, record, switches, Pixel{}, kEnglish);
            const std::int32_t bottom = window.Of<drawn::FillRect>().at(3).rect.bottom; // of the lower wall
            std::vector<std::int32_t> lefts;
            for (const auto& text : window.Of<drawn::Text>()) {
                if (!text.font.upright) {
                    continue;
                }
                const auto length = static_cast<std::int32_t>(text.text.size()) * 6;
                EXPECT_GT(text.at.y - length, bottom) << size.x << ' ' << front << ' ' << text.text;
                EXPECT_LE(text.at.y, size.y) << size.x << ' ' << front;
                EXPECT_GE(text.at.x, 0);
                EXPECT_LE(text.at.x + 12, size.x);
                lefts.push_back(text.at.x);
            }
            std::ranges::sort(lefts);
            for (std::size_t i = 1; i < lefts.size(); ++i) {
                EXPECT_GE(lefts[i] - lefts[i - 1], i + 1 == lefts.size() ? 9 : 12)
                    << "the last is pulled in by three pixels";
            }
        }
    }
}

TEST_F(SectionPicture, InHighContrastKeepsItsTextsInTheWindowsCorner)
{
    switches.high_contrast = 1;
    switches.ray_parallel = 1;
    switches.show_offset = 0;
    view = {3, 20, 10};
    const RecordingSurface window = Paint(Point{0, 80});
    const std::string status = "Angle: 1.406\xB0 Image: 49.09 mm, Illumination: 75.32% ";
    const std::string warning = "Attention: Display without Secondary Offset!";
    ASSERT_LT(4u, window.calls.size());
    const std::vector<Call> last(window.calls.end() - 4, window.calls.end());
    // In front of all else, each on a box of its own of 7 pixels a character.
    EXPECT_EQ((std::vector<Call>{
                  drawn::FillRect{{0, 0, 4 + 7 * static_cast<std::int32_t>(status.size()), 14}, kWhite},
                  drawn::Text{{4, 0}, status, kTextFont, kBlack},
                  drawn::FillRect{{0, 14, 4 + 7 * static_cast<std::int32_t>(warning.size()), 28}, kWhite},
                  drawn::Text{{4, 14}, warning, kTextFont, kContrastSection.warning},
              }),
              last);
}

TEST_F(SectionPicture, InHighContrastWrapsThePromptOfAnEmptyWindow)
{
    switches.high_contrast = 1;
    record.Clear();
    const auto prompts = Paint().Of<drawn::WrappedText>();
    ASSERT_EQ(1u, prompts.size());
    EXPECT_EQ((PixelRect{10, 10, 1067, 1000}), prompts[0].box);
    EXPECT_EQ(kBlack, prompts[0].colour);
}

TEST_F(SectionPicture, InHighContrastEndsForEveryNumberInTheRecord)
{
    switches.high_contrast = 1;
    switches.ray_parallel = 1;
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            MakeRoundScope(record);
            (record.*setter)(odd);
            EXPECT_LT(Paint(Pixel{500, 300}).calls.size(), 12000u);
        }
    }
}

TEST_F(SectionPicture, OnFinerPixelsIsMappedByThem)
{
    switches.ray_parallel = 1;
    view = {1, 0, 0};
    RecordingSurface fine(1616, 1500); // a window of 1077 by 1000 at one and a half
    PaintSection(fine, view, record, switches, Point{0, 80}, kEnglish, 1.5);
    // x to 1.5 x + 7.5, y to 1.5 y + 243.75, and a half for the rounding.
    EXPECT_EQ((drawn::FillRect{{153, 364, 1609, 725}, kWhite}), fine.Of<drawn::FillRect>().at(1));
    EXPECT_TRUE(Has(fine, drawn::Line{{153, 829}, {1608, 829}, kWhite})) << "390 mm is 828.75";
    EXPECT_EQ(
        (drawn::Text{
            {6, 0}, "Angle: 1.406\xB0 Image: 49.09 mm, Illumination: 75.32% ", Font{21, 200, false}, kWhite}),
        fine.Of<drawn::Text>().at(0));
    EXPECT_EQ((Font{15, 200, true}), fine.Of<drawn::Text>().at(1).font);
    // The scroll is told in pixels of the window.
    view = {2, 300, 200};
    RecordingSurface part(1616, 1500);
    PaintSection(part, view, record, switches, Point{0, 80}, kEnglish, 1.5);
    EXPECT_EQ((Pixel{6 - 450, -300}), part.Of<drawn::Text>().at(0).at);
    EXPECT_EQ((SectionZoom{2, 300, 200}), view);
}

TEST_F(SectionPicture, TellsThePlaceBelowAPixel)
{
    // Pixel for millimetre: (605 - 5, 372 - 162.5).
    const Point place = PlaceInSection(view, {1077, 1000}, record, switches, {605, 372});
    EXPECT_DOUBLE_EQ(600, place.x);
    EXPECT_DOUBLE_EQ(209.5, place.y);
    // A low window shows the telescope smaller in high contrast: 378 - 10 pixels for 405 mm.
    switches.high_contrast = 1;
    const Point low = PlaceInSection(view, {3000, 400}, record, switches, {1500, 371});
    EXPECT_NEAR((371 - 2.5) / (368.0 / 405), low.y, 1e-9);
}

} // namespace

#include "drawing/MirrorPanelPicture.h"
#include "drawing/TubePanelPicture.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"
#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr Colour kDialog{239, 239, 239};
constexpr Colour kGrey{144, 144, 144};

void Make200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

/// The tops of the thin lines, each of which runs from 0 to 400.
std::vector<std::int32_t> LineTops(const RecordingSurface& surface)
{
    std::vector<std::int32_t> tops;
    for (const drawn::Line& line : surface.Of<drawn::Line>()) {
        EXPECT_EQ(0, line.from.x);
        EXPECT_EQ(400, line.to.x);
        EXPECT_EQ(line.from.y, line.to.y);
        EXPECT_EQ(kGrey, line.colour);
        tops.push_back(line.from.y);
    }
    return tops;
}

TEST(TubePanelPicture, PaintsTheBackgroundOfTheSheetFirst)
{
    COrrevaData record;
    Make200(record);
    RecordingSurface surface(285, 300);
    PaintTubePanel(surface, record, kEnglish, kDialog);
    EXPECT_EQ(drawn::Call(drawn::FillRect{{0, 0, 285, 300}, kDialog}), surface.calls.at(0));
    EXPECT_EQ(1u, surface.Of<drawn::FillRect>().size());
}

TEST(TubePanelPicture, RowsOfLabelAndValueFollowEachOther)
{
    COrrevaData record;
    Make200(record);
    RecordingSurface surface(285, 300);
    PaintTubePanel(surface, record, kEnglish, kDialog);
    const auto texts = surface.Of<drawn::WrappedText>();
    ASSERT_EQ(16u, texts.size());
    EXPECT_EQ((drawn::WrappedText{{2, 20, 160, 1020}, "Lenght:", Font{14, 200}, kBlack}), texts[0]);
    EXPECT_EQ((drawn::WrappedText{{160, 20, 400, 1020}, "1195.3 mm (47.06\")", Font{14, 200}, kBlack}),
              texts[1]);
    EXPECT_EQ((drawn::WrappedText{{2, 34, 160, 1034}, "Inner Diameter:", Font{14, 200}, kBlack}), texts[2]);
}

TEST(TubePanelPicture, WrappedLabelsMoveRowsAndLinesDown)
{
    COrrevaData record;
    Make200(record);
    // 26 characters fit into a label's 158 pixels at 6 pixels each. English: the two distances of the tube's
    // ends take two lines of 14 pixels ("Distance Tube Rear End to" + "Primary Surface:"), and so do the
    // last two rows.
    RecordingSurface english(285, 300);
    PaintTubePanel(english, record, kEnglish, kDialog);
    EXPECT_EQ((std::vector<std::int32_t>{34, 48, 62, 76, 104, 132, 160}), LineTops(english));

    // German: "Abstand hinteres" "Tubusende - Oberfläche des" "Hauptspiegels:" are three lines.
    RecordingSurface german(285, 300);
    PaintTubePanel(german, record, kGerman, kDialog);
    EXPECT_EQ((std::vector<std::int32_t>{34, 48, 62, 76, 118, 146, 160}), LineTops(german));
}

TEST(TubePanelPicture, SurvivesFieldsThatAreEmptiedOrOdd)
{
    for (const double odd : {0.0, -250.0, 1e300, -1e300, std::nan("")}) {
        COrrevaData record;
        record.SetInsideDiameterHat(odd);
        record.SetDistanceBack(odd);
        record.SetDistanceFront(odd);
        record.SetThicknessHat(odd);
        RecordingSurface surface(285, 300);
        PaintTubePanel(surface, record, kEnglish, kDialog);
        EXPECT_EQ(16u, surface.Of<drawn::WrappedText>().size());
        EXPECT_EQ(7u, surface.Of<drawn::Line>().size());
    }
}

TEST(MirrorPanelPicture, TwoRowsALineAndTheMask)
{
    COrrevaData record;
    Make200(record);
    RecordingSurface surface(285, 400);
    PaintMirrorPanel(surface, record, kDialog);
    const auto texts = surface.Of<drawn::WrappedText>();
    ASSERT_EQ(4u, texts.size());
    EXPECT_EQ("Spiegeldurchmesser:", texts[0].text);
    EXPECT_EQ("200.0 mm (7.87\")", texts[1].text);
    EXPECT_EQ("Brennweite:", texts[2].text);
    EXPECT_EQ("1200.0 mm (47.24\")", texts[3].text);
    EXPECT_EQ((PixelRect{2, 34, 160, 1034}), texts[2].box);
    EXPECT_EQ(std::vector<std::int32_t>{48}, LineTops(surface));
}

TEST(MirrorPanelPicture, TheMaskIsRingsOfHalvesUnderTwoCaps)
{
    COrrevaData record;
    Make200(record);
    RecordingSurface surface(285, 400);
    PaintMirrorPanel(surface, record, kDialog);
    // The picture begins at (2, 48), so that its centre is (132, 178).
    const Pixel left{32, 178};
    const Pixel right{232, 178};
    const auto lower = [&](PixelRect box, Colour brush) {
        return drawn::Chord{box, left, right, kBlack, brush};
    };
    const auto upper = [&](PixelRect box, Colour brush) {
        return drawn::Chord{box, right, left, kBlack, brush};
    };
    const PixelRect rings[] = {{4, 50, 250, 296},
                               {29, 75, 225, 271},
                               {54, 100, 200, 246},
                               {79, 125, 175, 221},
                               {104, 150, 150, 196}};
    EXPECT_EQ(
        (std::vector<drawn::Chord>{lower(rings[0], kBlack), upper(rings[0], kWhite), lower(rings[1], kWhite),
                                   upper(rings[1], kBlack), lower(rings[2], kBlack), upper(rings[2], kWhite),
                                   lower(rings[3], kWhite), upper(rings[3], kBlack), lower(rings[4], kBlack),
                                   upper(rings[4], kWhite),
                                   drawn::Chord{{4, 50, 250, 296}, {32, 208}, {232, 208}, kBlack, kBlack},
                                   drawn::Chord{{4, 50, 250, 296}, {232, 148}, {32, 148}, kBlack, kBlack}}),
        surface.Of<drawn::Chord>());
}

} // namespace

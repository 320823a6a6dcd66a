#include "drawing/SectionSentences.h"

#include "lib/text/Language.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using Lines = std::vector<std::string>;

class SectionSentencesTest : public testing::Test {
protected:
    SectionSentencesTest() { MakeRoundScope(record); }

    Lines Read(int language = kEnglish, int zoom = 1)
    {
        return SectionSentences(record, switches, {0, 80}, zoom, language);
    }
    bool Has(const std::string& sentence) { return std::ranges::count(Read(), sentence) == 1; }

    COrrevaData record;
    ViewSwitches switches;
};

TEST_F(SectionSentencesTest, TellEveryPartWithItsMeasures)
{
    // The frame of the round scope: front 97, primary 997, focuser 197; 60 - 200 * 200 / 1000 = 20 is lit.
    EXPECT_EQ(
        (Lines{"Tube: 970.0 mm long, 220.0 mm wide inside, walls of 10.0 mm.",
               "Primary: 200.0 mm in diameter, 20.0 mm thick, its face 900.0 mm behind the tube's front "
               "end.",
               "Secondary: minor axis 60.0 mm, its middle 103.0 mm behind the tube's front end, offset "
               "3.00 mm.",
               "Focuser: 50.0 mm in diameter, its axis 100.0 mm behind the tube's front end, the focal "
               "plane 80.0 mm above the tube.",
               "The fully lit part of the focal plane is 20.0 mm wide."}),
        Read());
}

TEST_F(SectionSentencesTest, AreGermanInGerman)
{
    EXPECT_EQ(
        (Lines{"Tubus: 970.0 mm lang, innen 220.0 mm weit, W\xE4nde 10.0 mm dick.",
               "Hauptspiegel: 200.0 mm Durchmesser, 20.0 mm dick, Vorderseite 900.0 mm hinter dem "
               "vorderen Tubusende.",
               "Fangspiegel: kleine Achse 60.0 mm, Mitte 103.0 mm hinter dem vorderen Tubusende, Offset "
               "3.00 mm.",
               "Focuser: 50.0 mm Durchmesser, Achse 100.0 mm hinter dem vorderen Tubusende, Brennebene "
               "80.0 mm \xFC"
               "ber dem Tubus.",
               "Der voll ausgeleuchtete Teil der Brennebene ist 20.0 mm breit.",
               "3-fach vergr\xF6\xDF"
               "ert."}),
        Read(kGerman, 3));
}

TEST_F(SectionSentencesTest, FollowTheSwitches)
{
    switches.show_offset = 0;
    EXPECT_TRUE(Has("Attention: Display without Secondary Offset!"));
    EXPECT_TRUE(Has("Secondary: minor axis 60.0 mm, its middle 100.0 mm behind the tube's front end, offset "
                    "0.00 mm."));
    switches.show_box_and_cage = 1;
    EXPECT_TRUE(Has("Mirror box 150.0 mm, upper cage 160.0 mm long."));
    switches.show_extended_focuser = 1;
    EXPECT_FALSE(Has("The drawtube is extended by 50.0 mm.")) << "a sliding focuser has none";
    record.SetFocuserType(2);
    EXPECT_TRUE(Has("The drawtube is extended by 50.0 mm."));
    record.SetSecondaryDiameter(30);
    EXPECT_TRUE(Has("No part of the focal plane is fully lit."));
}

TEST_F(SectionSentencesTest, TellTheRaysThatAreOn)
{
    switches.ray_parallel = 1;
    const Lines lines = Read();
    EXPECT_EQ("Parallel rays from a spot in infinity.", lines.at(5));
    EXPECT_EQ("Angle: 1.406\xB0 Image: 49.09 mm, Illumination: 75.32% ", lines.at(6));
    switches = {};
    switches.ray_from_focal_plane = 1;
    EXPECT_EQ("Rays from the focal plane, at the height of the mouse pointer.", Read().back());
    switches = {};
    switches.ray_from_mouse = 1;
    EXPECT_EQ("Rays from the mouse pointer.", Read().back());
}

TEST_F(SectionSentencesTest, TellHowToComeByATelescope)
{
    record.Clear();
    switches.ray_parallel = 1;
    EXPECT_EQ((Lines{"Please create a new set of data (Menu:File/New) or open an existing set "
                     "(Menu:File/Open)."}),
              Read());
}

TEST_F(SectionSentencesTest, TakeAnyNumber)
{
    switches.ray_parallel = 1;
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            MakeRoundScope(record);
            (record.*setter)(odd);
            EXPECT_EQ(7u, Read().size());
        }
    }
    MakeRoundScope(record);
    record.SetMirrorDiameter(-HUGE_VAL);
    EXPECT_EQ(0u, Read().at(1).find("Primary: \x96 mm in diameter")) << Read().at(1);
}

} // namespace

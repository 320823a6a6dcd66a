#include "model/analysis/TubeDesign.h"

#include "lib/text/CodePage.h"
#include "model/rows/WantedField.h"

#include <gtest/gtest.h>

namespace {

void Make200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

TEST(TubeDesign, DropDownReadsFromTheTubusDown)
{
    struct Row {
        const char* text;
        std::int32_t type;
    };
    static constexpr Row kRows[] = {
        {"Tubus", 0},
        {"Acht schräge Trusses", 1},
        {"Sechs schräge Trusses", 2},
        {"4 senkrechte Trusses", 3},
        {"3 senkrechte Trusses", 4},
        {"2 senkrechte Trusses", 5},
    };
    const std::vector<TubeType> choices = TrussChoices();
    ASSERT_EQ(std::size(kRows), choices.size());
    for (std::size_t i = 0; i < choices.size(); ++i) {
        EXPECT_EQ(kRows[i].text, Utf8FromCp1252(choices[i].text));
        EXPECT_EQ(kRows[i].type, choices[i].tube_type);
        EXPECT_EQ(static_cast<std::int32_t>(i), TrussChoiceOf(kRows[i].type));
    }
    EXPECT_EQ(-1, TrussChoiceOf(6));
    EXPECT_EQ(-1, TrussChoiceOf(-1)) << "the closing entry is no choice";
}

TEST(TubeDesign, ASecondClickOnTrussTubeKeepsTheTrussesChosen)
{
    COrrevaData record;
    const TubeMeasures measures = ReadTubeMeasures(record);
    StoreTubeMeasures(record, measures, kTrussTube);
    EXPECT_EQ(1, record.GetTubeType());
    EXPECT_TRUE(StoreTrussChoice(record, 4));
    StoreTubeMeasures(record, measures, kTrussTube);
    EXPECT_EQ(4, record.GetTubeType());
}

TEST(TubeDesign, AfterASolidTubeTheTrussesStartAnew)
{
    COrrevaData record;
    record.SetTubeType(4);
    const TubeMeasures measures = ReadTubeMeasures(record);
    StoreTubeMeasures(record, measures, kSolidTube);
    EXPECT_EQ(0, record.GetTubeType());
    StoreTubeMeasures(record, measures, kTrussTube);
    EXPECT_EQ(1, record.GetTubeType());
}

TEST(TubeDesign, ChoosingTubusMakesTheTubeSolid)
{
    COrrevaData record;
    record.SetTubeType(3);
    EXPECT_TRUE(StoreTrussChoice(record, 0));
    EXPECT_EQ(kSolidTube, DesignOf(record.GetTubeType()));
    EXPECT_EQ(kTrussTube, DesignOf(5));
}

TEST(TubeDesign, NoChoiceDoesNothing)
{
    COrrevaData record;
    record.SetTubeType(3);
    EXPECT_FALSE(StoreTrussChoice(record, -1));
    EXPECT_FALSE(StoreTrussChoice(record, 6));
    EXPECT_EQ(3, record.GetTubeType());
}

TEST(TubeDesign, EveryChangeStoresTheMeasuresAndUnsetsTheCaches)
{
    COrrevaData record;
    Make200(record);
    record.GetSecondaryToFocus();
    StoreTubeMeasures(record, {"240,5", "55", "", "14"}, kSolidTube);
    EXPECT_DOUBLE_EQ(240.5, record.inside_diameter_hat);
    EXPECT_DOUBLE_EQ(55, record.distance_back);
    EXPECT_DOUBLE_EQ(0, record.distance_front) << "a field emptied while typing is 0";
    EXPECT_DOUBLE_EQ(14, record.wanted_100percent_fow);
    EXPECT_TRUE(IsUnset(record.focuser_total_height));
    EXPECT_TRUE(IsUnset(record.focal_plane_height));
    EXPECT_TRUE(IsUnset(record.secondary_to_focus));
    EXPECT_TRUE(IsUnset(record.secondary_offset));
}

TEST(TubeDesign, ZeroDegreesIsAFieldOfZeroAndNotUnset)
{
    COrrevaData record;
    Make200(record);
    TubeMeasures measures = ReadTubeMeasures(record);
    measures.wanted_field = WantedFieldMillimetres(record, "0");
    StoreTubeMeasures(record, measures, kSolidTube);
    EXPECT_EQ(0.0, record.GetWanted100PercentFow());
}

TEST(TubeDesign, WallThicknessIsStoredAndReset)
{
    COrrevaData record;
    Make200(record);
    StoreWallThickness(record, "7.5");
    EXPECT_DOUBLE_EQ(7.5, record.thickness_hat);
    EXPECT_TRUE(IsUnset(record.focuser_total_height));
    EXPECT_EQ("5.0", ResetTubeMeasure(record, kTubeThickness));
    EXPECT_TRUE(IsUnset(record.focal_plane_height));
}

TEST(TubeDesign, TrussMeasuresAreReadStoredAndReset)
{
    COrrevaData record;
    Make200(record);
    const TrussTexts texts = ReadTruss(record);
    EXPECT_EQ("5.0", texts.box_thickness);
    EXPECT_EQ("150.0", texts.box_height);
    EXPECT_EQ("5.0", texts.cage_thickness);
    EXPECT_EQ("150.0", texts.cage_height);
    StoreTruss(record, {"12", "260", "8", "180,5"});
    EXPECT_DOUBLE_EQ(12, record.thickness_box);
    EXPECT_DOUBLE_EQ(260, record.height_box);
    EXPECT_DOUBLE_EQ(8, record.thickness_hat);
    EXPECT_DOUBLE_EQ(180.5, record.height_hat);
    EXPECT_EQ("150.0", ResetNumber(record, kTrussBoxHeight));
    EXPECT_EQ("150.0", ResetNumber(record, kTrussCageHeight));
    EXPECT_EQ("5.0", ResetNumber(record, kTrussCageThickness));
    EXPECT_EQ("5.0", ResetNumber(record, kTrussBoxThickness)) << "as the cage";
}

TEST(TubeDesign, GapBetweenBoxAndCage)
{
    COrrevaData record;
    Make200(record);
    // 1200 - (150 - 33.333 - 50) - (150 - 100) - 188
    EXPECT_EQ("895.33", TrussGapText(record));
    StoreTruss(record, {"5", "800", "5", "700"});
    // 1200 - (800 - 83.333) - (700 - 100) - 188
    EXPECT_EQ("-304.67", TrussGapText(record));
}

} // namespace

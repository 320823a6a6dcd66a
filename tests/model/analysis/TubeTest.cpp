#include "model/analysis/Tube.h"

#include "lib/text/Language.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

namespace {

void Make200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

TEST(Tube, ListReadsFromTheTubeLengthDown)
{
    COrrevaData record;
    Make200(record);
    const TubeTexts texts = ReadTube(record);
    EXPECT_EQ((std::vector<std::string>{
                  "Tube Length | 1195.33 mm (47.06\")",
                  "Outer Diameter | 246.00 mm (9.69\")",
                  "Inner Diameter | 236.00 mm (9.29\")",
                  "Distace Promary to Secondary (Offset not considered) | 1012.00 mm (39.84\")",
                  "Distace Focal Plane to optical Axis | 188.00 mm (7.40\")",
              }),
              ShownList(TubeRows(record, texts, kEnglish)));
    EXPECT_EQ((std::vector<std::string>{
                  "Tubuslänge | 1195.33 mm (47.06\")",
                  "Aussendurchmesser | 246.00 mm (9.69\")",
                  "Innendurchmesser | 236.00 mm (9.29\")",
                  "Abstand Hauptspiegel / Fangspiegel (Offset unberücksichtigt) | 1012.00 mm (39.84\")",
                  "Brennebene über Optischer Achse | 188.00 mm (7.40\")",
              }),
              ShownList(TubeRows(record, texts, kGerman)));
}

TEST(Tube, ListFollowsTheTextsBeforeTheyAreStored)
{
    COrrevaData record;
    Make200(record);
    const ListRows rows = TubeRows(record, {"", "", "300,5", "10", "", "100"}, kEnglish);
    EXPECT_EQ("300.50 mm (11.83\")", ShownValue(rows, "Inner Diameter"));
    EXPECT_EQ("320.50 mm (12.62\")", ShownValue(rows, "Outer Diameter"));
    // 65 + 10 + 150.25
    EXPECT_EQ("225.25 mm (8.87\")", ShownValue(rows, "Distace Focal Plane to optical Axis"));
    EXPECT_DOUBLE_EQ(236, record.GetInsideDiameterHat());
}

TEST(Tube, FieldsComeFromTheRecord)
{
    COrrevaData record;
    Make200(record);
    const TubeTexts texts = ReadTube(record);
    EXPECT_EQ("12.00", texts.wanted_field);
    EXPECT_EQ("0.5730", texts.wanted_degrees);
    EXPECT_EQ("236.0", texts.inside_diameter);
    EXPECT_EQ("5.0", texts.thickness);
    EXPECT_EQ("50.0", texts.distance_back);
    EXPECT_EQ("100.0", texts.distance_front);
}

TEST(Tube, StoringClearsWhatHangsOnTheTube)
{
    COrrevaData record;
    Make200(record);
    record.GetBalanceMirror();
    StoreTube(record, {"15", "ignored", "260", "4,5", "60", "110"});
    EXPECT_DOUBLE_EQ(4.5, record.thickness_hat);
    EXPECT_DOUBLE_EQ(260, record.inside_diameter_hat);
    EXPECT_DOUBLE_EQ(60, record.distance_back);
    EXPECT_DOUBLE_EQ(110, record.distance_front);
    EXPECT_DOUBLE_EQ(15, record.wanted_100percent_fow);
    EXPECT_TRUE(IsUnset(record.balance_mirror));
    EXPECT_DOUBLE_EQ(65 + 4.5 + 130, record.GetFocalPlaneHeight());
}

TEST(Tube, ResettingTheInnerDiameterComputesItForTheWantedField)
{
    COrrevaData record;
    Make200(record);
    record.SetInsideDiameterHat(1);
    EXPECT_EQ("236.0", ResetNumber(record, kTubeInsideDiameter));
}

} // namespace

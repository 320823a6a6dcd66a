#include "pages/sheet/SheetFixture.h"

namespace {

class TubePage : public SheetFixture {};
class TubePageGerman : public GermanSheetFixture {};

using Lines = std::vector<std::string>;

TEST_F(TubePage, ListsTheLengths)
{
    MakeMeasuredTelescope();
    OnPage(kTube, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("12.00", TextOf(page, 1049));
        EXPECT_EQ("0.5730", TextOf(page, 1048));
        EXPECT_TRUE(FindControl<QLineEdit>(&page, 1048)->isReadOnly());
        EXPECT_EQ("236.0", TextOf(page, 1012));
        EXPECT_EQ("10.0", TextOf(page, 1013));
        EXPECT_EQ("50.0", TextOf(page, 1014));
        EXPECT_EQ("100.0", TextOf(page, 1015));
        const Lines expected{"Tube Length | 1190.33 mm (46.86\")", "Outer Diameter | 256.00 mm (10.08\")",
                             "Inner Diameter | 236.00 mm (9.29\")",
                             "Distace Promary to Secondary (Offset not considered) | 1007.00 mm (39.65\")",
                             "Distace Focal Plane to optical Axis | 193.00 mm (7.60\")"};
        EXPECT_EQ(expected, Rows(page));
    });
}

TEST_F(TubePageGerman, ListsTheLengths)
{
    MakeMeasuredTelescope();
    OnPage(kTube, "cancel", [](CPropertyPage& page) {
        const Lines expected{
            "Tubuslänge | 1190.33 mm (46.86\")", "Aussendurchmesser | 256.00 mm (10.08\")",
            "Innendurchmesser | 236.00 mm (9.29\")",
            "Abstand Hauptspiegel / Fangspiegel (Offset unberücksichtigt) | 1007.00 mm (39.65\")",
            "Brennebene über Optischer Achse | 193.00 mm (7.60\")"};
        EXPECT_EQ(expected, Rows(page));
    });
}

TEST_F(TubePage, TypingRebuildsTheListAndWritesOnApply)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kTube);
        Type(page, 1012, "240");
        Type(page, 1013, "5");
        EXPECT_EQ("250.00 mm (9.84\")", Value(page, "Outer Diameter"));
        Type(page, 1014, "60");
        Type(page, 1015, "-10");
        // 1200 - 120 - 5 - 65 + (33.33 + (60 - 10))
        EXPECT_EQ("1093.33 mm (43.04\")", Value(page, "Tube Length"));
        Type(page, 1049, "20");
        EXPECT_EQ("0.9549", TextOf(page, 1048));
        EXPECT_EQ(236.0, Record().GetInsideDiameterHat());
        Press(sheet, "apply");
        EXPECT_EQ(5.0, Record().GetThicknessHat());
        EXPECT_EQ(240.0, Record().GetInsideDiameterHat());
        EXPECT_EQ(60.0, Record().GetDistanceBack());
        EXPECT_EQ(-10.0, Record().GetDistanceFront());
        EXPECT_EQ(20.0, Record().GetWanted100PercentFow());
        EXPECT_EQ(60.0, app->Document().mirror_back_position);
    });
}

TEST_F(TubePage, ApplyRebuildsTheListFromTheOtherPages)
{
    MakeMeasuredTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kTube);
        Type(Visit(sheet, kPrimary), 1008, "1300");
        EXPECT_EQ("1190.33 mm (46.86\")", Value(page, "Tube Length"));
        Press(sheet, "apply");
        EXPECT_EQ("1290.33 mm (50.80\")", Value(page, "Tube Length"));
    });
}

TEST_F(TubePage, ComingToTheFrontReadsTheWantedFieldAgainAndNothingElse)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kTube);
        Visit(sheet, kRemarks);
        Record().SetWanted100PercentFow(20);
        Record().SetDistanceBack(70);
        Visit(sheet, kTube);
        EXPECT_EQ("20.00", TextOf(page, 1049));
        EXPECT_EQ("0.9549", TextOf(page, 1048));
        EXPECT_EQ("50.0", TextOf(page, 1014));
    });
}

TEST_F(TubePage, ResetsShowTheProposedMeasures)
{
    MakeMeasuredTelescope();
    OnPage(kTube, "cancel", [this](CPropertyPage& page) {
        Click(page, 1058);
        EXPECT_EQ("100.0", TextOf(page, 1015)) << "half the diameter";
        Record().SetDistanceFront(33);
        Click(page, 1058);
        EXPECT_EQ("100.0", TextOf(page, 1015));
        Record().SetWanted100PercentFow(20);
        Click(page, 1056);
        EXPECT_EQ("12.00", TextOf(page, 1049));
        EXPECT_EQ("0.5730", TextOf(page, 1048));
        Click(page, 1057);
        // The margin for so small a field is the least one: 200 + 36.
        EXPECT_EQ("236.0", TextOf(page, 1012));
        Type(page, 1012, "1");
        Click(page, 1057);
        EXPECT_EQ("236.00 mm (9.29\")", Value(page, "Inner Diameter"));
    });
}

} // namespace

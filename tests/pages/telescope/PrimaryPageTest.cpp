#include "pages/sheet/SheetFixture.h"

#include "model/analysis/Primary.h"

namespace {

class PrimaryPage : public SheetFixture {};
class PrimaryPageGerman : public GermanSheetFixture {};

using Lines = std::vector<std::string>;

TEST_F(PrimaryPage, ListsThePerformanceFromTheRecord)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("1200.00", TextOf(page, 1008));
        EXPECT_EQ("200.00", TextOf(page, 1007));
        EXPECT_EQ("33.33", TextOf(page, 1010));
        EXPECT_EQ("2.23", TextOf(page, 1037));
        EXPECT_EQ("", TextOf(page, 1038));
        EXPECT_EQ("", TextOf(page, 1039));
        for (const int disabled : {1037, 1038, 1039}) {
            EXPECT_FALSE(FindControl<QLineEdit>(&page, disabled)->isEnabled());
        }
        const Lines expected{"Diameter | 200.0 mm (7.87 inch)",
                             "Focal Ratio | f/6.000",
                             "Volume of Blank | 1.047 dm^3",
                             "Weight of Blank | 2.335 kg",
                             "Spherical Sagitta | 2.084 mm",
                             "Parabolic Sagitta | 2.083 mm",
                             "Maximal Magnification (0.5mm Pupil) | 400.0x (3.0mm Okular)",
                             "Minimal Magnification (7mm Pupil) | 28.6x (42.0mm Okular)",
                             "Resolution (Dawes) | 0.58\"",
                             "Limiting Magnitude (1) | 15.39 mag",
                             "Limiting Magnitude (2) | 14.01 mag",
                             "Light Gathering Power | 816.33x"};
        EXPECT_EQ(expected, Rows(page));
        Click(page, 1050);
        Lines detailed = expected;
        detailed.insert(detailed.begin() + 9,
                        {"Resolution (Sparrows) | 0.69\"", "Resolution (Sparrows) | 0.57\""});
        EXPECT_EQ(detailed, Rows(page));
    });
}

TEST_F(PrimaryPageGerman, ListsThePerformanceInGerman)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Durchmesser | 200.0 mm (7.87 inch)", Rows(page)[0]);
        EXPECT_EQ("28.6x (42.0mm Okular)", Value(page, "Minimale Vergrösserung (7mm Pupille)"));
        EXPECT_EQ("816.33x", Value(page, "Lichtsammelvermögen gegenüber dem bloßen menschlichen Auge"));
        EXPECT_EQ(12u, Rows(page).size());
    });
}

TEST_F(PrimaryPage, TheListFollowsWhatIsTypedNotTheRecord)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "ok", [this](CPropertyPage& page) {
        Type(page, 1007, "300");
        EXPECT_EQ("f/4.000", Value(page, "Focal Ratio"));
        Type(page, 1008, "1500,5");
        EXPECT_EQ("f/5.002", Value(page, "Focal Ratio")) << "a comma counts as the point";
        Type(page, 1010, "40");
        EXPECT_EQ("2.827 dm^3", Value(page, "Volume of Blank"));
        EXPECT_EQ(200.0, Record().GetMirrorDiameter());
    });
    EXPECT_EQ(300.0, Record().GetMirrorDiameter());
    EXPECT_EQ(1500.5, Record().GetFocalLength());
    EXPECT_EQ(40.0, Record().GetMirrorThickness());
}

TEST_F(PrimaryPage, NoDiameterIsAnUnknownRatioAndInfinitiesElsewhere)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [](CPropertyPage& page) {
        Type(page, 1007, "0");
        EXPECT_EQ("f/?", Value(page, "Focal Ratio"));
        EXPECT_EQ("inf\"", Value(page, "Resolution (Dawes)"));
        EXPECT_EQ("-inf mag", Value(page, "Limiting Magnitude (2)"));
        Type(page, 1007, "no number");
        EXPECT_EQ("f/?", Value(page, "Focal Ratio"));
        Type(page, 1007, "-200");
        EXPECT_EQ("f/-6.000", Value(page, "Focal Ratio"));
        Type(page, 1008, "0");
        EXPECT_EQ("inf mm", Value(page, "Parabolic Sagitta"));
    });
}

TEST_F(PrimaryPage, UsualThicknessFollowsTheTypedDiameterAndLeavesTheRecordAlone)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kPrimary);
        Type(page, 1007, "300");
        Click(page, 1057);
        EXPECT_EQ("50.00", TextOf(page, 1010));
        EXPECT_EQ("3.534 dm^3", Value(page, "Volume of Blank"));
        EXPECT_TRUE(Button(sheet, "apply").isEnabled());
        EXPECT_EQ(33.33, Record().GetMirrorThickness());
    });
    EXPECT_EQ(33.33, Record().GetMirrorThickness());
}

TEST_F(PrimaryPage, DiameterAndFocalLengthGoBackToTheirDefaults)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [this](CPropertyPage& page) {
        Click(page, 1061);
        EXPECT_EQ("250.00", TextOf(page, 1007));
        EXPECT_EQ(250.0, Record().mirror_diameter);
        Click(page, 1056);
        EXPECT_EQ("1500.00", TextOf(page, 1008)) << "f/6 for a mirror of 250 mm";
        EXPECT_EQ("f/6.000", Value(page, "Focal Ratio"));
    });
    EXPECT_EQ(1500.0, Record().GetFocalLength());
}

struct GlassRow {
    const char* entry;
    const char* english;
    const char* german;
    const char* modulus;
    const char* poisson;
    const char* density;
};

constexpr GlassRow kGlasses[] = {{"Plate-Glass", "Plate Glas", "Fensterglas", "6000", "0.22", "2.45"},
                                 {"Duran 50", "Duran 50", "Duran 50", "6300", "0.20", "2.23"},
                                 {"Pyrex", "Pyrex", "Pyrex", "6400", "0.20", "2.23"},
                                 {"Zerodur", "Zerodur", "Zerodur", "9100", "0.24", "2.48"},
                                 {"Quarzglas", "Fused Silica", "Quarzglas", "7400", "0.17", "2.22"}};

void CheckGlass(const QWidget& page, int row)
{
    const auto* const list = FindControl<QComboBox>(&page, 1011);
    EXPECT_EQ(5, list->count());
    EXPECT_EQ(kGlasses[row].entry, list->itemText(row));
    EXPECT_EQ(row, list->currentIndex());
    EXPECT_EQ(kGlasses[row].modulus, FindControl<QLineEdit>(&page, 1038)->text());
    EXPECT_EQ(kGlasses[row].poisson, FindControl<QLineEdit>(&page, 1039)->text());
    EXPECT_EQ(kGlasses[row].density, FindControl<QLineEdit>(&page, 1037)->text());
}

TEST_F(PrimaryPage, AGlassIsStoredAtOnceItsDensityOnApply)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kPrimary);
        EXPECT_EQ(-1, FindControl<QComboBox>(&page, 1011)->currentIndex());
        for (int row = 0; row < 5; ++row) {
            ChooseEntry(page, 1011, row);
            CheckGlass(page, row);
            EXPECT_STREQ(kGlasses[row].english, Record().GetMaterial());
            EXPECT_TRUE(Button(sheet, "apply").isEnabled());
            EXPECT_EQ(2.23, Record().GetDensity());
        }
        EXPECT_EQ("2.325 kg", Value(page, "Weight of Blank")) << "of fused silica";
        Press(sheet, "apply");
        EXPECT_EQ(2.22, Record().GetDensity());
    });
}

TEST_F(PrimaryPageGerman, AGlassIsStoredByItsGermanName)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [this](CPropertyPage& page) {
        for (int row = 0; row < 5; ++row) {
            ChooseEntry(page, 1011, row);
            CheckGlass(page, row);
            EXPECT_STREQ(kGlasses[row].german, Record().GetMaterial());
        }
    });
    EXPECT_STREQ("Quarzglas", Record().GetMaterial()) << "Cancel keeps it";
}

TEST_F(PrimaryPage, TheDensityGoesBackToItsDefaultAfterAGlass)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [this](CPropertyPage& page) {
        ChooseEntry(page, 1011, 3);
        EXPECT_EQ("2.48", TextOf(page, 1037));
        Click(page, 1060);
        EXPECT_EQ("2.40", TextOf(page, 1037));
        EXPECT_EQ(2.4, Record().density);
    });
}

TEST_F(PrimaryPageGerman, AnIndexOutOfTheTableIsToldAndChangesNothing)
{
    MakeMeasuredTelescope();
    OnPage(kPrimary, "cancel", [this](CPropertyPage& page) {
        auto* const list = FindControl<QComboBox>(&page, 1011);
        const std::string before = Record().GetMaterial().GetText();
        list->addItem("A sixth");
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ("Err-47328: Unbekannter Offset 5!", box.text());
            box.accept();
        });
        QTest::keyClick(list, Qt::Key_End);
        EXPECT_EQ("", TextOf(page, 1038));
        EXPECT_EQ(before, Record().GetMaterial().GetText());
    });
}

} // namespace

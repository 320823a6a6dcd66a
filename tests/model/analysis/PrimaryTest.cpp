#include "model/analysis/Primary.h"

#include "lib/text/CodePage.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

namespace {

const PrimaryTexts kMirror200{"1200", "200", "33.33", "2.23"};

TEST(Primary, ListOfA200MmMirrorWithDetailsReadsFromTheDiameterDown)
{
    EXPECT_EQ((std::vector<std::string>{
                  "Diameter | 200.0 mm (7.87 inch)",
                  "Focal Ratio | f/6.000",
                  "Volume of Blank | 1.047 dm^3",
                  "Weight of Blank | 2.335 kg",
                  "Spherical Sagitta | 2.084 mm",
                  "Parabolic Sagitta | 2.083 mm",
                  "Maximal Magnification (0.5mm Pupil) | 400.0x (3.0mm Okular)",
                  "Minimal Magnification (7mm Pupil) | 28.6x (42.0mm Okular)",
                  "Resolution (Dawes) | 0.58\"",
                  "Resolution (Sparrows) | 0.69\"",
                  "Resolution (Sparrows) | 0.57\"",
                  "Limiting Magnitude (1) | 15.39 mag",
                  "Limiting Magnitude (2) | 14.01 mag",
                  "Light Gathering Power | 816.33x",
              }),
              ShownList(PrimaryRows(kMirror200, true, kEnglish)));
}

TEST(Primary, GermanListKeepsItsMixedUpLabels)
{
    EXPECT_EQ((std::vector<std::string>{
                  "Durchmesser | 200.0 mm (7.87 inch)",
                  "Öffnungsverhältnis | f/6.000",
                  "Volumen des Rohlings | 1.047 dm^3",
                  "Gewicht des Rohlings | 2.335 kg",
                  "Sphärische Pfeiltiefe | 2.084 mm",
                  "Parabolische Pfeiltiefe | 2.083 mm",
                  "Maximale Vergrösserung (0,5mm Pupille) | 400.0x (3.0mm Okular)",
                  "Minimale Vergrösserung (7mm Pupille) | 28.6x (42.0mm Okular)",
                  "Auflösungsvermögen (Rayleigh) | 0.58\"",
                  "Auflösungsvermögen (Rayleigh) | 0.69\"",
                  "Auflösungsvermögen (Sparrows) | 0.57\"",
                  "Limiting Magnitude (1) | 15.39 mag",
                  "Limiting Magnitude (2) | 14.01 mag",
                  "Lichtsammelvermögen gegenüber dem bloßen menschlichen Auge | 816.33x",
              }),
              ShownList(PrimaryRows(kMirror200, true, kGerman)));
}

TEST(Primary, DetailsAddTheTwoResolutions)
{
    const ListRows rows = PrimaryRows(kMirror200, false, kEnglish);
    EXPECT_EQ(12u, rows.size());
    EXPECT_EQ("no such row", ShownValue(rows, "Resolution (Sparrows)"));
    EXPECT_EQ(14u, PrimaryRows(kMirror200, true, kEnglish).size());
}

TEST(Primary, ADiameterOfZeroHasNoFocalRatioAndNonFiniteFigures)
{
    const ListRows rows = PrimaryRows({"1200", "0", "33.33", "2.23"}, true, kEnglish);
    EXPECT_EQ("f/?", ShownValue(rows, "Focal Ratio"));
    EXPECT_EQ("inf\"", ShownValue(rows, "Resolution (Dawes)"));
    EXPECT_EQ("-inf mag", ShownValue(rows, "Limiting Magnitude (1)"));
    EXPECT_EQ("-inf mag", ShownValue(rows, "Limiting Magnitude (2)"));
    EXPECT_EQ("0.0x (infmm Okular)", ShownValue(rows, "Minimal Magnification (7mm Pupil)"));
    EXPECT_EQ("0.0 mm (0.00 inch)", ShownValue(rows, "Diameter"));
}

TEST(Primary, TextsThatAreNoNumbersCountAsZeroAndACommaAsAPoint)
{
    const ListRows rows = PrimaryRows({"what", "200,5", "", "-"}, false, kEnglish);
    EXPECT_EQ("200.5 mm (7.89 inch)", ShownValue(rows, "Diameter"));
    EXPECT_EQ("f/0.000", ShownValue(rows, "Focal Ratio"));
    EXPECT_EQ("inf mm", ShownValue(rows, "Parabolic Sagitta"));
    EXPECT_EQ("0.000 g", ShownValue(rows, "Weight of Blank"));
    EXPECT_EQ("0.000 mm^3", ShownValue(rows, "Volume of Blank"));
}

/// A blank of 2 mm diameter has r = 1, so that its volume is pi * thickness.
struct ScaleCase {
    const char* thickness;
    const char* density;
    const char* volume;
    const char* weight;
};

class PrimaryScales : public testing::TestWithParam<ScaleCase> {};

TEST_P(PrimaryScales, ChooseTheUnitByTheLimitsReached)
{
    const ScaleCase& c = GetParam();
    const ListRows rows = PrimaryRows({"10", "2", c.thickness, c.density}, false, kEnglish);
    EXPECT_EQ(c.volume, ShownValue(rows, "Volume of Blank"));
    EXPECT_EQ(c.weight, ShownValue(rows, "Weight of Blank"));
}

INSTANTIATE_TEST_SUITE_P(Units, PrimaryScales,
                         testing::Values(ScaleCase{"318", "1", "999.026 mm^3", "0.999 g"},
                                         ScaleCase{"319", "1", "1.002 cm^3", "1.002 g"},
                                         ScaleCase{"318309", "1", "999.997 cm^3", "999.997 g"},
                                         ScaleCase{"318310", "1", "1.000 dm^3", "1.000 kg"},
                                         ScaleCase{"318309887", "1", "1.000 m^3", "1.000 t"},
                                         ScaleCase{"318309800", "1", "1000.000 dm^3", "1000.000 kg"},
                                         ScaleCase{"-5", "1", "-15.708 mm^3", "-0.016 g"}));

TEST(Primary, ExactlyAThousandIsShownInTheLargerUnit)
{
    // 1000 / 3.1415926535 in double precision; times pi it is 1000 exactly.
    const ListRows rows = PrimaryRows({"10", "2", "318.30988619288863", "1000"}, false, kEnglish);
    EXPECT_EQ("1.000 cm^3", ShownValue(rows, "Volume of Blank"));
    EXPECT_EQ("1.000 kg", ShownValue(rows, "Weight of Blank"));
}

TEST(Primary, FieldsComeFromTheRecordWithTwoDecimals)
{
    COrrevaData record;
    const PrimaryTexts texts = ReadPrimary(record);
    EXPECT_EQ("250.00", texts.diameter);
    EXPECT_EQ("1500.00", texts.focal_length);
    EXPECT_EQ("41.67", texts.thickness);
    EXPECT_EQ("2.40", texts.density);
}

TEST(Primary, StoringGoesThroughTheSettersThatClear)
{
    COrrevaData record;
    record.SetWeightMirror(1);
    record.SetBalanceMirror(2);
    StorePrimary(record, {"1200,5", "200", "33.33", "abc"});
    EXPECT_DOUBLE_EQ(1200.5, record.focal_length);
    EXPECT_DOUBLE_EQ(200.0, record.mirror_diameter);
    EXPECT_DOUBLE_EQ(33.33, record.mirror_thickness);
    EXPECT_DOUBLE_EQ(0.0, record.density) << "0 is a value, not unset";
    EXPECT_TRUE(IsUnset(record.weight_mirror));
    EXPECT_TRUE(IsUnset(record.balance_mirror));
}

TEST(Primary, ResettingTheDensityAfterAMaterialBringsTheDefaultBack)
{
    COrrevaData record;
    const MaterialTexts zerodur = TextsOf(Materials()[3]);
    StoreNumber(record, kPrimaryDensity, zerodur.density);
    EXPECT_DOUBLE_EQ(2.48, record.density);
    EXPECT_EQ("2.40", ResetNumber(record, kPrimaryDensity));
    EXPECT_DOUBLE_EQ(2.4, record.density);
}

TEST(Primary, SuggestedThicknessIsASixthOfTheTypedDiameter)
{
    EXPECT_EQ("33.33", UsualThickness("200"));
    EXPECT_EQ("0.00", UsualThickness("?"));
}

TEST(Primary, MaterialTableKeepsEntryAndStoredNameApart)
{
    struct Row {
        const char* entry;
        const char* english;
        const char* german;
        const char* modulus;
        const char* poisson;
        const char* density;
    };
    static constexpr Row kRows[] = {
        {"Plate-Glass", "Plate Glas", "Fensterglas", "6000", "0.22", "2.45"},
        {"Duran 50", "Duran 50", "Duran 50", "6300", "0.20", "2.23"},
        {"Pyrex", "Pyrex", "Pyrex", "6400", "0.20", "2.23"},
        {"Zerodur", "Zerodur", "Zerodur", "9100", "0.24", "2.48"},
        {"Quarzglas", "Fused Silica", "Quarzglas", "7400", "0.17", "2.22"},
    };
    ASSERT_EQ(std::size(kRows), Materials().size());
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        const Material& material = Materials()[i];
        EXPECT_STREQ(kRows[i].entry, material.entry);
        EXPECT_STREQ(kRows[i].english, material.stored_name.In(kEnglish));
        EXPECT_STREQ(kRows[i].german, material.stored_name.In(kGerman));
        EXPECT_EQ(kRows[i].modulus, TextsOf(material).modulus);
        EXPECT_EQ(kRows[i].poisson, TextsOf(material).poisson);
        EXPECT_EQ(kRows[i].density, TextsOf(material).density);
    }
    EXPECT_EQ("Err-47328: Unbekannter Offset 5!", UnknownMaterialText(5));
}

TEST(Primary, HugeNumbersArePrintedWhole)
{
    const ListRows rows = PrimaryRows({"1e300", "1e300", "1e300", "1e300"}, true, kEnglish);
    EXPECT_EQ("inf m^3", ShownValue(rows, "Volume of Blank"));
    EXPECT_EQ("f/1.000", ShownValue(rows, "Focal Ratio"));
    EXPECT_EQ(14u, rows.size());
}

} // namespace

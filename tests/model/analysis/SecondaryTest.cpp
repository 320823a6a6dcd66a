#include "model/analysis/Secondary.h"

#include "lib/text/CodePage.h"
#include "model/rows/WantedField.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

namespace {

/// 200 mm f/6 with all defaults: L 188, minor axis 46.482, focuser opening 50.8.
void Make200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

/// D 300, F 1000, L 250: by Edberg a minor axis m lights (4 m - 300) / 3 mm.
void MakeEven(COrrevaData& record)
{
    record.SetMirrorDiameter(300);
    record.SetFocalLength(1000);
    record.focal_plane_height = 250;
}

std::string Verdict(COrrevaData& record, const char* wanted, const char* axis, int language)
{
    SecondaryTexts texts{wanted, WantedFieldDegrees(record, wanted), axis};
    return Utf8FromCp1252(AnalyseSecondary(record, texts, false, language).verdict);
}

TEST(Secondary, FieldsComeFromTheRecordAndTheAngleWithFourDecimals)
{
    COrrevaData record;
    Make200(record);
    const SecondaryTexts texts = ReadSecondary(record);
    EXPECT_EQ("12.00", texts.wanted_field);
    EXPECT_EQ("0.5730", texts.wanted_degrees);
    EXPECT_EQ("46.48", texts.minor_axis);
}

TEST(Secondary, ShortListReadsUpward)
{
    COrrevaData record;
    Make200(record);
    // With the typed 46.48 in place of 46.482: Edberg (1200 * 46.48 - 188 * 200) / 1012 = 17.960 mm.
    EXPECT_EQ((std::vector<std::string>{
                  "Wanted 100% FOV (Edberg) | 12.0 mm",
                  "Wanted minimal Diameter of Minor Axis (Peters && Pike) | 41.5 mm",
                  " | ",
                  "Linear Obstruktion | 23.24 %",
                  "Areal Obstruktion | 5.40 %",
                  "Offset (Francis) | 1.94 mm",
                  "100% FOV in mm (Edberg) | 17.96 mm",
                  "100% FOV in Degrees (Edberg) | 0.86°",
              }),
              ShownList(AnalyseSecondary(record, ReadSecondary(record), false, kEnglish).rows));
}

TEST(Secondary, DetailsAddTheOtherAuthorsAndTheIllumination)
{
    COrrevaData record;
    Make200(record);
    const ListRows rows = AnalyseSecondary(record, ReadSecondary(record), true, kGerman).rows;
    const std::vector<std::string> shown = ShownList(rows);
    ASSERT_EQ(18u + 19u, shown.size());
    const std::vector<std::string> expected{
        "Gewünschtes 100% FOV (Berry) | 12.0 mm",
        "Gewünschtes 100% FOV (Edberg) | 12.0 mm",
        "Gewünschter minimaler Durchmesser der kleinen Achse (Peters && Pike) | 41.5 mm",
        "Gewünschter minimaler Durchmesser der kleinen Achse (Berry) | 43.3 mm",
        "Gewünschter minimaler Durchmesser der kleinen Achse (Edberg) | 41.5 mm",
        "Gewünschter minimaler Durchmesser der kleinen Achse (Dakin) | 41.8 mm",
        "Minimalster Durchmesser der kleinen Achse für ein 100% ausgeleuchtetes Feld von 0 mm | 31.3 mm",
        " | ",
        "Lineare Obstruktion | 23.24 %",
        "Flächenbezogene Obstruktion | 5.40 %",
        "Offset (Francis) | 1.94 mm",
        "Offset (Masson) | 1.76 mm",
        "Offset (Dakin) | 1.78 mm",
        "Offset (Varnholt) | 1.77 mm",
        "100% FOV in mm (Peters && Pike) | 17.96 mm",
        "100% FOV in mm (Berry) | 15.15 mm",
        "100% FOV in mm (Edberg) | 17.96 mm",
        "100% FOV in Grad (nach Berry) | 0.72°",
        "100% FOV in Grad (Edberg) | 0.86°",
        "Ausleuchtung bei 0.0 mm FOV (0.00°) | 100.0%",
    };
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(expected[i], shown[i]);
    }
    EXPECT_EQ("Ausleuchtung bei 42.5 mm FOV (2.03°) | 63.9% (-0.5 mag)", shown.back());
}

TEST(Secondary, EnglishKeepsItsGermanLabels)
{
    COrrevaData record;
    Make200(record);
    const ListRows rows = AnalyseSecondary(record, ReadSecondary(record), true, kEnglish).rows;
    EXPECT_EQ("0.72°", ShownValue(rows, "100% FOV in Grad (nach Berry)"));
    EXPECT_EQ("12.0 mm", ShownValue(rows, "Wanted 100% FOV (Berry)"));
    EXPECT_EQ("31.3 mm",
              ShownValue(rows, "Minimal Diameter of Minor Axis for a 100% illuminated Field of 0 mm"));
    EXPECT_EQ("41.8 mm", ShownValue(rows, "Wanted minimal Diameter of Minor Axis (Dakin)"));
    EXPECT_EQ("41.5 mm", ShownValue(rows, "Wanted minimal Diameter of Minor Axis (Edberg)"));
    EXPECT_EQ("43.3 mm", ShownValue(rows, "Wanted minimal Diameter of Minor Axis (Berry)"));
}

TEST(Secondary, ColumnTitlesAreSwapped)
{
    EXPECT_STREQ("Eigenschaft", kSecondaryColumns[0].title.In(kEnglish));
    EXPECT_STREQ("Wert", kSecondaryColumns[1].title.In(kEnglish));
    EXPECT_STREQ("Property", kSecondaryColumns[0].title.In(kGerman));
    EXPECT_STREQ("Value", kSecondaryColumns[1].title.In(kGerman));
}

TEST(Secondary, TheVerdictIsTheFirstTestThatHolds)
{
    COrrevaData record;
    MakeEven(record);
    struct Case {
        const char* wanted;
        const char* axis;
        const char* english;
        const char* german;
    };
    static constexpr const char* kNothing =
        "Der Fangspiegel ist zu klein, um überhaupt ein ausgeleuchtetes Bildfeld von 100% zu erzeugen.";
    static constexpr const char* kSmall =
        "Der Fangspiegel ist zu klein um das gewümschte Bildfeld voll auszuleuchten.";
    static constexpr const char* kMuch = "Die lineare Obstruktion beträgt mehr als 50%.";
    static constexpr const char* kGood = "Der Fangspiegel ist ausreichend dimensioniert.";
    const Case kCases[] = {
        {"0", "75", "Secondary to mall..", kNothing},
        {"12", "10", "Secondary to mall..", kNothing},
        {"30.01", "97.5", "Secondary to mall..", kSmall},
        {"30", "97.5", "Size of Secondary correct.", kGood},
        {"30", "97,5", "Size of Secondary correct.", kGood},
        {"50", "150", "Size of Secondary correct.", kGood},
        {"50", "150.1", "Linear Obstruction of more than 50%.", kMuch},
        {"1000", "150.1", "Secondary to mall..", kSmall},
    };
    for (const Case& c : kCases) {
        EXPECT_EQ(c.english, Verdict(record, c.wanted, c.axis, kEnglish)) << c.wanted << ' ' << c.axis;
        EXPECT_EQ(c.german, Verdict(record, c.wanted, c.axis, kGerman)) << c.wanted << ' ' << c.axis;
    }
}

TEST(Secondary, ASecondaryTooLargeForTheTableHasNoIlluminationRowsAndAGoodVerdict)
{
    COrrevaData record;
    MakeEven(record);
    record.SetFocuserDiameter(8);
    // r = 140 * 1000 / 250 / 300 = 1.87, and the outermost point stands at x = 0.08.
    const SecondaryResult result =
        AnalyseSecondary(record, {"12", WantedFieldDegrees(record, "12"), "140"}, true, kEnglish);
    EXPECT_EQ(19u, result.rows.size());
    EXPECT_EQ("Size of Secondary correct.", result.verdict);
}

TEST(Secondary, DivisionsByZeroArePrintedAsTheyComeOut)
{
    COrrevaData record;
    MakeEven(record);
    record.focal_plane_height = 1000; // L equal to F
    const SecondaryResult result = AnalyseSecondary(record, {"12", "0.5", "350"}, true, kEnglish);
    EXPECT_EQ("inf mm", ShownValue(result.rows, "100% FOV in mm (Edberg)"));
    EXPECT_EQ("-inf mm", ShownValue(result.rows, "Offset (Masson)"));

    record.focal_plane_height = 250;
    const ListRows rows = AnalyseSecondary(record, {"12", "0.5", "300"}, true, kEnglish).rows; // m equal to D
    EXPECT_NE(std::string::npos, ShownValue(rows, "Offset (Varnholt)").find("nan"));
    EXPECT_EQ("0.00 mm", ShownValue(rows, "Offset (Masson)"));
}

TEST(Secondary, StoresTheMinorAxisBeforeTheWantedField)
{
    COrrevaData record;
    Make200(record);
    record.GetSecondaryOffset();
    StoreSecondary(record, {"15,5", "ignored", "50"});
    EXPECT_DOUBLE_EQ(50, record.secondary_diameter);
    EXPECT_DOUBLE_EQ(15.5, record.wanted_100percent_fow);
    EXPECT_TRUE(IsUnset(record.secondary_offset)) << "the setter of the minor axis clears it";
}

TEST(Secondary, ResettingTheMinorAxisProposesOneForTheWantedFieldOfTheRecord)
{
    COrrevaData record;
    Make200(record);
    record.SetSecondaryDiameter(10);
    EXPECT_EQ("46.48", ResetNumber(record, kSecondaryMinorAxis));
    record.SetWanted100PercentFow(30);
    // (200 - 30) * 188 / 1200 + 30 = 56.6: the next standard size is 66.04.
    EXPECT_EQ("66.04", ResetNumber(record, kSecondaryMinorAxis));
    EXPECT_EQ("12.00", ResetNumber(record, kWantedField));
}

TEST(WantedField, CouplesDegreesAndMillimetres)
{
    COrrevaData record;
    record.SetFocalLength(1200);
    EXPECT_EQ("0.5730", WantedFieldDegrees(record, "12"));
    EXPECT_EQ("0.5730", WantedFieldDegrees(record, "12,0"));
    EXPECT_EQ("12.0", WantedFieldMillimetres(record, "0.573"));
    EXPECT_EQ("0.0", WantedFieldMillimetres(record, "0"));
    EXPECT_EQ("0.0", WantedFieldMillimetres(record, ""));
    EXPECT_EQ("12.6", WantedFieldMillimetres(record, "0,6"));
}

TEST(WantedField, TheFieldOfSixTenthsOfADegreeIsStored)
{
    COrrevaData record;
    record.SetFocalLength(1200);
    StoreMoonSizedField(record);
    // 2400 * tan(0.3 degrees)
    EXPECT_NEAR(12.566485, record.wanted_100percent_fow, 1e-5);
}

} // namespace

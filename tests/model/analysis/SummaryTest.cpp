#include "model/analysis/Summary.h"

#include "lib/text/Language.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

namespace {

class Summary : public ::testing::Test {
protected:
    Summary() { MakeRoundScope(record); }
    std::vector<SummaryRow> Rows(const FullField& field = {20, 1.5}, int language = kEnglish)
    {
        return SummaryRows(record, field, language);
    }
    COrrevaData record;
};

constexpr auto kTitle = SummaryRow::kTitle;
constexpr auto kHeading = SummaryRow::kHeading;
constexpr auto kValue = SummaryRow::kValue;

TEST_F(Summary, TellsTheRoundScopeInEnglish)
{
    record.SetTitle("Round");
    record.SetWanted100PercentFow(12);
    // Limits: 1000 * 20 / (1000 - 110 - 10 - 200 + 100) and 50 - 90 * 0.2; the angles 2 atan(l / 2000).
    const std::vector<SummaryRow> expected = {
        {kTitle, "Round", ""},
        {kHeading, "Primary", ""},
        {kValue, "Diameter:", "200.0 mm (7.87\")"},
        {kValue, "Focal Length:", "1000.0 mm (39.37\")"},
        {kValue, "Focal Ratio:", "f/5.00"},
        {kValue, "Thickness:", "20.0 mm (0.79\")"},
        {kHeading, "Secondary", ""},
        {kValue, "Minor Axis Diameter:", "60.0 mm (2.36\")"},
        {kValue, "Offset:", "3.00 mm"},
        {kHeading, "Tube", ""},
        {kValue, "Length:", "970.0 mm (38.19\")"},
        {kValue, "Diameter:", "220.0 mm (8.66\")"},
        {kValue, "Tube Thickness:", "10.0 mm"},
        {kHeading, "Focuser", ""},
        {kValue, "Diameter:", "50.0 mm (1.97\")"},
        {kValue, "Height:", "60.0 mm"},
        {kValue, "Extra Height:", "20.0 mm"},
        {kHeading, "Dimensions:", ""},
        {kValue, "Focal Plane to Tube:", "80.0 mm"},
        {kValue, "Focal Plane to  optical Axis:", "200.0 mm"},
        {kValue, "Primary to Center of Focuser:", "800.0 mm"},
        {kHeading, "100% FOV limiting Factors:", ""},
        {kValue, "Tube Front Diameter", "25.64 mm  (1.47\xB0)"},
        {kValue, "Secondary", "20.00 mm (1.50\xB0)"},
        {kValue, "Focuser:", "32.00 mm  (1.83\xB0)"},
    };
    const auto rows = Rows();
    ASSERT_EQ(expected.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(expected[i].kind, rows[i].kind) << i;
        EXPECT_EQ(expected[i].label, rows[i].label) << i;
        EXPECT_EQ(expected[i].value, rows[i].value) << i;
        EXPECT_FALSE(rows[i].warning) << i;
    }
}

TEST_F(Summary, HasItsGermanLabels)
{
    const char* expected[] = {"Neues Teleskop",
                              "Hauptspiegel",
                              "Durchmesser:",
                              "Brennweite:",
                              "\xD6"
                              "ffnungsverh\xE4ltnis:",
                              "Dicke:",
                              "Fangspiegel",
                              "Durchmesser der kleinen Achse:",
                              "Offset:",
                              "Tubus",
                              "L\xE4nge:",
                              "Durchmesser:",
                              "Wanddicke:",
                              "Focuser",
                              "Durchmesser:",
                              "H\xF6he:",
                              "Extra H\xF6he f\xFCr Zubeh\xF6r:",
                              "Ma\xDF"
                              "e:",
                              "Brennebene \xFC"
                              "ber Tubus:",
                              "Brennebene \xFC"
                              "ber optischer Achse:",
                              "Hauptspiegel hinter OAZ-Centruem:",
                              "Begrenzende Faktoren des 100% FOV:",
                              "Tubus\xF6"
                              "ffnung:",
                              "Fangspiegel:",
                              "Focuser:"};
    const auto rows = Rows({20, 1.5}, kGerman);
    ASSERT_EQ(std::size(expected), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(expected[i], rows[i].label) << i;
    }
    EXPECT_EQ(Rows()[4].value, rows[4].value);
}

TEST_F(Summary, WarnsOfASecondaryBelowTheWantedField)
{
    record.SetWanted100PercentFow(20);
    EXPECT_FALSE(Rows({20, 1.5})[23].warning) << "exactly equal";
    EXPECT_TRUE(Rows({19.999, 1.5})[23].warning);
    EXPECT_FALSE(Rows({20.001, 1.5})[23].warning);
}

TEST_F(Summary, WarnsOfAFocuserBelowTheWantedField)
{
    record.SetWanted100PercentFow(32); // the focuser's limit
    ASSERT_EQ(32, FocuserFieldLimit(record));
    EXPECT_FALSE(Rows()[24].warning) << "exactly equal";
    record.SetFocuserDiameter(49);
    EXPECT_TRUE(Rows()[24].warning);
    EXPECT_EQ("31.00 mm  (1.78\xB0)", Rows()[24].value);
}

TEST_F(Summary, NeverWarnsOfTheTube)
{
    record.SetWanted100PercentFow(1000);
    EXPECT_FALSE(Rows()[22].warning);
}

TEST_F(Summary, PrintsANegativeTubeLimit)
{
    record.SetInsideDiameterHat(190); // 15 mm lower: 1000 * -10 / (1000 - 95 - 10 - 185 + 100)
    EXPECT_NEAR(-12.345679, TubeFieldLimit(record), 1e-6);
    EXPECT_EQ("-12.35 mm  (-0.71\xB0)", Rows()[22].value);
}

TEST_F(Summary, PrintsAnyNumber)
{
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            MakeRoundScope(record);
            (record.*setter)(odd);
            EXPECT_EQ(25u, Rows({odd, -odd}).size());
        }
    }
}

TEST_F(Summary, SetsADashForANumberThatIsNotFinite)
{
    // As right after New: the angle has no number yet. Without a mirror the focal ratio has none either.
    EXPECT_EQ("12.57 mm (\x96\xB0)", SummaryRows(record, {12.567, -NAN}, kEnglish)[23].value);
    record.SetMirrorDiameter(0);
    EXPECT_EQ("f/\x96", SummaryRows(record, {20, 1.5}, kEnglish)[4].value);
    record.SetFocalLength(-HUGE_VAL);
    EXPECT_EQ("\x96 mm (\x96\")", SummaryRows(record, {20, 1.5}, kEnglish)[3].value);
}

} // namespace

#include "model/analysis/Values.h"

#include "document/OrrevaDoc.h"
#include "document/TelescopeFile.h"
#include "lib/text/CodePage.h"
#include "model/analysis/Balance.h"
#include "model/analysis/Cell.h"
#include "model/analysis/Primary.h"
#include "model/analysis/Secondary.h"
#include "model/analysis/Summary.h"
#include "model/optics/CentreMarks.h"
#include "model/optics/StarDistance.h"
#include "support/DirectIllumination.h"
#include "support/ListText.h"
#include "support/SampleScopes.h"
#include "support/SilentHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <random>

namespace {

double Value(const DesignState& design, const char* name)
{
    const DesignValue* const value = FindDesignValue(name);
    EXPECT_NE(nullptr, value) << name;
    return value != nullptr ? value->Read(design) : NAN;
}

/// The first number of a text, and the worth of half a unit of its last decimal.
struct ShownNumber {
    double number = NAN;
    double half = 0;

    explicit ShownNumber(const std::string& text)
    {
        const std::size_t at = text.find_first_of("-0123456789");
        if (at == std::string::npos) {
            return;
        }
        const std::size_t end = std::min(text.size(), text.find_first_not_of("0123456789.", at + 1));
        const std::string digits = text.substr(at, end - at);
        const std::size_t point = digits.find('.');
        const auto decimals = point == std::string::npos ? 0 : digits.size() - point - 1;
        number = std::stod(digits);
        half = 0.5 * std::pow(10, -static_cast<double>(decimals));
    }
};

/// `text` shows `value`: to its last decimal, or as near as the page's own rounded fields let it come.
void ExpectShown(double value, const std::string& text, double rounded = 0)
{
    const ShownNumber shown(text);
    EXPECT_NEAR(value, shown.number, shown.half * 1.001 + rounded * std::abs(value)) << text;
}

const std::string& SummaryValue(const std::vector<SummaryRow>& rows, std::size_t row)
{
    return rows.at(row).value;
}

/// Every number that a page shows, beside the value of its name.
void ExpectPages(const DesignState& design)
{
    COrrevaData& record = design.record;
    const auto value = [&](const char* name) { return Value(design, name); };

    const auto summary = SummaryRows(record, design.field, kEnglish);
    const struct {
        std::size_t row;
        const char* name;
    } summaryRows[] = {
        {2, "mirror/diameter"},       {3, "mirror/focal_length"},
        {4, "focal_ratio"},           {5, "mirror/thickness"},
        {7, "secondary/diameter"},    {8, "secondary/offset"},
        {10, "tube_length"},          {11, "tube/inside_diameter_hat"},
        {12, "tube/thickness_hat"},   {14, "focuser/diameter"},
        {15, "focuser/height"},       {16, "focuser/spare"},
        {18, "focuser_total_height"}, {19, "focal_plane_height"},
        {20, "primary_to_focuser"},   {22, "tube_field_limit"},
        {23, "full_field"},           {24, "focuser_field_limit"},
    };
    for (const auto& row : summaryRows) {
        SCOPED_TRACE(row.name);
        ExpectShown(value(row.name), SummaryValue(summary, row.row));
    }
    const std::string& secondary = SummaryValue(summary, 23);
    ExpectShown(value("full_field_angle"), secondary.substr(secondary.find('(') + 1));

    // The pages compute from their fields' texts of two decimals.
    constexpr double kRounded = 2e-4;
    const ListRows primary = PrimaryRows(ReadPrimary(record), true, kEnglish);
    ExpectShown(value("resolution_dawes"), ShownValue(primary, "Resolution (Dawes)"), kRounded);
    ExpectShown(value("limiting_magnitude_1"), ShownValue(primary, "Limiting Magnitude (1)"), kRounded);
    ExpectShown(value("limiting_magnitude_2"), ShownValue(primary, "Limiting Magnitude (2)"), kRounded);
    ExpectShown(value("light_gathering"), ShownValue(primary, "Light Gathering Power"), kRounded);

    const ListRows flat = AnalyseSecondary(record, ReadSecondary(record), true, kEnglish).rows;
    ExpectShown(value("linear_obstruction"), ShownValue(flat, "Linear Obstruktion"), kRounded);
    ExpectShown(value("areal_obstruction"), ShownValue(flat, "Areal Obstruktion"), 2 * kRounded);

    const ListRows cell = CellRows(ComputeCell(record), kEnglish);
    ExpectShown(value("cell_three_at_edge"), ShownValue(cell, "3 Point Support at the edge"));
    ExpectShown(value("cell_three_at_70"), ShownValue(cell, "3 Point Support at 70% of radius"));
    ExpectShown(value("cell_nine"), ShownValue(cell, "9 Point Support"));
    ExpectShown(value("cell_eighteen"), ShownValue(cell, "18 Point Support"));

    const auto after = [](const std::string& text, const char* word) { return text.substr(text.find(word)); };
    ExpectShown(value("total_weight") / 1000, after(TotalWeightText(record), "ca."));
    ExpectShown(value("centre_of_gravity"), CenterOfGravityText(record, kEnglish));
    const std::string marks = CentreMarksMessage(record);
    ExpectShown(value("centre_mark_primary"), after(marks, "Hauptspiegel"));
    ExpectShown(value("centre_mark_secondary"), after(marks, "Fangspiegel"));
    ExpectShown(value("star_distance"), StarDialogTexts(record).DistanceByError());

    const double o = value("secondary/offset");
    EXPECT_NEAR(std::hypot(o, o + value("focal_plane_height")), value("secondary_to_focus"), 1e-9);
}

class Values : public testing::Test {
protected:
    SilentHost host;
    COrrevaDoc document{host};

    DesignState Design()
    {
        document.Recalculate();
        document.Recalculate();
        SettleDesign(document.main_record);
        return {document.main_record, {document.field_diameter_100, document.field_angle_100}};
    }
};

TEST_F(Values, NamesStandInTheOrderOfTheFileAndThenOfWhatIsComputed)
{
    const struct {
        const char* name;
        const char* unit;
    } expected[] = {
        {"misc/wanted_100percent_fow", "mm"},
        {"mirror/focal_length", "mm"},
        {"mirror/diameter", "mm"},
        {"mirror/thickness", "mm"},
        {"mirror/density", "g/cm3"},
        {"tube/type", "1"},
        {"tube/distance_front", "mm"},
        {"tube/distance_back", "mm"},
        {"tube/inside_diameter_box", "mm"},
        {"tube/inside_diameter_hat", "mm"},
        {"tube/thickness_box", "mm"},
        {"tube/thickness_hat", "mm"},
        {"tube/height_box", "mm"},
        {"tube/height_hat", "mm"},
        {"focuser/type", "1"},
        {"focuser/height", "mm"},
        {"focuser/diameter", "mm"},
        {"focuser/spare", "mm"},
        {"focuser/oaz_travel", "mm"},
        {"focuser/oaz_length", "mm"},
        {"focuser/osch_travel", "mm"},
        {"secondary/diameter", "mm"},
        {"secondary/offset", "mm"},
        {"weight/mirror", "g"},
        {"weight/cell", "g"},
        {"weight/box", "g"},
        {"weight/truss", "g"},
        {"weight/hat", "g"},
        {"weight/secondary", "g"},
        {"weight/eyepiece", "g"},
        {"weight/finder", "g"},
        {"weight/misc", "g"},
        {"balance/mirror", "mm"},
        {"balance/cell", "mm"},
        {"balance/box", "mm"},
        {"balance/truss", "mm"},
        {"balance/hat", "mm"},
        {"balance/secondary", "mm"},
        {"balance/eyepiece", "mm"},
        {"balance/finder", "mm"},
        {"balance/misc", "mm"},
        {"tests/artificial_star/diameter", "mm"},
        {"tests/artificial_star/precision", "1"},
        {"tests/matching_ronchi/grating", "lines/mm"},
        {"tests/matching_ronchi/constant", "1"},
        {"focal_ratio", "1"},
        {"focuser_total_height", "mm"},
        {"focal_plane_height", "mm"},
        {"secondary_to_focus", "mm"},
        {"primary_to_focuser", "mm"},
        {"tube_length", "mm"},
        {"full_field", "mm"},
        {"full_field_angle", "deg"},
        {"tube_field_limit", "mm"},
        {"focuser_field_limit", "mm"},
        {"linear_obstruction", "%"},
        {"areal_obstruction", "%"},
        {"resolution_dawes", "arcsec"},
        {"limiting_magnitude_1", "mag"},
        {"limiting_magnitude_2", "mag"},
        {"light_gathering", "1"},
        {"cell_three_at_edge", "1"},
        {"cell_three_at_70", "1"},
        {"cell_nine", "1"},
        {"cell_eighteen", "1"},
        {"total_weight", "g"},
        {"centre_of_gravity", "mm"},
        {"centre_mark_primary", "mm"},
        {"centre_mark_secondary", "mm"},
        {"star_distance", "m"},
        {"field_at_75_percent", "mm"},
    };
    ASSERT_EQ(std::size(expected), DesignValues().size());
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const DesignValue& value = DesignValues()[i];
        EXPECT_STREQ(expected[i].name, value.name);
        EXPECT_STREQ(expected[i].unit, value.unit) << value.name;
        EXPECT_EQ(&value, FindDesignValue(value.name));
        EXPECT_STRNE("", value.label.english) << value.name;
        EXPECT_STRNE("", value.label.german) << value.name;
        const RecordField* const concern = FindRecordField(value.concern);
        EXPECT_NE(nullptr, concern) << value.name;
    }
    EXPECT_EQ(nullptr, FindDesignValue("mirror/poisson"));
    EXPECT_EQ(nullptr, FindDesignValue("title"));
    EXPECT_EQ(nullptr, FindDesignValue(""));
}

TEST_F(Values, OfTheRoundScopeByHand)
{
    MakeRoundScope(document.main_record);
    const DesignState design = Design();
    const auto value = [&](const char* name) { return Value(design, name); };
    EXPECT_EQ(5, value("focal_ratio"));
    EXPECT_EQ(80, value("focuser_total_height"));
    EXPECT_EQ(200, value("focal_plane_height"));
    EXPECT_EQ(800, value("primary_to_focuser"));
    EXPECT_EQ(970, value("tube_length")); // 800 + 20 + 50 + 100
    EXPECT_EQ(25, value("full_field"));   // (1000 * 60 - 200 * 200) / 800
    EXPECT_NEAR(2 * std::atan(0.0125) * 180 / M_PI, value("full_field_angle"), 1e-9);
    EXPECT_NEAR(20000.0 / 780, value("tube_field_limit"), 1e-12);
    EXPECT_NEAR(32, value("focuser_field_limit"), 1e-12); // 50 - 90 / 5
    EXPECT_EQ(30, value("linear_obstruction"));
    EXPECT_NEAR(9, value("areal_obstruction"), 1e-12);
    EXPECT_EQ(0.58, value("resolution_dawes"));
    EXPECT_EQ(0, value("tube/type"));
    EXPECT_EQ(1, value("focuser/type"));
}

TEST_F(Values, HoldAgainstThePagesForEveryExample)
{
    int examples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(ORREVA_SOURCE_DIR "/share/examples")) {
        SCOPED_TRACE(entry.path().filename());
        document.main_record.SetModified(0);
        document.main_record.Reset();
        ASSERT_EQ(0, document.main_record.Load(entry.path().c_str()));
        ExpectPages(Design());
        ++examples;
    }
    EXPECT_GE(examples, 7);
}

TEST_F(Values, HoldAgainstThePagesFor200RandomDesigns)
{
    std::mt19937 random(20261121);
    const auto between = [&](double low, double high) {
        const double raw = std::uniform_real_distribution(low, high)(random);
        return std::round(raw * 10) / 10;
    };
    for (int i = 0; i < 200; ++i) {
        SCOPED_TRACE(i);
        COrrevaData& record = document.main_record;
        record.SetModified(0);
        record.Reset();
        const double D = between(80, 600);
        record.SetMirrorDiameter(D);
        record.SetFocalLength(std::round(D * between(3.5, 12)));
        record.SetWanted100PercentFow(between(0.1, 40));
        record.SetSecondaryDiameter(between(0.1 * D, 0.5 * D));
        record.SetFocuserType(i % 3);
        record.SetTubeType(i % 6);
        if (i % 2 == 0) {
            record.SetMirrorThickness(between(0.05 * D, 0.25 * D));
            record.SetInsideDiameterHat(D + between(-5, 90));
            record.SetThicknessHat(between(1, 20));
            record.SetFocuserHeight(between(20, 120));
            record.SetDensity(between(2, 3));
        }
        if (i % 5 == 0) {
            record.SetWeightMirror(between(300, 30000));
            record.SetBalanceMisc(between(0, 2000));
            record.SetWeightMisc(between(0, 5000));
            record.SetStarPrecision(between(2, 40));
        }
        ExpectPages(Design());
    }
}

TEST_F(Values, TheFieldAt75PercentEndsWhereThatShareIsLeft)
{
    MakeRoundScope(document.main_record);
    const DesignState design = Design();
    const double h = Value(design, "field_at_75_percent") / 2;
    const IlluminationStops stops = ReadIlluminationStops(design.record);
    EXPECT_GT(h, 12.5) << "the fully lit field is smaller";
    EXPECT_NEAR(0.75, RefinedLight(stops, h) / RefinedLight(stops, 0), 1e-6);

    document.main_record.SetSecondaryDiameter(0);
    EXPECT_TRUE(std::isnan(Value(Design(), "field_at_75_percent")));
}

TEST_F(Values, AWeightThatWasGivenStandsBesideADensityThatWasNot)
{
    COrrevaData& record = document.main_record;
    MakeDefaultScope(record);
    record.GetMirrorThickness(); // whose default would clear the weight
    record.SetWeightMirror(5000);
    ASSERT_TRUE(IsUnset(record.density));
    const DesignState design = Design();
    EXPECT_EQ(2.4, Value(design, "mirror/density"));
    EXPECT_EQ(5000, Value(design, "weight/mirror"));
    EXPECT_EQ(2500, Value(design, "weight/cell"));
    // 5000 (1 + 1/2 + 1.84 + 1/2 + 1/1.5 + 1/8) + 350 + 1000
    EXPECT_NEAR(24508.333333333, Value(design, "total_weight"), 1e-6);

    record.SetDensity(HUGE_VAL); // which clears the weight
    const double volume = 125 * 125 * 3.1415926535 * 250 / 6;
    EXPECT_NEAR(2.4 * volume / 1000, Value(Design(), "weight/mirror"), 1e-9);
}

TEST_F(Values, NoNumberRestsOnWhatWasReadBefore)
{
    std::vector<double> forward;
    for (const bool reversed : {false, true}) {
        document.main_record.SetModified(0);
        document.main_record.Reset();
        document.main_record.SetWeightMirror(4000);
        const DesignState design = Design();
        std::vector<double> numbers(DesignValues().size());
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const std::size_t at = reversed ? numbers.size() - 1 - i : i;
            numbers[at] = DesignValues()[at].Read(design);
        }
        if (reversed) {
            EXPECT_EQ(forward, numbers);
        }
        forward = numbers;
    }
    document.main_record.Reset();
    document.main_record.SetWeightMirror(4000);
    EXPECT_EQ(forward, ReadDesignValues(Design()));
}

} // namespace

#include "model/analysis/DesignCheck.h"

#include "lib/text/CodePage.h"
#include "model/analysis/FieldPlaces.h"
#include "model/analysis/Summary.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// The round scope of 200 mm, f/5, whose numbers SampleScopes.h tells.
class DesignCheck : public testing::Test {
protected:
    DesignCheck() { MakeRoundScope(record); }

    std::vector<DesignFinding> Check(int language = kEnglish)
    {
        Recalculate(record);
        return CheckDesign({record, Recalculate(record).field}, language);
    }

    /// "severity name" of each finding of a code, one a line.
    std::string Found(const char* code)
    {
        std::string found;
        for (const DesignFinding& finding : Check()) {
            if (std::string(code) == finding.code) {
                found += std::string(SeverityWord(finding.severity)) + " " + finding.value->name + "\n";
            }
        }
        return found;
    }

    std::string Text(const char* code, int language = kEnglish)
    {
        for (const DesignFinding& finding : Check(language)) {
            if (std::string(code) == finding.code) {
                return Utf8FromCp1252(finding.Text());
            }
        }
        return "not found";
    }

    COrrevaData record;
};

TEST_F(DesignCheck, FindsNothingInTheRoundScope) { EXPECT_TRUE(Check().empty()) << Check().front().code; }

TEST_F(DesignCheck, NotFiniteTellsEachNumberInItsPlace)
{
    EXPECT_EQ("", Found("not-finite"));
    record.SetStarPrecision(-HUGE_VAL); // and D^2 / (25 * 512 * -0)
    EXPECT_EQ("error tests/artificial_star/precision\nerror star_distance\n", Found("not-finite"));
    EXPECT_EQ(
        "Precision of the star test is no finite number. In the dialog \"Mindestabstand künstlicher Stern\", "
        "enter a number above 0 into the field \"Genauigkeit (Lambda/x)\".",
        Text("not-finite"));
}

TEST_F(DesignCheck, NotFiniteOfAComputedNumberPointsAtWhatItRestsOn)
{
    record.SetSecondaryDiameter(0);
    EXPECT_EQ("error field_at_75_percent\n", Found("not-finite"));
    EXPECT_EQ(
        "Field with 75 % of the light at its edge is no finite number. Look at the numbers that it rests on, "
        "first on the page Secondary at the field \"Diameter of minor Axis (mm)\": enter a number there, or "
        "press its reset arrow.",
        Text("not-finite"));
}

TEST_F(DesignCheck, NotPositiveAtZeroAndBelow)
{
    const struct {
        const char* name;
        RecordSetter set;
    } rows[] = {
        {"mirror/diameter", &COrrevaData::SetMirrorDiameter},
        {"mirror/focal_length", &COrrevaData::SetFocalLength},
        {"mirror/thickness", &COrrevaData::SetMirrorThickness},
        {"secondary/diameter", &COrrevaData::SetSecondaryDiameter},
        {"focuser/diameter", &COrrevaData::SetFocuserDiameter},
        {"tube/inside_diameter_hat", &COrrevaData::SetInsideDiameterHat},
    };
    for (const auto& row : rows) {
        for (const double number : {0.0, -1.0, -HUGE_VAL}) {
            MakeRoundScope(record);
            (record.*row.set)(number);
            EXPECT_EQ(std::string("error ") + row.name + "\n", Found("not-positive")) << number;
        }
        MakeRoundScope(record);
        (record.*row.set)(5e-324);
        EXPECT_EQ("", Found("not-positive")) << row.name;
    }
}

TEST_F(DesignCheck, NotPositiveStandsInTheOrderOfTheNames)
{
    record.SetTubeType(1);
    record.SetInsideDiameterBox(0);
    record.SetInsideDiameterHat(0);
    record.SetMirrorDiameter(-1);
    EXPECT_EQ("error mirror/diameter\nerror tube/inside_diameter_hat\nerror tube/inside_diameter_box\n",
              Found("not-positive"));
    EXPECT_EQ(
        "Diameter of the primary: -1.00 mm is not above 0. On the page Primary, enter a number above 0 into "
        "the field \"Diameter (mm)\", or press its reset arrow.",
        Text("not-positive"));
}

TEST_F(DesignCheck, TheMirrorBoxCountsOnATrussAlone)
{
    record.SetInsideDiameterBox(0);
    record.SetTubeType(0);
    EXPECT_EQ("", Found("not-positive"));
    EXPECT_EQ("", Found("tube-narrower-than-mirror"));
    record.SetTubeType(1);
    EXPECT_EQ("error tube/inside_diameter_box\n", Found("not-positive"));
    EXPECT_EQ("error tube/inside_diameter_box\n", Found("tube-narrower-than-mirror"));
    EXPECT_NE(std::string::npos,
              Text("tube-narrower-than-mirror").find("--set tube/inside_diameter_box=unset"));
    record.SetInsideDiameterBox(200);
    EXPECT_EQ("", Found("tube-narrower-than-mirror"));
}

TEST_F(DesignCheck, TubeNarrowerThanTheMirror)
{
    record.SetInsideDiameterHat(200);
    EXPECT_EQ("", Found("tube-narrower-than-mirror"));
    record.SetInsideDiameterHat(199.99);
    EXPECT_EQ("error tube/inside_diameter_hat\n", Found("tube-narrower-than-mirror"));
    EXPECT_EQ(
        "Inside diameter of the tube: 199.99 mm is narrower than the mirror of 200.00 mm. On the page Tube, "
        "enter a larger number into the field \"Inner Diameter (mm)\", or press its reset arrow.",
        Text("tube-narrower-than-mirror"));
}

TEST_F(DesignCheck, SecondaryMissesLight)
{
    record.SetSecondaryDiameter(40); // 200 * 200 / 1000
    EXPECT_EQ("", Found("secondary-misses-light"));
    record.SetSecondaryDiameter(39.99);
    EXPECT_EQ("error secondary/diameter\n", Found("secondary-misses-light"));
    EXPECT_EQ(
        "The secondary of 39.99 mm is smaller than the light's cone, which is 40.00 mm wide there. On the "
        "page "
        "Secondary, enter a larger number into the field \"Diameter of minor Axis (mm)\", or press its reset "
        "arrow.",
        Text("secondary-misses-light"));
}

TEST_F(DesignCheck, FocusInTube)
{
    record.SetFocuserHeight(-20);
    EXPECT_EQ("error focuser_total_height\n", Found("focus-in-tube")) << "a sliding focuser, 20 mm spare";
    record.SetFocuserHeight(-19.99);
    EXPECT_EQ("", Found("focus-in-tube"));
}

TEST_F(DesignCheck, SecondaryCutsField)
{
    record.SetWanted100PercentFow(25);
    EXPECT_EQ("", Found("secondary-cuts-field"));
    record.SetWanted100PercentFow(25.01);
    EXPECT_EQ("warning full_field\n", Found("secondary-cuts-field"));
    EXPECT_EQ(
        "Der Fangspiegel leuchtet ein Feld von 25.00 mm voll aus, weniger als die gewünschten 25.01 mm. "
        "Geben "
        "Sie auf der Seite Fangspiegel eine größere Zahl in das Feld \"Durchmesser der kleinen Achse\" ein, "
        "oder drücken Sie seinen Rücksetzpfeil.",
        Text("secondary-cuts-field", kGerman));
}

TEST_F(DesignCheck, TubeCutsField)
{
    record.SetSecondaryDiameter(80);
    record.SetWanted100PercentFow(25.64); // of 20000 / 780
    EXPECT_EQ("", Found("tube-cuts-field"));
    record.SetWanted100PercentFow(25.65);
    EXPECT_EQ("warning tube_field_limit\n", Found("tube-cuts-field"));
    record.SetWanted100PercentFow(TubeFieldLimit(record));
    EXPECT_EQ("", Found("tube-cuts-field")) << "equal is enough";
}

TEST_F(DesignCheck, FocuserCutsField)
{
    record.SetWanted100PercentFow(31.99); // of 32
    EXPECT_EQ("", Found("focuser-cuts-field"));
    record.SetWanted100PercentFow(32.01);
    EXPECT_EQ("warning focuser_field_limit\n", Found("focuser-cuts-field"));
}

TEST_F(DesignCheck, ObstructionIsNotedAbove30AndWarnedOfAbove50)
{
    const struct {
        double minorAxis;
        const char* found;
    } rows[] = {{60, ""},
                {60.01, "note linear_obstruction\n"},
                {100, "note linear_obstruction\n"},
                {100.01, "warning linear_obstruction\n"}};
    for (const auto& row : rows) {
        record.SetSecondaryDiameter(row.minorAxis);
        EXPECT_EQ(row.found, Found("obstruction-large")) << row.minorAxis;
    }
    EXPECT_EQ("The secondary obstructs 50.01 % of the mirror's diameter. On the page Secondary, a smaller "
              "number in "
              "the field \"Diameter of minor Axis (mm)\" obstructs less, or its reset arrow proposes one.",
              Text("obstruction-large"))
        << "50.005 is rounded";
}

TEST_F(DesignCheck, FrontTooShort)
{
    record.SetDistanceFront(25);
    EXPECT_EQ("", Found("front-too-short"));
    record.SetDistanceFront(24.99);
    EXPECT_EQ("warning tube/distance_front\n", Found("front-too-short"));
}

TEST_F(DesignCheck, BlankTooThin)
{
    // 1 / (d^2 1.876157553e-5 + d^4 1.2261583e-7 / t^2) = 32 at t = 0.12516 inch for 200 mm
    record.SetMirrorThickness(3.19);
    EXPECT_EQ("", Found("blank-too-thin"));
    record.SetMirrorThickness(3.17);
    EXPECT_EQ("note cell_eighteen\n", Found("blank-too-thin"));
}

TEST_F(DesignCheck, BalanceOutsideTube)
{
    const auto balance = [&](double position) {
        for (const RecordField& field : RecordFields()) {
            if (std::string_view(field.key).starts_with("weight/")) {
                (record.*std::get<RealField>(field.field).set)(0);
            }
        }
        record.SetWeightMisc(1000);
        record.SetBalanceMisc(position);
        return Found("balance-outside-tube");
    };
    EXPECT_EQ("", balance(0));
    EXPECT_EQ("note centre_of_gravity\n", balance(-0.01));
    EXPECT_EQ("", balance(970)); // the tube's length
    EXPECT_EQ("note centre_of_gravity\n", balance(970.01));
}

TEST_F(DesignCheck, TellsInTheOrderOfTheCodes)
{
    record.SetSecondaryDiameter(120);
    record.SetWanted100PercentFow(1000);
    record.SetDistanceFront(1);
    record.SetMirrorThickness(1);
    record.SetInsideDiameterHat(150);
    std::string codes;
    for (const DesignFinding& finding : Check()) {
        codes += std::string(finding.code) + " ";
    }
    EXPECT_EQ(
        "tube-narrower-than-mirror secondary-cuts-field tube-cuts-field focuser-cuts-field obstruction-large "
        "front-too-short blank-too-thin ",
        codes);
    EXPECT_EQ(1u, CountProblems(Check(), Severity::kError));
    EXPECT_EQ(5u, CountProblems(Check(), Severity::kWarning));
    EXPECT_EQ(1u, CountProblems(Check(), Severity::kNote));
}

TEST_F(DesignCheck, ANaNIsNeitherBelowNorAboveAnything)
{
    record.SetMirrorDiameter(0);
    record.SetSecondaryDiameter(0);
    EXPECT_EQ("", Found("obstruction-large")) << "0 / 0";
    EXPECT_EQ("", Found("blank-too-thin")) << "1 / 0 counts, and it is large";
}

TEST_F(DesignCheck, AnyDesignIsChecked)
{
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            MakeRoundScope(record);
            (record.*setter)(odd);
            for (const int language : {kEnglish, kGerman}) {
                for (const DesignFinding& finding : Check(language)) {
                    EXPECT_FALSE(finding.sentence.empty());
                    EXPECT_FALSE(finding.remedy.empty());
                    EXPECT_EQ(std::string::npos, finding.Text().find("nan"));
                    EXPECT_EQ(std::string::npos, finding.Text().find("inf "));
                    EXPECT_EQ(std::string::npos, finding.Text().find('%' + std::string("s")));
                }
            }
        }
    }
}

TEST(FieldPlaces, EveryNumberOfTheFileButOneHasAField)
{
    for (const DesignValue& value : DesignValues()) {
        const FieldPlace& place = PlaceOfField(value.concern);
        if (std::string_view(value.concern) == "tube/inside_diameter_box") {
            EXPECT_EQ(FieldSheet::kNone, place.sheet);
        } else {
            EXPECT_NE(FieldSheet::kNone, place.sheet) << value.name;
            EXPECT_STRNE("", place.label.german) << value.name;
        }
    }
    EXPECT_EQ(FieldSheet::kNone, PlaceOfField("mirror/poisson").sheet);
}

} // namespace

#include "model/analysis/Balance.h"

#include "lib/text/CodePage.h"
#include "support/ListText.h"

#include <gtest/gtest.h>

namespace {

/// Nine easy components: 1 kg at 100 mm, 2 kg at 200 mm and so on.
void MakeStaircase(COrrevaData& record)
{
    double step = 0;
    for (const BalanceComponent& component : kBalanceComponents) {
        step += 1;
        (record.*component.weight.set)(1000 * step);
        (record.*component.balance.set)(100 * step);
    }
}

void MakeMirror200(COrrevaData& record)
{
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    record.SetMirrorThickness(33.33);
    record.SetDensity(2.23);
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
}

TEST(Balance, RowsStandFromTheMirrorDown)
{
    COrrevaData record;
    MakeStaircase(record);
    EXPECT_EQ((std::vector<std::string>{
                  "Mirror | 1.000 kg | 100.0 mm | 37.5 mm hinter der Spiegeloberfläche",
                  "Mirror Cell | 2.000 kg | 200.0 mm | 200.0 mm vor dem Tubusende",
                  "Mirror Box | 3.000 kg | 300.0 mm | 300.0 mm vor dem Tubusende",
                  "Tube Center Section, Trusses | 4.000 kg | 400.0 mm | 400.0 mm vor dem Tubusende",
                  "Upper Cage | 5.000 kg | 500.0 mm | 500.0 mm vor dem Tubusende",
                  "Secondary, Secondary Holder | 6.000 kg | 600.0 mm | 600.0 mm vor dem Tubusende",
                  "Focuser, Okular | 7.000 kg | 700.0 mm | 700.0 mm vor dem Tubusende",
                  "Finder, Finder Holder | 8.000 kg | 800.0 mm | 800.0 mm vor dem Tubusende",
                  "Miscellaneous | 9.000 kg | 900.0 mm | 900.0 mm vor dem Tubusende",
              }),
              ShownList(BalanceRows(record, 62.5, kEnglish)));
}

TEST(Balance, NamesTheComponentsInGerman)
{
    static constexpr const char* kNames[] = {"Spiegel",
                                             "Spiegelzelle",
                                             "Spiegelkasten",
                                             "Tubus Mittelteil, Trusses",
                                             "Hut, Gegenlichtblende, Taukappe",
                                             "Fangspiegel, Fangspiegelhalter, Spinne",
                                             "Focuser, Okular",
                                             "Finder, Finderhalterung",
                                             "Sonstiges"};
    COrrevaData record;
    MakeStaircase(record);
    const ListRows rows = BalanceRows(record, 0, kGerman);
    ASSERT_EQ(kBalanceCount, rows.size());
    for (std::size_t i = 0; i < kBalanceCount; ++i) {
        EXPECT_EQ(kNames[i], rows[kBalanceCount - 1 - i][0]);
    }
}

TEST(Balance, HasFourColumnsOfWhichTheNumbersStandRight)
{
    static constexpr const char* kEnglishTitles[] = {"Designation", "Weight", "Center of Gravity",
                                                     "Center of Gravity (relative)"};
    static constexpr const char* kGermanTitles[] = {"Bezeichnung", "Gewicht", "Schwerpunkt",
                                                    "Schwerpunkt (relativ)"};
    ASSERT_EQ(4u, std::size(kBalanceColumns));
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_STREQ(kEnglishTitles[i], kBalanceColumns[i].title.In(kEnglish));
        EXPECT_STREQ(kGermanTitles[i], kBalanceColumns[i].title.In(kGerman));
        EXPECT_EQ(i == 1 || i == 2, kBalanceColumns[i].right_aligned);
    }
}

TEST(Balance, TotalAndCenterOfGravityWeighAllNine)
{
    COrrevaData record;
    MakeStaircase(record);
    // 45 kg; sum of i * i for 1 to 9 is 285, so 285 * 100 / 45 mm.
    EXPECT_DOUBLE_EQ(45000, TotalWeight(record));
    EXPECT_NEAR(633.3333333, CenterOfGravity(record), 1e-6);
    EXPECT_EQ("Das Gesammtgewicht des Teleskopes beträgt ca. 45.0 kg.",
              Utf8FromCp1252(TotalWeightText(record)));
    EXPECT_EQ("The Center of Gravity is located 633.3 mm in Front of the Tube Rear End",
              CenterOfGravityText(record, kEnglish));
    EXPECT_EQ("Der Schwerpunkt des Gesammtsystems liegt 633.3 mm vor dem spiegelseitigen Tubusende",
              Utf8FromCp1252(CenterOfGravityText(record, kGerman)));
}

TEST(Balance, WithoutAnyWeightTheCenterIsNoNumber)
{
    COrrevaData record;
    for (const BalanceComponent& component : kBalanceComponents) {
        (record.*component.weight.set)(0);
        (record.*component.balance.set)(100);
    }
    EXPECT_NE(std::string::npos, CenterOfGravityText(record, kEnglish).find("nan mm"));
    EXPECT_EQ("Das Gesammtgewicht des Teleskopes beträgt ca. 0.0 kg.",
              Utf8FromCp1252(TotalWeightText(record)));
}

TEST(Balance, TheMirrorsRelativePlaceIsHalfItsThickness)
{
    COrrevaData record;
    MakeMirror200(record);
    const ListRows rows = BalanceRows(record, record.GetDistanceBack(), kEnglish);
    EXPECT_EQ("16.7 mm hinter der Spiegeloberfläche", Utf8FromCp1252(rows.back()[3]));
}

TEST(Balance, ReadingTheListFixesItsValuesInTheRecord)
{
    COrrevaData record;
    MakeMirror200(record);
    BalanceRows(record, 0, kEnglish);
    for (const BalanceComponent& component : kBalanceComponents) {
        EXPECT_FALSE(IsUnset((record.*component.weight.get)())) << component.label.english;
    }
    EXPECT_FALSE(IsUnset(record.weight_box));
    EXPECT_FALSE(IsUnset(record.balance_finder));
    // Changing the mirror leaves the others as they were computed.
    const double cell = record.weight_cell;
    record.SetMirrorThickness(60);
    BalanceRows(record, 0, kEnglish);
    EXPECT_EQ(cell, record.weight_cell);
}

TEST(Balance, SuggestedValuesFollowTheMirror)
{
    COrrevaData record;
    MakeStaircase(record);
    MakeMirror200(record);
    SuggestBalance(record);
    EXPECT_TRUE(IsUnset(record.weight_cell));
    EXPECT_TRUE(IsUnset(record.balance_misc));
    BalanceRows(record, 0, kEnglish);
    const double mirror = record.GetWeightMirror();
    EXPECT_NEAR(2335.017, mirror, 0.001);
    EXPECT_DOUBLE_EQ(mirror / 2, record.weight_cell);
    EXPECT_DOUBLE_EQ(1.84 * mirror, record.weight_box);
    EXPECT_DOUBLE_EQ(mirror / 2, record.weight_truss);
    EXPECT_DOUBLE_EQ(mirror / 1.5, record.weight_hat);
    EXPECT_DOUBLE_EQ(mirror / 8, record.weight_secondary);
    EXPECT_DOUBLE_EQ(350, record.weight_eyepiece);
    EXPECT_DOUBLE_EQ(1000, record.weight_finder);
    EXPECT_DOUBLE_EQ(0, record.weight_misc);
}

TEST(Balance, SuggestingLeavesTheMirrorAlone)
{
    COrrevaData record;
    MakeStaircase(record);
    SuggestBalance(record);
    EXPECT_DOUBLE_EQ(1000, record.weight_mirror);
    EXPECT_DOUBLE_EQ(100, record.balance_mirror);
    using D = COrrevaData;
    static constexpr double D::*kFields[] = {
        &D::weight_cell,      &D::balance_cell,      &D::weight_box,      &D::balance_box,
        &D::weight_truss,     &D::balance_truss,     &D::weight_hat,      &D::balance_hat,
        &D::weight_secondary, &D::balance_secondary, &D::weight_eyepiece, &D::balance_eyepiece,
        &D::weight_finder,    &D::balance_finder,    &D::weight_misc,     &D::balance_misc};
    for (const auto field : kFields) {
        EXPECT_TRUE(IsUnset(record.*field));
    }
}

TEST(Balance, EditingNeedsASelectionBelowTheMirror)
{
    const auto text = [](std::int32_t row, int language) {
        return Utf8FromCp1252(BalanceEditMessage(row)->In(language));
    };
    EXPECT_EQ("Please select a Component first.", text(-1, kEnglish));
    EXPECT_EQ("Selektieren Sie bitte zunächst, welche Komponente Sie bearbeiten möchten.", text(-1, kGerman));
    EXPECT_EQ("Weight and Center of Gravity of the primary are calculated from the data you provided in the "
              "Sheets 'Primary' and 'Tube'.",
              text(0, kEnglish));
    EXPECT_EQ("Das Gewicht und der Schwerpunkt des Spiegels berechnet sich aus den Daten, die Sie beim "
              "Hauptspiegel und Tubus angegeben haben.\nÄndern Sie die Daten bitte im Reiter 'Hauptspiegel' "
              "bzw, 'Tubus'.",
              text(0, kGerman));
    for (std::int32_t row = 1; row <= 8; ++row) {
        EXPECT_EQ(nullptr, BalanceEditMessage(row));
    }
    EXPECT_STREQ("This overwrites the existing Data.\n\nProceed?", kSuggestQuestion.In(kEnglish));
    EXPECT_EQ("Dieser Vorgang überschreibt die vorhandenen Daten dieser Seite.\n\nFortfahren?",
              Utf8FromCp1252(kSuggestQuestion.In(kGerman)));
}

TEST(Balance, TheDialogShowsWholeNumbersAndTakesADecimalComma)
{
    COrrevaData record;
    record.SetWeightEyepiece(412.6);
    record.SetBalanceEyepiece(1000.4);
    const ComponentTexts texts = ReadComponent(record, 6);
    EXPECT_EQ("413", texts.weight);
    EXPECT_EQ("1000", texts.balance);
    StoreComponent(record, 6, {"350,5", "no number"});
    EXPECT_DOUBLE_EQ(350.5, record.weight_eyepiece);
    EXPECT_DOUBLE_EQ(0, record.balance_eyepiece);
}

TEST(Balance, TheDialogsResetButtonsChangeTheRecordAtOnce)
{
    COrrevaData record;
    MakeMirror200(record);
    record.SetWeightCell(1);
    record.SetBalanceCell(1);
    EXPECT_EQ("1167.5", ResetComponentWeight(record, 1)) << "one decimal, unlike the opening format";
    // B - 1.2 t = (50 + 16.665) - 39.996
    EXPECT_EQ("27", ResetComponentBalance(record, 1));
    EXPECT_NEAR(1167.5085, record.weight_cell, 0.0001);
    EXPECT_NEAR(26.669, record.balance_cell, 0.0001);
    EXPECT_EQ("1.168 kg", BalanceRows(record, 0, kEnglish)[7][1]);
}

} // namespace

#include "model/record/OrrevaData.h"
#include "lib/text/LogSink.h"
#include "model/record/RecordFields.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr double kUnset = HUGE_VAL;

/// The settled default telescope: everything that the two heights need has been read once.
void Settle(COrrevaData& data)
{
    data.GetFocalPlaneHeight();
    data.GetFocalPlaneHeight();
}

TEST(OrrevaData, DefaultTelescopeOnceAllGettersHaveSettled)
{
    COrrevaData data;
    Settle(data);
    EXPECT_DOUBLE_EQ(250.0, data.GetMirrorDiameter());
    EXPECT_DOUBLE_EQ(1500.0, data.GetFocalLength());
    EXPECT_NEAR(41.667, data.GetMirrorThickness(), 0.0005);
    EXPECT_DOUBLE_EQ(6.25, data.GetThicknessHat());
    EXPECT_DOUBLE_EQ(6.25, data.GetThicknessBox());
    EXPECT_DOUBLE_EQ(40.0, data.GetFocuserHeight());
    EXPECT_DOUBLE_EQ(10.0, data.GetFocuserSpare());
    EXPECT_DOUBLE_EQ(30.0, data.GetOazTravel());
    EXPECT_DOUBLE_EQ(40.0, data.GetOazLength());
    EXPECT_DOUBLE_EQ(100.0, data.GetOschTravel());
    EXPECT_DOUBLE_EQ(65.0, data.GetFocuserTotalHeight());
    EXPECT_DOUBLE_EQ(286.0, data.GetInsideDiameterHat());
    EXPECT_DOUBLE_EQ(286.0, data.GetInsideDiameterBox());
    EXPECT_DOUBLE_EQ(214.25, data.GetFocalPlaneHeight());
    EXPECT_DOUBLE_EQ(46.482, data.GetSecondaryDiameter());
    EXPECT_NEAR(1.93675, data.GetSecondaryOffset(), 1e-9);
    EXPECT_DOUBLE_EQ(50.8, data.GetFocuserDiameter());
    EXPECT_DOUBLE_EQ(62.5, data.GetDistanceBack());
    EXPECT_DOUBLE_EQ(125.0, data.GetDistanceFront());
    EXPECT_DOUBLE_EQ(150.0, data.GetHeightHat());
    EXPECT_DOUBLE_EQ(150.0, data.GetHeightBox());
    EXPECT_DOUBLE_EQ(12.0, data.GetWanted100PercentFow());
    EXPECT_DOUBLE_EQ(2.4, data.GetDensity());
    EXPECT_DOUBLE_EQ(5.0, data.GetRonchiGrating());
    EXPECT_DOUBLE_EQ(1.0, data.GetRonchiConstant());
    EXPECT_DOUBLE_EQ(0.05, data.GetStarDiameter());
    EXPECT_DOUBLE_EQ(20.0, data.GetStarPrecision());
    EXPECT_EQ(0, data.GetTubeType());
    EXPECT_EQ(0, data.GetFocuserType());
    EXPECT_DOUBLE_EQ(1500.0 - 143.0 - 6.25 - 65.0, data.GetPrimaryToFocuser());
    EXPECT_NEAR(1285.75 + 41.6666667 + 62.5 + 125.0, data.GetTubeLength(), 1e-6);
    EXPECT_NEAR(std::sqrt(1.93675 * 1.93675 + (1.93675 + 214.25) * (1.93675 + 214.25)),
                data.GetSecondaryToFocus(), 1e-9);
}

TEST(OrrevaData, FirstReadOfTheTotalHeightIsInfiniteAndTheSecondRight)
{
    COrrevaData data;
    EXPECT_EQ(kUnset, data.GetFocuserTotalHeight());
    EXPECT_EQ(kUnset, data.focuser_total_height);
    EXPECT_DOUBLE_EQ(65.0, data.GetFocuserTotalHeight());

    COrrevaData other;
    EXPECT_EQ(kUnset, other.GetFocalPlaneHeight());
    EXPECT_EQ(kUnset, other.focal_plane_height);
    EXPECT_DOUBLE_EQ(214.25, other.GetFocalPlaneHeight());
}

TEST(OrrevaData, SlidingFocuserAddsNoTravelAndIsRightAtTheFirstRead)
{
    COrrevaData data;
    data.SetFocuserType(1);
    EXPECT_DOUBLE_EQ(50.0, data.GetFocuserTotalHeight());
    data.SetFocuserType(2);
    data.SetOazTravel(20.0);
    EXPECT_DOUBLE_EQ(60.0, data.GetFocuserTotalHeight());
}

TEST(OrrevaData, FocalRatioOfANewMirrorTakesTheNextRowAtItsBounds)
{
    const struct {
        double diameter;
        double ratio;
    } rows[] = {{100, 9}, {149.9, 9}, {150, 8}, {199.9, 8}, {200, 7},   {249.9, 7},
                {250, 6}, {299.9, 6}, {300, 5}, {349.9, 5}, {350, 4.5}, {1000, 4.5}};
    for (const auto& row : rows) {
        COrrevaData data;
        data.SetMirrorDiameter(row.diameter);
        EXPECT_DOUBLE_EQ(row.diameter * row.ratio, data.GetFocalLength()) << row.diameter;
    }
}

TEST(OrrevaData, DistanceBackStaysBetweenItsBounds)
{
    const struct {
        double diameter;
        double distance;
    } rows[] = {{40, 20}, {80, 20}, {81, 20.25}, {319, 79.75}, {320, 80}, {1000, 80}};
    for (const auto& row : rows) {
        COrrevaData data;
        data.SetMirrorDiameter(row.diameter);
        EXPECT_DOUBLE_EQ(row.distance, data.GetDistanceBack()) << row.diameter;
    }
}

TEST(OrrevaData, OazTravelIsAtLeastOne)
{
    COrrevaData data;
    data.SetFocuserHeight(5.0);
    EXPECT_DOUBLE_EQ(1.0, data.GetOazTravel());
}

TEST(OrrevaData, OazTravelDefaultUnsetsTheHeights)
{
    COrrevaData data;
    Settle(data);
    data.oaz_travel = kUnset;
    const double offset = data.GetSecondaryOffset();
    data.GetOazTravel();
    EXPECT_EQ(kUnset, data.focuser_total_height);
    EXPECT_EQ(kUnset, data.focal_plane_height);
    EXPECT_EQ(offset, data.secondary_offset);
}

TEST(OrrevaData, MarginOfTheTubeGrowsWithTheWantedField)
{
    COrrevaData data;
    data.SetMirrorDiameter(400.0);
    data.SetFocalLength(1800.0);
    data.SetWanted100PercentFow(60.0);
    data.SetFocuserType(1); // the heights are right at the first read
    // angle = 2 atan(60 / 3600) in degrees = 1.909683; mirror to front = 1800 - 218 - 10 - 50 + 200 = 1722
    EXPECT_NEAR(400.0 + std::tan(1.909683 * M_PI / 180.0) * 1722.0, data.GetInsideDiameterHat(), 1e-3);
}

TEST(OrrevaData, StandardFocuserDiameters)
{
    const struct {
        double raw;
        double diameter;
    } rows[] = {{0, 24.384},  {0.95 * 25.4, 24.384}, {0.96 * 25.4, 31.75}, {31.0, 31.75},      {31.75, 50.8},
                {50.0, 50.8}, {50.8, 76.2},          {-5, 24.384},         {3.5 * 25.4, 101.6}};
    for (const auto& row : rows) {
        EXPECT_DOUBLE_EQ(row.diameter, StandardFocuserDiameter(row.raw)) << row.raw;
    }
}

TEST(OrrevaData, StandardSecondaryDiameters)
{
    const struct {
        double raw;
        double diameter;
    } rows[] = {{0, 19.05},       {19.05, 19.05},   {19.06, 25.4},  {33.0, 33.02},
                {38.608, 38.608}, {46.482, 46.482}, {46.5, 50.0},   {50.1, 54.356},
                {60, 66.04},      {70, 78.74},      {88.9, 88.9},   {101.6, 101.6},
                {126.9, 127.0},   {127.0, 127.0},   {127.1, 152.4}, {152.4, 177.8}};
    for (const auto& row : rows) {
        EXPECT_DOUBLE_EQ(row.diameter, StandardSecondaryDiameter(row.raw)) << row.raw;
    }
}

TEST(OrrevaData, FieldFormulas)
{
    // m = 50, D = 200, f = 1200, z = 200: (1200 * 50 - 200 * 200) / 1000 = 20
    EXPECT_DOUBLE_EQ(20.0, FullFieldDiameter(200, 1200, 50, 200));
    EXPECT_NEAR(2 * std::atan(20.0 / 2400.0) * 180 / M_PI, FullFieldAngle(200, 1200, 50, 200), 1e-9);
    EXPECT_NEAR(2 * std::atan(20.0 / 2400.0) * 180 / M_PI, FieldAngle(1200, 20), 1e-7);
    EXPECT_NEAR(20.0, FieldSize(1200, FieldAngle(1200, 20)), 1e-9);
}

TEST(OrrevaData, WeightsAndBalances)
{
    COrrevaData data;
    data.SetMirrorDiameter(200);
    data.SetFocalLength(1200);
    data.SetMirrorThickness(33.33);
    data.SetDensity(2.23);
    data.SetDistanceBack(50);
    Settle(data);
    const double W = 2.23 / 1000 * (100.0 * 100.0 * 3.1415926535 * 33.33);
    const double B = 50 + 33.33 / 2;
    EXPECT_DOUBLE_EQ(W, data.GetWeightMirror());
    EXPECT_NEAR(2335, W, 0.5);
    EXPECT_DOUBLE_EQ(W / 2, data.GetWeightCell());
    EXPECT_DOUBLE_EQ(W * 1.84, data.GetWeightBox());
    EXPECT_DOUBLE_EQ(W / 2, data.GetWeightTruss());
    EXPECT_DOUBLE_EQ(W / 1.5, data.GetWeightHat());
    EXPECT_DOUBLE_EQ(W / 8, data.GetWeightSecondary());
    EXPECT_DOUBLE_EQ(350, data.GetWeightEyepiece());
    EXPECT_DOUBLE_EQ(1000, data.GetWeightFinder());
    EXPECT_DOUBLE_EQ(0, data.GetWeightMisc());
    EXPECT_DOUBLE_EQ(B, data.GetBalanceMirror());
    const double cell = B - 1.2 * 33.33;
    EXPECT_DOUBLE_EQ(cell, data.GetBalanceCell());
    EXPECT_DOUBLE_EQ(B + cell, data.GetBalanceBox());
    EXPECT_DOUBLE_EQ(B + 600, data.GetBalanceTruss());
    const double hat = B + 1200 - data.GetSecondaryToFocus();
    EXPECT_DOUBLE_EQ(hat, data.GetBalanceHat());
    EXPECT_DOUBLE_EQ(hat + hat / 80, data.GetBalanceSecondary());
    EXPECT_DOUBLE_EQ(hat, data.GetBalanceEyepiece());
    EXPECT_DOUBLE_EQ((B + 600 + hat) / 2, data.GetBalanceFinder());
    EXPECT_DOUBLE_EQ(0, data.GetBalanceMisc());
}

TEST(OrrevaData, NewTelescopeNeverWeighsInfinity)
{
    COrrevaData data;
    EXPECT_NEAR(2.4 / 1000 * 125 * 125 * M_PI * 250 / 6, data.GetWeightMirror(), 1e-3);
    EXPECT_DOUBLE_EQ(2.4, data.density);
}

TEST(OrrevaData, CellThatStandsJustAtTheTubesEndStaysThere)
{
    // 14 + 20 / 2 = 1.2 * 20, in binary fractions of whole numbers as on paper.
    COrrevaData data;
    data.SetMirrorThickness(20);
    data.SetDistanceBack(14);
    ASSERT_EQ(0, data.GetBalanceMirror() - 1.2 * 20);
    EXPECT_EQ(0, data.GetBalanceCell()) << "half its thickness only where it would stand behind the end";
}

TEST(OrrevaData, CellOfAThickMirrorStandsAtHalfItsThickness)
{
    COrrevaData data;
    data.SetMirrorThickness(100);
    data.SetDistanceBack(20); // B = 70, 70 - 120 is below zero
    EXPECT_DOUBLE_EQ(50, data.GetBalanceCell());
}

TEST(OrrevaData, ANaNCountsAsUnset)
{
    COrrevaData data;
    data.SetFocuserHeight(std::nan(""));
    EXPECT_DOUBLE_EQ(40.0, data.GetFocuserHeight());
    EXPECT_DOUBLE_EQ(40.0, data.focuser_height);
}

TEST(OrrevaData, NegativeTypes)
{
    COrrevaData data;
    data.SetTubeType(-7);
    EXPECT_EQ(0, data.GetTubeType());
    EXPECT_EQ(0, data.tube_type);
    data.SetFocuserType(-7);
    EXPECT_EQ(-7, data.GetFocuserType());
    data.SetFocuserType(-1);
    EXPECT_EQ(0, data.GetFocuserType());
}

// What each setter clears, field by field ------------------------------------------------------------------

struct SetterRow {
    const char* name;
    void (COrrevaData::*set)(double);
    double COrrevaData::*place;
    std::set<double COrrevaData::*, bool (*)(double COrrevaData::*, double COrrevaData::*)> clears;
};

bool Before(double COrrevaData::*a, double COrrevaData::*b)
{
    static const COrrevaData data;
    return &(data.*a) < &(data.*b);
}

#define SETTER(NAME, FIELD, ...)                                                                             \
    SetterRow                                                                                                \
    {                                                                                                        \
#NAME, &COrrevaData::NAME, &COrrevaData::FIELD, { {__VA_ARGS__}, Before }                            \
    }

std::vector<double COrrevaData::*> AllReals()
{
    std::vector<double COrrevaData::*> all{&COrrevaData::focuser_total_height,
                                           &COrrevaData::focal_plane_height,
                                           &COrrevaData::secondary_to_focus};
    for (const RecordField& field : RecordFields()) {
        if (const auto* real = std::get_if<RealField>(&field.field)) {
            all.push_back(real->place);
        }
    }
    return all;
}

TEST(OrrevaData, SettersClearExactlyTheirDependants)
{
    using D = COrrevaData;
    constexpr auto offset = &D::secondary_offset;
    constexpr auto toFocus = &D::secondary_to_focus;
    constexpr auto weight = &D::weight_mirror;
    constexpr auto balance = &D::balance_mirror;
    constexpr auto total = &D::focuser_total_height;
    constexpr auto plane = &D::focal_plane_height;
    const SetterRow rows[] = {
        SETTER(SetMirrorDiameter, mirror_diameter, weight, offset, toFocus),
        SETTER(SetFocalLength, focal_length, weight, balance, offset, toFocus),
        SETTER(SetMirrorThickness, mirror_thickness, weight, balance),
        SETTER(SetDensity, density, weight),
        SETTER(SetSecondaryDiameter, secondary_diameter, offset, toFocus),
        SETTER(SetSecondaryOffset, secondary_offset, toFocus),
        SETTER(SetFocalPlaneHeight, focal_plane_height, offset, toFocus),
        SETTER(SetThicknessHat, thickness_hat, plane, offset, toFocus),
        SETTER(SetInsideDiameterHat, inside_diameter_hat, plane, offset, toFocus),
        SETTER(SetFocuserHeight, focuser_height, total, plane, offset, toFocus),
        SETTER(SetFocuserSpare, focuser_spare, total, plane, offset, toFocus),
        SETTER(SetOazTravel, oaz_travel, total, plane),
        SETTER(SetDistanceBack, distance_back, balance),
        SETTER(SetWanted100PercentFow, wanted_100percent_fow),
        SETTER(SetThicknessBox, thickness_box),
        SETTER(SetInsideDiameterBox, inside_diameter_box),
        SETTER(SetDistanceFront, distance_front),
        SETTER(SetHeightHat, height_hat),
        SETTER(SetHeightBox, height_box),
        SETTER(SetFocuserDiameter, focuser_diameter),
        SETTER(SetOazLength, oaz_length),
        SETTER(SetOschTravel, osch_travel),
        SETTER(SetRonchiGrating, ronchi_grating),
        SETTER(SetRonchiConstant, ronchi_constant),
        SETTER(SetStarDiameter, star_diameter),
        SETTER(SetStarPrecision, star_precision),
        SETTER(SetFocuserTotalHeight, focuser_total_height),
        SETTER(SetSecondaryToFocus, secondary_to_focus),
        SETTER(SetWeightMirror, weight_mirror),
        SETTER(SetBalanceMirror, balance_mirror),
        SETTER(SetWeightCell, weight_cell),
        SETTER(SetBalanceCell, balance_cell),
        SETTER(SetWeightBox, weight_box),
        SETTER(SetBalanceBox, balance_box),
        SETTER(SetWeightTruss, weight_truss),
        SETTER(SetBalanceTruss, balance_truss),
        SETTER(SetWeightHat, weight_hat),
        SETTER(SetBalanceHat, balance_hat),
        SETTER(SetWeightSecondary, weight_secondary),
        SETTER(SetBalanceSecondary, balance_secondary),
        SETTER(SetWeightEyepiece, weight_eyepiece),
        SETTER(SetBalanceEyepiece, balance_eyepiece),
        SETTER(SetWeightFinder, weight_finder),
        SETTER(SetBalanceFinder, balance_finder),
        SETTER(SetWeightMisc, weight_misc),
        SETTER(SetBalanceMisc, balance_misc),
    };
    const std::vector<double COrrevaData::*> all = AllReals();
    ASSERT_EQ(43u + 3u, all.size()); // those of a file, and the three caches
    for (const SetterRow& row : rows) {
        COrrevaData data;
        for (const auto place : all) {
            data.*place = 7.0;
        }
        (data.*row.set)(3.0);
        for (std::size_t i = 0; i < all.size(); ++i) {
            const double expected = all[i] == row.place ? 3.0 : row.clears.contains(all[i]) ? kUnset : 7.0;
            EXPECT_EQ(expected, data.*all[i]) << row.name << ", field " << i;
        }
    }
}

TEST(OrrevaData, FocuserTypeClearsTheHeightsAndLeavesTheOffset)
{
    COrrevaData data;
    Settle(data);
    data.GetSecondaryToFocus();
    data.SetFocuserType(1);
    EXPECT_EQ(kUnset, data.focuser_total_height);
    EXPECT_EQ(kUnset, data.focal_plane_height);
    EXPECT_NE(kUnset, data.secondary_offset);
    EXPECT_NE(kUnset, data.secondary_to_focus);
}

TEST(OrrevaData, AValueOnceDefaultedStays)
{
    COrrevaData data;
    Settle(data);
    const double secondary = data.GetSecondaryDiameter();
    data.SetWanted100PercentFow(60.0);
    data.SetMirrorDiameter(400.0);
    EXPECT_DOUBLE_EQ(secondary, data.GetSecondaryDiameter());
    data.SetSecondaryDiameter(kUnset);
    EXPECT_LT(secondary, data.GetSecondaryDiameter());
}

// The record as a whole ------------------------------------------------------------------------------------

class Host : public RecordHost {
public:
    bool AskYesNo(const char* text) override
    {
        questions.emplace_back(text);
        return false;
    }
    void ShowMessage(const char* text) override { messages.emplace_back(text); }
    void SetDocumentTitle(const char* path) override { titles.emplace_back(path); }
    void BeginWait() override {}
    void EndWait() override {}

    std::vector<std::string> questions;
    std::vector<std::string> messages;
    std::vector<std::string> titles;
};

TEST(OrrevaData, ANewRecordIsCleared)
{
    Host host;
    const COrrevaData data(&host);
    EXPECT_FALSE(data.HasFile());
    EXPECT_STREQ("Neues Teleskop", data.GetTitle());
    EXPECT_STREQ("Ein 08/15 Teleskop", data.GetDescription());
    EXPECT_STREQ("", data.GetMaterial());
    EXPECT_EQ(-1, data.tube_type);
    EXPECT_EQ(-1, data.focuser_type);
    EXPECT_EQ(0, data.IsModified());
    EXPECT_TRUE(host.questions.empty());
    EXPECT_EQ((std::vector<std::string>{"noname.orreva.xml", ""}), host.titles);
}

TEST(OrrevaData, ResetAsksOnlyWhenModifiedAndUnsetsEverything)
{
    Host host;
    COrrevaData data(&host);
    Settle(data);
    data.SetModified(1);
    data.SetMaterial("Pyrex");
    data.Reset();
    EXPECT_EQ(std::vector<std::string>{"Save ?"}, host.questions);
    EXPECT_EQ(0, data.IsModified());
    EXPECT_STREQ("noname.orreva.xml", data.file_path);
    EXPECT_STREQ("", data.GetMaterial());
    for (const auto place : AllReals()) {
        EXPECT_EQ(kUnset, data.*place);
    }
    data.Reset();
    EXPECT_EQ(1u, host.questions.size());
}

TEST(OrrevaData, CopyTakesTheFieldsOfAFileAndNoMore)
{
    Host host;
    COrrevaData source;
    COrrevaData dest(&host);
    Settle(source);
    source.GetSecondaryOffset();
    source.SetTitle("A");
    source.SetDescription("B");
    source.SetMaterial("C");
    source.SetTubeType(3);
    source.SetModified(1);
    source.file_path = "there.orreva.xml";
    dest.SetModified(1);
    source.CopyTo(dest);
    EXPECT_EQ(1u, host.questions.size());
    for (const RecordField& field : RecordFields()) {
        if (const auto* real = std::get_if<RealField>(&field.field)) {
            EXPECT_EQ(source.*real->place, dest.*real->place) << field.key;
        }
    }
    EXPECT_STREQ("A", dest.GetTitle());
    EXPECT_STREQ("B", dest.GetDescription());
    EXPECT_STREQ("C", dest.GetMaterial());
    EXPECT_EQ(3, dest.tube_type);
    EXPECT_EQ(0, dest.focuser_type);
    EXPECT_EQ(source.secondary_offset, dest.secondary_offset);
    EXPECT_EQ(0, dest.IsModified());
    EXPECT_STREQ("noname.orreva.xml", dest.file_path);
    EXPECT_EQ(kUnset, dest.focuser_total_height);
    EXPECT_EQ(kUnset, dest.focal_plane_height);
    EXPECT_EQ(kUnset, dest.secondary_to_focus);
}

TEST(OrrevaData, ResetCachesUnsetsThreeHeightsAndTheOffset)
{
    COrrevaData data;
    Settle(data);
    data.GetSecondaryToFocus();
    data.ResetCaches();
    EXPECT_EQ(kUnset, data.focuser_total_height);
    EXPECT_EQ(kUnset, data.focal_plane_height);
    EXPECT_EQ(kUnset, data.secondary_to_focus);
    EXPECT_EQ(kUnset, data.secondary_offset);
    EXPECT_DOUBLE_EQ(286.0, data.inside_diameter_hat);
}

std::vector<std::string> g_lines;

TEST(OrrevaData, LogsWhatItDerives)
{
    const LogSink before = SetLogSink([](const char* psz) { g_lines.emplace_back(psz); });
    g_lines.clear();
    COrrevaData data;
    Settle(data);
    data.SetTubeType(4);
    data.GetFocuserDiameter();
    SetLogSink(before);
    // 1500 - 286 / 2 - 6.25 - 65 + 125; raw = 214.25 * 250 / 1500 + 6
    const std::vector<std::string> expected{"Mirror to Front: 1410.750000", "COrrevaData::SetTubeType: 4",
                                            "GetFocuserDiameter: 41.708333, 50.800000"};
    EXPECT_EQ(expected, g_lines);
}

} // namespace

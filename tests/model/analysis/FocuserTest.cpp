#include "model/analysis/Focuser.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

namespace {

TEST(Focuser, TypeDecidesWhichFieldsCanBeTyped)
{
    struct Row {
        std::int32_t type;
        bool travel;
        bool length;
        bool sliding;
    };
    static constexpr Row kRows[] = {{0, true, true, false}, {1, false, false, true}, {2, true, true, true}};
    for (const Row& row : kRows) {
        EXPECT_EQ(row.travel, IsFocuserFieldEnabled(kFocuserOazTravel, row.type)) << row.type;
        EXPECT_EQ(row.length, IsFocuserFieldEnabled(kFocuserOazLength, row.type)) << row.type;
        EXPECT_EQ(row.sliding, IsFocuserFieldEnabled(kFocuserOschTravel, row.type)) << row.type;
        EXPECT_TRUE(IsFocuserFieldEnabled(kFocuserDiameter, row.type));
        EXPECT_TRUE(IsFocuserFieldEnabled(kFocuserHeight, row.type));
        EXPECT_TRUE(IsFocuserFieldEnabled(kFocuserSpare, row.type));
    }
}

TEST(Focuser, NamesItsTypesInBothLanguages)
{
    EXPECT_EQ("Focuser", FocuserTypeText(0, kEnglish));
    EXPECT_EQ("Sliding Focuser", FocuserTypeText(1, kEnglish));
    EXPECT_EQ("Combination Focuser / Sliding Focuser", FocuserTypeText(2, kEnglish));
    EXPECT_EQ("Okularauszug", FocuserTypeText(0, kGerman));
    EXPECT_EQ("Okularschlitten", FocuserTypeText(1, kGerman));
    EXPECT_EQ("Kombination aus Okularauszug und Okularschlittern", FocuserTypeText(2, kGerman));
    EXPECT_EQ("3", FocuserTypeText(3, kGerman));
    EXPECT_EQ("-7", FocuserTypeText(-7, kEnglish));
}

TEST(Focuser, LabelsStandAsTheBuilderKnowsThem)
{
    const auto label = [](FocuserNumber i, int language) {
        const std::string text = Utf8FromCp1252(kFocuserFields[i].label.In(language));
        return text.substr(0, text.find('\n'));
    };
    EXPECT_EQ("Inner Diameter (mm)", label(kFocuserDiameter, kEnglish));
    EXPECT_EQ("Hieght of retracted Focuser (mm)", label(kFocuserHeight, kEnglish));
    EXPECT_EQ("Height of Focal Plane above retracted Focuser", label(kFocuserSpare, kEnglish));
    EXPECT_EQ("Travel (mm)", label(kFocuserOazTravel, kEnglish));
    EXPECT_EQ("Pipe Length", label(kFocuserOazLength, kEnglish));
    EXPECT_EQ("Travel (mm)", label(kFocuserOschTravel, kEnglish));
    EXPECT_EQ("Innendurchmesser (mm)", label(kFocuserDiameter, kGerman));
    EXPECT_EQ("Höhe des (eingefahrenen) Focusers (mm)", label(kFocuserHeight, kGerman));
    EXPECT_EQ("Höhe der Brennebene über dem (eingefahrenen) Focuser", label(kFocuserSpare, kGerman));
    EXPECT_EQ("Verstellweg des Innenrohres (Travel)", label(kFocuserOazTravel, kGerman));
    EXPECT_EQ("Länge des Innenrohres", label(kFocuserOazLength, kGerman));
    EXPECT_EQ("Verstellweg (Travel)", label(kFocuserOschTravel, kGerman));
}

TEST(Focuser, ReadsTheRecordWithOneDecimal)
{
    COrrevaData record;
    record.GetFocalPlaneHeight();
    const FocuserTexts texts = ReadFocuser(record);
    EXPECT_EQ(0, texts.type);
    EXPECT_EQ("50.8", texts.numbers[kFocuserDiameter]);
    EXPECT_EQ("40.0", texts.numbers[kFocuserHeight]);
    EXPECT_EQ("10.0", texts.numbers[kFocuserSpare]);
    EXPECT_EQ("30.0", texts.numbers[kFocuserOazTravel]);
    EXPECT_EQ("40.0", texts.numbers[kFocuserOazLength]);
    EXPECT_EQ("100.0", texts.numbers[kFocuserOschTravel]);
}

TEST(Focuser, ARecordOfASlidingFocuserKeepsItsType)
{
    COrrevaData record;
    record.SetFocuserType(1);
    EXPECT_EQ(1, ReadFocuser(record).type);
}

TEST(Focuser, StoresAllAndClearsTheHeights)
{
    COrrevaData record;
    record.GetFocalPlaneHeight();
    record.GetFocalPlaneHeight();
    ASSERT_FALSE(IsUnset(record.focal_plane_height));
    FocuserTexts texts;
    texts.type = 2;
    texts.numbers = {"50,8", "45", "12", "35", "44", "90"};
    StoreFocuser(record, texts);
    EXPECT_DOUBLE_EQ(50.8, record.focuser_diameter);
    EXPECT_DOUBLE_EQ(45, record.focuser_height);
    EXPECT_DOUBLE_EQ(12, record.focuser_spare);
    EXPECT_EQ(2, record.focuser_type);
    EXPECT_DOUBLE_EQ(35, record.oaz_travel);
    EXPECT_DOUBLE_EQ(44, record.oaz_length);
    EXPECT_DOUBLE_EQ(90, record.osch_travel);
    EXPECT_TRUE(IsUnset(record.focal_plane_height));
    EXPECT_DOUBLE_EQ(45 + 12 + 17.5, record.GetFocuserTotalHeight());
}

TEST(Focuser, ResettingTheDiameterShowsWhatPassesTheWantedField)
{
    COrrevaData record;
    record.GetFocalPlaneHeight();
    record.SetFocuserDiameter(5);
    EXPECT_EQ("50.8", ResetNumber(record, kFocuserFields[kFocuserDiameter].number));
    // z * D / f + w / 2 = 214.25 / 6 + 20 = 55.7 mm: over two inches, so the next whole one.
    record.SetWanted100PercentFow(40);
    EXPECT_EQ("76.2", ResetNumber(record, kFocuserFields[kFocuserDiameter].number));
}

} // namespace

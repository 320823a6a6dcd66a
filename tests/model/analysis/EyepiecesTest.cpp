#include "model/analysis/Eyepieces.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "support/ListText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace {

std::vector<std::string> SortedNames(const std::vector<Eyepiece>& eyepieces)
{
    std::vector<std::string> names;
    for (const std::size_t i : SortEyepieces(eyepieces)) {
        names.push_back(Utf8FromCp1252(eyepieces[i].name));
    }
    return names;
}

TEST(Eyepieces, ALineIsNameFocalLengthAndField)
{
    const std::vector<Eyepiece> eyepieces = ParseEyepieces("Ortho 12,12,45\nWide, 9.5 , 82 , left over\n");
    ASSERT_EQ(2u, eyepieces.size());
    EXPECT_EQ("Ortho 12", eyepieces[0].name);
    EXPECT_EQ(12.0, eyepieces[0].focal_length);
    EXPECT_EQ(45.0, eyepieces[0].apparent_field);
    EXPECT_EQ("Wide", eyepieces[1].name);
    EXPECT_EQ(9.5, eyepieces[1].focal_length);
    EXPECT_EQ(82.0, eyepieces[1].apparent_field);
}

TEST(Eyepieces, EmptyLinesAndRemarksAreSkipped)
{
    const std::vector<Eyepiece> eyepieces =
        ParseEyepieces("# Remark,1,2\n\n   \t \n\r\n  # remark behind blanks,1,2\nA,1,2\n\rstrange,1,2\n\r");
    ASSERT_EQ(1u, eyepieces.size());
    EXPECT_EQ("A", eyepieces[0].name);
}

TEST(Eyepieces, MissingFieldsAreEmptyAndZero)
{
    const std::vector<Eyepiece> eyepieces = ParseEyepieces("Lonely\n,12\nHalf,\nNone,,50\nWord,x,y");
    ASSERT_EQ(5u, eyepieces.size());
    EXPECT_EQ("Lonely", eyepieces[0].name);
    EXPECT_EQ(0.0, eyepieces[0].focal_length);
    EXPECT_EQ(0.0, eyepieces[0].apparent_field);
    EXPECT_EQ("", eyepieces[1].name);
    EXPECT_EQ(12.0, eyepieces[1].focal_length);
    EXPECT_EQ("Half", eyepieces[2].name);
    EXPECT_EQ(0.0, eyepieces[3].focal_length);
    EXPECT_EQ(50.0, eyepieces[3].apparent_field);
    EXPECT_EQ("Word", eyepieces[4].name);
    EXPECT_EQ(0.0, eyepieces[4].focal_length);
}

TEST(Eyepieces, BothLineEndsAreOne)
{
    const std::vector<Eyepiece> eyepieces = ParseEyepieces("A,1\r\nB\r\nC");
    ASSERT_EQ(3u, eyepieces.size());
    EXPECT_EQ("B", eyepieces[1].name);
    EXPECT_EQ("C", eyepieces[2].name);
}

TEST(Eyepieces, OfALongLineTheFirstThousandCharactersCount)
{
    const std::string name(990, 'x');
    const std::vector<Eyepiece> eyepieces =
        ParseEyepieces(name + ",12,45,\n" + name + ",12345678901234567890\n" + std::string(5000000, 'y') +
                       ",12,45\nShort,10,50\n");
    ASSERT_EQ(4u, eyepieces.size());
    EXPECT_EQ(45.0, eyepieces[0].apparent_field);
    EXPECT_EQ(123456789.0, eyepieces[1].focal_length) << "cut behind character 1000";
    EXPECT_EQ(std::string(1000, 'y'), eyepieces[2].name);
    EXPECT_EQ(0.0, eyepieces[2].focal_length);
    EXPECT_EQ("Short", eyepieces[3].name);
}

TEST(Eyepieces, AZeroByteEndsItsLine)
{
    const std::vector<Eyepiece> eyepieces = ParseEyepieces(std::string_view("A\0,12,45\nB,1,2\n\0\n", 18));
    ASSERT_EQ(2u, eyepieces.size());
    EXPECT_EQ("A", eyepieces[0].name);
    EXPECT_EQ(0.0, eyepieces[0].focal_length);
    EXPECT_EQ("B", eyepieces[1].name);
}

TEST(Eyepieces, AreSortedByFoldedCapitalsThenByBytes)
{
    // The umlaut's capital folds to a byte above all letters.
    EXPECT_EQ((std::vector<std::string>{"", "alpha 2", "Beta", "beta", "Gamma", "ÖL", "öl"}),
              SortedNames(ParseEyepieces(Cp1252FromUtf8(",1\nöl\nGamma\nbeta\nBeta\nÖL\nalpha 2\n"))));
}

TEST(Eyepieces, EqualNamesKeepTheirOrderAndLeadToTheirOwnRow)
{
    const std::vector<Eyepiece> eyepieces = ParseEyepieces("Z,1\nSame,2\nSame,3\nA,4\n");
    EXPECT_EQ((std::vector<std::size_t>{3, 1, 2, 0}), SortEyepieces(eyepieces));
}

TEST(Eyepieces, AMissingFileIsNoError)
{
    const EyepieceList missing = LoadEyepieces("/nowhere/at/all/eyepiece.dat");
    EXPECT_TRUE(missing.entries.empty());
    EXPECT_EQ(EyepieceList::End::kComplete, missing.end);
    EXPECT_EQ("", EyepieceEndText(missing, kEnglish));
    const EyepieceList folder = LoadEyepieces(ORREVA_SOURCE_DIR);
    EXPECT_TRUE(folder.entries.empty()) << "nor a directory";
    EXPECT_EQ("eyepiece.dat cannot be read", EyepieceEndText(folder, kEnglish));
    EXPECT_EQ("cannot read a/b", EyepieceEndLine(folder, "a/b"));
}

TEST(Eyepieces, AListEndsAtItsHundredThousandthEntry)
{
    const TemporaryFolder folder;
    std::string text = "# not one\n";
    for (int i = 0; i < 100000; ++i) {
        text += std::to_string(i) + ",1,2\n\n";
    }
    const EyepieceList most = LoadEyepieces(folder.Write("a", text).c_str());
    EXPECT_EQ(100000u, most.entries.size());
    EXPECT_EQ(EyepieceList::End::kComplete, most.end);
    const EyepieceList more = LoadEyepieces(folder.Write("a", text + "one more").c_str());
    EXPECT_EQ(100000u, more.entries.size());
    EXPECT_EQ("99999", more.entries.back().name);
    EXPECT_EQ("more than 100000 eyepieces", EyepieceEndLine(more, "a"));
    EXPECT_EQ("Mehr als 100000 Okulare: Die ersten sind zu sehen", EyepieceEndText(more, kGerman));
}

TEST(Eyepieces, AListEndsBehind16Mebibytes)
{
    const TemporaryFolder folder;
    std::string text = "First,1,2\n" + std::string((16 << 20) - 30, '#') + "\n";
    text += "Last,3,4\n";
    text.resize(16 << 20, '\n');
    const EyepieceList most = LoadEyepieces(folder.Write("a", text).c_str());
    EXPECT_EQ(2u, most.entries.size());
    EXPECT_EQ(EyepieceList::End::kComplete, most.end);
    text.resize((16 << 20) - 4); // now a last line goes over the end
    const EyepieceList more = LoadEyepieces(folder.Write("a", text + "Over the end,1,2\n").c_str());
    ASSERT_EQ(2u, more.entries.size());
    EXPECT_EQ("Last", more.entries.back().name);
    EXPECT_EQ("more than 16 MiB of eyepieces", EyepieceEndLine(more, "a"));
}

TEST(Eyepieces, TheExampleListIsReadWhole)
{
    const std::vector<Eyepiece> eyepieces = LoadEyepieces(ORREVA_SOURCE_DIR "/share/eyepiece.dat").entries;
    EXPECT_EQ((std::vector<std::string>{"Erfle 32", "Kellner 20", "Ortho 12", "Ortho 6", "Plössl 10",
                                        "Plössl 25", "Plössl 40", "Plössl 7.5", "Wide Angle 9"}),
              SortedNames(eyepieces));
    for (const Eyepiece& eyepiece : eyepieces) {
        EXPECT_GT(eyepiece.focal_length, 0) << eyepiece.name;
        EXPECT_GT(eyepiece.apparent_field, 0) << eyepiece.name;
    }
}

TEST(Eyepieces, AnOrthoOf12MmInA1200MmTelescope)
{
    COrrevaData record;
    record.SetMirrorDiameter(200);
    record.SetFocalLength(1200);
    const Eyepiece ortho{"Ortho 12", 12, 45};
    EXPECT_EQ((std::vector<std::string>{"Focal Length | 12.00°", "Apparent Filed of View | 45.00°",
                                        "Magnification | 100.00", "Exit Pupil | 2.00",
                                        "Actual Field of View | 0.45°"}),
              ShownList(EyepieceRows(record, ortho, kEnglish)));
    EXPECT_EQ((std::vector<std::string>{"Brennweite | 12.00°", "Scheinbares Gesichtsfeld | 45.00°",
                                        "Vergrösserung | 100.00", "Austrittspupille | 2.00",
                                        "Tatsächliches Gesichtsfeld | 0.45°"}),
              ShownList(EyepieceRows(record, ortho, kGerman)));
}

TEST(Eyepieces, AFocalLengthOfZeroMagnifiesWithoutEnd)
{
    COrrevaData record;
    const ListRows rows = EyepieceRows(record, {"None", 0, 45}, kEnglish);
    EXPECT_EQ("inf", ShownValue(rows, "Magnification"));
    EXPECT_EQ("0.00", ShownValue(rows, "Exit Pupil"));
    EXPECT_EQ("0.00°", ShownValue(rows, "Actual Field of View"));
}

TEST(Eyepieces, AMillionLinesAreReadAndSorted)
{
    std::string text;
    for (std::int64_t i = 0; i < 1000000; ++i) {
        text += "Eyepiece " + std::to_string(i * 7919 % 1000003) + ",10,50\n";
    }
    const std::vector<Eyepiece> eyepieces = ParseEyepieces(text);
    const std::vector<std::size_t> order = SortEyepieces(eyepieces);
    ASSERT_EQ(1000000u, order.size());
    EXPECT_EQ("Eyepiece 0", eyepieces[order[0]].name);
}

} // namespace

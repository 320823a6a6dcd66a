#include "document/OldFormat.h"
#include "document/Commands.h"
#include "document/DesignFiles.h"
#include "document/OldArchive.h"
#include "document/TelescopeFile.h"
#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/record/RecordFields.h"
#include "support/GoldenFile.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

namespace {

using Events = std::vector<std::string>;
using namespace std::string_literals;

const std::string kOlderVersion =
    "message Achtung, diese Daten wurden mit einer \xe4lteren Programmversion erzeugt!";
const std::string kDialog = "open File Type Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*|| orreva []";

/// Makes the bytes of an old file, value by value.
class OldFile {
public:
    OldFile& Word(std::uint32_t value) { return Bytes(value, 4); }
    OldFile& Real(double value) { return Bytes(std::bit_cast<std::uint64_t>(value), 8); }
    OldFile& Text(const std::string& text)
    {
        bytes += static_cast<char>(text.size()); // short ones only
        bytes += text;
        return *this;
    }
    OldFile& Reals(int count, double first)
    {
        for (int i = 0; i < count; ++i) {
            Real(first + i);
        }
        return *this;
    }

    std::string bytes;

private:
    OldFile& Bytes(std::uint64_t value, int count)
    {
        for (int i = 0; i < count; ++i) {
            bytes += static_cast<char>(value >> 8 * i & 0xFF);
        }
        return *this;
    }
};

/// Every number is the place of its field in the stream.
OldFile Numbered(std::uint32_t magic = 20040101)
{
    OldFile file;
    file.Word(magic).Text("Titel").Text("Bemerkung").Reals(4, 4).Text("Pyrex").Reals(2, 9).Word(11);
    file.Reals(11, 12).Word(23).Reals(6, 24).Reals(18, 30);
    return file;
}

class OldFormat : public testing::Test {
protected:
    ~OldFormat() override { g_nLanguage = kEnglish; }

    bool Import(const std::string& bytes)
    {
        OldArchive archive(bytes);
        return ImportOld(archive, doc.main_record, host);
    }
    bool Open(const std::string& bytes)
    {
        folder.Write("old.orreva", bytes);
        host.Take();
        return doc.OpenOldFormat((folder / "old.orreva").c_str());
    }

    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
    COrrevaData& data = doc.main_record;
};

TEST_F(OldFormat, EachValueOfTheStreamReachesItsField)
{
    EXPECT_TRUE(Import(Numbered().bytes));
    EXPECT_TRUE(host.Take().empty());
    EXPECT_STREQ("Titel", data.title);
    EXPECT_STREQ("Bemerkung", data.description);
    EXPECT_STREQ("Pyrex", data.material);
    EXPECT_EQ(11, data.tube_type);
    EXPECT_EQ(23, data.focuser_type);
    using D = COrrevaData;
    const struct {
        int place;
        double D::*field;
    } rows[] = {
        {4, &D::focal_length},         {5, &D::mirror_diameter},
        {6, &D::mirror_thickness},     {7, &D::density},
        {9, &D::ronchi_grating},       {10, &D::ronchi_constant},
        {12, &D::distance_back},       {13, &D::distance_front},
        {14, &D::inside_diameter_hat}, {15, &D::inside_diameter_box},
        {16, &D::thickness_hat},       {17, &D::thickness_box},
        {18, &D::height_hat},          {19, &D::height_box},
        {20, &D::focuser_height},      {21, &D::focuser_diameter},
        {22, &D::focuser_spare},       {24, &D::oaz_travel},
        {25, &D::oaz_length},          {26, &D::osch_travel},
        {27, &D::secondary_diameter},  {28, &D::wanted_100percent_fow},
        {29, &D::secondary_offset},    {30, &D::weight_mirror},
        {31, &D::balance_mirror},      {32, &D::weight_cell},
        {33, &D::balance_cell},        {34, &D::weight_box},
        {35, &D::balance_box},         {36, &D::weight_truss},
        {37, &D::balance_truss},       {38, &D::weight_hat},
        {39, &D::balance_hat},         {40, &D::weight_secondary},
        {41, &D::balance_secondary},   {42, &D::weight_eyepiece},
        {43, &D::balance_eyepiece},    {44, &D::weight_finder},
        {45, &D::balance_finder},      {46, &D::weight_misc},
        {47, &D::balance_misc},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.place, data.*row.field) << row.place;
    }
}

TEST_F(OldFormat, TheArtificialStarStaysUnset)
{
    data.star_diameter = 3;
    data.star_precision = 4;
    EXPECT_TRUE(Import(Numbered().bytes));
    EXPECT_EQ(HUGE_VAL, data.star_diameter);
    EXPECT_EQ(HUGE_VAL, data.star_precision);
    EXPECT_EQ(0.05, data.GetStarDiameter());
    EXPECT_EQ(20.0, data.GetStarPrecision());
}

TEST_F(OldFormat, UnsetNumbersArriveUnsetAndNothingIsClearedByTheReading)
{
    OldFile file;
    file.Word(20040101).Text("").Text("");
    for (int i = 0; i < 4; ++i) {
        file.Real(HUGE_VAL);
    }
    file.Text("").Reals(2, 9).Word(0xFFFFFFFF).Reals(11, 12).Word(0xFFFFFFFF).Reals(6, 24).Reals(18, 30);
    EXPECT_TRUE(Import(file.bytes));
    EXPECT_EQ(HUGE_VAL, data.focal_length);
    EXPECT_EQ(HUGE_VAL, data.density);
    EXPECT_EQ(-1, data.tube_type);
    EXPECT_EQ(-1, data.focuser_type);
    EXPECT_EQ(29.0, data.secondary_offset) << "no setter ran after it";
    EXPECT_EQ(30.0, data.weight_mirror);
}

TEST_F(OldFormat, AnotherMagicNumberIsWarnedOfInGermanAndReadOn)
{
    for (const int language : {kEnglish, kGerman}) {
        g_nLanguage = language;
        EXPECT_TRUE(Import(Numbered(20030101).bytes));
        EXPECT_EQ(Events{kOlderVersion}, host.Take());
        EXPECT_STREQ("Titel", data.title);
        EXPECT_EQ(47.0, data.balance_misc);
    }
}

TEST_F(OldFormat, ThePromptOfAModifiedTelescopeComesAfterTheWarning)
{
    data.Reset();
    data.SetModified(1);
    host.Take();
    EXPECT_TRUE(Import(Numbered(1).bytes));
    EXPECT_EQ((Events{kOlderVersion, "ask Save noname.orreva.xml?"}), host.Take());
    EXPECT_EQ(0, data.IsModified());
}

TEST_F(OldFormat, OpeningRecalculatesAndLeavesTheDefaultName)
{
    EXPECT_TRUE(Open(Numbered().bytes));
    EXPECT_EQ((Events{"update", "update", "title old.orreva"}), host.Take());
    EXPECT_EQ(1, data.IsModified());
    EXPECT_STREQ("noname.orreva.xml", data.file_path);
    EXPECT_TRUE(doc.HasFile());
    EXPECT_EQ(12.0, doc.mirror_back_position);
}

TEST_F(OldFormat, TheTitleIsTheFilesUntilTheNextReset)
{
    g_pCurrentDocument = &doc;
    EXPECT_TRUE(Open(Numbered().bytes));
    EXPECT_EQ((Events{"title noname.orreva.xml", "update", "update", "title old.orreva"}), host.Take());
    data.Reset();
    EXPECT_EQ((Events{"ask Save noname.orreva.xml?", "title noname.orreva.xml"}), host.Take());
}

TEST_F(OldFormat, TheMenuCommandAsksWithTheMaskOfTheTemplate)
{
    EXPECT_TRUE(IsEnabled(*FindCommand(command_id::kImportOld), doc));
    EXPECT_TRUE(RunCommand(command_id::kImportOld, doc)); // cancelled
    EXPECT_EQ(Events{kDialog}, host.Take());
    EXPECT_FALSE(doc.HasFile());

    folder.Write("old.orreva", Numbered().bytes);
    host.paths = {folder / "old.orreva"};
    EXPECT_TRUE(RunCommand(command_id::kImportOld, doc));
    EXPECT_EQ((Events{kDialog, "update", "update", "title old.orreva"}), host.Take());
    EXPECT_STREQ("Titel", data.title);

    g_nLanguage = kGerman;
    EXPECT_TRUE(RunCommand(command_id::kImportOld, doc));
    EXPECT_EQ(Events{"open Dateityp Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*|| orreva []"},
              host.Take());
}

TEST_F(OldFormat, AFileCutAnywhereEndsTheLoadAndTheRecordKeepsWhatWasRead)
{
    const std::string whole = Numbered().bytes;
    for (std::size_t n = 4; n < whole.size(); ++n) {
        ASSERT_FALSE(Import(whole.substr(0, n))) << n;
        EXPECT_STREQ(n >= 10 ? "Titel" : "Neues Teleskop", data.title) << n;
        EXPECT_EQ(n >= 28 ? 4.0 : HUGE_VAL, data.focal_length) << n;
        EXPECT_EQ(HUGE_VAL, data.balance_misc) << n;
    }
}

TEST_F(OldFormat, AFileWithoutItsMagicNumberLeavesTheRecordAlone)
{
    data.Reset();
    data.SetTitle("Mein Teleskop");
    data.SetModified(1);
    for (const std::string& bytes : {""s, "\x01"s, "\xc5\xcb\x31"s}) {
        EXPECT_FALSE(Open(bytes));
        EXPECT_STREQ("Mein Teleskop", data.title);
        EXPECT_EQ(1, data.IsModified());
    }
}

TEST_F(OldFormat, ADamagedFileIsToldInTheLanguageOfTheProgram)
{
    const std::string cut = Numbered().bytes.substr(0, 100);
    const std::string path = folder / "old.orreva";
    EXPECT_FALSE(Open(cut));
    EXPECT_EQ((Events{"message The file " + path +
                          " ends too early. It is damaged, or no file of the old Orreva format.",
                      "update"}),
              host.Take());
    EXPECT_EQ(0, data.IsModified()) << "nothing was recalculated";
    EXPECT_STREQ("Titel", data.title);

    g_nLanguage = kGerman;
    EXPECT_FALSE(Open(cut));
    EXPECT_EQ("message Die Datei " + path +
                  " endet zu fr\xfch. Sie ist besch\xe4"
                  "digt oder keine Datei im alten Orreva-Format.",
              host.Take().front());
}

TEST_F(OldFormat, ADamagedLengthEndsTheLoad)
{
    OldFile file;
    file.Word(20040101);
    EXPECT_FALSE(Import(file.bytes + "\xff\xff\xff\xff\xff\xff\xff Titel"));
    EXPECT_STREQ("Neues Teleskop", data.title);
    EXPECT_FALSE(Import(file.bytes + "\xff\xff\x00 Titel"s));
    EXPECT_STREQ("Neues Teleskop", data.title);
}

TEST_F(OldFormat, AFileThatCannotBeReadIsTold)
{
    data.Reset();
    data.SetTitle("Mein Teleskop");
    const std::string missing = folder / "missing.orreva";
    host.Take();
    EXPECT_FALSE(doc.OpenOldFormat(missing.c_str()));
    EXPECT_EQ(Events{"message The file " + missing + " cannot be opened."}, host.Take());
    EXPECT_FALSE(doc.OpenOldFormat((folder / "").c_str())) << "a folder";
    g_nLanguage = kGerman;
    host.Take();
    EXPECT_FALSE(doc.OpenOldFormat(missing.c_str()));
    EXPECT_EQ(Events{"message Die Datei " + missing +
                     " kann nicht ge\xf6"
                     "ffnet werden."},
              host.Take());
    EXPECT_STREQ("Mein Teleskop", data.title);
}

TEST_F(OldFormat, ADesignFileOpenedThisWayWarnsAndGivesNonsenseOrFails)
{
    data.Reset();
    const std::string design = WriteTelescope(data);
    // "<?xm" is taken for the number, "l" (108) for the length of the title.
    EXPECT_TRUE(Open(design));
    EXPECT_EQ((Events{kOlderVersion, "update", "update", "title old.orreva"}), host.Take());
    EXPECT_EQ(design.substr(5, 108), data.title.GetText());

    data.SetModified(0);
    EXPECT_FALSE(Open(design.substr(0, 300)));
    EXPECT_EQ((Events{kOlderVersion,
                      "message The file " + (folder / "old.orreva") +
                          " ends too early. It is damaged, or no file of the old Orreva format.",
                      "update"}),
              host.Take());
}

TEST_F(OldFormat, TheGoldenFileImportedSavedAndReopenedKeepsEveryField)
{
    ASSERT_TRUE(Open(GoldenFile("exchange/truss.orreva")));
    EXPECT_EQ(GoldenFile("exchange/truss.orreva.xml"), WriteTelescope(data));
    doc.OnFileSave();
    EXPECT_EQ(GoldenFile("exchange/truss.orreva.xml"), folder.Read("noname.orreva.xml"));

    DesignFiles files;
    COrrevaData again(nullptr, &files);
    ASSERT_EQ(0, again.Load((folder / "noname.orreva.xml").c_str()));
    for (const RecordField& entry : RecordFields()) {
        if (const auto* text = std::get_if<TextField>(&entry.field)) {
            EXPECT_STREQ(data.*text->place, again.*text->place) << entry.key;
        } else if (const auto* real = std::get_if<RealField>(&entry.field)) {
            EXPECT_EQ(data.*real->place, again.*real->place) << entry.key;
        } else if (const auto* type = std::get_if<TypeField>(&entry.field)) {
            EXPECT_EQ(data.*type->place, again.*type->place) << entry.key;
        }
    }
}

TEST_F(OldFormat, BytesBehindTheLastFieldAreNotLookedAt)
{
    EXPECT_TRUE(Open(Numbered().bytes + "anything"));
    EXPECT_EQ(47.0, data.balance_misc);
}

TEST_F(OldFormat, NumbersWithoutSenseAreTakenAsTheyStand)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    OldFile file;
    file.Word(20040101).Text("").Text("").Real(nan).Real(-HUGE_VAL).Real(0).Real(-1e308).Text("");
    file.Reals(2, 9).Word(0x80000000).Reals(11, -5).Word(0x7FFFFFFF).Reals(6, 24).Reals(18, 30);
    EXPECT_TRUE(Import(file.bytes));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), data.tube_type);
    EXPECT_EQ(-HUGE_VAL, data.mirror_diameter);
    EXPECT_EQ(0x7FFFFFFF, data.focuser_type);
    EXPECT_TRUE(Open(file.bytes));
}

} // namespace

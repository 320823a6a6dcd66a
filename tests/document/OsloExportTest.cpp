#include "document/OsloExport.h"

#include "document/Commands.h"
#include "document/FileMasks.h"
#include "lib/text/CodePage.h"
#include "support/GoldenFile.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"
#include "support/TestTelescopes.h"

#include <gtest/gtest.h>

#include <climits>
#include <filesystem>

namespace {

const std::string kDialog =
    "save as OSLO Lens Files (*.len)|*.len|All Files (*.*)|*.*|| *.len [untitled.len]";

class OsloExportCommand : public testing::Test {
protected:
    /// What the command writes.
    std::string Export()
    {
        host.paths = {folder / "export.len"};
        doc.OnExportOslo();
        return folder.Read("export.len");
    }

    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST(FormatOsloNumber, SelectsAFormatByItsPrecision)
{
    const struct {
        int precision;
        const char* text;
    } rows[] = {{-2, "-23.2410"},  {-1, "-23.2"},          {0, "   -23"},         {1, "   -23.2"},
                {2, "   -23.24"},  {3, "   -23.241"},      {4, "   -23.2410"},    {5, "   -23.24"},
                {-3, "   -23.24"}, {INT_MAX, "   -23.24"}, {INT_MIN, "   -23.24"}};
    for (const auto& row : rows) {
        EXPECT_STREQ(row.text, FormatOsloNumber(-23.241, row.precision)) << row.precision;
    }
}

TEST(FormatOsloNumber, HoldsTheLargestNumber)
{
    const std::string text = FormatOsloNumber(-1.7976931348623157e308, 4);
    EXPECT_EQ(1u + 309u + 1u + 4u, text.size());
    EXPECT_EQ("-17976931348623157", text.substr(0, 18));
    EXPECT_EQ(".0000", text.substr(text.size() - 5));
}

TEST_F(OsloExportCommand, WritesTheGoldenFiles)
{
    for (const TestTelescope& telescope : kTestTelescopes) {
        SCOPED_TRACE(telescope.name);
        telescope.Make(doc);
        host.paths.push_back(folder / "scope.len");
        EXPECT_TRUE(RunCommand(command_id::kExportOslo, doc));
        EXPECT_EQ(GoldenFile(std::string("exchange/") + telescope.name + ".len"), folder.Read("scope.len"));
    }
}

TEST_F(OsloExportCommand, RecalculatesBeforeItAsksForTheFile)
{
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetModified(0);
    host.Take();
    EXPECT_TRUE(RunCommand(command_id::kExportOslo, doc)); // cancelled
    EXPECT_EQ((std::vector<std::string>{"update", kDialog}), host.Take());
    EXPECT_EQ(1, doc.main_record.IsModified());
}

TEST_F(OsloExportCommand, IsEnabledOnlyWithATelescope)
{
    const Command& command = *FindCommand(command_id::kExportOslo);
    EXPECT_FALSE(IsEnabled(command, doc));
    doc.main_record.Reset();
    EXPECT_TRUE(IsEnabled(command, doc));
}

TEST_F(OsloExportCommand, TellsAFileThatCannotBeOpened)
{
    kTestTelescopes[0].Make(doc);
    host.Take();
    host.paths = {folder / "no/such/folder.len"};
    doc.OnExportOslo();
    EXPECT_EQ((std::vector<std::string>{"update", kDialog, "message Error writing"}), host.Take());
}

TEST_F(OsloExportCommand, AFolderInPlaceOfTheFileStays)
{
    kTestTelescopes[0].Make(doc);
    std::filesystem::create_directory(folder / "scope.len");
    host.Take();
    host.paths = {folder / "scope.len"};
    doc.OnExportOslo();
    EXPECT_EQ("message Error writing", host.Take().back());
    EXPECT_TRUE(std::filesystem::is_directory(folder / "scope.len"));
}

TEST_F(OsloExportCommand, TheTitleStandsAsItIs)
{
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetTitle("Der \"Große\" 100%s"_cp1252);
    const std::string text = Export();
    EXPECT_NE(std::string::npos, text.find("\r\nLEN NEW \"Der \"Gro\xdf"
                                           "e\" 100%s\" 1500.0 5\r\n"));
}

TEST_F(OsloExportCommand, NoUnsetFieldReachesTheFile)
{
    doc.main_record.Reset();
    const std::string text = Export();
    EXPECT_EQ(std::string::npos, text.find("inf"));
    EXPECT_EQ(std::string::npos, text.find("nan"));
    // The defaults are those of the quick telescope, but for the title.
    std::string golden = GoldenFile("exchange/new.len");
    golden.replace(golden.find("Untitleld Telescope"), 19, "Neues Teleskop");
    EXPECT_EQ(golden, text);
}

TEST_F(OsloExportCommand, ExportsTheActiveRecord)
{
    kTestTelescopes[0].Make(doc);
    doc.scratch_record.Reset();
    doc.scratch_record.SetTitle("Skizze");
    doc.active_record = &doc.scratch_record;
    EXPECT_NE(std::string::npos, Export().find("\"Skizze\""));
}

} // namespace

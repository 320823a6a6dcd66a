#include "document/FtaExport.h"

#include "document/Commands.h"
#include "support/GoldenFile.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"
#include "support/TestTelescopes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

namespace {

const std::string kDialog = "save as FTA Files (*.mir)|*.mir|All Files (*.*)|*.*|| *.len [untitled.mir]";

class FtaExportCommand : public testing::Test {
protected:
    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST(FtaZoneCount, GrowsWithTheMirrorsAberration)
{
    EXPECT_EQ(1, FtaZoneCount(150, 1200)); // 22500 / 11443 = 1.97
    EXPECT_EQ(3, FtaZoneCount(250, 1500)); // 62500 / 15992 = 3.91
    EXPECT_EQ(1, FtaZoneCount(114, 900));  // 12996 / 7432.4 = 1.75
    EXPECT_EQ(0, FtaZoneCount(60, 900));   // 3600 / 7432.4 = 0.48
}

TEST(FtaZoneCount, WhatIsNoCountIsZero)
{
    constexpr double inf = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(0, FtaZoneCount(250, 0)) << "infinite";
    EXPECT_EQ(0, FtaZoneCount(0, 0)) << "no number";
    EXPECT_EQ(0, FtaZoneCount(250, -1500)) << "a root of a negative number";
    EXPECT_EQ(0, FtaZoneCount(250, -inf));
    EXPECT_EQ(0, FtaZoneCount(-inf, 1500));
    EXPECT_EQ(0, FtaZoneCount(1e300, 1500)) << "its square is infinite";
    EXPECT_EQ(0, FtaZoneCount(nan, 1500));
    EXPECT_EQ(0, FtaZoneCount(250, nan));
    EXPECT_EQ(0, FtaZoneCount(250, 1e300)) << "cut to none";
    EXPECT_EQ(3, FtaZoneCount(-250, 1500)) << "the sign of D is lost in its square";
    EXPECT_EQ(std::numeric_limits<int>::max(), FtaZoneCount(1e100, 1500));
}

TEST_F(FtaExportCommand, WritesTheGoldenFiles)
{
    for (const TestTelescope& telescope : kTestTelescopes) {
        SCOPED_TRACE(telescope.name);
        telescope.Make(doc);
        host.paths.push_back(folder / "scope.mir");
        EXPECT_TRUE(RunCommand(command_id::kExportFta, doc));
        EXPECT_EQ(GoldenFile(std::string("exchange/") + telescope.name + ".mir"), folder.Read("scope.mir"));
    }
}

TEST_F(FtaExportCommand, DoesNotRecalculate)
{
    kTestTelescopes[0].Make(doc);
    host.Take();
    host.paths = {folder / "scope.mir"};
    EXPECT_TRUE(RunCommand(command_id::kExportFta, doc));
    EXPECT_EQ(std::vector<std::string>{kDialog}, host.Take());
    EXPECT_EQ(0, doc.main_record.IsModified());
    EXPECT_EQ(HUGE_VAL, doc.main_record.secondary_diameter);
}

TEST_F(FtaExportCommand, NothingHappensOnCancel)
{
    kTestTelescopes[0].Make(doc);
    host.Take();
    doc.OnExportFta();
    EXPECT_EQ(std::vector<std::string>{kDialog}, host.Take());
    EXPECT_TRUE(std::filesystem::is_empty(folder / ""));
}

TEST_F(FtaExportCommand, IsEnabledOnlyWithATelescope)
{
    const Command& command = *FindCommand(command_id::kExportFta);
    EXPECT_FALSE(IsEnabled(command, doc));
    doc.main_record.Reset();
    EXPECT_TRUE(IsEnabled(command, doc));
}

TEST_F(FtaExportCommand, WithoutZonesTheListIsEmpty)
{
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetMirrorDiameter(60);
    doc.main_record.SetFocalLength(900);
    const std::string text = FtaExport(doc.main_record).value();
    EXPECT_NE(std::string::npos,
              text.find("#Number Of Zones\r\n 0\r\n#Couder Screen\r\n 0\r\n#Effective Zoneradius\r\n"));
}

TEST_F(FtaExportCommand, OneZoneReachesTheEdge)
{
    kTestTelescopes[1].Make(doc);
    const std::string text = FtaExport(doc.main_record).value();
    EXPECT_NE(std::string::npos,
              text.find(" 1\r\n#Couder Screen\r\n 0\r\n 75.000000\r\n#Effective Zoneradius\r\n"));
}

TEST_F(FtaExportCommand, TellsAFileThatCannotBeOpened)
{
    kTestTelescopes[0].Make(doc);
    host.Take();
    host.paths = {folder / "no/such/folder.mir"};
    doc.OnExportFta();
    EXPECT_EQ((std::vector<std::string>{kDialog, "message Error writing..."}), host.Take());
}

TEST_F(FtaExportCommand, ANonsenseMirrorWritesNoFileAndLeavesTheOldOne)
{
    kTestTelescopes[0].Make(doc);
    folder.Write("old.mir", "before");
    // 5e7^2 / (16 sqrt(3000^3 3.7e-5)) = 1.56e11 zones
    doc.main_record.SetMirrorDiameter(5e7);
    doc.main_record.SetFocalLength(1500);
    EXPECT_FALSE(FtaExport(doc.main_record));
    for (const char* name : {"old.mir", "new.mir"}) {
        host.Take();
        host.paths = {folder / name};
        doc.OnExportFta();
        EXPECT_EQ((std::vector<std::string>{kDialog, "message Error writing..."}), host.Take());
    }
    EXPECT_EQ("before", folder.Read("old.mir"));
    EXPECT_FALSE(std::filesystem::exists(folder / "new.mir"));
}

TEST_F(FtaExportCommand, AHundredThousandZonesExactlyAreWritten)
{
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetFocalLength(0.5);
    doc.main_record.SetMirrorDiameter(98.6533); // 10.27493 D^2 = 100000.5
    ASSERT_EQ(100000, FtaZoneCount(98.6533, 0.5));
    const auto text = FtaExport(doc.main_record);
    ASSERT_TRUE(text);
    EXPECT_NE(std::string::npos, text->find("#Number Of Zones\r\n 100000\r\n"));
    EXPECT_NE(std::string::npos, text->find("\r\n 49.326650\r\n#Effective Zoneradius\r\n")) << "D / 2";
    doc.main_record.SetMirrorDiameter(98.6536); // 100001.1
    ASSERT_EQ(100001, FtaZoneCount(98.6536, 0.5));
    EXPECT_FALSE(FtaExport(doc.main_record));
}

TEST_F(FtaExportCommand, AHundredThousandZonesAreTheMost)
{
    // With f = 0.5 the radius of curvature is 1, and D^2 / (16 sqrt(3.7e-5)) = 10.27493 D^2.
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetFocalLength(0.5);
    doc.main_record.SetMirrorDiameter(98.65); // 99993.9
    const std::string most = FtaExport(doc.main_record).value();
    EXPECT_NE(std::string::npos, most.find("#Number Of Zones\r\n 99993\r\n"));
    EXPECT_NE(std::string::npos, most.find("\r\n 49.325000\r\n#Effective Zoneradius\r\n"));
    doc.main_record.SetMirrorDiameter(98.66); // 100014.1
    EXPECT_FALSE(FtaExport(doc.main_record));
}

} // namespace

#include "cli/ExchangeVerbs.h"

#include "lib/text/LogSink.h"
#include "support/GoldenFile.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"
#include "support/TestTelescopes.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using Events = std::vector<std::string>;

class ExchangeVerbs : public testing::Test {
protected:
    int Import(const std::string& bytes, const std::string& output)
    {
        folder.Write("old.orreva", bytes);
        return ImportVerb(doc, folder / "old.orreva", output);
    }

    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST_F(ExchangeVerbs, ImportWritesTheDesignFile)
{
    EXPECT_EQ(0, Import(GoldenFile("exchange/truss.orreva"), folder / "new.orreva.xml"));
    EXPECT_EQ(GoldenFile("exchange/truss.orreva.xml"), folder.Read("new.orreva.xml"));
}

TEST_F(ExchangeVerbs, WithoutAFileTheBytesGoToStandardOutput)
{
    testing::internal::CaptureStdout();
    EXPECT_EQ(0, Import(GoldenFile("exchange/truss.orreva"), ""));
    EXPECT_EQ(GoldenFile("exchange/truss.orreva.xml"), testing::internal::GetCapturedStdout());
}

TEST_F(ExchangeVerbs, AnotherMagicNumberIsWarnedOfAndReadOn)
{
    std::string bytes = GoldenFile("exchange/truss.orreva");
    bytes[0] = 1;
    EXPECT_EQ(0, Import(bytes, folder / "new.orreva.xml"));
    EXPECT_EQ("message Achtung, diese Daten wurden mit einer \xe4lteren Programmversion erzeugt!",
              host.Take().front());
    EXPECT_EQ(GoldenFile("exchange/truss.orreva.xml"), folder.Read("new.orreva.xml"));
}

TEST_F(ExchangeVerbs, ADamagedFileGivesNoOutput)
{
    folder.Write("before", "before");
    const std::string cut = GoldenFile("exchange/truss.orreva").substr(0, 200);
    for (const char* name : {"before", "new"}) {
        EXPECT_EQ(1, Import(cut, folder / name));
    }
    testing::internal::CaptureStdout();
    EXPECT_EQ(1, Import(cut, ""));
    EXPECT_EQ(1, ImportVerb(doc, folder / "missing", ""));
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("before", folder.Read("before"));
    EXPECT_FALSE(std::filesystem::exists(folder / "new"));
}

TEST_F(ExchangeVerbs, ExportsWriteTheFilesOfTheirCommands)
{
    ASSERT_EQ(nullptr, FindExport("lens"));
    for (const auto& [word, ending] : {std::pair{"oslo", ".len"}, std::pair{"fta", ".mir"}}) {
        const ExportForm* const form = FindExport(word);
        ASSERT_NE(nullptr, form);
        for (const TestTelescope& telescope : kTestTelescopes) {
            SCOPED_TRACE(telescope.name);
            telescope.Make(doc);
            const std::string golden = GoldenFile(std::string("exchange/") + telescope.name + ending);
            EXPECT_EQ(0, form->run(doc, folder / "out"));
            EXPECT_EQ(golden, folder.Read("out"));
            testing::internal::CaptureStdout();
            EXPECT_EQ(0, form->run(doc, ""));
            EXPECT_EQ(golden, testing::internal::GetCapturedStdout());
        }
    }
}

TEST_F(ExchangeVerbs, ANonsenseMirrorIsToldAndNotWritten)
{
    kTestTelescopes[0].Make(doc);
    doc.main_record.SetMirrorDiameter(5e7);
    host.Take();
    EXPECT_EQ(1, FindExport("fta")->run(doc, folder / "out"));
    EXPECT_EQ(Events{"message Error writing..."}, host.Take());
    EXPECT_FALSE(std::filesystem::exists(folder / "out"));
}

TEST_F(ExchangeVerbs, AFileThatCannotBeWrittenIsToldOnStandardError)
{
    kTestTelescopes[0].Make(doc);
    const std::string path = folder / "no/such/folder.len";
    const LogSink before = SetLogSink(nullptr); // a debug build logs to standard error
    testing::internal::CaptureStderr();
    EXPECT_EQ(1, FindExport("oslo")->run(doc, path));
    EXPECT_EQ("orreva-cli: cannot write " + path + "\n", testing::internal::GetCapturedStderr());
    SetLogSink(before);
}

} // namespace

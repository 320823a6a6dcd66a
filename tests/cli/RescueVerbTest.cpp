#include "cli/Shell.h"
#include "document/RescueCopies.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace {

class CliRescue : public testing::Test {
protected:
    const TemporaryFolder folder;
    const Environment state{"XDG_STATE_HOME", (folder / "state").c_str()};
    const Environment zone{"TZ", "XYZ-1"};
};

TEST_F(CliRescue, ListsNothingAtFirst)
{
    EXPECT_EQ("", Cli("rescue").out);
    EXPECT_EQ("number,time,reason,title,path\n", Cli("rescue --format csv").out);
    EXPECT_EQ("[]\n", Cli("rescue --format json").out);
    EXPECT_EQ(1, Cli("rescue 1").status);
    EXPECT_FALSE(std::filesystem::exists("state")) << "looking makes no folder";
}

TEST_F(CliRescue, ListsTheCopiesNewestFirstAndWritesThem)
{
    RescueCopies copies;
    copies.Keep(RescueReason::Discarded, "<telescope><title>one</title>", "one", "/a,b/one.orreva.xml");
    copies.Keep(RescueReason::NotSaved, "<telescope>\r\n<title>M\xFCller\xFF", "M\xFCller", "two.orreva.xml");
    const std::string two = folder / "two.orreva.xml";
    const std::string newer = copies.List()[0].time;
    const std::string older = copies.List()[1].time;
    EXPECT_EQ("+01:00", newer.substr(19));

    EXPECT_EQ("1\t" + newer + "\tnot-saved\tMüller\t" + two + "\n2\t" + older +
                  "\tdiscarded\tone\t/a,b/one.orreva.xml\n",
              Cli("rescue").out);
    EXPECT_EQ("number,time,reason,title,path\n1," + newer + ",not-saved,Müller," + two + "\n2," + older +
                  ",discarded,one,\"/a,b/one.orreva.xml\"\n",
              Cli("rescue --format csv").out);
    const std::string json = Cli("rescue --format json").out;
    EXPECT_NE(std::string::npos, json.find("    \"number\": 1,\n    \"time\": \"" + newer +
                                           "\",\n    \"reason\": \"not-saved\",\n    \"title\": \"Müller\",\n"
                                           "    \"path\": \"" +
                                           two + "\"\n"))
        << json;

    EXPECT_EQ("<telescope>\r\n<title>M\xFCller\xFF", Cli("rescue 1").out);
    EXPECT_EQ(0, Cli("rescue 2 -o out").status);
    EXPECT_EQ("<telescope><title>one</title>", folder.Read("out"));
}

TEST_F(CliRescue, TellsAWordAtFault)
{
    RescueCopies().Keep(RescueReason::Discarded, "<telescope>", "", "a");
    for (const char* const number : {"0", "2", "99999999999999999999999"}) {
        const CliRun run = Cli(std::string("rescue ") + number);
        EXPECT_EQ(1, run.status);
        EXPECT_EQ(std::string("orreva-cli: no rescue copy of the number ") + number + "\n", run.err);
    }
    for (const char* const word : {"one", "1.5", "''", "1x"}) {
        EXPECT_EQ(2, Cli(std::string("rescue ") + word).status) << word;
    }
    EXPECT_EQ(2, Cli("rescue 1 2").status);
    EXPECT_EQ(2, Cli("rescue --set title=x").status);
}

TEST_F(CliRescue, ListsNoCopyOfAProgramThatRuns)
{
    RescueCopies copies;
    COrrevaData record;
    ASSERT_TRUE(copies.WriteLive(record));
    EXPECT_EQ("", Cli("rescue").out);
}

TEST_F(CliRescue, SavingOverAFileKeepsNoSecondName)
{
    folder.Write("a.orreva.xml", "<telescope>old");
    EXPECT_EQ(0, Cli("save -o a.orreva.xml").status);
    EXPECT_FALSE(std::filesystem::exists("a.orreva.xml~"));
    EXPECT_EQ("", Cli("rescue").out);
}

} // namespace

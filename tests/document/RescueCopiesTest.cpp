#include "document/RescueCopies.h"

#include "document/RescueNote.h"
#include "document/TelescopeFile.h"
#include "model/record/OrrevaData.h"
#include "support/Environment.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace {

std::string Design(const char* title, std::size_t length = 0)
{
    COrrevaData record;
    record.SetTitle(title);
    record.SetDescription(std::string(length, 'd').c_str());
    return WriteTelescope(record);
}

std::vector<std::string> Titles(const RescueCopies& copies)
{
    std::vector<std::string> titles;
    for (const RescueCopy& copy : copies.List()) {
        titles.push_back(copy.title);
    }
    return titles;
}

/// Lets another program write a live copy and end without order.
void CrashWithCopy(const std::string& folder, const char* title)
{
    const pid_t child = fork();
    if (child == 0) {
        RescueCopies copies(folder);
        COrrevaData record;
        record.SetTitle(title);
        record.file_path = "/designs/a.orreva.xml";
        copies.WriteLive(record);
        kill(getpid(), SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
}

using Strings = std::vector<std::string>;

TEST(RescueFolder, StandsInTheStateOfTheUser)
{
    const Environment home("HOME", "/home/me");
    {
        const Environment state("XDG_STATE_HOME", "/state");
        EXPECT_EQ("/state/orreva/rescue", RescueFolder());
    }
    for (const char* const none : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Environment state("XDG_STATE_HOME", none);
        EXPECT_EQ("/home/me/.local/state/orreva/rescue", RescueFolder());
    }
}

TEST(RescueCopies, KeepADesignWithItsNote)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder / "state/rescue");
    EXPECT_TRUE(copies.List().empty());
    const std::string design = Design("mine");
    const std::string file = copies.Keep(RescueReason::Discarded, design, "mine", "a.orreva.xml");
    ASSERT_FALSE(file.empty());
    const auto list = copies.List();
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(file, list[0].file);
    EXPECT_EQ(RescueReason::Discarded, list[0].reason);
    EXPECT_EQ("mine", list[0].title);
    EXPECT_EQ(folder / "a.orreva.xml", list[0].path) << "absolute";
    EXPECT_EQ(design, folder.Read(fs::relative(file, folder.Path())));
    EXPECT_EQ(25u, list[0].time.size());
    struct stat status = {};
    ASSERT_EQ(0, stat((folder / "state/rescue").c_str(), &status));
    EXPECT_EQ(0700u, status.st_mode & 07777u) << "nobody else's business";
    EXPECT_EQ(0, copies.TakeFailure());
}

TEST(RescueCopies, ListTheNewestFirst)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    for (const char* const title : {"a", "b", "c"}) {
        copies.Keep(RescueReason::NotSaved, Design(title), title, "x");
    }
    EXPECT_EQ((Strings{"c", "b", "a"}), Titles(copies));
}

TEST(RescueCopies, TheNewestFiftyStay)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    for (int i = 0; i < 53; ++i) {
        copies.Keep(RescueReason::Discarded, Design("x"), std::to_string(i), "x");
    }
    const Strings titles = Titles(copies);
    ASSERT_EQ(50u, titles.size());
    EXPECT_EQ("52", titles.front());
    EXPECT_EQ("3", titles.back());
    EXPECT_EQ(100, folder.Count()) << "a design and a note each";
}

TEST(RescueCopies, ACopyThatWasJustMadeStaysWhateverTheOthersTimes)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    for (int i = 0; i < 50; ++i) { // kept while the clock went wrong
        RescueNote note = RescueNote::Now();
        note.nanoseconds += 1'000'000'000'000'000;
        note.reason = "discarded";
        char id[40];
        std::snprintf(id, sizeof id, "%016llx-%08x", static_cast<unsigned long long>(note.nanoseconds), i);
        folder.Write(std::string(id) + ".orreva.xml", Design("future"));
        folder.Write(std::string(id) + ".note", note.Text());
    }
    ASSERT_EQ(50u, copies.List().size());
    const std::string file = copies.Keep(RescueReason::Replaced, Design("now"), "now", "x");
    EXPECT_TRUE(fs::exists(file));
    const Strings titles = Titles(copies);
    EXPECT_EQ(50u, titles.size());
    EXPECT_EQ("now", titles.back());
}

/// While one lives, no file may grow beyond a few bytes: a disk that is full.
class FullDisk {
public:
    FullDisk()
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit few = {10, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
};

TEST(RescueCopies, OnAFullDiskTheLiveCopyIsLeftBehind)
{
    const TemporaryFolder folder;
    COrrevaData record;
    record.SetTitle("first");
    {
        RescueCopies copies(folder.Path());
        ASSERT_TRUE(copies.WriteLive(record));
        {
            const FullDisk full;
            record.SetTitle("second");
            EXPECT_FALSE(copies.WriteLive(record));
            EXPECT_EQ(3, folder.Count()) << "the state before stays, with its note and its lock";
            EXPECT_EQ("", copies.Keep(RescueReason::NotSaved, record));
        }
        EXPECT_EQ(EFBIG, copies.TakeFailure());
        copies.DropLive(); // the program ends in order
    }
    RescueCopies next(folder.Path());
    EXPECT_EQ(Strings{"first"}, Titles(next));
    const auto news = next.TakeNews();
    ASSERT_TRUE(news);
    EXPECT_EQ(RescueReason::Crash, news->reason);
}

TEST(RescueCopies, TwentyMegabytesStay)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    for (const char* const title : {"a", "b", "c"}) {
        EXPECT_NE("", copies.Keep(RescueReason::Discarded, Design(title, 7'000'000), title, "x"));
    }
    EXPECT_EQ((Strings{"c", "b"}), Titles(copies));
    EXPECT_EQ("", copies.Keep(RescueReason::Discarded, std::string(20'000'001, ' '), "d", "x"));
    EXPECT_EQ(EFBIG, copies.TakeFailure());
    EXPECT_EQ((Strings{"c", "b"}), Titles(copies));
}

TEST(RescueCopies, PassOverWhatIsNoneOfTheirs)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    const std::string kept = copies.Keep(RescueReason::Replaced, Design("kept"), "kept", "x");
    const std::string bare = copies.Keep(RescueReason::Replaced, Design("no note"), "no note", "x");
    fs::remove(fs::path(bare).replace_extension("").replace_extension(".note"));
    const std::string gone = copies.Keep(RescueReason::Replaced, Design("no design"), "no design", "x");
    fs::remove(gone);
    copies.Keep(RescueReason::Replaced, "an export, put aside before it was overwritten", "", "x.len");
    folder.Write("0123456789abcdef-01234567.note", "damaged");
    folder.Write("0123456789abcdef-01234568.note", "time 1\noffset 0\nreason none of ours\nseen 0\n");
    folder.Write("foreign.note", "time 1\noffset 0\nreason crash\nseen 0\n");
    fs::create_directory(folder / "0123456789abcdef-01234569.note");
    ASSERT_EQ(0, mkfifo((folder / "0123456789abcdef-0123456a.note").c_str(), 0600));
    EXPECT_EQ(Strings{"kept"}, Titles(copies));
    EXPECT_FALSE(copies.TakeNews());
    for (int i = 0; i < 60; ++i) { // what is none of theirs is not removed for the sake of room either
        copies.Keep(RescueReason::Discarded, Design("x"), "x", "x");
    }
    EXPECT_TRUE(fs::exists(folder / "foreign.note"));
}

TEST(RescueCopies, RemoveTheRemainsOfYesterday)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    folder.Write("0123456789abcdef-01234567.orreva.xml", "<telescope>");
    folder.Write("0123456789abcdef-01234568.lock", "");
    folder.Write("7fffffffffffffff-01234567.orreva.xml", "<telescope>"); // somebody is at work on it
    folder.Write("0123456789abcdef.orreva.xml", "<telescope>");
    EXPECT_FALSE(copies.TakeNews());
    EXPECT_EQ(2, folder.Count());
    EXPECT_TRUE(fs::exists(folder / "7fffffffffffffff-01234567.orreva.xml"));
    EXPECT_TRUE(fs::exists(folder / "0123456789abcdef.orreva.xml"));
}

TEST(RescueCopies, TheLiveCopyIsNobodyElsesAndGoesInOrder)
{
    const TemporaryFolder folder;
    const RescueCopies other(folder.Path());
    COrrevaData record;
    record.SetTitle("first");
    {
        RescueCopies copies(folder.Path());
        EXPECT_TRUE(copies.WriteLive(record));
        EXPECT_EQ(3, folder.Count()) << "design, note and lock";
        EXPECT_TRUE(other.List().empty()) << "of a program that is running";
        EXPECT_TRUE(copies.List().empty());
        record.SetTitle("second");
        EXPECT_TRUE(copies.WriteLive(record));
        EXPECT_EQ(3, folder.Count()) << "one file a program";
        copies.DropLive();
        EXPECT_EQ(1, folder.Count());
        EXPECT_TRUE(copies.WriteLive(record));
    }
    EXPECT_EQ(0, folder.Count());
}

TEST(RescueCopies, ALiveCopyLeftBehindIsACrash)
{
    const TemporaryFolder folder;
    CrashWithCopy(folder.Path(), "lost");
    RescueCopies copies(folder.Path());
    const auto list = copies.List();
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(RescueReason::Crash, list[0].reason);
    EXPECT_EQ("lost", list[0].title);
    EXPECT_EQ("/designs/a.orreva.xml", list[0].path);
    EXPECT_EQ(list[0].file, copies.TakeNews().value_or(RescueCopy{}).file);
}

TEST(RescueCopies, NewsComeOnce)
{
    const TemporaryFolder folder;
    RescueCopies copies(folder.Path());
    EXPECT_FALSE(copies.TakeNews());
    copies.Keep(RescueReason::NotSaved, Design("not saved"), "not saved", "x");
    CrashWithCopy(folder.Path(), "crash");
    copies.Keep(RescueReason::Discarded, Design("discarded"), "discarded", "x");
    copies.Keep(RescueReason::Replaced, Design("replaced"), "replaced", "x");
    const auto news = copies.TakeNews();
    ASSERT_TRUE(news);
    EXPECT_EQ("crash", news->title) << "the newest of those two kinds";
    EXPECT_FALSE(copies.TakeNews());
    EXPECT_FALSE(RescueCopies(folder.Path()).TakeNews());
    EXPECT_EQ(4u, copies.List().size()) << "they stay in the list";
    CrashWithCopy(folder.Path(), "again");
    EXPECT_EQ("again", copies.TakeNews().value_or(RescueCopy{}).title);
}

TEST(RescueCopies, AFolderThatCannotBeWrittenIsToldOnce)
{
    const TemporaryFolder folder;
    folder.Write("file", "");
    RescueCopies copies(folder / "file/rescue");
    COrrevaData record;
    EXPECT_EQ(0, copies.TakeFailure());
    EXPECT_EQ("", copies.Keep(RescueReason::Discarded, record));
    EXPECT_FALSE(copies.WriteLive(record));
    EXPECT_EQ(ENOTDIR, copies.TakeFailure());
    EXPECT_EQ("", copies.Keep(RescueReason::Discarded, record));
    EXPECT_EQ(0, copies.TakeFailure());
    EXPECT_TRUE(copies.List().empty());
    EXPECT_FALSE(RescueCopies("").WriteLive(record));
}

} // namespace

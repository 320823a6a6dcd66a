#include "lib/platform/LibSup.h"

#include "lib/platform/LibApp.h"

#include "support/DesktopRecorder.h"
#include "support/Environment.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

namespace {

using Calls = std::vector<std::string>;

// Identity

TEST(LibSup, StartsWithItsDefaults)
{
    EXPECT_EQ(nullptr, g_hInstance);
    EXPECT_EQ(nullptr, g_hPrevInstance);
    EXPECT_STREQ("SUPPORT.INI", g_szIniName);
    EXPECT_STREQ("APP.LOG", g_szLogName);
    EXPECT_STREQ("SUPPORT", g_szModuleName);
}

TEST(LibSupDeathTest, InitStoresTheIdentity)
{
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe");
    const std::string directory = program.parent_path().string() + "/";
    const std::string told = "<0 1 1><" + program.stem().string() + "></var/log/app.LOG>";
    EXPECT_EXIT(
        {
            int one = 0;
            int two = 0;
            const int code = LibSupInit("app", &one, &two, "/var/log/", 5);
            const bool handles = g_hInstance == &one && g_hPrevInstance == &two && g_nSupFlag == 5;
            const bool places = g_szProgramDir == directory && g_szIniName == directory + "SUPPORT.INI";
            std::fprintf(stderr, "<%d %d %d><%s><%s>", code, handles, places, g_szModuleName, g_szLogName);
            std::_Exit(0);
        },
        testing::ExitedWithCode(0), told);
}

TEST(LibSup, InitFailsOnTextsThatAreTooLong)
{
    const std::string longest(127, 'a');
    const std::string tooLong(128, 'a');
    EXPECT_EQ(1, LibSupInit(tooLong.c_str(), nullptr, nullptr, "", 1));
    EXPECT_EQ(1, LibSupInit("a", nullptr, nullptr, tooLong.c_str(), 1));
    EXPECT_EQ(1, LibSupInit(longest.c_str(), nullptr, nullptr, longest.c_str(), 1))
        << "no room for the log's name";
    EXPECT_STREQ("SUPPORT", g_szModuleName);
    EXPECT_STREQ("APP.LOG", g_szLogName);
}

// Log reports

TEST(LibSup, AMarkTellsTheMillisecondsSinceTheLast)
{
    const LogRecorder log;
    LogMark("first");
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    LogMark("100% second");
    LogMark("third");
    ASSERT_EQ(3u, log.Lines().size());
    long elapsed = -1;
    EXPECT_EQ(1, std::sscanf(log.Lines()[1].c_str(), "Mark (%ld): 100%% second", &elapsed));
    EXPECT_GE(elapsed, 29);
    EXPECT_EQ("Mark (" + std::to_string(elapsed) + "): 100% second", log.Lines()[1]);
    EXPECT_TRUE(log.Lines()[0].starts_with("Mark ("));
}

TEST(LibSup, TheMemoryReportHasSevenLinesInKilobytes)
{
    const LogRecorder log;
    MemoryFigures figures;
    figures.percentInUse = 42;
    figures.physical = std::uint64_t{8} << 30;
    figures.freePhysical = 1023;
    figures.paging = 1024;
    figures.freePaging = 0;
    figures.addressSpace = std::uint64_t{1} << 47;
    figures.freeAddressSpace = 123456789;
    LogMemory(figures);
    EXPECT_EQ((Calls{"percent of memory in use           0", "bytes of physical memory     8388608",
                     "free physical memory bytes         0", "bytes of paging file               1",
                     "free bytes of paging file          0", "user bytes of address space  137438953472",
                     "free user bytes               120563"}),
              log.Lines());
}

TEST(LibSup, TheMemoryFiguresAreThoseOfTheSystem)
{
    const MemoryFigures figures = ReadMemoryFigures();
    std::ifstream system("/proc/meminfo");
    std::string word;
    std::uint64_t kilobytes = 0;
    system >> word >> kilobytes; // the first line is "MemTotal: N kB"
    EXPECT_EQ(kilobytes * 1024, figures.physical);
    EXPECT_GT(figures.freePhysical, 0u);
    EXPECT_LT(figures.freePhysical, figures.physical);
    EXPECT_LE(figures.freePaging, figures.paging);
    const double free = static_cast<double>(figures.freePhysical) / static_cast<double>(figures.physical);
    EXPECT_NEAR(100 * (1 - free), static_cast<double>(figures.percentInUse), 1)
        << "whole percents, rounded up";
    EXPECT_GT(figures.freeAddressSpace, 0u);
    EXPECT_LT(figures.freeAddressSpace, figures.addressSpace);
    const LogRecorder log;
    LogMemory();
    EXPECT_EQ(7u, log.Lines().size());
}

// Paths

struct SplitCase {
    const char* path;
    const char* drive;
    const char* directory;
    const char* name;
    const char* extension;
};

TEST(LibSupPath, SplitsFromTheRight)
{
    const SplitCase cases[] = {
        {"c:\\a\\b.txt", "c", "a", "b", "txt"},
        {"c:\\a\\b\\c.d.txt", "c", "a\\b", "c.d", "txt"},
        {"c:\\b.txt", "c", "", "b", "txt"},
        {"c:b.txt", "c", "", "b", "txt"},
        {"c:a\\b", "c", "a", "b", ""},
        {"c:", "c", "", "", ""},
        {"c:\\", "c", "", "", ""},
        {"\\a\\b.txt", "", "a", "b", "txt"},
        {"a\\b.txt", "", "a", "b", "txt"},
        {"\\b", "", "", "b", ""},
        {"b.txt", "", "", "b", "txt"},
        {"b", "", "", "b", ""},
        {"b.", "", "", "b", ""},
        {".txt", "", "", "", "txt"},
        {"a.b\\c", "", "a.b", "c", ""},
        {"c:\\a\\b\\", "c", "a", "b", ""},
        {"c:\\a\\b.txt\\", "c", "a", "b", "txt"},
        {"\\", "", "", "", ""},
        {"c:\\a\\.txt", "c", "a", "", "txt"},
    };
    for (const SplitCase& c : cases) {
        LibString drive("x");
        LibString directory("x");
        LibString name("x");
        LibString extension("x");
        EXPECT_TRUE(PathSplit(c.path, &drive, &directory, &name, &extension)) << c.path;
        EXPECT_STREQ(c.drive, drive) << c.path;
        EXPECT_STREQ(c.directory, directory) << c.path;
        EXPECT_STREQ(c.name, name) << c.path;
        EXPECT_STREQ(c.extension, extension) << c.path;
        LibString only;
        EXPECT_TRUE(PathSplit(c.path, nullptr, nullptr, &only, nullptr));
        EXPECT_STREQ(c.name, only);
        EXPECT_TRUE(PathSplit(c.path, nullptr, nullptr, nullptr, nullptr));
    }
}

TEST(LibSupPath, SplitsNoEmptyPathAndNoneOf2048Characters)
{
    LibString name("x");
    EXPECT_FALSE(PathSplit("", nullptr, nullptr, &name, nullptr));
    EXPECT_STREQ("", name) << "the targets are emptied all the same";
    EXPECT_TRUE(PathSplit(std::string(2047, 'a').c_str(), nullptr, nullptr, &name, nullptr));
    EXPECT_EQ(2047u, name.Length());
    EXPECT_FALSE(PathSplit(std::string(2048, 'a').c_str(), nullptr, nullptr, &name, nullptr));
    EXPECT_STREQ("", name);
    name = "x";
    EXPECT_FALSE(PathSplit(nullptr, nullptr, nullptr, &name, nullptr));
    EXPECT_STREQ("", name);
    name = "a\\b.c";
    EXPECT_TRUE(PathSplit(name, nullptr, nullptr, &name, nullptr));
    EXPECT_STREQ("b", name);
}

TEST(LibSupPath, BuildsFromTheGivenParts)
{
    const struct {
        const char* drive;
        const char* directory;
        const char* name;
        const char* extension;
        const char* expected;
    } cases[] = {
        {"c", "a", "b", "txt", "c:a\\b.txt"},     {"c", "\\a", "b", "txt", "c:\\a\\b.txt"},
        {nullptr, "a", "b", "txt", "a\\b.txt"},   {"", "", "b", "", "b"},
        {"c", nullptr, nullptr, nullptr, "c:"},   {nullptr, nullptr, nullptr, "txt", ".txt"},
        {nullptr, nullptr, nullptr, nullptr, ""}, {nullptr, "a", nullptr, nullptr, "a\\"},
    };
    for (const auto& c : cases) {
        LibString path("before");
        PathBuild(path, c.drive, c.directory, c.name, c.extension);
        EXPECT_STREQ(c.expected, path);
    }
}

TEST(LibSupPath, Extensions)
{
    EXPECT_STREQ("c", PathExtension("a.b.c"));
    EXPECT_STREQ("", PathExtension("abc"));
    EXPECT_STREQ("", PathExtension("abc."));
    EXPECT_STREQ("", PathExtension(""));
    EXPECT_TRUE(PathHasExtension("a.TXT", "txt"));
    EXPECT_TRUE(PathHasExtension("a", ""));
    EXPECT_FALSE(PathHasExtension("a.txt", "tx"));
    EXPECT_FALSE(PathHasExtension("a.txt", ".txt"));
    const std::pair<const char*, const char*> stripped[] = {{"a.txt", "a"},
                                                            {"a.b.c", "a.b"},
                                                            {".txt", ".txt"},
                                                            {"abc", "abc"},
                                                            {"a.", "a"},
                                                            {"", ""},
                                                            {"c:\\.txt", "c:\\.txt"},
                                                            {"c:\\a.txt", "c:\\a"},
                                                            {"..", "."},
                                                            {"a.b\\c", "a.b\\c"},
                                                            {"a.b/c", "a.b/c"},
                                                            {"a.b\\c.d", "a.b\\c"},
                                                            {"c:\\a.b\\", "c:\\a.b\\"}};
    for (const auto& [given, expected] : stripped) {
        LibString text(given);
        PathStripExtension(&text);
        EXPECT_STREQ(expected, text);
    }
}

TEST(LibSupPath, SlashesAndNames)
{
    const std::pair<const char*, const char*> slashed[] = {
        {"", "\\"}, {"a", "a\\"}, {"a\\", "a\\"}, {"a/", "a/\\"}};
    for (const auto& [given, expected] : slashed) {
        LibString text(given);
        EXPECT_EQ(&text, PathAddSlash(&text));
        EXPECT_STREQ(expected, text);
    }
    EXPECT_EQ(nullptr, PathAddSlash(nullptr));
    const std::pair<const char*, const char*> named[] = {
        {"/a/b.txt", "/a/"}, {"/a/", "/a/"}, {"/", "/"}, {"a", "a"}, {"", ""}, {"a\\b", "a\\b"}};
    for (const auto& [given, expected] : named) {
        LibString text(given);
        EXPECT_EQ(0, PathStripName(&text));
        EXPECT_STREQ(expected, text);
    }
    EXPECT_EQ(1, PathStripName(nullptr));
}

// Memory

TEST(LibSupMemory, ARequestForNothingGivesOneByte)
{
    char* p = static_cast<char*>(CheckedMalloc(0));
    *p = 'a';
    p = static_cast<char*>(CheckedRealloc(p, 0));
    *p = 'b';
    p = static_cast<char*>(CheckedRealloc(p, 100));
    EXPECT_EQ('b', p[0]);
    CheckedFree(p);
    p = static_cast<char*>(CheckedRealloc(nullptr, 0));
    *p = 'c';
    CheckedFree(p);
    for (const auto& [count, size] : {std::pair(0u, 5u), std::pair(5u, 0u), std::pair(0u, 0u)}) {
        p = static_cast<char*>(CheckedCalloc(count, size));
        EXPECT_EQ(0, *p);
        CheckedFree(p);
    }
    p = static_cast<char*>(CheckedCalloc(3, 5));
    EXPECT_EQ(std::string(15, '\0'), std::string(p, 15));
    CheckedFree(p);
    p = CheckedStrdup("text");
    EXPECT_STREQ("text", p);
    CheckedFree(p);
}

TEST(LibSupMemoryDeathTest, WhatFailsEndsTheProgram)
{
    const testing::ExitedWithCode one(1);
    EXPECT_EXIT(CheckedFree(nullptr), one, "");
    EXPECT_EXIT(CheckedStrdup(nullptr), one, "");
#if !defined(__SANITIZE_ADDRESS__) // which ends the program itself on such a request
    const volatile std::size_t tooMuch = SIZE_MAX / 2;
    EXPECT_EXIT(CheckedMalloc(tooMuch), one, "");
    EXPECT_EXIT(CheckedCalloc(tooMuch, 1), one, "");
    EXPECT_EXIT(CheckedCalloc(tooMuch, tooMuch), one, "");
    EXPECT_EXIT(CheckedRealloc(CheckedMalloc(1), tooMuch), one, "");
#endif
}

// Errors

TEST(LibSupError, ShowsATextWithTheStopIconUnderTheApplicationsName)
{
    DesktopRecorder desktop;
    ShowError("no file");
    g_pszAppName = "Orreva";
    ShowError("100%s");
    g_pszAppName = nullptr;
    EXPECT_EQ((Calls{"stop Error: no file", "stop Orreva: 100%s"}), desktop.calls);
}

TEST(LibSupError, WithoutADesktopItIsToldOnStandardError)
{
    testing::internal::CaptureStderr();
    ShowError("no file");
    EXPECT_EQ("Error: no file\n", testing::internal::GetCapturedStderr());
}

TEST(LibSupError, ReportsTheLineOfItsCode)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    EXPECT_EQ(50, ReportError(50));
    folder.Write("C:\\ErrMsg.txt",
                 "# errors\r\n 5 five\r\n50 Datei nicht offen\r\n50 again\r\n-7 minus\n8 last");
    EXPECT_EQ(50, ReportError(50));
    EXPECT_EQ(5, ReportError(5));
    EXPECT_EQ(-7, ReportError(-7));
    EXPECT_EQ(8, ReportError(8));
    EXPECT_EQ(0, ReportError(0));
    EXPECT_EQ(9, ReportError(9));
    EXPECT_EQ(
        (Calls{"stop Error: Fehler 50 ist aufgetreten (ErrMsg.txt fehlt)!",
               "stop Error: Fehler 50 Datei nicht offen", "stop Error: Fehler  5 five",
               "stop Error: Fehler -7 minus", "stop Error: Fehler 8 last", "stop Error: Fehler # errors",
               "stop Error: Fehler 9 ist aufgetreten (Eintrag fehlt in ErrMsg.txt)!"}),
        desktop.calls);
}

TEST(LibSupError, ReadsLinesOf255Characters)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    folder.Write("C:\\ErrMsg.txt", "1" + std::string(254, ' ') + "7 rest\n");
    ReportError(7);
    EXPECT_EQ(Calls{"stop Error: Fehler 7 rest"}, desktop.calls);
}

// Programs

/// Waits for a file that a started program writes.
std::string WaitFor(const TemporaryFolder& folder, const char* name, std::size_t size)
{
    for (int i = 0; i < 500 && folder.Read(name).size() < size; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return folder.Read(name);
}

void WriteProgram(const TemporaryFolder& folder, const char* name, const std::string& script)
{
    std::filesystem::permissions(folder.Write(name, "#!/bin/sh\n" + script),
                                 std::filesystem::perms::owner_all);
}

TEST(LibSupProgram, RunsACommandLine)
{
    const TemporaryFolder folder;
    WriteProgram(folder, "program", "printf '<%s>' \"$@\" > " + (folder / "out"));
    const std::string command = "  " + (folder / "program") + " one \t\"two words\" th\"r e\"e \"\" \"open";
    EXPECT_EQ(0, RunProgram(command.c_str()));
    EXPECT_EQ("<one><two words><thr ee><><open>", WaitFor(folder, "out", 31));
    EXPECT_EQ(62, RunProgram((folder / "missing").c_str()));
    EXPECT_EQ(62, RunProgram(""));
    EXPECT_EQ(62, RunProgram(" \t"));
    EXPECT_EQ(62, RunProgram(folder.Path().c_str()));
    EXPECT_EQ(62, RunProgram(nullptr));
}

TEST(LibSupProgram, ASignalDoesNotPassForAFailedStart)
{
    struct sigaction before = {};
    struct sigaction interrupting = {};
    interrupting.sa_handler = [](int) {}; // without SA_RESTART
    ASSERT_EQ(0, sigaction(SIGCHLD, &interrupting, &before));
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(0, RunProgram("true")) << i;
    }
    EXPECT_EQ(62, RunProgram("/no/such/program"));
    ASSERT_EQ(0, sigaction(SIGCHLD, &before, nullptr));
}

TEST(LibSupProgram, OpensADocument)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("-a b.txt", "");
    EXPECT_EQ(27, OpenDocument(nullptr, nullptr));
    EXPECT_EQ(1, OpenDocument(nullptr, (folder / "missing").c_str()));
    const Environment onlyHere("PATH", folder.Path().c_str());
    EXPECT_EQ(62, OpenDocument(nullptr, path.c_str())) << "no opener is there";
    WriteProgram(folder, "xdg-open", "printf '<%s>' \"$@\" > " + (folder / "out"));
    EXPECT_EQ(0, OpenDocument(nullptr, path.c_str()));
    EXPECT_EQ("<" + path + ">", WaitFor(folder, "out", path.size() + 2));
    std::filesystem::remove((folder / "out"));
    EXPECT_EQ(0, OpenDocument(nullptr, "-a b.txt"));
    EXPECT_EQ("<./-a b.txt>", WaitFor(folder, "out", 12));
}

TEST(LibSupProgram, OnlyOneHoldsAName)
{
    const std::string name = "Orreva/test." + std::to_string(getpid());
    const std::string object = "/Orreva_test." + std::to_string(getpid()) + "." + std::to_string(geteuid());
    EXPECT_EXIT(std::_Exit(AlreadyRunning(name.c_str()) != nullptr ? 5 : 6), testing::ExitedWithCode(5), "")
        << "a program that ended holds it no longer";
    void* const handle = AlreadyRunning(name.c_str());
    ASSERT_NE(nullptr, handle);
    std::memset(handle, 'x', 32);
    EXPECT_EQ(nullptr, AlreadyRunning(name.c_str()));
    EXPECT_EXIT(std::_Exit(AlreadyRunning(name.c_str()) != nullptr ? 5 : 6), testing::ExitedWithCode(6), "");
    EXPECT_NE(nullptr, AlreadyRunning((name + "x").c_str()));
    EXPECT_EQ(nullptr, AlreadyRunning(std::string(300, 'n').c_str()));
    EXPECT_EQ(nullptr, AlreadyRunning(nullptr));
    EXPECT_EQ(0, shm_unlink(object.c_str()));
    EXPECT_EQ(
        0,
        shm_unlink(("/Orreva_test." + std::to_string(getpid()) + "x." + std::to_string(geteuid())).c_str()));
}

TEST(LibSupProgram, AUserIsLoggedInUnlessTheSystemKnowsNone)
{
    EXPECT_TRUE(IsUserLoggedIn(0));
    EXPECT_TRUE(IsUserLoggedIn(ENOENT));
    EXPECT_TRUE(IsUserLoggedIn(EIO));
    EXPECT_FALSE(IsUserLoggedIn(ENOSYS));
    EXPECT_TRUE(IsUserLoggedIn()) << "this system knows users";
}

} // namespace

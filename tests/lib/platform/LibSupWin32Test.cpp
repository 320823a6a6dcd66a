#include "lib/platform/LibSupWin32.h"

#include "lib/platform/TickCount.h"
#include "lib/text/ErrCode.h"
#include "lib/text/LogSink.h"

#include "support/DesktopRecorder.h"
#include "support/Environment.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <pwd.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

using Calls = std::vector<std::string>;

void LogToStandardError()
{
    SetLogSink([](const char* psz) { std::fprintf(stderr, "%s", psz); });
}

// Reading

std::vector<std::string> DataLines(const TemporaryFolder& folder, const std::string& bytes)
{
    const std::string path = folder.Write("data", bytes);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    std::vector<std::string> lines;
    char buffer[256];
    while (const char* const line = ReadDataLine(buffer, file.get())) {
        lines.emplace_back(line);
    }
    return lines;
}

TEST(LibSupWin32Reading, GivesTheLinesWithContent)
{
    const TemporaryFolder folder;
    EXPECT_EQ((Calls{"one", "two", "\"#\" three", "last  "}),
              DataLines(folder, "# head\n\n  \t\r\n one # note\r\ntwo\t \n  #\n \"#\" three#\nlast  "));
    EXPECT_EQ(Calls{}, DataLines(folder, ""));
    EXPECT_EQ(Calls{}, DataLines(folder, " \n#\n  "));
    EXPECT_EQ((Calls{std::string(255, 'x'), "y"}), DataLines(folder, std::string(255, 'x') + "y\n"));
}

TEST(LibSupWin32ReadingDeathTest, NeedsABufferAndAFile)
{
    char buffer[256];
    const testing::ExitedWithCode one(1);
    EXPECT_EXIT((LogToStandardError(), ReadDataLine(nullptr, stdin)), one, "Assertation \\(psz\\) failed");
    EXPECT_EXIT((LogToStandardError(), ReadDataLine(buffer, nullptr)), one, "Assertation \\(pf\\) failed");
}

TEST(LibSupWin32Reading, TakesLinesOutOfAText)
{
    char line[8];
    const char* text = "a\r\n\nb\rc\nlonger than\nz";
    std::vector<std::string> lines;
    while ((text = NextTextLine(line, text, sizeof line)) != nullptr) {
        lines.emplace_back(line);
    }
    EXPECT_EQ((Calls{"a", "", "bc", "longer ", "than", "z"}), lines);
    EXPECT_STREQ("", line) << "no line, no text";
    line[0] = 'x';
    EXPECT_EQ(nullptr, NextTextLine(line, "abc", 1));
    EXPECT_STREQ("", line);
    line[0] = 'x';
    EXPECT_EQ(nullptr, NextTextLine(line, "abc", 0));
    EXPECT_EQ('x', line[0]) << "no room at all";
    char own[] = "a\rb\nc";
    EXPECT_STREQ("c", NextTextLine(own, own, sizeof own));
    EXPECT_STREQ("ab", own) << "a line may take the place of its text";
}

TEST(LibSupWin32Reading, ATextLineEndsAt65535Characters)
{
    std::vector<char> line(70000);
    const std::string below(65534, 'x');
    EXPECT_STREQ("z", NextTextLine(line.data(), (below + "\nz").c_str(), line.size()));
    EXPECT_EQ(below, line.data());
    EXPECT_EQ(nullptr, NextTextLine(line.data(), (below + "x\nz").c_str(), line.size()));
    EXPECT_STREQ("", line.data());
    EXPECT_EQ(nullptr, NextTextLine(line.data(), std::string(65535, '\r').c_str(), line.size()));
}

TEST(LibSupWin32Reading, CopiesAField)
{
    const struct {
        const char* text;
        int index;
        bool found;
        const char* expected;
    } cases[] = {{"a;b;c", 0, true, "a"},     {"a;b;c", 1, true, "b"},  {"a;b;c", 2, true, "c"},
                 {"a;b;c", 3, false, ""},     {"a;b;c", -1, false, ""}, {"a; b ;", 1, true, " b "},
                 {"a; b ;", 2, true, ""},     {"", 0, true, ""},        {"", 1, false, ""},
                 {"a", 2147483647, false, ""}};
    for (const auto& c : cases) {
        LibString field("before");
        EXPECT_EQ(c.found, GetField(c.index, ';', field, c.text)) << c.text << c.index;
        EXPECT_STREQ(c.expected, field) << c.text << c.index;
    }
}

// Directories

TEST(LibSupWin32Directories, MakesADirectoryAndThoseAboveIt)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    EXPECT_EQ(0, MakeDirectory((folder / "a/b/c").c_str()));
    EXPECT_TRUE(fs::is_directory((folder / "a/b/c")));
    EXPECT_EQ(0, MakeDirectory((folder / "a/b/c").c_str())) << "what stands there is as good";
    EXPECT_EQ(0, MakeDirectory((folder / "d//e/").c_str()));
    EXPECT_TRUE(fs::is_directory((folder / "d/e")));
    {
        EXPECT_EQ(0, MakeDirectory("f/g"));
        EXPECT_EQ(0, MakeDirectory("h"));
    }
    EXPECT_TRUE(fs::is_directory((folder / "f/g")));
    EXPECT_EQ(0, MakeDirectory("/"));
    EXPECT_EQ(Calls{}, desktop.calls);
}

TEST(LibSupWin32Directories, TellsWhyItCannotMakeADirectory)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    folder.Write("file", "");
    const std::string below = (folder / "file/a");
    EXPECT_EQ(1, MakeDirectory(below.c_str()));
    EXPECT_EQ(1, MakeDirectory("file/Öl"));
    EXPECT_EQ(1, MakeDirectory(""));
    EXPECT_EQ(
        (Calls{"stop Error: Err 20, " + below, "stop Error: Err 20, file/\xD6l", "stop Error: Err 2, "}),
        desktop.calls);
    EXPECT_EQ(0, MakeDirectory((folder / "file").c_str())) << "exists, though it is a file";
}

TEST(LibSupWin32Directories, AMissingParentThatCannotBeMadeIsTold)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    ASSERT_EQ(0, chmod(folder.Path().c_str(), 0555));
    EXPECT_EXIT(
        {
            BecomeOrdinaryUser();
            const int code = MakeDirectory((folder / "a/b").c_str());
            const bool told = desktop.calls == Calls{"stop Error: Err 13, " + (folder / "a")};
            std::_Exit(code == 1 && told ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
    ASSERT_EQ(0, chmod(folder.Path().c_str(), 0755));
}

TEST(LibSupWin32Directories, ABadPathNameIsThrown)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    const std::string path = (folder / std::string(300, 'n'));
    ErrCode thrown = ErrCode::None;
    try {
        MakeDirectory(path.c_str());
    } catch (const ErrCode error) {
        thrown = error;
    }
    EXPECT_EQ(1, static_cast<int>(thrown));
    EXPECT_THROW(MakeDirectory(("ä" + std::string(300, 'n')).c_str()), ErrCode);
    EXPECT_EQ((Calls{"stop Error: ERROR_BAD_PATHNAME: " + path,
                     "stop Error: ERROR_BAD_PATHNAME: \xE4" + std::string(300, 'n')}),
              desktop.calls);
}

TEST(LibSupWin32Directories, RemovesWhatStandsBelowADirectory)
{
    const TemporaryFolder folder;
    const fs::path before = fs::current_path();
    fs::create_directories((folder / "tree/a/b/c"));
    folder.Write("tree/x", "1");
    folder.Write("tree/a/y", "2");
    folder.Write("tree/a/b/c/z", "3");
    EXPECT_EQ(0, RemoveTree((folder / "tree").c_str()));
    EXPECT_TRUE(fs::is_directory((folder / "tree")));
    EXPECT_TRUE(fs::is_empty((folder / "tree")));
    EXPECT_EQ(0, RemoveTree((folder / "tree").c_str()));
    EXPECT_EQ(before, fs::current_path());
    EXPECT_EQ(1, RemoveTree((folder / "missing").c_str()));
    EXPECT_EQ(1, RemoveTree(folder.Write("file", "").c_str()));
    EXPECT_EQ(1, RemoveTree(""));
    EXPECT_TRUE(fs::exists((folder / "file")));
}

TEST(LibSupWin32Directories, KeepsEntriesThatBeginWithADot)
{
    const TemporaryFolder folder;
    fs::create_directories((folder / "tree/.git/a"));
    fs::create_directories((folder / "tree/b"));
    folder.Write("tree/.hidden", "1");
    folder.Write("tree/shown", "1");
    EXPECT_EQ(0, RemoveTree((folder / "tree").c_str()));
    EXPECT_TRUE(fs::exists((folder / "tree/.git/a")));
    EXPECT_TRUE(fs::exists((folder / "tree/.hidden")));
    EXPECT_FALSE(fs::exists((folder / "tree/b")));
    EXPECT_FALSE(fs::exists((folder / "tree/shown")));

    fs::create_directories((folder / "tree/b"));
    folder.Write("tree/b/.hidden", "1");
    EXPECT_EQ(1, RemoveTree((folder / "tree").c_str())) << "the directory of a hidden file cannot go";
    EXPECT_TRUE(fs::exists((folder / "tree/b/.hidden")));
}

TEST(LibSupWin32Directories, NeverLeavesTheTree)
{
    const TemporaryFolder folder;
    fs::create_directories((folder / "outside/deep"));
    folder.Write("outside/kept", "1");
    fs::create_directories((folder / "tree/a"));
    fs::create_directory_symlink((folder / "outside"), (folder / "tree/link"));
    fs::create_directory_symlink("../../outside", (folder / "tree/a/link"));
    fs::create_symlink((folder / "outside/kept"), (folder / "tree/file"));
    fs::create_symlink("loop", (folder / "tree/loop"));
    fs::create_directory_symlink((folder / "outside"), (folder / "named"));
    EXPECT_EQ(0, RemoveTree((folder / "tree").c_str()));
    EXPECT_TRUE(fs::is_empty((folder / "tree")));
    EXPECT_EQ(1, RemoveTree((folder / "named").c_str())) << "a link is no tree";
    EXPECT_EQ(1, RemoveTree((folder / "named/").c_str()));
    EXPECT_EQ("1", folder.Read("outside/kept"));
    EXPECT_TRUE(fs::exists((folder / "outside/deep")));
}

TEST(LibSupWin32Directories, ATreeTooDeepIsLeftInPart)
{
    const TemporaryFolder folder;
    fs::path deep = (folder / "tree");
    for (int i = 0; i < 505; ++i) {
        deep /= "d";
    }
    fs::create_directories(deep);
    EXPECT_EQ(1, RemoveTree((folder / "tree").c_str()));
    EXPECT_TRUE(fs::exists((folder / "tree/d")));
}

TEST(LibSupWin32Directories, ADirectoryIsOneWithoutADot)
{
    EXPECT_TRUE(IsDirectory({LibString("a"), true}));
    EXPECT_TRUE(IsDirectory({LibString("a.b"), true}));
    EXPECT_FALSE(IsDirectory({LibString("a"), false}));
    EXPECT_FALSE(IsDirectory({LibString(".a"), true}));
    EXPECT_FALSE(IsDirectory({LibString(".."), true}));
}

std::string Special(int id)
{
    LibString path("before");
    return GetSpecialFolder(path, id) ? path.GetText() : std::string("none") + path.GetText();
}

TEST(LibSupWin32Directories, SpecialFoldersFollowTheXdgDirectories)
{
    const TemporaryFolder folder;
    const std::string home = folder.Path().string();
    const Environment homeSet("HOME", home.c_str());
    const Environment config("XDG_CONFIG_HOME", nullptr);
    const Environment data("XDG_DATA_HOME", "/data");
    const Environment cache("XDG_CACHE_HOME", "relative");
    const Environment temporary("TMPDIR", nullptr);
    EXPECT_EQ(home, Special(kFolderHome));
    EXPECT_EQ(home + "/.config", Special(kFolderConfig));
    EXPECT_EQ("/data", Special(kFolderData));
    EXPECT_EQ(home + "/.cache", Special(kFolderCache)) << "a relative path is ignored";
    EXPECT_EQ("/tmp", Special(kFolderTemporary));
    EXPECT_EQ(home + "/Desktop", Special(kFolderDesktop));
    EXPECT_EQ(home, Special(kFolderMusic));
    EXPECT_EQ("none", Special(-1));
    EXPECT_EQ("none", Special(kSpecialFolderCount));

    fs::create_directory((folder / ".config"));
    folder.Write(".config/user-dirs.dirs",
                 "# made by a tool\n#XDG_MUSIC_DIR=\"/no\"\nXDG_MUSIC_DIRX=\"/no\"\n"
                 "XDG_MUSIC_DIR=\"$HOME/Musik\"\r\n XDG_DOCUMENTS_DIR=\"/srv/texts\"\n"
                 "XDG_VIDEOS_DIR=\"relative\"\n");
    EXPECT_EQ(home + "/Musik", Special(kFolderMusic));
    EXPECT_EQ("/srv/texts", Special(kFolderDocuments));
    EXPECT_EQ(home, Special(kFolderVideos));
    EXPECT_EQ(home + "/Desktop", Special(kFolderDesktop));
}

TEST(LibSupWin32Directories, WithoutHomeTheAccountTellsIt)
{
    const Environment home("HOME", nullptr);
    const passwd* const account = getpwuid(geteuid());
    EXPECT_EQ(account != nullptr ? account->pw_dir : std::string("none"), Special(kFolderHome));
}

TEST(LibSupWin32Directories, AFolderIsChosenOnTheDesktop)
{
    DesktopRecorder desktop;
    LibString target;
    EXPECT_FALSE(BrowseFolder(nullptr, target, "/root"));
    desktop.folder = "/chosen";
    EXPECT_TRUE(BrowseFolder(nullptr, target, nullptr));
    EXPECT_STREQ("/chosen", target);
    EXPECT_EQ((Calls{"choose Select a Directory: /root", "choose Select a Directory: anywhere"}),
              desktop.calls);
}

TEST(LibSupWin32Directories, WithoutADesktopNoFolderIsChosen)
{
    LibString target("before");
    EXPECT_FALSE(BrowseFolder(nullptr, target, nullptr));
    EXPECT_STREQ("before", target);
}

// System

TEST(LibSupWin32System, AWatchLeavesOutItsPauses)
{
    PauseWatch watch;
    EXPECT_EQ(20000u, watch.Count(20000));
    EXPECT_FALSE(watch.Pause(false, 21000));
    EXPECT_TRUE(watch.Pause(true, 22000));
    EXPECT_EQ(22000u, watch.Count(25000)) << "it stands still";
    EXPECT_TRUE(watch.Pause(true, 26000)) << "a pause begins once";
    EXPECT_FALSE(watch.Pause(false, 30000));
    EXPECT_EQ(22000u, watch.Count(30000));
    EXPECT_EQ(23000u, watch.Count(31000));
    EXPECT_TRUE(watch.Pause(true, 32000));
    EXPECT_FALSE(watch.Pause(false, 33000));
    EXPECT_EQ(25000u, watch.Count(34000));
}

TEST(LibSupWin32System, TimeHasElapsedBehindTheMarkOrRightAfterTheStart)
{
    PauseWatch watch;
    EXPECT_FALSE(watch.HasElapsed(20000, 20000));
    EXPECT_TRUE(watch.HasElapsed(20000, 20001));
    EXPECT_FALSE(watch.HasElapsed(20000, 15000));
    EXPECT_TRUE(watch.HasElapsed(20000, 14999));
    watch.Pause(true, 20000);
    watch.Pause(false, 21000);
    EXPECT_FALSE(watch.HasElapsed(20000, 21000));
    EXPECT_TRUE(watch.HasElapsed(20000, 21001));
}

TEST(LibSupWin32System, TheProgramsWatchRunsOnTheSystemsCount)
{
    EXPECT_TRUE(PauseClock(true));
    EXPECT_FALSE(PauseClock(false));
    EXPECT_TRUE(ElapsedSince(0));
    const bool justStarted = TickCount() < 16000;
    EXPECT_EQ(justStarted, ElapsedSince(UINT32_MAX));
}

TEST(LibSupWin32System, RootIsAnAdministratorAndNobodyIsNone)
{
    if (geteuid() == 0) {
        EXPECT_EQ(1, IsAdministrator());
        EXPECT_EXIT((BecomeOrdinaryUser(), std::_Exit(IsAdministrator())), testing::ExitedWithCode(0), "");
    } else {
        EXPECT_EQ(std::system("id -Gn | tr ' ' '\\n' | grep -qxE 'root|sudo|wheel'") == 0 ? 1 : 0,
                  IsAdministrator());
    }
}

TEST(LibSupWin32System, TellsTheAccount)
{
    const passwd* const account = getpwuid(geteuid());
    char name[256] = "before";
    EXPECT_EQ(account == nullptr, GetUserAccount(name, sizeof name) != 0);
    EXPECT_STREQ(account != nullptr ? account->pw_name : "", name);
    EXPECT_EQ(1, GetUserAccount(name, 1));
    EXPECT_STREQ("", name);
    EXPECT_EQ(1, GetUserAccount(name, 0));
}

TEST(LibSupWin32System, TheVersionHasThreeNumbersAndARest)
{
    const struct {
        const char* release;
        const char* expected;
    } cases[] = {{"6.1.0-18-amd64", "Linux Version 6.1 Build 0 18-amd64"},
                 {"5.10.209", "Linux Version 5.10 Build 209 "},
                 {"6.8-rc1", "Linux Version 6.8 Build 0 rc1"},
                 {"4.4.302.1", "Linux Version 4.4 Build 302 1"},
                 {"", "Linux Version 0.0 Build 0 "},
                 {"next", "Linux Version 0.0 Build 0 next"},
                 {"7", "Linux Version 7.0 Build 0 "}};
    for (const auto& c : cases) {
        LibString text;
        FormatOsVersion(text, "Linux", c.release);
        EXPECT_STREQ(c.expected, text) << c.release;
    }
    LibString text;
    EXPECT_EQ(0, GetOsVersionText(text));
    utsname system = {};
    ASSERT_EQ(0, uname(&system));
    EXPECT_TRUE(std::string(text).starts_with(std::string(system.sysname) + " Version "));
}

TEST(LibSupWin32System, ShowsTheLastError)
{
    DesktopRecorder desktop;
    errno = ENOENT;
    ShowLastError();
    EXPECT_EQ(Calls{"box Error: No such file or directory"}, desktop.calls);
}

TEST(LibSupWin32Shortcut, IsADesktopEntry)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    const std::string link = (folder / "orreva.desktop");
    EXPECT_EQ(0, CreateShortcut("/opt/my tools/orreva", link.c_str(), "Spiegel f\xFCr 100%"));
    EXPECT_EQ("[Desktop Entry]\nType=Application\nName=Spiegel für 100%\nComment=Spiegel für 100%\n"
              "Exec=\"/opt/my tools/orreva\"\n",
              folder.Read("orreva.desktop"));
    EXPECT_EQ(0, CreateShortcut("/a\"b`c$d\\e%f", link.c_str(), ""));
    EXPECT_EQ("[Desktop Entry]\nType=Application\nName=/a\"b`c$d\\\\e%f\nComment=\n"
              "Exec=\"/a\\\\\"b\\\\`c\\\\$d\\\\\\\\e%%f\"\n",
              folder.Read("orreva.desktop"));
    EXPECT_EQ(Calls{}, desktop.calls);
}

TEST(LibSupWin32Shortcut, TellsTheStepThatFailed)
{
    const TemporaryFolder folder;
    DesktopRecorder desktop;
    const std::string link = (folder / "a.desktop");
    const std::string missing = (folder / "missing/a.desktop");
    const std::string tooLong = "/tmp/" + std::string(256, 'a');
    EXPECT_EQ(1, CreateShortcut("/bin/a\nTerminal=true", link.c_str(), "text"));
    EXPECT_EQ(1, CreateShortcut("", link.c_str(), "text"));
    EXPECT_EQ(1, CreateShortcut("/bin/a", link.c_str(), "two\nlines"));
    EXPECT_EQ(1, CreateShortcut("/bin/a", missing.c_str(), "text"));
    EXPECT_EQ(1, CreateShortcut("/bin/a", tooLong.c_str(), "text"));
    EXPECT_EQ(1, CreateShortcut("/bin/ö", "fehlt/ü.desktop", "text"));
    EXPECT_EQ(
        (Calls{"stop Error: SetPath failed!", "stop Error: SetPath failed!",
               "stop Error: SetDescription failed!", "stop Error: Error saving /bin/a to " + missing + "!",
               "stop Error: Error saving /bin/a to " + tooLong + "!",
               "stop Error: Error saving /bin/\xF6 to fehlt/\xFC.desktop!"}),
        desktop.calls);
    EXPECT_EQ(0, folder.Count());
}

} // namespace

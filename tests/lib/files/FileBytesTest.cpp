#include "lib/files/FileBytes.h"

#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>

#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

constexpr mode_t kPermissions = 07777;

mode_t ModeOf(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & kPermissions : 0;
}

TEST(ReadFileBytes, GivesEveryByte)
{
    const TemporaryFolder folder;
    std::string bytes;
    for (int i = 0; i < 200000; ++i) {
        bytes += static_cast<char>(i * 7);
    }
    EXPECT_EQ(bytes, ReadFileBytes(folder.Write("a", bytes).c_str()));
    EXPECT_EQ("", ReadFileBytes(folder.Write("empty", "").c_str()));
}

TEST(ReadFileBytes, StopsAtItsLimit)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "abcdef");
    EXPECT_EQ("abc", ReadFileBytes(path.c_str(), 3));
    EXPECT_EQ("abcdef", ReadFileBytes(path.c_str(), 6));
    EXPECT_EQ("abcdef", ReadFileBytes(path.c_str(), 7));
    EXPECT_EQ("", ReadFileBytes(path.c_str(), 0));
    EXPECT_EQ(std::nullopt, ReadFileBytes("/dev/zero", 1000)) << "a device may have no end";
}

TEST(ReadFileBytes, GivesNothingForWhatIsNoReadableFile)
{
    const TemporaryFolder folder;
    EXPECT_EQ(std::nullopt, ReadFileBytes(folder.Path().c_str()));
    EXPECT_EQ(std::nullopt, ReadFileBytes((folder / "missing").c_str()));
    EXPECT_EQ(std::nullopt, ReadFileBytes(""));
}

TEST(ReadPieces, FailsOnceAReadFails)
{
    // Six bytes in pieces of two, and then no more.
    int given = 0;
    const ReadPiece read = [&given](char* target, std::size_t size) -> std::ptrdiff_t {
        if (given == 6) {
            return -1;
        }
        std::ptrdiff_t count = 0;
        while (count < 2 && static_cast<std::size_t>(count) < size) {
            target[count++] = static_cast<char>('a' + given++);
        }
        return count;
    };
    for (const std::size_t limit : {0u, 1u, 4u, 6u}) {
        given = 0;
        std::string bytes;
        EXPECT_TRUE(ReadPieces(read, limit, bytes));
        EXPECT_EQ(std::string("abcdef").substr(0, limit), bytes);
    }
    for (const std::size_t limit : {std::size_t{7}, kMostFileBytes}) {
        given = 0;
        std::string bytes;
        EXPECT_FALSE(ReadPieces(read, limit, bytes)) << "half a file is none";
    }
}

TEST(ReplaceFile, WritesANewFileAndReplacesAnOldOneWhole)
{
    const TemporaryFolder folder;
    const std::string path = (folder / "a.xml");
    EXPECT_TRUE(ReplaceFile(path.c_str(), "a long first text\r\n"));
    EXPECT_EQ("a long first text\r\n", folder.Read("a.xml"));
    EXPECT_TRUE(ReplaceFile(path.c_str(), std::string_view("b\0c", 3)));
    EXPECT_EQ(std::string("b\0c", 3), folder.Read("a.xml"));
    EXPECT_TRUE(ReplaceFile(path.c_str(), ""));
    EXPECT_EQ("", folder.Read("a.xml"));
    EXPECT_EQ(1, folder.Count()) << "nothing is left beside the file";
}

TEST(ReplaceFile, TakesANameAsLongAsTheFileSystemAllows)
{
    const TemporaryFolder folder;
    const std::string name(255, 'n');
    EXPECT_TRUE(ReplaceFile((folder / name).c_str(), "text"));
    EXPECT_EQ("text", folder.Read(name));
    EXPECT_FALSE(ReplaceFile((folder / name + "n").c_str(), "text"));
    EXPECT_EQ(1, folder.Count());
}

TEST(ReplaceFile, TakesANameWithoutAFolder)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(ReplaceFile("here", "text"));
    EXPECT_EQ("text", folder.Read("here"));
}

TEST(ReplaceFile, KeepsThePermissions)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    for (const mode_t mode : {0600u, 0640u, 0664u, 0755u, 0777u}) {
        ASSERT_EQ(0, chmod(path.c_str(), mode));
        EXPECT_TRUE(ReplaceFile(path.c_str(), "new"));
        EXPECT_EQ(mode, ModeOf(path));
    }
}

TEST(ReplaceFile, TakesNoFileFromItsOwner)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    if (geteuid() == 0) {
        ASSERT_EQ(0, chown(path.c_str(), 12345, 54321));
    }
    struct stat before = {};
    ASSERT_EQ(0, stat(path.c_str(), &before));
    EXPECT_TRUE(ReplaceFile(path.c_str(), "new"));
    struct stat after = {};
    ASSERT_EQ(0, stat(path.c_str(), &after));
    EXPECT_EQ(before.st_uid, after.st_uid);
    EXPECT_EQ(before.st_gid, after.st_gid);
    EXPECT_NE(before.st_ino, after.st_ino) << "a new file stands there";
}

TEST(ReplaceFile, GivesANewFileWhatTheMaskLeaves)
{
    const TemporaryFolder folder;
    const mode_t before = umask(027);
    EXPECT_TRUE(ReplaceFile((folder / "a").c_str(), "new"));
    EXPECT_EQ(027u, umask(before)) << "the mask itself stays";
    EXPECT_EQ(0640u, ModeOf((folder / "a")));
}

TEST(ReplaceFile, LeavesAReadOnlyFileAsItWas)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    ASSERT_EQ(0, chmod(folder.Path().c_str(), 0777));
    ASSERT_EQ(0, chmod(path.c_str(), 0444));
    EXPECT_EXIT(
        {
            BecomeOrdinaryUser();
            std::_Exit(ReplaceFile(path.c_str(), "new") ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ("old", folder.Read("a"));
    EXPECT_EQ(1, folder.Count());
}

TEST(ReplaceFile, LeavesAFolderThatMayNotBeWrittenAsItWas)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    ASSERT_EQ(0, chmod(path.c_str(), 0666));
    ASSERT_EQ(0, chmod(folder.Path().c_str(), 0555));
    EXPECT_EXIT(
        {
            BecomeOrdinaryUser();
            std::_Exit(ReplaceFile(path.c_str(), "new") ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
    ASSERT_EQ(0, chmod(folder.Path().c_str(), 0700));
    EXPECT_EQ("old", folder.Read("a"));
    EXPECT_EQ(1, folder.Count());
}

TEST(ReplaceFile, RefusesADirectoryAndAMissingFolder)
{
    const TemporaryFolder folder;
    fs::create_directory((folder / "directory"));
    EXPECT_FALSE(ReplaceFile((folder / "directory").c_str(), "new"));
    EXPECT_TRUE(fs::is_directory((folder / "directory")));
    EXPECT_FALSE(ReplaceFile((folder / "missing/a").c_str(), "new"));
    EXPECT_FALSE(ReplaceFile("", "new"));
    EXPECT_EQ(1, folder.Count());
}

TEST(ReplaceFile, ALinkStaysALink)
{
    const TemporaryFolder folder;
    fs::create_directory((folder / "below"));
    folder.Write("below/real", "old");
    fs::create_symlink("below/real", (folder / "link"));
    fs::create_symlink("link", (folder / "second"));
    EXPECT_TRUE(ReplaceFile((folder / "second").c_str(), "new"));
    EXPECT_EQ("new", folder.Read("below/real"));
    EXPECT_TRUE(fs::is_symlink((folder / "link")));
    EXPECT_TRUE(fs::is_symlink((folder / "second")));
    EXPECT_EQ(3, folder.Count());
}

TEST(ReplaceFile, ALinkToNothingMakesTheFileThatItNames)
{
    const TemporaryFolder folder;
    fs::create_directory((folder / "below"));
    fs::create_symlink("below/real", (folder / "link"));
    EXPECT_TRUE(ReplaceFile((folder / "link").c_str(), "new"));
    EXPECT_TRUE(fs::is_symlink((folder / "link")));
    EXPECT_EQ("new", folder.Read("below/real"));
}

TEST(ReplaceFile, RefusesALinkToItself)
{
    const TemporaryFolder folder;
    fs::create_symlink("loop", (folder / "loop"));
    EXPECT_FALSE(ReplaceFile((folder / "loop").c_str(), "new"));
    EXPECT_TRUE(fs::is_symlink((folder / "loop")));
    EXPECT_EQ(1, folder.Count());
}

TEST(ReplaceFile, WritesThroughADeviceAndSeesThatItIsFull)
{
    EXPECT_TRUE(ReplaceFile("/dev/null", "text"));
    EXPECT_FALSE(ReplaceFile("/dev/full", "text"));
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

TEST(ReplaceFile, DoesNotWaitForTheReaderOfAPipe)
{
    const TemporaryFolder folder;
    ASSERT_EQ(0, mkfifo((folder / "pipe").c_str(), 0600));
    EXPECT_FALSE(ReplaceFile((folder / "pipe").c_str(), "new"));
    EXPECT_TRUE(fs::is_fifo((folder / "pipe")));
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskTakesNoMore)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    EXPECT_EXIT(
        {
            // A limit on the size of files stands for the end of the disk: the first bytes go, the rest not.
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit limit = {};
            limit.rlim_cur = limit.rlim_max = 1000;
            setrlimit(RLIMIT_FSIZE, &limit);
            std::_Exit(ReplaceFile(path.c_str(), std::string(5000, 'n')) ? 1 : 0);
        },
        testing::ExitedWithCode(0), "");
    EXPECT_EQ("old", folder.Read("a"));
    EXPECT_EQ(1, folder.Count());
}

} // namespace

#include "lib/files/FileBytes.h"
#include "lib/files/FileRights.h"
#include "lib/files/TemporaryFiles.h"

#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <string>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>

namespace fs = std::filesystem;

namespace {

struct stat StatusOf(const std::string& path)
{
    struct stat status = {};
    EXPECT_EQ(0, stat(path.c_str(), &status)) << path;
    return status;
}

/// What is done in a child process that has no more rights than any user; its exit status.
template <typename Do>
int AsOrdinaryUser(const Do& body)
{
    const pid_t child = fork();
    if (child == 0) {
        BecomeOrdinaryUser();
        std::_Exit(body());
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

/// A keeper of copies in the folder "kept".
PutAside KeepIn(const TemporaryFolder& folder)
{
    return [&folder](const std::string& path, std::string_view bytes) {
        return folder.Write("kept/" + fs::path(path).filename().string(), std::string(bytes));
    };
}

void MakeKept(const TemporaryFolder& folder)
{
    fs::create_directory(folder / "kept");
    chmod((folder / "kept").c_str(), 0777);
    chmod(folder.Path().c_str(), 0777);
}

TEST(SaveOutcome, TellsWhatFailed)
{
    const TemporaryFolder folder;
    EXPECT_EQ(0, ReplaceFile((folder / "a").c_str(), "text").error);
    EXPECT_EQ(ENOENT, ReplaceFile((folder / "missing/a").c_str(), "text").error);
    EXPECT_EQ(EISDIR, ReplaceFile(folder.Path().c_str(), "text").error);
    EXPECT_EQ(ENOSPC, ReplaceFile("/dev/full", "text").error);
    EXPECT_EQ(ENAMETOOLONG, ReplaceFile((folder / std::string(256, 'n')).c_str(), "text").error);
    fs::create_symlink("loop", folder / "loop");
    EXPECT_EQ(ELOOP, ReplaceFile((folder / "loop").c_str(), "text").error);
    ASSERT_EQ(0, mkfifo((folder / "pipe").c_str(), 0600));
    EXPECT_EQ(ENXIO, ReplaceFile((folder / "pipe").c_str(), "text").error);
}

TEST(FileReplacement, LosesTheGroupsRightsRatherThanGiveThemToAnother)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of a group that is not the user's";
    }
    const TemporaryFolder folder;
    chmod(folder.Path().c_str(), 0777);
    const std::string path = folder.Write("a", "old");
    ASSERT_EQ(0, chown(path.c_str(), 65534, 54321));
    ASSERT_EQ(0, chmod(path.c_str(), 0664));
    EXPECT_EQ(0, AsOrdinaryUser([&] { return ReplaceFile(path.c_str(), "new") ? 0 : 1; }));
    EXPECT_EQ("new", folder.Read("a"));
    EXPECT_EQ(65534u, StatusOf(path).st_gid) << "a stranger to the group cannot keep it";
    EXPECT_EQ(0604u, StatusOf(path).st_mode & 07777u);
}

TEST(FileReplacement, KeepsTheGroupWhereTheOwnerCannotBeKept)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of another user";
    }
    const TemporaryFolder folder;
    chmod(folder.Path().c_str(), 0777);
    const std::string path = folder.Write("a", "old");
    ASSERT_EQ(0, chown(path.c_str(), 12345, 65534));
    ASSERT_EQ(0, chmod(path.c_str(), 0664));
    EXPECT_EQ(0, AsOrdinaryUser([&] { return ReplaceFile(path.c_str(), "new") ? 0 : 1; }));
    EXPECT_EQ(65534u, StatusOf(path).st_uid) << "who writes owns it";
    EXPECT_EQ(65534u, StatusOf(path).st_gid);
    EXPECT_EQ(0664u, StatusOf(path).st_mode & 07777u);
}

std::string Attribute(const std::string& path, const char* name)
{
    char value[1000];
    const ssize_t size = getxattr(path.c_str(), name, value, sizeof value);
    return size < 0 ? "none" : std::string(value, static_cast<std::size_t>(size));
}

TEST(FileReplacement, KeepsExtendedAttributes)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    if (setxattr(path.c_str(), "user.note", "mine", 4, 0) != 0) {
        GTEST_SKIP() << "the file system knows none";
    }
    EXPECT_TRUE(ReplaceFile(path.c_str(), "new"));
    EXPECT_EQ("new", folder.Read("a"));
    EXPECT_EQ("mine", Attribute(path, "user.note"));
}

/// An access list as the kernel takes it: owner rw, the user 12345 rw, group r, mask rw, others nothing.
std::string AccessList()
{
    struct Entry {
        std::uint16_t tag, rights;
        std::uint32_t id;
    };
    constexpr Entry kEntries[] = {{1, 6, ~0u}, {2, 6, 12345}, {4, 4, ~0u}, {16, 6, ~0u}, {32, 0, ~0u}};
    std::string list("\2\0\0\0", 4);
    return list.append(reinterpret_cast<const char*>(kEntries), sizeof kEntries);
}

TEST(FileReplacement, KeepsAccessLists)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    const std::string list = AccessList();
    if (setxattr(path.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "the file system knows none";
    }
    EXPECT_TRUE(ReplaceFile(path.c_str(), "new"));
    EXPECT_EQ(list, Attribute(path, "system.posix_acl_access"));
    EXPECT_EQ(0660u, StatusOf(path).st_mode & 07777u);
}

/// An access list is kept with the group that it speaks of, or not at all, and that is told.
TEST(TakeRights, TellsWhetherAListIsKept)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of a group that is not the user's";
    }
    const TemporaryFolder folder;
    chmod(folder.Path().c_str(), 0777);
    const auto taken = [&](const std::string& from) {
        const int fd = open((folder / "new").c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
        const bool complete = TakeRights(fd, from, StatusOf(from));
        close(fd);
        unlink((folder / "new").c_str());
        return complete;
    };
    const std::string plain = folder.Write("plain", "old");
    const std::string listed = folder.Write("listed", "old");
    const std::string list = AccessList();
    if (setxattr(listed.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "the file system knows none";
    }
    for (const std::string& path : {plain, listed}) {
        ASSERT_EQ(0, chown(path.c_str(), 65534, 54321));
        EXPECT_TRUE(taken(path)) << "root keeps any group";
    }
    EXPECT_EQ(1, AsOrdinaryUser([&] { return taken(plain) ? 1 : 0; })) << "rights that go are no failure";
    EXPECT_EQ(0, AsOrdinaryUser([&] { return taken(listed) ? 1 : 0; }));
}

TEST(FileReplacement, TakesNoAccessListFromTheFolder)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    chmod(path.c_str(), 0640);
    const std::string list = AccessList();
    if (setxattr(folder.Path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0) {
        GTEST_SKIP() << "the file system knows none";
    }
    EXPECT_TRUE(ReplaceFile(path.c_str(), "new"));
    EXPECT_EQ("none", Attribute(path, "system.posix_acl_access"));
    EXPECT_EQ(0640u, StatusOf(path).st_mode & 07777u);
}

TEST(FileReplacement, WritesInPlaceWhereTheFolderCannotBeWritten)
{
    const TemporaryFolder folder;
    MakeKept(folder);
    fs::create_directory(folder / "below");
    const std::string path = folder.Write("below/a", "a longer old text");
    fs::create_hard_link(path, folder / "second");
    chmod(path.c_str(), 0666);
    chmod((folder / "below").c_str(), 0555);
    EXPECT_EQ(0, AsOrdinaryUser([&] { return ReplaceFile(path.c_str(), "new", KeepIn(folder)) ? 0 : 1; }));
    EXPECT_EQ("new", folder.Read("below/a"));
    EXPECT_EQ("new", folder.Read("second")) << "hard links stay";
    EXPECT_EQ("a longer old text", folder.Read("kept/a"));
    chmod((folder / "below").c_str(), 0777);
}

TEST(FileReplacement, WritesNothingInPlaceWithoutACopy)
{
    const TemporaryFolder folder;
    MakeKept(folder);
    fs::create_directory(folder / "below");
    const std::string path = folder.Write("below/a", "old");
    chmod(path.c_str(), 0666);
    chmod((folder / "below").c_str(), 0555);
    const PutAside nowhere = [](const std::string&, std::string_view) { return std::string(); };
    EXPECT_EQ(EACCES, AsOrdinaryUser([&] { return ReplaceFile(path.c_str(), "new", nowhere).error; }));
    EXPECT_EQ("old", folder.Read("below/a"));
    chmod((folder / "below").c_str(), 0777);
}

TEST(FileReplacement, PutsTheOldBytesBackWhereASaveInPlaceFails)
{
    const TemporaryFolder folder;
    MakeKept(folder);
    fs::create_directory(folder / "below");
    const std::string old(3000, 'o');
    const std::string path = folder.Write("below/a", old);
    chmod(path.c_str(), 0666);
    chmod((folder / "below").c_str(), 0555);
    // The limit on the size of files comes when the new bytes stand in their temporary file already.
    const int error = AsOrdinaryUser([&] {
        const PutAside keep = [&](const std::string& file, std::string_view bytes) {
            const std::string kept = KeepIn(folder)(file, bytes);
            rlimit limit = {};
            limit.rlim_cur = limit.rlim_max = 4000;
            setrlimit(RLIMIT_FSIZE, &limit);
            return kept;
        };
        const SaveOutcome outcome = ReplaceFile(path.c_str(), std::string(50000, 'n'), keep);
        return outcome.kept.empty() ? outcome.error : 0;
    });
    EXPECT_EQ(EFBIG, error) << "and nothing died of SIGXFSZ";
    EXPECT_EQ(old, folder.Read("below/a"));
    chmod((folder / "below").c_str(), 0777);
}

TEST(FileReplacement, NamesTheCopyWhereTheOldBytesCannotBePutBack)
{
    const TemporaryFolder folder;
    MakeKept(folder);
    fs::create_directory(folder / "below");
    const std::string path = folder.Write("below/a", std::string(3000, 'o'));
    chmod(path.c_str(), 0666);
    chmod((folder / "below").c_str(), 0555);
    EXPECT_EQ(7, AsOrdinaryUser([&] {
                  const PutAside keep = [&](const std::string& file, std::string_view bytes) {
                      const std::string kept = KeepIn(folder)(file, bytes);
                      rlimit limit = {};
                      limit.rlim_cur = limit.rlim_max = 1000; // less than the old bytes need
                      setrlimit(RLIMIT_FSIZE, &limit);
                      return kept;
                  };
                  const SaveOutcome outcome = ReplaceFile(path.c_str(), std::string(5000, 'n'), keep);
                  return outcome.error == EFBIG && outcome.kept == folder / "kept/a" ? 7 : 1;
              }));
    EXPECT_EQ(std::string(3000, 'o'), folder.Read("kept/a"));
    chmod((folder / "below").c_str(), 0777);
}

TEST(FileReplacement, WritesToAnOpenDescriptorAsWhatItIs)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "");
    const int fd = open(path.c_str(), O_WRONLY | O_APPEND);
    ASSERT_LE(0, fd);
    const std::string number = std::to_string(fd);
    EXPECT_TRUE(ReplaceFile(("/dev/fd/" + number).c_str(), "one "));
    EXPECT_TRUE(ReplaceFile(("/proc/self/fd/" + number).c_str(), "two "));
    fs::create_symlink("/proc/self/fd/" + number, folder / "link");
    EXPECT_TRUE(ReplaceFile((folder / "link").c_str(), "three"));
    close(fd);
    EXPECT_EQ("one two three", folder.Read("a"));
    EXPECT_EQ(EBADF, ReplaceFile(("/dev/fd/" + number).c_str(), "four").error);
    EXPECT_EQ("one two three", folder.Read("a"));
}

TEST(TemporaryFile, GoesWithASignalThatEndsTheProgram)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const TemporaryFolder folder;
        chmod(folder.Path().c_str(), 0777);
        const std::string path = folder.Write("a", "old");
        chmod(path.c_str(), 0666);
        EXPECT_EQ(-signal, AsOrdinaryUser([&] {
            FileReplacement file(path.c_str());
            file.Write("new");
            if (folder.Count() != 2) {
                return 1;
            }
            raise(signal);
            return 2;
        }));
        EXPECT_EQ("old", folder.Read("a"));
        EXPECT_EQ(1, folder.Count());
    }
}

TEST(TemporaryFile, LeavesAnIgnoredSignalIgnored)
{
    const TemporaryFolder folder;
    chmod(folder.Path().c_str(), 0777);
    EXPECT_EQ(0, AsOrdinaryUser([&] {
                  std::signal(SIGHUP, SIG_IGN);
                  FileReplacement file((folder / "a").c_str());
                  raise(SIGHUP);
                  return file.Write("new") && file.Commit() ? 0 : 1;
              }));
    EXPECT_EQ("new", folder.Read("a"));
}

TEST(TemporaryFile, LeavesTheSignalsAsTheyWere)
{
    const TemporaryFolder folder;
    std::signal(SIGTERM, SIG_IGN);
    ASSERT_TRUE(ReplaceFile((folder / "a").c_str(), "new"));
    EXPECT_EQ(SIG_IGN, std::signal(SIGTERM, SIG_DFL));
    ASSERT_TRUE(ReplaceFile((folder / "a").c_str(), "new"));
    EXPECT_EQ(SIG_DFL, std::signal(SIGTERM, SIG_DFL));
    EXPECT_EQ(SIG_DFL, std::signal(SIGXFSZ, SIG_DFL));
}

TEST(HeldSignals, WaitUntilWhatIsUnderWayIsDone)
{
    const TemporaryFolder folder;
    chmod(folder.Path().c_str(), 0777);
    EXPECT_EQ(-SIGTERM, AsOrdinaryUser([&] {
        const TemporaryFile file;
        {
            const HeldSignals held;
            raise(SIGTERM);
            folder.Write("done", "");
        }
        return 1;
    }));
    EXPECT_TRUE(fs::exists(folder / "done"));
}

TEST(RemoveStaleFiles, TakesWhatNobodyHoldsAndNothingElse)
{
    const TemporaryFolder folder;
    folder.Write(".orreva-aB3xyZ", "left behind");
    const std::string held = folder.Write(".orreva-held00", "held");
    folder.Write(".orreva-aB3xy", "another's, the name is too short");
    folder.Write(".orreva-aB3xy.", "another's");
    folder.Write("orreva-aB3xyZ", "another's");
    fs::create_directory(folder / ".orreva-folder");
    const int lock = open(held.c_str(), O_RDWR);
    ASSERT_EQ(0, flock(lock, LOCK_EX));
    ASSERT_TRUE(ReplaceFile((folder / "a").c_str(), "new"));
    EXPECT_EQ(6, folder.Count());
    EXPECT_FALSE(fs::exists(folder / ".orreva-aB3xyZ"));
    EXPECT_TRUE(fs::exists(held));
    close(lock);
    RemoveStaleFiles(folder.Path());
    EXPECT_FALSE(fs::exists(held));
}

TEST(RemoveStaleFiles, LeavesTheFilesOfSavesThatAreUnderWay)
{
    const TemporaryFolder folder;
    FileReplacement first((folder / "a").c_str());
    first.Write("first");
    FileReplacement second((folder / "b").c_str());
    second.Write("second");
    EXPECT_TRUE(first.Commit());
    EXPECT_TRUE(second.Commit());
    EXPECT_EQ("first", folder.Read("a"));
    EXPECT_EQ("second", folder.Read("b"));
    EXPECT_EQ(2, folder.Count());
}

TEST(CopyFileBeside, CopiesRightsAndTime)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "text");
    folder.Write("a~", "older");
    chmod(path.c_str(), 0604);
    const timespec times[] = {{1000, 0}, {2000, 5}};
    ASSERT_EQ(0, utimensat(AT_FDCWD, path.c_str(), times, 0));
    EXPECT_EQ(0, CopyFileBeside(path, path + "~"));
    EXPECT_EQ("text", folder.Read("a~"));
    EXPECT_EQ(0604u, StatusOf(path + "~").st_mode & 07777u);
    EXPECT_EQ(2000, StatusOf(path + "~").st_mtim.tv_sec);
    EXPECT_EQ(2, folder.Count());
    EXPECT_EQ(ENOENT, CopyFileBeside(folder / "missing", folder / "b"));
    fs::create_directory(folder / "folder");
    EXPECT_EQ(EISDIR, CopyFileBeside(path, folder / "folder"));
    EXPECT_EQ(3, folder.Count());
}

TEST(ReadInput, ReadsFilesAndPipesToTheirEnd)
{
    const TemporaryFolder folder;
    int error = -1;
    EXPECT_EQ("text", ReadInput(folder.Write("a", "text"), 4, error));
    EXPECT_EQ(0, error);
    EXPECT_EQ(std::nullopt, ReadInput(folder / "a", 3, error));
    EXPECT_EQ(EFBIG, error);
    EXPECT_EQ(std::nullopt, ReadInput(folder / "missing", 4, error));
    EXPECT_EQ(ENOENT, error);
    EXPECT_EQ(std::nullopt, ReadInput(folder.Path(), 4, error));
    EXPECT_EQ(EISDIR, error);
    EXPECT_EQ(std::nullopt, ReadInput("/dev/zero", 100000, error)) << "a device may have no end";
    EXPECT_EQ(EFBIG, error);
    EXPECT_EQ("", ReadInput("/dev/null", 4, error));

    int ends[2];
    ASSERT_EQ(0, pipe2(ends, O_NONBLOCK));
    std::thread writer([&] {
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(3, write(ends[1], "abc", 3));
        }
        close(ends[1]);
    });
    EXPECT_EQ("abcabcabc", ReadInput("/dev/fd/" + std::to_string(ends[0]), 100, error));
    writer.join();
    close(ends[0]);
    EXPECT_EQ(std::nullopt, ReadInput("/dev/fd/" + std::to_string(ends[0]), 100, error));
    EXPECT_EQ(EBADF, error);
}

} // namespace

#include "lib/platform/DataFolders.h"

#include "support/Environment.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using Folders = std::vector<std::string>;

/// `share` beside the folder of the test program.
std::string OwnShare()
{
    return (std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path() / "share").string();
}

TEST(DataFolders, AreTheUsersTheSystemsAndTheProgramsOwn)
{
    const Environment home("HOME", "/home/ada");
    const Environment user("XDG_DATA_HOME", nullptr);
    const Environment system("XDG_DATA_DIRS", "");
    EXPECT_EQ("/home/ada", HomeOfUser());
    EXPECT_EQ((Folders{"/home/ada/.local/share", "/usr/local/share", "/usr/share", OwnShare()}),
              DataFolders());
}

TEST(DataFolders, FollowTheEnvironmentAndSkipWhatIsRelativeOrStandsTwice)
{
    const Environment user("XDG_DATA_HOME", "/mine/");
    const Environment system("XDG_DATA_DIRS", "/a//:relative::/b:/a:/mine");
    EXPECT_EQ((Folders{"/mine", "/a", "/b", OwnShare()}), DataFolders());
    const Environment relative("XDG_DATA_HOME", "mine");
    EXPECT_EQ((Folders{"/a", "/b", "/mine", OwnShare()}), DataFolders());
}

TEST(DataFolders, AHomeThatIsNoneIsLookedUp)
{
    const Environment home("HOME", "nonsense");
    EXPECT_TRUE(HomeOfUser().empty() || HomeOfUser().front() == '/') << HomeOfUser();
}

} // namespace

#include "lib/files/FileQueries.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

TEST(FileQueries, WhatStandsAtAPathExistsADirectoryToo)
{
    const TemporaryFolder folder;
    EXPECT_EQ(1, FileExists(folder.Path().c_str()));
    EXPECT_EQ(1, FileExists(folder.Write("a", "").c_str()));
    EXPECT_EQ(0, FileExists((folder / "missing").c_str()));
    EXPECT_EQ(0, FileExists((folder / "a/below").c_str()));
    EXPECT_EQ(0, FileExists(""));
    EXPECT_EQ(0, FileExists(nullptr));
}

TEST(FileQueries, ALinkCountsAsWhatItLeadsTo)
{
    const TemporaryFolder folder;
    folder.Write("a", "12345");
    fs::create_symlink("a", (folder / "good"));
    fs::create_symlink("nowhere", (folder / "dangling"));
    fs::create_symlink("loop", (folder / "loop"));
    EXPECT_EQ(1, FileExists((folder / "good").c_str()));
    EXPECT_EQ(5, FileSize((folder / "good").c_str()));
    EXPECT_EQ(0, FileExists((folder / "dangling").c_str()));
    EXPECT_EQ(0, FileExists((folder / "loop").c_str()));
}

TEST(FileQueries, SizeCountsBytes)
{
    const TemporaryFolder folder;
    EXPECT_EQ(6, FileSize(folder.Write("a", std::string("a\0\r\n\xFF ", 6)).c_str()));
    EXPECT_EQ(100000, FileSize(folder.Write("b", std::string(100000, 'b')).c_str()));
}

TEST(FileQueries, AnEmptyFileAMissingOneAndADirectoryHaveNoSize)
{
    const TemporaryFolder folder;
    EXPECT_EQ(0, FileSize(folder.Write("empty", "").c_str()));
    EXPECT_EQ(0, FileSize((folder / "missing").c_str()));
    EXPECT_EQ(0, FileSize(folder.Path().c_str()));
    EXPECT_EQ(0, FileSize(nullptr));
}

TEST(FileQueries, SizeDoesNotWaitForTheOtherEndOfAPipe)
{
    const TemporaryFolder folder;
    ASSERT_EQ(0, mkfifo((folder / "pipe").c_str(), 0600));
    EXPECT_EQ(1, FileExists((folder / "pipe").c_str()));
    EXPECT_EQ(0, FileSize((folder / "pipe").c_str()));
}

TEST(FileQueries, SizeIsThatOfALargeFile)
{
    const TemporaryFolder folder;
    folder.Write("sparse", "");
    fs::resize_file((folder / "sparse"), 5'000'000'000);
    EXPECT_EQ(5'000'000'000, FileSize((folder / "sparse").c_str()));
}

TEST(FileQueries, AFolderNamesWhatStandsInIt)
{
    const TemporaryFolder folder;
    folder.Write(".hidden", "");
    folder.Write("a b.xml", "");
    fs::create_directory(folder / "under");
    folder.Write("under/deeper", "");
    const std::vector<std::string> expected = {".hidden", "a b.xml", "under"};
    for (const std::string& name : {folder.Path().string(), folder / "", std::string()}) {
        std::vector<std::string> names = FolderNames(name);
        std::ranges::sort(names);
        EXPECT_EQ(expected, names) << name;
    }
    EXPECT_TRUE(FolderNames(folder / "missing").empty());
    EXPECT_TRUE(FolderNames(folder / ".hidden").empty());
}

} // namespace

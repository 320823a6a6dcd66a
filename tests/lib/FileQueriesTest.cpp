#include "lib/FileQueries.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

TEST(FileQueries, WhatStandsAtAPathExistsADirectoryToo)
{
    const TempFolder folder;
    EXPECT_EQ(1, FileExists(folder.Path().c_str()));
    EXPECT_EQ(1, FileExists(folder.Write("a", "").c_str()));
    EXPECT_EQ(0, FileExists(folder.Path("missing").c_str()));
    EXPECT_EQ(0, FileExists(folder.Path("a/below").c_str()));
    EXPECT_EQ(0, FileExists(""));
}

TEST(FileQueries, ALinkCountsAsWhatItLeadsTo)
{
    const TempFolder folder;
    folder.Write("a", "12345");
    fs::create_symlink("a", folder.Path("good"));
    fs::create_symlink("nowhere", folder.Path("dangling"));
    fs::create_symlink("loop", folder.Path("loop"));
    EXPECT_EQ(1, FileExists(folder.Path("good").c_str()));
    EXPECT_EQ(5, FileSize(folder.Path("good").c_str()));
    EXPECT_EQ(0, FileExists(folder.Path("dangling").c_str()));
    EXPECT_EQ(0, FileExists(folder.Path("loop").c_str()));
}

TEST(FileQueries, SizeCountsBytes)
{
    const TempFolder folder;
    EXPECT_EQ(6, FileSize(folder.Write("a", std::string("a\0\r\n\xFF ", 6)).c_str()));
    EXPECT_EQ(100000, FileSize(folder.Write("b", std::string(100000, 'b')).c_str()));
}

TEST(FileQueries, AnEmptyFileAMissingOneAndADirectoryHaveNoSize)
{
    const TempFolder folder;
    EXPECT_EQ(0, FileSize(folder.Write("empty", "").c_str()));
    EXPECT_EQ(0, FileSize(folder.Path("missing").c_str()));
    EXPECT_EQ(0, FileSize(folder.Path().c_str()));
}

TEST(FileQueries, SizeDoesNotWaitForTheOtherEndOfAPipe)
{
    const TempFolder folder;
    ASSERT_EQ(0, mkfifo(folder.Path("pipe").c_str(), 0600));
    EXPECT_EQ(1, FileExists(folder.Path("pipe").c_str()));
    EXPECT_EQ(0, FileSize(folder.Path("pipe").c_str()));
}

TEST(FileQueries, SizeIsThatOfALargeFile)
{
    const TempFolder folder;
    folder.Write("sparse", "");
    fs::resize_file(folder.Path("sparse"), 5'000'000'000);
    EXPECT_EQ(5'000'000'000, FileSize(folder.Path("sparse").c_str()));
}

} // namespace

#include "document/FileMasks.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(FileMasks, StandAsTheyAreShown)
{
    EXPECT_STREQ("Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*||", kOpenTelescope.filter);
    EXPECT_STREQ("Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*||", kSaveTelescope.filter);
    EXPECT_STREQ("orreva.xml", kOpenTelescope.default_extension);
    EXPECT_STREQ("orreva.xml", kSaveTelescope.default_extension);
    EXPECT_STREQ("", kOpenTelescope.file_name);
    EXPECT_STREQ("", kSaveTelescope.file_name);
    EXPECT_STREQ("OSLO Lens Files (*.len)|*.len|All Files (*.*)|*.*||", kExportOslo.filter);
    EXPECT_STREQ("*.len", kExportOslo.default_extension);
    EXPECT_STREQ("untitled.len", kExportOslo.file_name);
    EXPECT_STREQ("FTA Files (*.mir)|*.mir|All Files (*.*)|*.*||", kExportFta.filter);
    EXPECT_STREQ("*.len", kExportFta.default_extension);
    EXPECT_STREQ("untitled.mir", kExportFta.file_name);
    EXPECT_FALSE(kOpenTelescope.saving);
    EXPECT_TRUE(kSaveTelescope.saving);
    EXPECT_TRUE(kExportOslo.saving);
    EXPECT_TRUE(kExportFta.saving);
}

TEST(FileMasks, TheOldFormatHasTheMaskOfItsTemplate)
{
    EXPECT_STREQ("File Type Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||",
                 OldFormatMask(kEnglish).filter);
    EXPECT_STREQ("Dateityp Orreva (*.orreva)|*.orreva|All Files (*.*)|*.*||", OldFormatMask(kGerman).filter);
    EXPECT_FALSE(OldFormatMask(kEnglish).saving);
}

TEST(FileMasks, TheEndingIsTheOneOfTheFirstChoice)
{
    EXPECT_EQ("orreva.xml", FilterEnding(kOpenTelescope));
    EXPECT_EQ("orreva.xml", FilterEnding(kSaveTelescope));
    EXPECT_EQ("len", FilterEnding(kExportOslo));
    EXPECT_EQ("mir", FilterEnding(kExportFta));
    EXPECT_EQ("orreva", FilterEnding(OldFormatMask(kGerman)));
}

TEST(FileMasks, ANameWithoutEndingGetsTheOneThatTheFilterShows)
{
    EXPECT_EQ("scope.len", WithEnding(kExportOslo, "scope"));
    EXPECT_EQ("scope.mir", WithEnding(kExportFta, "scope"));
    EXPECT_EQ("scope.orreva.xml", WithEnding(kSaveTelescope, "scope"));
    EXPECT_EQ("/no/such/folder/scope.orreva.xml", WithEnding(kOpenTelescope, "/no/such/folder/scope"));
    EXPECT_EQ("/no.such/scope.orreva", WithEnding(OldFormatMask(kGerman), "/no.such/scope"));
}

TEST(FileMasks, NoAsteriskReachesTheDisk)
{
    for (const FileDialog& dialog :
         {kOpenTelescope, kSaveTelescope, kExportOslo, kExportFta, OldFormatMask(kEnglish)}) {
        EXPECT_EQ(std::string::npos, WithEnding(dialog, "scope").find('*')) << dialog.filter;
    }
}

TEST(FileMasks, WhatHasAnEndingOrNamesNoFileStays)
{
    for (const char* path : {"", "scope.len", "scope.txt", "a.b/scope.mir", "scope.", "a/b/", "a/..", ".",
                             ".hidden", "/home/me/.hidden", ".hidden.len"}) {
        EXPECT_EQ(path, WithEnding(kExportFta, path));
    }
}

TEST(FileMasks, AFileThatExistsIsOpenedAsItIsNamed)
{
    const TemporaryFolder folder;
    folder.Write("scope", "x");
    EXPECT_EQ(folder / "scope", WithEnding(kOpenTelescope, folder / "scope"));
    EXPECT_EQ(folder / "scope.orreva.xml", WithEnding(kSaveTelescope, folder / "scope"));
}

} // namespace

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

TEST(FileMasks, ANameToSaveUnderTheFirstChoiceGetsItsEnding)
{
    EXPECT_EQ("scope.len", WithEnding(kExportOslo, "scope"));
    EXPECT_EQ("scope.mir", WithEnding(kExportFta, "scope"));
    EXPECT_EQ("scope.orreva.xml", WithEnding(kSaveTelescope, "scope"));
    EXPECT_EQ("M\xC3\xBCller f4.5.orreva.xml", WithEnding(kSaveTelescope, "M\xC3\xBCller f4.5"));
    EXPECT_EQ("scope.xml.orreva.xml", WithEnding(kSaveTelescope, "scope.xml"));
    EXPECT_EQ("a.b/scope.len.mir", WithEnding(kExportFta, "a.b/scope.len"));
    EXPECT_EQ("scope.mir", WithEnding(kExportFta, "scope.")) << "no second point";
    EXPECT_EQ("/home/me/.hidden.mir", WithEnding(kExportFta, "/home/me/.hidden"));
}

TEST(FileMasks, UnderAnotherChoiceOnlyANameWithoutEndingGetsOne)
{
    EXPECT_EQ("scope.orreva.xml", WithEnding(kSaveTelescope, "scope", false));
    for (const char* path : {"scope.len", "scope.txt", "a.b/scope.xml", "scope.", ".hidden"}) {
        EXPECT_EQ(path, WithEnding(kSaveTelescope, path, false));
    }
}

TEST(FileMasks, NoAsteriskReachesTheDisk)
{
    for (const FileDialog& dialog :
         {kOpenTelescope, kSaveTelescope, kExportOslo, kExportFta, OldFormatMask(kEnglish)}) {
        EXPECT_EQ(std::string::npos, WithEnding(dialog, "scope").find('*')) << dialog.filter;
    }
}

TEST(FileMasks, WhatHasTheEndingOrNamesNoFileStays)
{
    for (const char* path : {"", "scope.mir", "SCOPE.MIR", ".hidden.mir", "a/b/", "a/..", ".", ".."}) {
        EXPECT_EQ(path, WithEnding(kExportFta, path));
    }
}

TEST(FileMasks, AFileIsOpenedAsItIsNamedOrByTheEnding)
{
    const TemporaryFolder folder;
    folder.Write("scope", "x");
    folder.Write("scope.orreva.xml", "x");
    folder.Write("other.orreva.xml", "x");
    EXPECT_EQ(folder / "scope", WithEnding(kOpenTelescope, folder / "scope"));
    EXPECT_EQ(folder / "other.orreva.xml", WithEnding(kOpenTelescope, folder / "other"));
    EXPECT_EQ(folder / "missing", WithEnding(kOpenTelescope, folder / "missing"));
    EXPECT_EQ(folder / "scope.orreva.xml", WithEnding(kSaveTelescope, folder / "scope"));
}

} // namespace

#include "document/DesignFiles.h"

#include "document/RescueCopies.h"
#include "document/TelescopeFile.h"
#include "lib/text/Language.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string Design(const char* title)
{
    COrrevaData record;
    record.SetTitle(title);
    return WriteTelescope(record);
}

class DesignFilesTest : public testing::Test {
protected:
    DesignFilesTest() { files.KeepCopies(&copies); }

    std::vector<std::string> Kept() const
    {
        std::vector<std::string> kept;
        for (const RescueCopy& copy : copies.List()) {
            kept.push_back(std::string(RescueReasonWord(copy.reason)) + " " + copy.title);
        }
        return kept;
    }

    const TemporaryFolder folder;
    RescueCopies copies{folder / "rescue"};
    DesignFiles files;
};

using Strings = std::vector<std::string>;

TEST_F(DesignFilesTest, AForeignFileIsKeptOnceUnderItsNameWithATilde)
{
    folder.Write("a.len", "old");
    EXPECT_TRUE(files.Save("a.len", "new"));
    EXPECT_EQ("new", folder.Read("a.len"));
    EXPECT_EQ("old", folder.Read("a.len~"));
    EXPECT_TRUE(files.Save("a.len", "newer"));
    EXPECT_EQ("newer", folder.Read("a.len"));
    EXPECT_EQ("old", folder.Read("a.len~")) << "the first time in a run";
    EXPECT_TRUE(Kept().empty()) << "no design";
}

TEST_F(DesignFilesTest, AReplacedDesignBecomesARescueCopyToo)
{
    folder.Write("a.orreva.xml", Design("old"));
    EXPECT_TRUE(files.Save("a.orreva.xml", Design("new")));
    EXPECT_EQ(Design("old"), folder.Read("a.orreva.xml~"));
    EXPECT_EQ(Strings{"replaced old"}, Kept());
    EXPECT_EQ(folder / "a.orreva.xml", copies.List()[0].path);
}

TEST_F(DesignFilesTest, WhatThisRunWroteIsItsOwn)
{
    EXPECT_TRUE(files.Save("a", "one"));
    EXPECT_TRUE(files.Save("./a", "two"));
    fs::create_symlink("a", folder / "link");
    EXPECT_TRUE(files.Save("link", "three"));
    EXPECT_EQ("three", folder.Read("a"));
    EXPECT_FALSE(fs::exists(folder / "a~"));
    EXPECT_FALSE(fs::exists(folder / "link~"));
}

TEST_F(DesignFilesTest, WhatThisRunOpenedAsADesignIsItsOwn)
{
    folder.Write("a.orreva.xml", Design("mine"));
    COrrevaData record(nullptr, &files);
    ASSERT_EQ(0, record.Load("a.orreva.xml"));
    EXPECT_EQ(0, record.Save());
    EXPECT_FALSE(fs::exists(folder / "a.orreva.xml~"));
    EXPECT_TRUE(Kept().empty());
}

TEST_F(DesignFilesTest, ATextThatIsNoDesignCountsAsForeign)
{
    folder.Write("letter.txt", "Dear <telescop> maker");
    COrrevaData record(nullptr, &files);
    ASSERT_EQ(0, record.Load("letter.txt"));
    EXPECT_EQ(0, record.Save());
    EXPECT_EQ("Dear <telescop> maker", folder.Read("letter.txt~"));
    EXPECT_TRUE(IsDesignText(folder.Read("letter.txt")));
}

TEST_F(DesignFilesTest, ADesignUnderTheKeptNameGoesAmongTheCopies)
{
    folder.Write("a.orreva.xml", Design("second"));
    folder.Write("a.orreva.xml~", Design("first"));
    EXPECT_TRUE(files.Save("a.orreva.xml", Design("third")));
    EXPECT_EQ(Design("second"), folder.Read("a.orreva.xml~"));
    EXPECT_EQ((Strings{"replaced second", "replaced first"}), Kept());
}

TEST_F(DesignFilesTest, NothingIsReplacedThatCannotBeKept)
{
    folder.Write("a", "old");
    fs::create_directory(folder / "a~");
    EXPECT_EQ(EISDIR, files.Save("a", "new").error);
    EXPECT_EQ("old", folder.Read("a"));
    // A design is kept among the copies in any case.
    folder.Write("b.orreva.xml", Design("old"));
    fs::create_directory(folder / "b.orreva.xml~");
    EXPECT_TRUE(files.Save("b.orreva.xml", Design("new")));
    EXPECT_EQ(Strings{"replaced old"}, Kept());
}

TEST_F(DesignFilesTest, AFileThatMayNotBeReadIsNotReplaced)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can become somebody else";
    }
    chmod(folder.Path().c_str(), 0777);
    chmod(folder.Write("a", "old").c_str(), 0222);
    const pid_t child = fork();
    if (child == 0) {
        BecomeOrdinaryUser();
        std::_Exit(files.Save("a", "new").error);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_EQ(EACCES, WEXITSTATUS(status));
    EXPECT_EQ("old", folder.Read("a"));
}

TEST_F(DesignFilesTest, WithoutCopiesNothingIsKept)
{
    files.KeepCopies(nullptr);
    folder.Write("a", Design("old"));
    EXPECT_TRUE(files.Save("a", "new"));
    EXPECT_FALSE(fs::exists(folder / "a~"));
    EXPECT_TRUE(Kept().empty());
}

TEST_F(DesignFilesTest, TellsWhatWasWrittenOrWhy)
{
    files.Save("a", "new");
    EXPECT_EQ("Written: " + (folder / "a"), files.LastText(kEnglish));
    EXPECT_EQ("Geschrieben: " + (folder / "a"), files.LastText(kGerman));
    files.Save("/dev/full", "new");
    EXPECT_EQ("Cannot write /dev/full: the disk is full", files.LastText(kEnglish));
    EXPECT_EQ("/dev/full kann nicht geschrieben werden: der Datentr\xE4ger ist voll",
              files.LastText(kGerman));
    files.Save("missing/a", "new");
    EXPECT_EQ("Cannot write " + (folder / "missing/a") + ": no such file or folder",
              files.LastText(kEnglish));
}

/// Answers a save prompt.
class Prompt : public RecordHost {
public:
    explicit Prompt(bool yes) : m_yes(yes) {}
    bool AskYesNo(const char*) override { return m_yes; }
    void ShowMessage(const char*) override {}
    void SetDocumentTitle(const char*) override {}
    void BeginWait() override {}
    void EndWait() override {}

private:
    bool m_yes;
};

TEST_F(DesignFilesTest, WhatIsNotSavedIsKept)
{
    Prompt no(false);
    COrrevaData declined(&no, &files);
    declined.SetTitle("declined");
    declined.Reset();
    EXPECT_TRUE(Kept().empty()) << "nothing was modified";
    declined.SetTitle("declined");
    declined.SetModified(1);
    declined.Reset();
    EXPECT_EQ(Strings{"discarded declined"}, Kept());

    Prompt yes(true);
    COrrevaData failed(&yes, &files);
    failed.Reset();
    failed.SetTitle("failed");
    failed.file_path = "missing/a.orreva.xml";
    failed.SetModified(1);
    failed.Reset();
    EXPECT_EQ((Strings{"not-saved failed", "discarded declined"}), Kept());
    EXPECT_EQ(folder / "missing/a.orreva.xml", copies.List()[0].path);

    failed.SetTitle("saved");
    failed.SetModified(1);
    failed.Reset();
    EXPECT_EQ(2u, Kept().size()) << "a save that succeeds needs no copy";
    EXPECT_EQ(Design("x").size() + 4, folder.Read("noname.orreva.xml").size());
}

} // namespace

// What the document does so that no work is lost: opening by content, words in the status bar, copies that
// are kept aside, steps that can be taken back.

#include "document/OrrevaDoc.h"

#include "document/Commands.h"
#include "document/EarlierDesigns.h"
#include "document/RescueCopies.h"
#include "document/WhatIfBar.h"
#include "lib/text/Language.h"
#include "model/rows/NumberField.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <filesystem>
#include <functional>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

namespace id = command_id;

constexpr const char* kOldFile = ORREVA_SOURCE_DIR "/tests/golden/exchange/truss.orreva";
constexpr const char* kDesign = ORREVA_SOURCE_DIR "/share/examples/newton-200-1200.orreva.xml";
constexpr const char* kQuestion = "ask This is a design of the present format. Open it as such?";

class NothingIsLost : public testing::Test {
protected:
    NothingIsLost()
    {
        g_pCurrentDocument = &doc;
        doc.KeepCopies(&copies);
    }

    void Run(std::int32_t command) { RunCommand(command, doc); }
    void MakeTelescope(const char* title = "Tester")
    {
        host.quick_new.push_back({title, "250", "1500"});
        Run(id::kNewQuick);
        host.Take();
    }
    /// An OK of the properties that sets the focal length.
    void SetFocalLength(double value)
    {
        host.in_modal = [this, value](Modal) { data.SetFocalLength(value); };
        host.modals.push_back(true);
        Run(id::kProperties);
        host.in_modal = nullptr;
    }
    std::string CopyOfDesign(const char* name = "design.orreva.xml") const
    {
        std::filesystem::copy_file(kDesign, folder / name);
        return folder / name;
    }
    bool AskedAnything()
    {
        for (const std::string& event : host.Take()) {
            if (event.starts_with("ask") || event.starts_with("message")) {
                return true;
            }
        }
        return false;
    }

    TemporaryFolder state;
    TemporaryFolder folder; // the current one
    RecordingHost host;
    RescueCopies copies{state / "rescue"};
    COrrevaDoc doc{host};
    COrrevaData& data = doc.main_record;
};

// Opening --------------------------------------------------------------------------------------------------

TEST_F(NothingIsLost, ADesignThatIsHandedOverIsOpenedAsOne)
{
    const std::string path = CopyOfDesign();
    EXPECT_TRUE(doc.OpenByContent(path.c_str()));
    EXPECT_EQ(path, data.file_path.GetText());
    EXPECT_EQ(200.0, data.GetMirrorDiameter());
    EXPECT_EQ(0, data.IsModified());
    EXPECT_FALSE(AskedAnything());
}

TEST_F(NothingIsLost, AnythingElseGoesTheOldFormatsWay)
{
    EXPECT_TRUE(doc.OpenByContent(kOldFile));
    EXPECT_STREQ("noname.orreva.xml", data.file_path);
    EXPECT_EQ(1, data.IsModified());
    EXPECT_EQ("title truss.orreva", host.Take().back());
}

TEST_F(NothingIsLost, ImportAsksForADesignInBothLanguages)
{
    const std::string path = CopyOfDesign();
    host.paths = {path, path};
    host.yes_no = {true};
    Run(id::kImportOld);
    EXPECT_EQ(kQuestion, host.Take().at(1));
    EXPECT_EQ(path, data.file_path.GetText());

    g_nLanguage = kGerman;
    host.yes_no = {false};
    Run(id::kImportOld);
    g_nLanguage = kEnglish;
    const auto events = host.Take();
    EXPECT_EQ("ask Diese Datei ist ein Entwurf im heutigen Format. Als solchen \xF6"
              "ffnen?",
              events.at(1));
    EXPECT_TRUE(events.at(2).starts_with("message Achtung, diese Daten wurden mit einer \xE4lteren"))
        << "No goes on as ever: " << events.at(2);
}

TEST_F(NothingIsLost, ImportOfAnOldFileAsksNothing)
{
    host.paths = {kOldFile};
    Run(id::kImportOld);
    EXPECT_FALSE(AskedAnything());
    EXPECT_TRUE(doc.HasFile());
}

TEST_F(NothingIsLost, OfSeveralDroppedFilesTheFirstIsOpened)
{
    const std::string path = CopyOfDesign();
    doc.OpenDropped(std::vector<std::string>{path, "b", "c"});
    EXPECT_EQ(path, data.file_path.GetText());
    EXPECT_EQ("2 more files were not opened.", host.status);
    doc.OpenDropped(std::vector<std::string>{path, "b"});
    EXPECT_EQ("One more file was not opened.", host.status);
    doc.OpenDropped(std::vector<std::string>{path});
    EXPECT_EQ(std::string::npos, host.status.find("not opened")) << host.status;
}

TEST_F(NothingIsLost, ATextThatIsNoDesignIsKeptBeforeASaveReplacesIt)
{
    const std::string path = folder.Write("letter.txt", "Dear Anna,\n");
    host.paths = {path};
    Run(id::kOpen);
    EXPECT_EQ(path, data.file_path.GetText());
    Run(id::kSave);
    EXPECT_EQ("Dear Anna,\n", folder.Read("letter.txt~"));
}

TEST_F(NothingIsLost, AnOpenedDesignIsReplacedWithoutACopy)
{
    host.paths = {CopyOfDesign()};
    Run(id::kOpen);
    Run(id::kSave);
    EXPECT_EQ(1, folder.Count());
}

TEST_F(NothingIsLost, ADamagedImportShowsNoInfiniteReading)
{
    const std::string whole = [] {
        std::ifstream file(kOldFile, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }();
    const std::string path = folder.Write("half.orreva", whole.substr(0, whole.size() / 3));
    EXPECT_FALSE(doc.OpenByContent(path.c_str()));
    ASSERT_TRUE(doc.HasFile());
    EXPECT_TRUE(std::isfinite(data.focal_plane_height));
    EXPECT_TRUE(std::isfinite(data.GetFocalPlaneHeight()));
    EXPECT_TRUE(std::isfinite(doc.field_angle_100));
    EXPECT_EQ(0, data.IsModified());
}

// Saving ---------------------------------------------------------------------------------------------------

TEST_F(NothingIsLost, ASaveSaysWhereUntilTheNextCommand)
{
    MakeTelescope();
    Run(id::kSave);
    EXPECT_EQ("Written: " + folder / "noname.orreva.xml", host.status);
    Run(id::kShowExtendedFocuser);
    EXPECT_EQ("", host.status);
    host.paths = {folder / "a.len"};
    Run(id::kExportOslo);
    EXPECT_EQ("Written: " + folder / "a.len", host.status);
    EXPECT_FALSE(AskedAnything());
}

TEST_F(NothingIsLost, AFailedSaveSaysWhyUntilItSucceeds)
{
    MakeTelescope();
    host.paths = {folder / "missing/scope.orreva.xml", folder / "scope.orreva.xml"};
    Run(id::kSaveAs);
    EXPECT_TRUE(host.status.starts_with("Cannot write " + folder / "missing/scope.orreva.xml: "))
        << host.status;
    Run(id::kShowExtendedFocuser);
    EXPECT_TRUE(host.status.starts_with("Cannot write "));
    EXPECT_EQ(1, data.IsModified());
    EXPECT_FALSE(AskedAnything()) << "no new message box";
    Run(id::kSaveAs);
    EXPECT_EQ("Written: " + folder / "scope.orreva.xml", host.status);
}

TEST_F(NothingIsLost, AFailedExportHasItsBoxAndSaysWhy)
{
    MakeTelescope();
    host.paths = {folder / "missing/scope.mir"};
    Run(id::kExportFta);
    EXPECT_EQ("message Error writing...", host.Take().back());
    EXPECT_TRUE(host.status.starts_with("Cannot write "));
}

TEST_F(NothingIsLost, TheStateIsModifiedOrSavedAtATime)
{
    EXPECT_EQ("", doc.StateText(kEnglish));
    MakeTelescope();
    EXPECT_EQ("modified", doc.StateText(kEnglish));
    EXPECT_EQ("ge\xE4ndert", doc.StateText(kGerman));
    Run(id::kSave);
    struct timespec times[2] = {{}, {}};
    struct tm local = {};
    local.tm_year = 124;
    local.tm_mon = 5;
    local.tm_mday = 1;
    local.tm_hour = 13;
    local.tm_min = 5;
    local.tm_isdst = -1;
    times[0].tv_sec = times[1].tv_sec = mktime(&local);
    ASSERT_EQ(0, utimensat(AT_FDCWD, "noname.orreva.xml", times, 0));
    EXPECT_EQ("saved 13:05", doc.StateText(kEnglish));
    EXPECT_EQ("gesichert 13:05", doc.StateText(kGerman));
}

// Copies kept aside ----------------------------------------------------------------------------------------

TEST_F(NothingIsLost, ADiscardedDesignIsKept)
{
    MakeTelescope("First");
    host.yes_no = {false};
    MakeTelescope("Second");
    const auto list = copies.List();
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(RescueReason::Discarded, list[0].reason);
    EXPECT_EQ("First", list[0].title);
}

TEST_F(NothingIsLost, AYesWhoseSaveFailsIsKeptAndTold)
{
    MakeTelescope("First");
    std::filesystem::create_directory(folder / "noname.orreva.xml");
    host.yes_no = {true};
    MakeTelescope("Second");
    const auto list = copies.List();
    ASSERT_EQ(1u, list.size());
    EXPECT_EQ(RescueReason::NotSaved, list[0].reason);
    EXPECT_TRUE(host.status.starts_with("Cannot write ")) << host.status;
    EXPECT_TRUE(copies.TakeNews().has_value());
    EXPECT_FALSE(copies.TakeNews().has_value()) << "once";
}

TEST_F(NothingIsLost, AReplacedDesignIsKept)
{
    const std::string path = CopyOfDesign("theirs.orreva.xml");
    const std::string before = folder.Read("theirs.orreva.xml");
    MakeTelescope();
    host.paths = {path};
    Run(id::kSaveAs);
    EXPECT_EQ(before, folder.Read("theirs.orreva.xml~"));
    ASSERT_EQ(1u, copies.List().size());
    EXPECT_EQ(RescueReason::Replaced, copies.List()[0].reason);
}

TEST_F(NothingIsLost, TheLiveCopyFollowsTheRecordAndGoesWithASave)
{
    const auto files = [this] {
        return std::filesystem::exists(state / "rescue")
                   ? std::distance(std::filesystem::directory_iterator(state / "rescue"), {})
                   : 0;
    };
    doc.KeepLiveCopy();
    EXPECT_EQ(0, files()) << "nothing to keep";
    MakeTelescope();
    doc.KeepLiveCopy();
    const auto written = files();
    EXPECT_GE(written, 2) << "a design and its note";
    EXPECT_TRUE(copies.List().empty()) << "of a running program";
    SetFocalLength(1234);
    doc.KeepLiveCopy();
    EXPECT_EQ(written, files());
    Run(id::kSave);
    EXPECT_LT(files(), written);
}

TEST_F(NothingIsLost, ClosingInOrderTakesTheLiveCopyAway)
{
    MakeTelescope();
    doc.KeepLiveCopy();
    host.yes_no = {true};
    doc.OnCloseDocument();
    RescueCopies next(state / "rescue");
    EXPECT_TRUE(next.List().empty());
    EXPECT_FALSE(next.TakeNews().has_value());
}

TEST_F(NothingIsLost, CopiesThatCannotBeKeptAreToldOnce)
{
    folder.Write("file", "");
    RescueCopies nowhere(folder / "file");
    doc.KeepCopies(&nowhere);
    MakeTelescope();
    doc.KeepLiveCopy();
    EXPECT_TRUE(host.status.starts_with("No copies of unsaved designs can be kept: ")) << host.status;
    Run(id::kShowExtendedFocuser);
    EXPECT_EQ("", host.status);
    SetFocalLength(1400);
    doc.KeepLiveCopy();
    EXPECT_EQ("", host.status);
    doc.KeepCopies(nullptr);
}

TEST_F(NothingIsLost, AnEarlierDesignBecomesTheCurrentOneUnderItsOldPath)
{
    host.paths = {CopyOfDesign()};
    Run(id::kOpen);
    SetFocalLength(1234);
    host.yes_no = {false};
    MakeTelescope();
    host.yes_no = {false};
    host.earlier = 0;
    Run(id::kEarlierDesigns);
    const auto events = host.Take();
    EXPECT_EQ("earlier designs 1", events.at(0));
    EXPECT_EQ("ask Save noname.orreva.xml?", events.at(1)) << "the usual prompt";
    EXPECT_EQ(1234.0, data.GetFocalLength());
    EXPECT_EQ(folder / "design.orreva.xml", data.file_path.GetText());
    EXPECT_EQ(1, data.IsModified());
    EXPECT_EQ("title " + folder / "design.orreva.xml", events.at(3));
}

TEST_F(NothingIsLost, TheListOffersTheCopyThatIsNews)
{
    for (const char* title : {"First", "Second"}) {
        MakeTelescope(title);
        host.yes_no = {false};
        Run(id::kNewQuick); // cancelled
    }
    const auto list = copies.List();
    ASSERT_EQ(2u, list.size());
    host.Take();
    doc.ChooseEarlierDesign(list[1].file);
    EXPECT_EQ("earlier designs 2 at 1", host.Take().at(0));
    doc.ChooseEarlierDesign("gone");
    EXPECT_EQ("earlier designs 2", host.Take().at(0));
}

TEST(EarlierDesigns, HaveTimeReasonTitleAndPath)
{
    const RescueCopy copy{"f", "2026-11-21T13:05:59+01:00", RescueReason::Crash, "Mine",
                          "/home/m\xC3\xBC/a.orreva.xml"};
    const ListRow english{"2026-11-21 13:05:59", "program broke off", "Mine", "/home/m\xFC/a.orreva.xml"};
    EXPECT_EQ(english, EarlierDesignRow(copy, kEnglish));
    EXPECT_EQ("Programm brach ab", EarlierDesignRow(copy, kGerman)[1]);
}

// Undo and redo --------------------------------------------------------------------------------------------

TEST_F(NothingIsLost, StepsAreTakenBackAndDoneAgainByName)
{
    MakeTelescope();
    SetFocalLength(1400);
    SetFocalLength(1300);
    Run(id::kUndo);
    EXPECT_EQ(1400.0, data.GetFocalLength());
    EXPECT_EQ("Undo: Properties", host.status);
    EXPECT_EQ(1, data.IsModified());
    Run(id::kUndo);
    EXPECT_EQ(1500.0, data.GetFocalLength());
    Run(id::kRedo);
    EXPECT_EQ(1400.0, data.GetFocalLength());
    EXPECT_EQ("Redo: Properties", host.status);
    g_nLanguage = kGerman;
    Run(id::kUndo);
    EXPECT_EQ("R\xFC"
              "ckg\xE4ngig: Eigenschaften",
              host.status);
    Run(id::kUndo);
    EXPECT_EQ("R\xFC"
              "ckg\xE4ngig: Neu",
              host.status);
    g_nLanguage = kEnglish;
    EXPECT_FALSE(doc.HasFile());
    EXPECT_NE(host.events.end(), std::ranges::find(host.events, "title "));
}

TEST_F(NothingIsLost, AnOkThatChangedNothingIsNoStep)
{
    MakeTelescope();
    SetFocalLength(1400);
    SetFocalLength(1400);
    Run(id::kUndo);
    EXPECT_EQ(1500.0, data.GetFocalLength());
}

TEST_F(NothingIsLost, EachApplyIsAStepAndSoIsTheOkAfterIt)
{
    MakeTelescope();
    host.in_modal = [this](Modal) {
        data.SetFocalLength(1400);
        doc.NoteApply();
        data.SetFocalLength(1300);
    };
    host.modals.push_back(true);
    Run(id::kProperties);
    Run(id::kUndo);
    EXPECT_EQ(1400.0, data.GetFocalLength());
    Run(id::kUndo);
    EXPECT_EQ(1500.0, data.GetFocalLength());
}

TEST_F(NothingIsLost, CancelOfANewDialogIsTakenBack)
{
    MakeTelescope();
    SetFocalLength(1400);
    for (const std::int32_t command : {id::kNewQuick, id::kNewDetailed}) {
        Run(command);
        EXPECT_FALSE(doc.HasFile());
        Run(id::kUndo);
        EXPECT_EQ(1400.0, data.GetFocalLength());
        EXPECT_STREQ("noname.orreva.xml", data.file_path);
        EXPECT_EQ(1, data.IsModified());
    }
}

TEST_F(NothingIsLost, OpenAndImportAreTakenBack)
{
    MakeTelescope("Mine");
    host.paths = {CopyOfDesign(), kOldFile};
    Run(id::kOpen);
    Run(id::kImportOld);
    Run(id::kUndo);
    EXPECT_EQ("Undo: Import", host.status);
    EXPECT_EQ(folder / "design.orreva.xml", data.file_path.GetText());
    EXPECT_EQ(0, data.IsModified()) << "as it was read";
    Run(id::kUndo);
    EXPECT_EQ("Undo: Open", host.status);
    EXPECT_STREQ("Mine", data.GetTitle());
}

TEST_F(NothingIsLost, TheTubePropertiesGiveTheirPathBack)
{
    host.paths = {CopyOfDesign()};
    Run(id::kOpen);
    host.in_modal = [this](Modal) { doc.active_record->SetTubeType(3); };
    host.modals.push_back(true);
    Run(id::kTubeProperties);
    EXPECT_STREQ("noname.orreva.xml", data.file_path);
    Run(id::kUndo);
    EXPECT_EQ(folder / "design.orreva.xml", data.file_path.GetText());
    EXPECT_EQ(0, data.GetTubeType());
}

TEST_F(NothingIsLost, AfterASaveAnUndoneDesignDiffersFromItsFile)
{
    host.paths = {CopyOfDesign()};
    Run(id::kOpen);
    SetFocalLength(1111);
    Run(id::kSave);
    Run(id::kUndo);
    EXPECT_EQ(1200.0, data.GetFocalLength());
    EXPECT_EQ(1, data.IsModified());
    Run(id::kRedo);
    EXPECT_EQ(0, data.IsModified()) << "the file holds just that";
}

TEST_F(NothingIsLost, UndoAfterSaveAsDoesNotGoBackToTheOldFile)
{
    host.paths = {CopyOfDesign(), folder / "new.orreva.xml"};
    Run(id::kOpen);
    SetFocalLength(1111);
    Run(id::kSaveAs);
    Run(id::kUndo);
    EXPECT_EQ(1200.0, data.GetFocalLength());
    EXPECT_EQ(folder / "new.orreva.xml", data.file_path.GetText());
    EXPECT_EQ(1, data.IsModified());
}

TEST_F(NothingIsLost, ACancelledSheetDuringATrialIsNoStep)
{
    MakeTelescope();
    SelectBarParameter(doc, 0);
    SlideBar(doc, 1480);
    Run(id::kProperties); // cancelled
    EXPECT_STREQ("New", doc.Steps().UndoName()->english);
    EXPECT_EQ(0, TrialAmong(doc.bar_params));
    CancelBar(doc);
    EXPECT_EQ(1500.0, data.GetFocalLength());
}

TEST_F(NothingIsLost, ATrialThatASheetTookOverIsTakenBackWithIt)
{
    MakeTelescope();
    SelectBarParameter(doc, 0);
    SlideBar(doc, 1480);
    host.in_modal = [this](Modal) {
        StoreNumber(data, {&COrrevaData::GetFocalLength, &COrrevaData::SetFocalLength, "%0.2f"}, "1480.00");
    };
    host.modals.push_back(true);
    Run(id::kProperties);
    EXPECT_FALSE(TrialAmong(doc.bar_params).has_value());
    EXPECT_EQ(1480.0, data.GetFocalLength());
    Run(id::kUndo);
    EXPECT_EQ(1500.0, data.GetFocalLength());
}

TEST_F(NothingIsLost, EveryCommandThatReplacesTheRecordEndsATrialWithoutWriting)
{
    const std::string path = CopyOfDesign();
    const std::function<void()> replace[] = {
        [this] { MakeTelescope(); },
        [&] { host.paths = {path}, Run(id::kOpen); },
        [&] { host.paths = {kOldFile}, Run(id::kImportOld); },
        [this] { Run(id::kUndo); },
        [this] { Run(id::kRedo); },
        [this] { host.earlier = 0, Run(id::kEarlierDesigns); },
        [this] { host.modals.push_back(true), Run(id::kTubeProperties); },
    };
    MakeTelescope();
    for (std::size_t i = 0; i < std::size(replace); ++i) {
        EXPECT_TRUE(SelectBarParameter(doc, 0).has_value()) << i;
        SlideBar(doc, 777);
        replace[i]();
        EXPECT_FALSE(TrialAmong(doc.bar_params).has_value()) << i;
        const double after = data.GetFocalLength();
        SlideBar(doc, 888);
        EXPECT_EQ(after, data.GetFocalLength()) << i;
    }
}

} // namespace

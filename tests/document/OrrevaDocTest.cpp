#include "document/OrrevaDoc.h"

#include "lib/text/Language.h"
#include "lib/text/LogSink.h"
#include "support/RecordingHost.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Events = std::vector<std::string>;

constexpr const char* kMask =
    "Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*|| orreva.xml []";

class OrrevaDoc : public testing::Test {
protected:
    OrrevaDoc() { g_pCurrentDocument = &doc; }

    void MakeTelescope()
    {
        host.quick_new.push_back({"Tester", "250", "1500"});
        doc.OnFileNewQuick();
        host.Take();
    }

    TemporaryFolder folder;
    RecordingHost host;
    COrrevaDoc doc{host};
};

TEST_F(OrrevaDoc, StartsClearedWithTheTablesValues)
{
    EXPECT_FALSE(doc.HasFile());
    EXPECT_EQ(&doc.main_record, doc.active_record);
    EXPECT_EQ(0.5, doc.field_angle_100);
    EXPECT_EQ(12.0, doc.field_diameter_100);
    EXPECT_EQ(0.0, doc.mirror_back_position);
    EXPECT_EQ(0.0, doc.mirror_front_position);
    EXPECT_EQ(1, doc.miss_in_grey);
    EXPECT_EQ(1, doc.show_offset);
    EXPECT_EQ(0, doc.ray_parallel | doc.ray_from_mouse | doc.ray_from_focal_plane |
                     doc.show_extended_focuser | doc.show_box_and_cage);
    EXPECT_TRUE(host.events.empty()) << "nothing is asked while the document is built";
}

TEST_F(OrrevaDoc, RecordsLeaveTheTitleAloneUntilTheFirstDrawing)
{
    g_pCurrentDocument = nullptr;
    doc.main_record.Reset();
    EXPECT_TRUE(host.Take().empty());
    g_pCurrentDocument = &doc;
    doc.main_record.Reset();
    EXPECT_EQ(Events{"title noname.orreva.xml"}, host.Take());
}

TEST_F(OrrevaDoc, QuickNewOffersItsTextsAndTakesThem)
{
    host.quick_new.push_back({"Mine", "200,7", "1200.5 mm"});
    doc.OnFileNewQuick();
    const Events expected{"title noname.orreva.xml", "quick new Untitleld Telescope,250,1500", "update",
                          "update"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_STREQ("Mine", doc.main_record.GetTitle());
    EXPECT_EQ(200.0, doc.main_record.mirror_diameter) << "a comma ends the number here";
    EXPECT_EQ(1200.5, doc.main_record.focal_length);
    EXPECT_TRUE(doc.HasFile());
    EXPECT_EQ(1, doc.main_record.IsModified());
}

TEST_F(OrrevaDoc, QuickNewTakesUnreadableNumbersAsZero)
{
    host.quick_new.push_back({"", "abc", ""});
    doc.OnFileNewQuick();
    EXPECT_EQ(0.0, doc.main_record.mirror_diameter);
    EXPECT_EQ(0.0, doc.main_record.focal_length);
}

TEST_F(OrrevaDoc, QuickNewCancelledLeavesNothingLoaded)
{
    MakeTelescope();
    doc.main_record.SetModified(0);
    doc.OnFileNewQuick();
    const Events expected{"title noname.orreva.xml", "quick new Untitleld Telescope,250,1500",
                          "title noname.orreva.xml", "title ", "update"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_FALSE(doc.HasFile());
    EXPECT_STREQ("", doc.main_record.GetTitle());
}

TEST_F(OrrevaDoc, FieldAngleIsNoNumberAfterTheFirstRecalculate)
{
    MakeTelescope();
    EXPECT_TRUE(std::isnan(doc.field_angle_100));
    // (1500 * 46.482 - 214.25 * 250) / (1500 - 214.25)
    EXPECT_NEAR(16160.5 / 1285.75, doc.field_diameter_100, 1e-9);
    EXPECT_DOUBLE_EQ(62.5, doc.mirror_back_position);
    EXPECT_NEAR(62.5 + 250.0 / 6.0, doc.mirror_front_position, 1e-12);
    doc.Recalculate();
    EXPECT_NEAR(2 * std::atan(16160.5 / 1285.75 / 3000) * 180 / M_PI, doc.field_angle_100, 1e-9);
}

TEST_F(OrrevaDoc, RecalculateTurnsTheTwoTypesIntoNumbers)
{
    MakeTelescope();
    EXPECT_EQ(0, doc.main_record.tube_type);
    EXPECT_EQ(0, doc.main_record.focuser_type);
}

TEST_F(OrrevaDoc, DetailedNewRunsTheWizard)
{
    host.modals.push_back(true);
    host.in_modal = [this](Modal) {
        EXPECT_EQ(1, g_nWizard);
        EXPECT_EQ(1, doc.main_record.IsModified()) << "recalculated before the sheet runs";
    };
    doc.OnFileNewDetailed();
    const Events expected{"new document", "title noname.orreva.xml", "update", "modal 0", "update", "update"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_TRUE(doc.HasFile());
}

TEST_F(OrrevaDoc, DetailedNewCancelledLeavesNothingLoaded)
{
    doc.OnFileNewDetailed();
    EXPECT_FALSE(doc.HasFile());
    EXPECT_STREQ("", doc.main_record.GetTitle());
}

TEST_F(OrrevaDoc, DetailedNewStopsWhereTheToolkitFails)
{
    host.new_document = false;
    doc.OnFileNewDetailed();
    EXPECT_EQ(Events{"new document"}, host.Take());
}

TEST_F(OrrevaDoc, PropertiesWithoutATelescopeTellInGerman)
{
    doc.OnProperties();
    EXPECT_EQ(Events{"message Bitte zu\xE4"
                     "chst 'Datei/Neu' oder 'Datei/\xD6"
                     "ffnen' anklicken."},
              host.Take());
}

TEST_F(OrrevaDoc, PropertiesRecalculateUnlessCancelled)
{
    MakeTelescope();
    g_nWizard = 1;
    doc.OnProperties();
    EXPECT_EQ(Events{"modal 0"}, host.Take());
    EXPECT_EQ(0, g_nWizard);
    host.modals.push_back(true);
    doc.OnProperties();
    EXPECT_EQ((Events{"modal 0", "update"}), host.Take());
}

std::vector<std::string> g_log;

TEST_F(OrrevaDoc, TubePropertiesWithOkLoseTheFilesPath)
{
    MakeTelescope();
    doc.main_record.SaveAs("mine.orreva.xml");
    doc.main_record.SetModified(1);
    host.Take();
    host.modals.push_back(true);
    host.in_modal = [this](Modal) {
        EXPECT_EQ(&doc.scratch_record, doc.active_record);
        EXPECT_STREQ("Tester", doc.scratch_record.GetTitle());
        doc.scratch_record.SetTubeType(3);
    };
    g_log.clear();
    const LogSink before = SetLogSink([](const char* psz) { g_log.emplace_back(psz); });
    doc.OnTubeProperties();
    SetLogSink(before);
    const Events expected{"title noname.orreva.xml", "modal 1", "ask Save mine.orreva.xml?",
                          "title noname.orreva.xml", "update"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_EQ("Vorher im Doc: 0", g_log.at(0));
    EXPECT_EQ(&doc.main_record, doc.active_record);
    EXPECT_EQ(3, doc.main_record.tube_type);
    EXPECT_STREQ("noname.orreva.xml", doc.main_record.file_path);
    EXPECT_EQ(1, doc.main_record.IsModified());
}

TEST_F(OrrevaDoc, TubePropertiesCancelledKeepThePathButNotTheTitle)
{
    MakeTelescope();
    doc.main_record.SaveAs("mine.orreva.xml");
    host.Take();
    host.in_modal = [this](Modal) { doc.scratch_record.SetTubeType(3); };
    doc.OnTubeProperties();
    EXPECT_EQ((Events{"title noname.orreva.xml", "modal 1", "update"}), host.Take());
    EXPECT_STREQ("mine.orreva.xml", doc.main_record.file_path);
    EXPECT_EQ(0, doc.main_record.GetTubeType());
    EXPECT_EQ(1, doc.main_record.IsModified()) << "modified after Cancel too";
}

TEST_F(OrrevaDoc, SavePromptInBothLanguagesHasNoCancel)
{
    MakeTelescope();
    host.yes_no.push_back(true);
    doc.OnCloseDocument();
    EXPECT_EQ((Events{"ask Save noname.orreva.xml?", "title noname.orreva.xml"}), host.Take());
    EXPECT_NE(std::string::npos, folder.Read("noname.orreva.xml").find("<title>Tester</title>"));

    MakeTelescope();
    g_nLanguage = kGerman;
    doc.OnCloseDocument();
    g_nLanguage = kEnglish;
    EXPECT_EQ("ask Die Daten wurden ver\xE4ndert.\nSoll die Datei noname.orreva.xml gesichert werden?",
              host.Take().at(0));
    EXPECT_EQ(HUGE_VAL, doc.main_record.mirror_diameter) << "closing with No loses the changes";
}

TEST_F(OrrevaDoc, SaveAfterNewAsksForNoName)
{
    MakeTelescope();
    doc.OnFileSave();
    EXPECT_TRUE(host.Take().empty());
    EXPECT_EQ(0, doc.main_record.IsModified());
    const std::string bytes = folder.Read("noname.orreva.xml");
    EXPECT_NE(std::string::npos, bytes.find("<diameter>250.000000</diameter>"));
    EXPECT_NE(std::string::npos, bytes.find("    <type>0</type>\n    <distance_front>125.000000"));
    EXPECT_NE(std::string::npos, bytes.find("<cell>1.#INF00</cell>")) << "nobody has read the weights";
}

TEST_F(OrrevaDoc, SaveAsAsksAndStores)
{
    MakeTelescope();
    doc.OnFileSaveAs();
    EXPECT_EQ(Events{std::string("save as ") + kMask}, host.Take());
    host.paths.push_back("there.orreva.xml");
    doc.OnFileSaveAs();
    EXPECT_STREQ("there.orreva.xml", doc.main_record.file_path);
    EXPECT_FALSE(folder.Read("there.orreva.xml").empty());
}

TEST_F(OrrevaDoc, OpenReadsAndIsNotModified)
{
    MakeTelescope();
    doc.main_record.SetMirrorDiameter(300);
    doc.main_record.SaveAs("a.orreva.xml");
    MakeTelescope();
    doc.main_record.SetModified(0);
    host.Take();
    host.paths.push_back("a.orreva.xml");
    doc.OnFileOpen();
    const Events expected{std::string("open ") + kMask,
                          "title noname.orreva.xml",
                          "wait",
                          "title a.orreva.xml",
                          "ready",
                          "update"};
    EXPECT_EQ(expected, host.Take());
    EXPECT_EQ(300, doc.main_record.GetMirrorDiameter());
    EXPECT_EQ(0, doc.main_record.IsModified());
    EXPECT_TRUE(doc.HasFile());
}

TEST_F(OrrevaDoc, OpenCancelledChangesNothing)
{
    MakeTelescope();
    doc.OnFileOpen();
    EXPECT_EQ(Events{std::string("open ") + kMask}, host.Take());
    EXPECT_EQ(1, doc.main_record.IsModified());
}

TEST_F(OrrevaDoc, OpenOfAMissingFileStillRunsTheLaterSteps)
{
    host.paths.push_back("missing.orreva.xml");
    doc.OnFileOpen();
    EXPECT_FALSE(doc.HasFile());
    EXPECT_EQ(0, doc.main_record.IsModified());
    EXPECT_EQ("update", host.Take().back());
}

TEST_F(OrrevaDoc, RayModesAreRadioButtonsThatMayAllBeOff)
{
    doc.OnRayParallel();
    EXPECT_EQ(1, doc.ray_parallel);
    doc.OnRayFromMouse();
    EXPECT_EQ(0, doc.ray_parallel);
    EXPECT_EQ(1, doc.ray_from_mouse);
    doc.OnRayFromFocalPlane();
    EXPECT_EQ(0, doc.ray_from_mouse);
    EXPECT_EQ(1, doc.ray_from_focal_plane);
    doc.OnRayFromFocalPlane();
    EXPECT_EQ(0, doc.ray_from_focal_plane);
    EXPECT_EQ(Events(4, "update"), host.Take());
    EXPECT_EQ(0, doc.main_record.IsModified()) << "a view switch changes no telescope";
}

TEST_F(OrrevaDoc, CentreMarksAreTold)
{
    MakeTelescope();
    doc.OnCentreMarks();
    const Events events = host.Take();
    ASSERT_EQ(1u, events.size());
    EXPECT_EQ(0u, events[0].find("message Maximaler Durchmesser der Markierung auf dem Hauptspiegel: "));
}

TEST_F(OrrevaDoc, RaytracingSettingsAreAToggle)
{
    host.settings = {true, false, true};
    doc.OnRaytracingSettings();
    EXPECT_EQ(0, doc.miss_in_grey);
    doc.OnRaytracingSettings();
    EXPECT_EQ(0, doc.miss_in_grey);
    doc.OnRaytracingSettings();
    EXPECT_EQ(1, doc.miss_in_grey);
    EXPECT_EQ((Events{"settings 1", "update", "settings 0", "settings 0", "update"}), host.Take());
}

} // namespace

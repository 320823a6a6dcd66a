#include "app/AppFixture.h"

#include "document/Commands.h"

#include <algorithm>
#include <string_view>
#include <tuple>

namespace {

namespace id = command_id;

/// A command and the class of the dialog that it opens.
struct DialogRow {
    int command;
    std::string_view dialog;
};

constexpr DialogRow kDialogs[] = {
    {id::kNewQuick, "CQuickNewDialog"},
    {id::kNewDetailed, "CMyPropertySheet0"},
    {id::kOpen, "QFileDialog"},
    {id::kSaveAs, "QFileDialog"},
    {id::kImportOld, "QFileDialog"},
    {id::kExportOslo, "QFileDialog"},
    {id::kExportFta, "QFileDialog"},
    {id::kPrint, "QPrintDialog"},
    {id::kPrintPreview, "QPrintPreviewDialog"},
    {id::kPrintSetup, "QPageSetupDialog"},
    {id::kProperties, "CMyPropertySheet0"},
    {id::kTubeProperties, "CPropertySheetTube"},
    {id::kCentreMarks, "QMessageBox"},
    {id::kArtificialStar, "CArtificialStarDialog"},
    {id::kFoucaultTest, "CPropertySheetCouder"},
    {id::kMatchingRonchi, "CPropertySheetMatchingRonchi"},
    {id::kFieldSimulation, "CFieldSimulationDlg"},
    {id::kRaytracingSettings, "CRaytracingSettingsDialog"},
    {id::kGerman, "QMessageBox"},
    {id::kEnglish, "QMessageBox"},
    {id::kCalculator, "CCalculatorDialog"},
    {id::kInchCalculator, "CInchDialog"},
    {id::kPolygonCalculator, "CPolygonDialog"},
    {id::kSectorCalculator, "CSectorDialog"},
    {id::kReportPdf, "QFileDialog"},
    {id::kWorkshopSheets, "CWorkshopSheetsDialog"},
    {id::kAbout, "CAboutBox"},
};

class CommandDialogs : public AppFixture, public testing::WithParamInterface<std::tuple<int, DialogRow>> {
protected:
    CommandDialogs() : AppFixture(std::get<int>(GetParam())) {}
};

std::string NameOf(const testing::TestParamInfo<std::tuple<int, DialogRow>>& info)
{
    const auto& [language, row] = info.param;
    return (language == kGerman ? "German" : "English") + std::to_string(row.command);
}

INSTANTIATE_TEST_SUITE_P(Commands, CommandDialogs,
                         testing::Combine(testing::Values(kEnglish, kGerman), testing::ValuesIn(kDialogs)),
                         NameOf);

TEST_P(CommandDialogs, Open)
{
    const DialogRow& row = std::get<DialogRow>(GetParam());
    MakeTelescope();
    app->Document().main_record.SetModified(0);
    InNextDialog<QDialog>([&](QDialog& dialog) {
        EXPECT_EQ(row.dialog, dialog.metaObject()->className());
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_FALSE(dialog.windowTitle().isEmpty());
        EXPECT_EQ(&app->Frame(), dialog.parentWidget());
        dialog.reject();
    });
    QApplication::setActiveWindow(nullptr); // as for a while after a box has closed
    Choose(row.command);
}

TEST(CommandDialogTable, HasARowForEachModal)
{
    for (const Command& command : Commands()) {
        const auto hasRow = [&](const DialogRow& row) { return row.command == command.id; };
        EXPECT_TRUE(!command.modal || std::ranges::any_of(kDialogs, hasRow)) << command.id;
    }
}

} // namespace

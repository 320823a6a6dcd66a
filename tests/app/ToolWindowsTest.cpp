#include "app/AppFixture.h"

#include "document/Commands.h"
#include "pages/sheet/PropertySheet.h"
#include "views/ResultList.h"
#include "windows/CompareWindow.h"
#include "windows/DesignCheckField.h"
#include "windows/DesignCheckWindow.h"
#include "windows/IlluminationWindow.h"
#include "windows/VariationWindow.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTableWidget>

#include <cmath>

namespace {

class ToolWindows : public AppFixture {
protected:
    explicit ToolWindows(int language = kEnglish) : AppFixture(language) {}

    COrrevaData& Record() const { return app->Document().main_record; }
    QString Message() const { return app->Frame().findChild<QLabel*>("message")->text(); }
    CDesignCheckField* Field() const { return app->Frame().findChild<CDesignCheckField*>(); }
    template <typename Window>
    Window* Find() const
    {
        return app->Frame().findChild<Window*>();
    }
    void ChooseFile(const QString& path)
    {
        InNextDialog<QFileDialog>([path](QFileDialog& dialog) {
            dialog.findChild<QLineEdit*>()->setText(path);
            static_cast<QDialog&>(dialog).accept();
        });
        Choose(33022);
    }
};

class ToolWindowsGerman : public ToolWindows {
protected:
    ToolWindowsGerman() : ToolWindows(kGerman) {}
};

TEST_F(ToolWindows, TheCheckIsTheLastFieldOfTheStatusBar)
{
    EXPECT_TRUE(Field()->isHidden());
    MakeTelescope();
    EXPECT_FALSE(Field()->isHidden());
    QCoreApplication::processEvents();
    for (const QWidget* const other :
         app->Frame().statusBar()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (other != Field() && other->isVisible()) {
            EXPECT_LE(other->geometry().left(), Field()->geometry().left())
                << other->objectName().toStdString();
        }
    }
}

TEST_F(ToolWindows, TheCheckFollowsEachChange)
{
    MakeTelescope();
    EXPECT_EQ("", Field()->text());
    Field()->click();
    auto* const window = Find<CDesignCheckWindow>();
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    auto* const table = window->findChild<QTableWidget*>();
    EXPECT_EQ(0, table->rowCount());

    Record().SetDistanceFront(1);
    app->Document().Recalculate();
    EXPECT_EQ("1 warning", Field()->text());
    ASSERT_EQ(1, table->rowCount());
    Record().SetDistanceFront(125);
    app->Document().Recalculate();
    EXPECT_EQ(0, table->rowCount());
}

TEST_F(ToolWindows, TheCheckLeavesTheRecordAsItIs)
{
    MakeTelescope();
    EXPECT_TRUE(IsUnset(Record().density));
    EXPECT_TRUE(IsUnset(Record().weight_mirror));
    EXPECT_TRUE(std::isnan(app->Document().field_angle_100)) << "the first reading stays the record's own";
}

TEST_F(ToolWindows, ADoubleClickOpensTheSheetAtTheField)
{
    MakeTelescope();
    Record().SetDistanceFront(1);
    app->Document().Recalculate();
    Choose(33021);
    auto* const window = Find<CDesignCheckWindow>();
    InNextDialog<CPropertySheet>([](CPropertySheet& sheet) {
        EXPECT_TRUE(QTest::qWaitFor([&sheet] { return sheet.ActiveIndex() == 2; })) << "the sheet's own loop";
        auto* const edit = FindControl<QLineEdit>(sheet.Page(2), 1015);
        ASSERT_NE(nullptr, edit);
        EXPECT_EQ(edit, sheet.focusWidget());
        EXPECT_EQ("1.0", edit->selectedText().left(3));
        sheet.reject();
    });
    emit window->FieldWanted("tube/distance_front");
}

TEST_F(ToolWindows, F8OpensTheCheck)
{
    MakeTelescope();
    app->Frame().activateWindow();
    QCoreApplication::processEvents();
    QTest::keyClick(&app->Frame(), Qt::Key_F8);
    ASSERT_NE(nullptr, Find<CDesignCheckWindow>());
    EXPECT_TRUE(Find<CDesignCheckWindow>()->isVisible());
}

TEST_F(ToolWindows, F1AsksForHelpOnTheWindowAndNoneIsLargerThanTheScreen)
{
    MakeTelescope();
    const struct {
        int command;
        const char* window;
        const char* page;
    } rows[] = {
        {command_id::kDesignCheck, "designCheckWindow", "Befehle_Werkzeuge.html"},
        {command_id::kVariation, "variationWindow", "Befehle_Werkzeuge.html"},
        {command_id::kIllumination, "illuminationWindow", "Befehle_Bearbeiten.html"},
    };
    for (const auto& row : rows) {
        Choose(row.command);
        auto* const window = app->Frame().findChild<QWidget*>(row.window);
        ASSERT_NE(nullptr, window) << row.window;
        const QSize screen = window->screen()->availableSize();
        EXPECT_LE(window->frameSize().width(), screen.width()) << row.window;
        EXPECT_LE(window->frameSize().height(), screen.height()) << row.window;
        QTest::keyClick(window, Qt::Key_F1);
        ASSERT_FALSE(helpPages.empty()) << row.window;
        EXPECT_TRUE(helpPages.back().toString().endsWith(row.page))
            << helpPages.back().toString().toStdString();
        helpPages.clear();
    }
}

TEST_F(ToolWindowsGerman, TheCheckIsGerman)
{
    MakeTelescope();
    Record().SetDistanceFront(1);
    app->Document().Recalculate();
    EXPECT_EQ("1 Warnung", Field()->text());
    Choose(33021);
    EXPECT_EQ(QString::fromUtf8("Entwurf prüfen"), Find<CDesignCheckWindow>()->windowTitle());
    EXPECT_EQ("Warnung", Find<CDesignCheckWindow>()->findChild<QTableWidget*>()->item(0, 0)->text());
}

TEST_F(ToolWindows, CompareShowsTheFileBesideTheDesignAndFollows)
{
    MakeTelescope();
    ChooseFile(ORREVA_SOURCE_DIR "/share/examples/newton-200-1200.orreva.xml");
    auto* const window = Find<CCompareWindow>();
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(window->isVisible());
    const auto diameters = [window] {
        auto* const list = window->findChild<CResultList*>();
        for (int row = 0; row < list->RowCount(); ++row) {
            if (list->Cell(row, 0) == "Diameter of the primary") {
                return list->Cell(row, 1) + " " + list->Cell(row, 2);
            }
        }
        return QString("equal");
    };
    EXPECT_EQ("250 200", diameters());
    Record().SetMirrorDiameter(200);
    app->Document().Recalculate();
    EXPECT_EQ("equal", diameters());
}

TEST_F(ToolWindows, CompareTellsOfAFileThatItCannotRead)
{
    MakeTelescope();
    InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>()->setText("missing.orreva.xml");
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains("missing.orreva.xml"));
            box.accept();
        });
        static_cast<QDialog&>(dialog).accept();
    });
    Choose(33022);
    EXPECT_EQ(nullptr, Find<CCompareWindow>());
}

TEST_F(ToolWindows, AClickOnACurveTriesOneOfTheSevenParameters)
{
    MakeTelescope();
    Choose(33023);
    auto* const window = Find<CVariationWindow>();
    ASSERT_NE(nullptr, window);
    emit window->TrialWanted(FindRecordField("secondary/diameter"), 60.2);
    EXPECT_EQ(60.2, Record().GetSecondaryDiameter()) << "to the last digit";
    EXPECT_EQ(1, app->Document().bar_params[2].selected);
    emit window->TrialWanted(FindRecordField("tube/distance_front"), 60);
    EXPECT_EQ(125, Record().GetDistanceFront()) << "none of the bar's";
    EXPECT_EQ(1, app->Document().bar_params[2].selected);
    Click(app->Frame(), 1025);
    EXPECT_DOUBLE_EQ(46.482, Record().GetSecondaryDiameter());
}

TEST_F(ToolWindows, QuickNewTellsWhatItUnderstands)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        auto* const understood = dialog.findChild<QLabel*>("understood");
        EXPECT_EQ("250 mm, 1500 mm, f/6.0", understood->text());
        dialog.findChild<QLineEdit*>("aperture")->setText("200,5");
        EXPECT_EQ("200 mm, 1500 mm, f/7.5; not read: \",5\"", understood->text());
        dialog.accept();
    });
    Choose(32771);
    EXPECT_EQ(200, Record().mirror_diameter);
}

TEST_F(ToolWindows, TheIlluminationFollowsAndTriesASecondary)
{
    MakeTelescope();
    Choose(33041);
    auto* const window = Find<CIlluminationWindow>();
    ASSERT_NE(nullptr, window);
    EXPECT_TRUE(window->isVisible());
    EXPECT_FALSE(window->isModal());
    auto* const axes = window->findChild<QTableWidget*>();
    const auto boldRow = [axes] {
        for (int row = 0; row < axes->rowCount(); ++row) {
            if (axes->item(row, 0)->font().bold()) {
                return axes->item(row, 0)->text();
            }
        }
        return QString();
    };
    EXPECT_EQ("46.48 mm", boldRow());
    emit window->MinorAxisWanted(54.356);
    EXPECT_EQ(54.356, Record().GetSecondaryDiameter())
        << "to the last digit, between two places of the slider";
    EXPECT_EQ("54.36 mm", boldRow());
    QCoreApplication::processEvents(); // the slider's repaint
    EXPECT_EQ(54.356, Record().GetSecondaryDiameter());
    Record().SetSecondaryDiameter(66.04);
    app->Document().Recalculate();
    EXPECT_EQ("66.04 mm", boldRow());
}

TEST_F(ToolWindows, AnExportOfAWindowIsToldInTheStatusBarWithItsPath)
{
    MakeTelescope();
    Choose(33041);
    auto* const window = Find<CIlluminationWindow>();
    ASSERT_NE(nullptr, window);
    const QString path = QFileInfo("light.svg").absoluteFilePath();
    emit window->FileMade(path, "<svg/>");
    EXPECT_EQ("<svg/>", folder.Read("light.svg"));
    EXPECT_TRUE(Message().contains(path));
    // What fails is told until it succeeds.
    emit window->FileMade("/nowhere/light.svg", "<svg/>");
    const QString failure = Message();
    EXPECT_TRUE(failure.contains("/nowhere/light.svg"));
    Choose(33041);
    EXPECT_EQ(failure, Message());
    Choose(33023);
    emit Find<CVariationWindow>()->FileMade(path, "a,b\n");
    EXPECT_EQ("a,b\n", folder.Read("light.svg"));
    EXPECT_FALSE(Message().contains("/nowhere/light.svg"));
}

} // namespace

// What the window does so that no work is lost, through real widgets and events.

#include "app/AppFixture.h"

#include "app/QtHost.h"
#include "document/RescueCopies.h"
#include "document/WhatIfBar.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <QStatusBar>
#include <QTreeView>
#include <QWheelEvent>

#include <filesystem>

namespace {

constexpr const char* kDesign = ORREVA_SOURCE_DIR "/share/examples/newton-200-1200.orreva.xml";

class WindowKeepsWork : public AppFixture {
protected:
    COrrevaDoc& Document() const { return app->Document(); }
    COrrevaData& Record() const { return Document().main_record; }
    QString Field(const char* name) const { return app->Frame().findChild<QLabel*>(name)->text(); }
    QString Message() const { return Field("message"); }

    /// After a dialog the window has to be made the active one again.
    void Activate() const
    {
        app->Frame().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&app->Frame()));
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) const
    {
        Activate();
        QTest::keyClick(&app->Frame(), key, modifiers);
    }
    /// Drops files on a widget of the window; whether it took them.
    bool Drop(QWidget& widget, const QStringList& paths) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) {
            urls << QUrl::fromLocalFile(path);
        }
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &enter);
        if (!enter.isAccepted()) {
            return false;
        }
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&widget, &drop);
        QCoreApplication::processEvents();
        return true;
    }
    static void Wheel(QWidget& widget, int steps)
    {
        QWheelEvent event(QPointF(5, 5), widget.mapToGlobal(QPointF(5, 5)), {}, {0, 120 * steps},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }
    /// Sets the focal length on the page Primary and leaves by OK.
    void SetFocalLength(const QString& text)
    {
        InNextDialog<QDialog>([text](QDialog& sheet) {
            sheet.findChild<QTabWidget*>()->setCurrentIndex(1);
            TypeOver(*sheet.findChild<QLineEdit*>("focalLength"), text);
            sheet.accept();
        });
        Choose(32772);
    }
};
class WindowKeepsWorkGerman : public GermanAppFixture {};

TEST_F(WindowKeepsWork, SaysWhatWasWrittenUntilTheNextCommand)
{
    MakeTelescope();
    EXPECT_EQ("modified", Field("state"));
    Press(Qt::Key_S);
    EXPECT_EQ("Written: " + folder / "noname.orreva.xml", Message().toStdString());
    EXPECT_TRUE(Field("state").startsWith("saved ")) << Field("state").toStdString();
    Choose(32786);
    EXPECT_EQ("", Message());
}

TEST_F(WindowKeepsWork, AFailureStaysInTheStatusBarAndHasNoBox)
{
    MakeTelescope();
    std::filesystem::create_directory("noname.orreva.xml");
    Choose(32803);
    Choose(32786);
    EXPECT_TRUE(Message().startsWith("Cannot write ")) << Message().toStdString();
    EXPECT_EQ("modified", Field("state"));
    std::filesystem::remove("noname.orreva.xml");
    Choose(32803);
    EXPECT_TRUE(Message().startsWith("Written: "));
}

TEST_F(WindowKeepsWork, TheMessageComesBackAfterAMenusPrompt)
{
    MakeTelescope();
    Choose(32803);
    auto& bar = *app->Frame().findChild<QStatusBar*>("statusBar");
    auto& message = *bar.findChild<QLabel*>("message");
    QStatusTipEvent tip("Save as");
    QApplication::sendEvent(&app->Frame(), &tip);
    EXPECT_FALSE(message.isVisible());
    QStatusTipEvent none{QString()};
    QApplication::sendEvent(&app->Frame(), &none);
    EXPECT_TRUE(message.isVisible());
    EXPECT_LT(app->Frame().minimumSizeHint().width(), 1200) << "a long path does not widen the window";
}

TEST_F(WindowKeepsWorkGerman, TheStateIsGerman)
{
    MakeTelescope();
    auto& label = *app->Frame().findChild<QLabel*>("state");
    EXPECT_EQ(QString::fromUtf8("geändert"), label.text());
    Choose(32803);
    EXPECT_TRUE(label.text().startsWith("gesichert "));
}

TEST_F(WindowKeepsWork, CtrlQClosesByTheSamePrompt)
{
    MakeTelescope();
    Activate();
    InNextDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ("Save noname.orreva.xml?", box.text());
        QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
    });
    QTest::keyClick(&app->Frame(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(app->Frame().isVisible());
    EXPECT_FALSE(Document().HasFile() && Record().IsModified());
}

TEST_F(WindowKeepsWork, FilesAreDroppedOnAnyPart)
{
    std::filesystem::copy_file(kDesign, "a.orreva.xml");
    const QString path = QString::fromStdString(folder / "a.orreva.xml");
    QWidget* const parts[] = {&app->Frame().LeftView(), &app->Frame().RightView(),
                              app->Frame().findChild<QStatusBar*>(),
                              FindControl<QComboBox>(&app->Frame(), 1026), &app->Frame()};
    for (QWidget* const part : parts) {
        Record().Clear();
        // As the toolkit: the event goes to the nearest parent that takes drops.
        QWidget* target = part;
        while (target != nullptr && !target->acceptDrops()) {
            target = target->parentWidget();
        }
        ASSERT_NE(nullptr, target);
        EXPECT_TRUE(Drop(*target, {path, path, path}));
        EXPECT_EQ(path.toStdString(), Record().file_path.GetText());
        EXPECT_EQ("2 more files were not opened.", Message());
        EXPECT_TRUE(Field("state").startsWith("saved "));
    }
}

TEST_F(WindowKeepsWork, NothingIsDroppedUnderADialog)
{
    std::filesystem::copy_file(kDesign, "a.orreva.xml");
    InNextDialog<QDialog>([this](QDialog& dialog) {
        EXPECT_FALSE(Drop(app->Frame(), {QString::fromStdString(folder / "a.orreva.xml")}));
        dialog.reject();
    });
    Choose(32771);
    EXPECT_FALSE(Document().HasFile());
}

TEST_F(WindowKeepsWork, ANameToSaveGetsItsEndingBeforeAFileIsReplaced)
{
    MakeTelescope();
    std::filesystem::copy_file(kDesign, "f4.5.orreva.xml");
    InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        dialog.setDirectory(QString::fromStdString(folder.Path().string()));
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("f4.5");
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_TRUE(box.text().contains("f4.5.orreva.xml")) << box.text().toStdString();
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
    });
    Choose(32804);
    EXPECT_EQ("Written: " + folder / "f4.5.orreva.xml", Message().toStdString());
    EXPECT_FALSE(folder.Read("f4.5.orreva.xml~").empty()) << "it was not this run's file";
    EXPECT_EQ(2, folder.Count());
}

TEST_F(WindowKeepsWork, ADesignWithoutAPointIsOpenedByItsName)
{
    std::filesystem::copy_file(kDesign, "newton");
    InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        dialog.setDirectory(QString::fromStdString(folder.Path().string()));
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText("newton");
        QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                          Qt::LeftButton);
    });
    Choose(32802);
    EXPECT_EQ(200.0, Record().GetMirrorDiameter());
}

TEST_F(WindowKeepsWork, TheCommandLineOpensADesignAsOne)
{
    std::filesystem::copy_file(kDesign, "a.orreva.xml");
    COrrevaApp other;
    ASSERT_TRUE(other.InitInstance({"a.orreva.xml"}));
    EXPECT_STREQ("a.orreva.xml", other.Document().main_record.file_path);
    EXPECT_EQ(0, other.Document().main_record.IsModified());
}

// Undo and redo --------------------------------------------------------------------------------------------

TEST_F(WindowKeepsWork, KeysTakeStepsBackAndName)
{
    MakeTelescope();
    SetFocalLength("1400");
    EXPECT_EQ(1400.0, Record().GetFocalLength());
    Press(Qt::Key_Z);
    EXPECT_EQ(1500.0, Record().GetFocalLength());
    EXPECT_EQ("Undo: Properties", Message());
    Press(Qt::Key_Y);
    EXPECT_EQ(1400.0, Record().GetFocalLength());
    EXPECT_EQ("Redo: Properties", Message());
    Press(Qt::Key_Z);
    Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(1400.0, Record().GetFocalLength());
    EXPECT_TRUE(Action(33001)->isEnabled());
    EXPECT_FALSE(Action(33002)->isEnabled());
}

TEST_F(WindowKeepsWork, AnApplyInTheSheetIsAStepOfItsOwn)
{
    MakeTelescope();
    InNextDialog<QDialog>([](QDialog& sheet) {
        sheet.findChild<QTabWidget*>()->setCurrentIndex(1);
        auto& edit = *sheet.findChild<QLineEdit*>("focalLength");
        TypeOver(edit, "1400");
        QTest::mouseClick(sheet.findChild<QPushButton*>("apply"), Qt::LeftButton);
        TypeOver(edit, "1300");
        sheet.accept();
    });
    Choose(32772);
    Press(Qt::Key_Z);
    EXPECT_EQ(1400.0, Record().GetFocalLength());
    Press(Qt::Key_Z);
    EXPECT_EQ(1500.0, Record().GetFocalLength());
}

TEST_F(WindowKeepsWork, InAFieldTheKeysBelongToTheField)
{
    MakeTelescope();
    InNextDialog<QDialog>([](QDialog& sheet) {
        sheet.findChild<QTabWidget*>()->setCurrentIndex(1);
        auto& edit = *sheet.findChild<QLineEdit*>("focalLength");
        const QString before = edit.text();
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_End);
        QTest::keyClick(&edit, Qt::Key_7);
        EXPECT_EQ(before + "7", edit.text());
        QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(before, edit.text());
        sheet.reject();
    });
    Choose(32772);
    EXPECT_EQ("", Message());
    EXPECT_EQ(1500.0, Record().GetFocalLength());
}

TEST_F(WindowKeepsWork, TheNewCommandsStandAtTheEndOfTheirMenus)
{
    const auto last = [this](const char* menu, int fromTheEnd) {
        const QList<QAction*> actions = app->Frame().findChild<QMenu*>(menu)->actions();
        return actions[actions.size() - 1 - fromTheEnd];
    };
    EXPECT_EQ(Action(33062), last("menuFile", 0));
    EXPECT_EQ(Action(33061), last("menuFile", 1));
    EXPECT_TRUE(last("menuFile", 2)->isSeparator());
    EXPECT_EQ(Action(33003), last("menuFile", 3));
    EXPECT_TRUE(last("menuFile", 4)->isSeparator());
    EXPECT_LT(app->Frame().findChild<QMenu*>("menuEdit")->actions().indexOf(Action(32796)),
              app->Frame().findChild<QMenu*>("menuEdit")->actions().indexOf(Action(33001)));
}

// The what-if bar ------------------------------------------------------------------------------------------

TEST_F(WindowKeepsWork, TheStatusBarSaysWhatIsTried)
{
    MakeTelescope();
    auto* const list = FindControl<QComboBox>(&app->Frame(), 1026);
    auto* const slider = FindControl<QSlider>(&app->Frame(), 1023);
    Activate();
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ("Brennweite 1500 mm (was 1500 mm)", Field("trial"));
    slider->setValue(1480);
    slider->repaint();
    EXPECT_EQ("Brennweite 1480 mm (was 1500 mm)", Field("trial"));
    SetFocalLength("1480");
    EXPECT_EQ("", Field("trial")) << "the sheet stored it";
    EXPECT_EQ(-1, list->currentIndex());
    EXPECT_EQ(slider->minimum(), slider->maximum());
    Press(Qt::Key_Z);
    EXPECT_EQ(1500.0, Record().GetFocalLength());
}

TEST_F(WindowKeepsWork, TheWheelChangesOnlyWhatHasTheFocus)
{
    MakeTelescope();
    auto* const list = FindControl<QComboBox>(&app->Frame(), 1026);
    auto* const slider = FindControl<QSlider>(&app->Frame(), 1023);
    Activate();
    app->Frame().LeftView().setFocus();
    Wheel(*list, -1);
    EXPECT_EQ(-1, list->currentIndex());
    EXPECT_NE(Qt::WheelFocus, list->focusPolicy()) << "nor does the wheel give it";
    list->setFocus();
    Wheel(*list, -1);
    EXPECT_EQ(0, list->currentIndex());
    Wheel(*slider, -1);
    EXPECT_EQ(1500, slider->value());
    slider->setFocus();
    Wheel(*slider, -1);
    EXPECT_NE(1500, slider->value());
}

TEST_F(WindowKeepsWork, TheWheelLeavesTheMaterialAlone)
{
    MakeTelescope();
    InNextDialog<QDialog>([](QDialog& sheet) {
        sheet.findChild<QTabWidget*>()->setCurrentIndex(1);
        auto& material = *sheet.findChild<QComboBox*>("material");
        auto& density = *sheet.findChild<QLineEdit*>("density");
        const QString before = density.text();
        Wheel(material, -1);
        EXPECT_EQ(-1, material.currentIndex());
        EXPECT_EQ(before, density.text());
        sheet.reject();
    });
    Choose(32772);
}

TEST_F(WindowKeepsWork, AltWithALetterTypesNothing)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        auto& title = *dialog.findChild<QLineEdit*>("title");
        title.setFocus();
        QTest::keyClick(&title, Qt::Key_End);
        const QString before = title.text();
        QTest::keyClick(&title, 'x', Qt::AltModifier);
        EXPECT_EQ(before, title.text());
        QTest::keyClick(&title, 'x');
        EXPECT_EQ(before + "x", title.text());
        dialog.reject();
    });
    Choose(32771);
}

TEST_F(WindowKeepsWork, AnAssertionIsIgnoredByReturnAndByEscape)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        InNextDialog<QMessageBox>([key](QMessageBox& box) {
            EXPECT_EQ("Assert", box.windowTitle());
            QTest::keyClick(&box, key);
        });
        AssertFail("x > 0", "here", 7, nullptr);
    }
}

TEST_F(WindowKeepsWork, RetryWithoutADebuggerGoesOn)
{
    InNextDialog<QMessageBox>(
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Retry), Qt::LeftButton); });
    AssertFail("x > 0", "here", 7, nullptr);
}

// Copies kept aside ----------------------------------------------------------------------------------------

TEST_F(WindowKeepsWork, WithinASecondAModifiedDesignHasACopy)
{
    MakeTelescope();
    const std::filesystem::path rescue = stateFolder.path().toStdString() + "/orreva/rescue";
    const auto designs = [&rescue] {
        return std::filesystem::exists(rescue)
                   ? std::distance(std::filesystem::directory_iterator(rescue), {})
                   : 0;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return designs() >= 2; }, 10000));
    const auto before = designs();
    Choose(32803);
    EXPECT_LT(designs(), before);
}

TEST_F(WindowKeepsWork, TheNextStartOffersWhatCouldNotBeSavedOnce)
{
    {
        COrrevaApp first;
        ASSERT_TRUE(first.InitInstance({}));
        COrrevaData& record = first.Document().main_record;
        record.Reset();
        record.SetTitle("Lost");
        record.SetFocalLength(1234);
        first.Document().Recalculate();
        record.file_path = "/no/such/folder/lost.orreva.xml";
        InNextDialog<QMessageBox>(
            [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton); });
        first.Frame().close();
    }
    for (const bool offered : {true, false}) {
        COrrevaApp next;
        ASSERT_TRUE(next.InitInstance({}));
        if (offered) {
            InNextDialog<QDialog>([](QDialog& dialog) {
                EXPECT_EQ("Earlier designs", dialog.windowTitle());
                auto& list = *dialog.findChild<QTreeView*>("designs");
                EXPECT_EQ(0, list.currentIndex().row()) << "the copy is marked";
                EXPECT_EQ("Lost", list.model()->index(0, 2).data().toString());
                QTest::mouseClick(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open),
                                  Qt::LeftButton);
            });
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(offered, next.Document().HasFile());
        if (offered) {
            EXPECT_EQ(1234.0, next.Document().main_record.GetFocalLength());
            EXPECT_STREQ("/no/such/folder/lost.orreva.xml", next.Document().main_record.file_path);
            EXPECT_EQ(1, next.Document().main_record.IsModified());
        }
        next.Document().main_record.SetModified(0);
    }
}

TEST_F(WindowKeepsWork, WithoutCopiesTheListIsEmptyAndOpensNothing)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ(0, dialog.findChild<QTreeView*>("designs")->model()->rowCount());
        EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->isEnabled());
        dialog.reject();
    });
    Choose(33003);
}

TEST_F(WindowKeepsWorkGerman, TheListIsGerman)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ(QString::fromUtf8("Frühere Entwürfe"), dialog.windowTitle());
        const QAbstractItemModel& model = *dialog.findChild<QTreeView*>("designs")->model();
        QStringList titles;
        for (int i = 0; i < model.columnCount(); ++i) {
            titles << model.headerData(i, Qt::Horizontal).toString();
        }
        EXPECT_EQ((QStringList{"Zeit", "Grund", "Titel", "Pfad"}), titles);
        dialog.reject();
    });
    Choose(33003);
}

TEST_F(WindowKeepsWork, ALanguageThatCannotBeStoredIsTold)
{
    const QString file = COrrevaApp::Profile().fileName();
    QFile::remove(file);
    ASSERT_TRUE(QDir().mkpath(file)) << "a folder in its place";
    InNextDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
    Choose(32808);
    EXPECT_TRUE(Message().startsWith("The language could not be stored in ")) << Message().toStdString();
    QDir().rmdir(file);
    InNextDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
    Choose(32809);
    EXPECT_EQ("", Message());
}

} // namespace

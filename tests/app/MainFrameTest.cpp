#include "app/AppFixture.h"
#include "app/HelpPages.h"

#include "document/Commands.h"
#include "painting/QtText.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/RecordingPrinter.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QSlider>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include <cmath>

namespace {

/// The colours that a pane shows, by sampling its pixels.
bool Shows(QWidget& pane, const QColor& colour)
{
    const QImage image = pane.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == colour) {
                return true;
            }
        }
    }
    return false;
}

QComboBox& FileTypes(const QFileDialog& dialog) { return *dialog.findChild<QComboBox*>("fileTypeCombo"); }

const QColor kYellow(255, 255, 0);
const QColor kGreen(0, 255, 64);

class MainFrame : public AppFixture {
protected:
    /// Chooses in the what-if bar's list as a user does.
    void ChooseParameter(int index) const
    {
        auto* const list = FindControl<QComboBox>(&app->Frame(), 1026);
        list->showPopup();
        QTest::keyClick(list->view(), Qt::Key_Home);
        for (int i = 0; i < index; ++i) {
            QTest::keyClick(list->view(), Qt::Key_Down);
        }
        QTest::keyClick(list->view(), Qt::Key_Return);
        ASSERT_EQ(index, list->currentIndex());
    }
};
class MainFrameGerman : public GermanAppFixture {};

struct MenuRow {
    int id;
    const char* english;
    const char* german;
};

constexpr MenuRow kMenuTexts[] = {
    {32771, "New ... \tStrg+N", "Neu ... \tStrg+N"},
    {32813, "New (detailed) ...", "Neu (ausführlich) ..."},
    {32802, "Open...", "Öffnen..."},
    {32803, "Save", "Speicherm"},
    {32804, "Save as...", "Speichern unter..."},
    {57601, "Import old Format", "Altes Format importieren..."},
    {32807, "Export OSLO Format...", "OSLO Daten exportieren..."},
    {32811, "Export Foucault Test Analysis 2.0B Data", "Foucault Test Analysis 2.0B Daten exportieren..."},
    {57607, "&Print...\tStrg+P", "&Drucken...\tStrg+P"},
    {57609, "Print Preview", "Sei&tenansicht"},
    {57606, "Print Setup", "Drucker&einrichtung..."},
    {57616, "Letzte Datei", "Letzte Datei"},
    {33003, "Earlier designs...", "Frühere Entwürfe..."},
    {33061, "Report as PDF...", "Bericht als PDF..."},
    {33062, "Workshop sheets...", "Werkstattblätter..."},
    {33001, "Undo\tCtrl+Z", "Rückgängig\tStrg+Z"},
    {33002, "Redo\tCtrl+Y", "Wiederholen\tStrg+Y"},
    {32772, "Properties\tStrg+E", "Eigenschaften\tStrg+E"},
    {32792, "Properties (Tube)", "Eigenschaften Tubus"},
    {32781, "Maximal size of mirror center markers",
     "Wie groß darf die Mittenmarkierung auf den Spiegeln sein"},
    {32795, "Minimal Distance to a artificial Star",
     "Berechnen des minimalen Abstands zu einem künstlichen Stern"},
    {32794, "Foucault Test", "Foucault Test"},
    {32800, "Matching Ronchi Test", "Matching Ronchi Test"},
    {32801, "Startest", "Startest"},
    {32796, "Simulation of the Field of View", "Simulation des zu erwartenden Gesichtsfelds"},
    {32776, "Parallel rays from a spot in infinity",
     "Parallel einfallende Strahlen von einem Punkt in der Unendlichkeit"},
    {32778, "Rays fron the focal plane", "Punktförmige Lichtquelle ausgehend von der Brennebene"},
    {32775, "Rays from the Mouse Pointer", "Punktförmige Lichtquelle ausgehend vom Mauszeiger"},
    {32779, "Raytracing Settings", "Einstellungen zum Raytracing"},
    {32780, "Show Secondary without Offset", "Fangspiegel ohne Offset darstellen"},
    {32786, "Show extended Focuser", "Focuser ausgefahren zeigen"},
    {32793, "Show Rockerbox/Upper Cage", "Spiegelbox/Hut zeigen"},
    {33063, "High contrast", "Hoher Kontrast"},
    {32808, "Deutsch", "Deutsch"},
    {32809, "English", "English"},
    {32789, "Calculator", "Rechner"},
    {32777, "Inch/mm Calculator", "Zoll Rechner"},
    {32788, "Polygon Calculator", "Mehreck Rechner"},
    {32791, "Sector Calculator", "Kreisausschnitt Rechner"},
    {33021, "Design check\tF8", "Entwurf prüfen\tF8"},
    {33022, "Compare designs...", "Entwürfe vergleichen..."},
    {33023, "Variation...", "Variation..."},
    {33041, "Illumination...", "Ausleuchtung..."},
    {32790, "Orreva Support Forum", "Orreva Diskussionsforum"},
    {32810, "Orreva Wiki-Handbook", "Orreva Wiki-Handbook"},
};

struct PromptRow {
    int id;
    const char* english;
    const char* english_tip;
    const char* german;
    const char* german_tip;
};

constexpr PromptRow kPrompts[] = {
    {32771, "Design a new Telescope ", "Neu", "Neues Teleskop konzipieren", "Neu"},
    {32772, "Edit Properties", "Edit", "Eigenschaften des Teleskopes bearbeiten", "Bearbeiten"},
    {32802, "Open", "Open", "Öffnen", "Öffnen"},
    {32803, "Save", "Save", "Speichern", "Speichern"},
    {32804, "Save as", "Save as", "Speichern unter", "Speichern unter"},
    {32807, "Export OSLO Format", "Export", "Oslo Daten exportieren", "Exportieren"},
    {57601, "Import old Orreva Format", "Import", "Öffnet ein bestehendes Dokument.", "Öffnen"},
};

struct OnePrompt {
    int id;
    const char* text;
};

constexpr OnePrompt kPromptsOfBoth[] = {
    {32775, "Punktförmige Lichtquelle ausgehend vom Mauszeiger"},
    {32776, "Parallel einfallende Strahlen von einem Punkt in der Unendlichkeit"},
    {32778, "Punktförmige Lichtquelle ausgehend von der Brennebene"},
    {32779, "Einstellungen zum Raytracing"},
    {32780, "Fangspiegel ohne Offset darstellen (Achtung, dieses ist eine Debug-Option)"},
    {32786, "Focuser im ausgefahren Zustand zeigen"},
    {32792, "Eigenschaften des Tubus bearbeiten"},
    {32794, "Foucault Test"},
    {32795, "Berechnen des Abstandes zu einem künstlichen Stern"},
    {32796, "PreBeta: Gesichtsfeld Simulation"},
    {32800, "Matching Ronchi Test"},
    {32801, "Startest"},
};

QString Utf8(const char* text) { return QString::fromUtf8(text); }

TEST_F(MainFrame, MenuTexts)
{
    for (const MenuRow& row : kMenuTexts) {
        ASSERT_NE(nullptr, Action(row.id)) << row.id;
        EXPECT_EQ(Utf8(row.english), Action(row.id)->text());
    }
    EXPECT_EQ("Sparche / Language", app->Frame().findChild<QMenu*>("menuLanguage")->title());
}

TEST_F(MainFrameGerman, MenuTexts)
{
    for (const MenuRow& row : kMenuTexts) {
        EXPECT_EQ(Utf8(row.german), Action(row.id)->text());
    }
    EXPECT_EQ("Sparche / Language", app->Frame().findChild<QMenu*>("menuLanguage")->title());
}

TEST_F(MainFrame, PromptsAndTips)
{
    for (const PromptRow& row : kPrompts) {
        EXPECT_EQ(Utf8(row.english), Action(row.id)->statusTip());
        EXPECT_EQ(Utf8(row.english_tip), Action(row.id)->toolTip());
    }
    for (const OnePrompt& row : kPromptsOfBoth) {
        EXPECT_EQ(Utf8(row.text), Action(row.id)->statusTip());
    }
}

TEST_F(MainFrameGerman, PromptsAndTips)
{
    for (const PromptRow& row : kPrompts) {
        EXPECT_EQ(Utf8(row.german), Action(row.id)->statusTip());
        EXPECT_EQ(Utf8(row.german_tip), Action(row.id)->toolTip());
    }
    for (const OnePrompt& row : kPromptsOfBoth) {
        EXPECT_EQ(Utf8(row.text), Action(row.id)->statusTip());
    }
}

TEST_F(MainFrame, EveryCommandStandsInTheMenus)
{
    for (const Command& command : Commands()) {
        const bool keyOnly = command.id == command_id::kHelp;
        EXPECT_EQ(keyOnly, Action(command.id) == nullptr) << command.id;
    }
}

TEST_F(MainFrame, ToolbarButtonsInTheirOrder)
{
    std::vector<int> ids;
    for (const QAction* const action : app->Frame().findChild<QToolBar*>("toolBar")->actions()) {
        ids.push_back(action->isSeparator() ? 0 : action->property("commandId").toInt());
        EXPECT_TRUE(action->isSeparator() || !action->icon().isNull()) << ids.back();
    }
    const std::vector<int> expected{32771, 32802, 32803, 0,     57607, 0, 59409, 59408,
                                    59410, 59411, 0,     57664, 57669, 0, 32772};
    EXPECT_EQ(expected, ids);
    EXPECT_EQ(QSize(16, 15), app->Frame().findChild<QToolBar*>("toolBar")->iconSize());
}

TEST_F(MainFrame, ViewStyleButtonsAreShownAndDoNothing)
{
    for (const int id : {59409, 59410, 59411, 59408}) {
        EXPECT_TRUE(Action(id)->isEnabled());
        Choose(id);
        EXPECT_EQ(id == 59408, Action(id)->isChecked()) << id;
    }
}

TEST_F(MainFrame, StartsWithoutATelescope)
{
    EXPECT_EQ("Orreva", app->Frame().windowTitle());
    EXPECT_TRUE(app->Frame().isMaximized());
    EXPECT_FALSE(Action(32803)->isEnabled());
    EXPECT_TRUE(Action(32771)->isEnabled());
    EXPECT_FALSE(Action(32801)->isEnabled());
    EXPECT_FALSE(Action(57616)->isEnabled());
    EXPECT_FALSE(Shows(app->Frame().RightView(), kGreen));
    EXPECT_TRUE(Shows(app->Frame().LeftView(), QColor(51, 153, 102)));
    QStringList fields;
    for (const QLabel* const field : app->Frame().statusBar()->findChildren<QLabel*>()) {
        fields << field->objectName();
    }
    EXPECT_EQ((QStringList{"message", "trial", "state", "CAP", "NUM", "SCRL"}), fields);
}

/// A key that the desktop sends counts once, however many widgets it passes.
TEST_F(MainFrame, TheIndicatorsFollowTheLockKeys)
{
    QWindow* const window = app->Frame().windowHandle();
    const auto on = [this](const char* name) { return app->Frame().findChild<QLabel*>(name)->isEnabled(); };
    EXPECT_FALSE(on("CAP") || on("NUM") || on("SCRL"));
    QTest::keyClick(window, Qt::Key_ScrollLock);
    EXPECT_TRUE(on("SCRL"));
    EXPECT_FALSE(on("CAP") || on("NUM"));
    QTest::keyClick(window, Qt::Key_ScrollLock);
    EXPECT_FALSE(on("SCRL"));
    QTest::keyClick(window, Qt::Key_CapsLock);
    QTest::keyClick(window, Qt::Key_ScrollLock); // an event tells of the other locks: none is on here
    EXPECT_FALSE(on("CAP"));
    EXPECT_TRUE(on("SCRL"));
    QTest::keyClick(window, Qt::Key_NumLock);
    EXPECT_TRUE(on("NUM") && on("SCRL"));
}

TEST_F(MainFrame, QuickNewByKeysMakesATelescope)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ("New", dialog.windowTitle());
        EXPECT_EQ(147, dialog.property(kDialogId).toInt());
        const auto edits = dialog.findChildren<QLineEdit*>();
        ASSERT_EQ(3, edits.size());
        EXPECT_EQ("Untitleld Telescope", dialog.findChild<QLineEdit*>("title")->text());
        EXPECT_EQ("250", dialog.findChild<QLineEdit*>("aperture")->text());
        EXPECT_EQ("1500", dialog.findChild<QLineEdit*>("focalLength")->text());
        QTest::keyClicks(dialog.findChild<QLineEdit*>("title"), "Mine");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    QTest::keyClick(&app->Frame(), Qt::Key_N, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_STREQ("Mine", app->Document().main_record.GetTitle());
    EXPECT_TRUE(Action(32803)->isEnabled());
    EXPECT_TRUE(Shows(app->Frame().RightView(), kGreen));
    EXPECT_EQ("noname.orreva.xml - Orreva", app->Frame().windowTitle());
}

TEST_F(MainFrame, PanesDoNotReadTheRecordWhileQuickNewIsOpen)
{
    MakeTelescope();
    app->Document().main_record.SetModified(0);
    InNextDialog<QDialog>([this](QDialog& dialog) {
        app->Frame().LeftView().setFocus();
        app->Frame().resize(1100, 700);
        app->Frame().UpdateAllViews();
        QCoreApplication::processEvents();
        EXPECT_EQ(HUGE_VAL, app->Document().main_record.inside_diameter_hat);
        dialog.findChild<QLineEdit*>("aperture")->setText("114");
        dialog.findChild<QLineEdit*>("focalLength")->setText("900");
        dialog.accept();
    });
    Choose(32771);
    EXPECT_DOUBLE_EQ(150.0, app->Document().main_record.GetInsideDiameterHat()) << "114 + 36, not 250 + 36";
    EXPECT_TRUE(Shows(app->Frame().RightView(), kGreen)) << "and paint again afterwards";
}

TEST_F(MainFrameGerman, QuickNewIsGerman)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ("Neu", dialog.windowTitle());
        EXPECT_EQ("Titel", dialog.findChild<QLabel*>("titleLabel")->text());
        EXPECT_EQ(Utf8("Öffnung"), dialog.findChild<QLabel*>("apertureLabel")->text());
        EXPECT_EQ("Brennweite", dialog.findChild<QLabel*>("focalLengthLabel")->text());
        EXPECT_EQ("Untitleld Telescope", dialog.findChild<QLineEdit*>("title")->text());
        dialog.reject();
    });
    Choose(32771);
    EXPECT_FALSE(app->Document().HasFile());
    EXPECT_EQ("Orreva", app->Frame().windowTitle());
}

TEST_F(MainFrame, RayModesFollowTheMenuAndTheMouse)
{
    MakeTelescope();
    COrrevaView& view = app->Frame().RightView();
    EXPECT_FALSE(Action(32776)->isChecked());
    Choose(32776);
    EXPECT_TRUE(Action(32776)->isChecked());
    QCursor::setPos(view.mapToGlobal(QPoint(300, 150)));
    const QImage before = view.grab().toImage();
    QCursor::setPos(view.mapToGlobal(QPoint(300, 260)));
    EXPECT_NE(before, view.grab().toImage()) << "the rays follow the pointer";
    Choose(32778);
    EXPECT_FALSE(Action(32776)->isChecked());
    EXPECT_TRUE(Action(32778)->isChecked());
    Choose(32778);
    EXPECT_FALSE(Action(32778)->isChecked());
    EXPECT_EQ(1, app->Document().main_record.IsModified()) << "from New";
}

TEST_F(MainFrame, ShowWithoutOffsetWorksOnlyFromTheSummary)
{
    MakeTelescope();
    EXPECT_EQ(static_cast<CPane*>(&app->Frame().LeftView()), app->Frame().ActivePane()) << "as at the start";
    Choose(32780);
    EXPECT_EQ(0, app->Document().show_offset);
    EXPECT_TRUE(Action(32780)->isChecked());
    QTest::mouseClick(&app->Frame().RightView(), Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_EQ(static_cast<CPane*>(&app->Frame().RightView()), app->Frame().ActivePane());
    Choose(32780);
    EXPECT_EQ(0, app->Document().show_offset);
    EXPECT_TRUE(Action(32780)->isChecked()) << "the mark is the document's and works in both cases";
    QTest::mouseClick(&app->Frame().LeftView(), Qt::LeftButton, {}, QPoint(50, 50));
    Choose(32780);
    EXPECT_EQ(1, app->Document().show_offset);
}

TEST_F(MainFrame, DoubleClickZoomsInAndRightClickOut)
{
    MakeTelescope();
    COrrevaView& view = app->Frame().RightView();
    for (int i = 0; i < 7; ++i) {
        QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(20, 10));
    }
    EXPECT_EQ(5, view.Zoom().zoom);
    EXPECT_EQ(80, view.Zoom().scrollX);
    for (int i = 0; i < 7; ++i) {
        QTest::mouseClick(&view, Qt::RightButton, {}, QPoint(20, 10));
    }
    EXPECT_EQ(1, view.Zoom().zoom);
    EXPECT_EQ(16, view.Zoom().scrollX) << "80 / 5 * 4 / 4 * 3 / 3 * 2 / 2 * 1";
    view.grab();
    EXPECT_EQ(0, view.Zoom().scrollX) << "the next paint pulls it back";
}

TEST_F(MainFrame, AQuickSecondRightClickIsOneMore)
{
    MakeTelescope();
    COrrevaView& view = app->Frame().RightView();
    for (int i = 0; i < 4; ++i) {
        QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(20, 10));
    }
    ASSERT_EQ(5, view.Zoom().zoom);
    const auto send = [&view](QEvent::Type type, Qt::MouseButtons held) {
        QMouseEvent event(type, QPointF(20, 10), view.mapToGlobal(QPointF(20, 10)), Qt::RightButton, held,
                          {});
        QCoreApplication::sendEvent(&view, &event);
    };
    // As the toolkit tells of two clicks in quick succession.
    send(QEvent::MouseButtonPress, Qt::RightButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    EXPECT_EQ(4, view.Zoom().zoom);
    send(QEvent::MouseButtonDblClick, Qt::RightButton);
    send(QEvent::MouseButtonRelease, Qt::NoButton);
    EXPECT_EQ(3, view.Zoom().zoom);
}

TEST_F(MainFrame, APaneBecomesActiveByTheKeyboardsFocus)
{
    CLeftView& left = app->Frame().LeftView();
    COrrevaView& right = app->Frame().RightView();
    ASSERT_EQ(static_cast<CPane*>(&left), app->Frame().ActivePane());
    ASSERT_EQ(&left, QApplication::focusWidget());
    const auto tabTo = [](const QWidget& goal, Qt::Key key) {
        for (int i = 0; i < 20 && QApplication::focusWidget() != &goal; ++i) {
            QTest::keyClick(QApplication::focusWidget(), key);
        }
        ASSERT_EQ(&goal, QApplication::focusWidget());
    };
    tabTo(right, Qt::Key_Tab);
    EXPECT_EQ(static_cast<CPane*>(&right), app->Frame().ActivePane());
    tabTo(left, Qt::Key_Backtab);
    EXPECT_EQ(static_cast<CPane*>(&left), app->Frame().ActivePane());
}

TEST_F(MainFrame, RaytracingSettingsOpenOnThePresentButtonAndToggle)
{
    MakeTelescope();
    for (const bool grey : {true, false}) {
        InNextDialog<QDialog>([grey](QDialog& dialog) {
            EXPECT_EQ("Raytracing Settings", dialog.windowTitle());
            EXPECT_EQ(134, dialog.property(kDialogId).toInt());
            EXPECT_EQ(grey, dialog.findChild<QRadioButton*>("greyMissing")->isChecked());
            EXPECT_EQ(!grey, dialog.findChild<QRadioButton*>("hideMissing")->isChecked());
            dialog.accept();
        });
        Choose(32779);
        EXPECT_EQ(grey ? 0 : 1, app->Document().miss_in_grey);
    }
}

TEST_F(MainFrame, SaveOpensNoDialogAndCtrlSDoesTheSame)
{
    MakeTelescope();
    Choose(32803);
    EXPECT_FALSE(folder.Read("noname.orreva.xml").empty());
    EXPECT_EQ(0, app->Document().main_record.IsModified());
    std::filesystem::remove("noname.orreva.xml");
    app->Frame().activateWindow();
    QCoreApplication::processEvents();
    QTest::keyClick(&app->Frame(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_FALSE(folder.Read("noname.orreva.xml").empty());
}

TEST_F(MainFrame, ClosingAsksWithoutCancelAndClosesEitherWay)
{
    MakeTelescope();
    InNextDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ("Save noname.orreva.xml?", box.text());
        EXPECT_EQ(QMessageBox::Yes | QMessageBox::No, box.standardButtons());
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_FALSE(box.close());
        ASSERT_TRUE(box.isVisible()) << "no key and no frame button stands for No";
        QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
    });
    EXPECT_TRUE(app->Frame().close());
    EXPECT_FALSE(folder.Read("noname.orreva.xml").empty());
}

TEST_F(MainFrame, ASecondCloseWaitsForTheAnswerToTheFirst)
{
    MakeTelescope();
    InNextDialog<QMessageBox>([this](QMessageBox& box) {
        bool askedAgain = false;
        QTimer::singleShot(0, &context, [&] {
            // Were there a second question, it would wait for its own answer.
            if (auto* const second = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                second != nullptr && second != &box) {
                askedAgain = true;
                second->button(QMessageBox::No)->click();
            }
        });
        QCloseEvent again; // from the desktop: the toolkit's own close knows that one is under way
        QCoreApplication::sendEvent(&app->Frame(), &again);
        EXPECT_FALSE(again.isAccepted());
        QCoreApplication::processEvents();
        EXPECT_FALSE(askedAgain);
        EXPECT_TRUE(app->Frame().isVisible());
        EXPECT_EQ(250.0, app->Document().main_record.mirror_diameter) << "nothing is lost yet";
        box.button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(app->Frame().close());
    EXPECT_NE(std::string::npos, folder.Read("noname.orreva.xml").find("<diameter>250.000000</diameter>"));
}

TEST_F(MainFrame, ClosingWithNoLosesTheChanges)
{
    MakeTelescope();
    InNextDialog<QMessageBox>(
        [](QMessageBox& box) { QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton); });
    EXPECT_TRUE(app->Frame().close());
    EXPECT_TRUE(folder.Read("noname.orreva.xml").empty());
    EXPECT_EQ(HUGE_VAL, app->Document().main_record.mirror_diameter);
}

TEST_F(MainFrame, AcceleratorsGiveTheirCommands)
{
    // Accelerators are the active window's; it is made so before anybody waits for a dialog.
    const auto activate = [this] {
        app->Frame().activateWindow();
        QCoreApplication::processEvents();
    };
    const auto press = [this](Qt::Key key, Qt::KeyboardModifier modifier) {
        QTest::keyClick(&app->Frame(), key, modifier);
    };
    activate();
    press(Qt::Key_E, Qt::ControlModifier); // disabled: no telescope, no dialog
    MakeTelescope();
    app->Document().main_record.SetModified(0);
    for (const auto& [key, title] :
         {std::pair(Qt::Key_N, "New"), std::pair(Qt::Key_E, "Telescope Properties")}) {
        activate();
        InNextDialog<QDialog>([&key, &title](QDialog& dialog) {
            EXPECT_EQ(title, dialog.windowTitle());
            key == Qt::Key_N ? dialog.accept() : dialog.reject();
        });
        press(key, Qt::ControlModifier);
    }
    activate();
    InNextDialog<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ("File Type Orreva (*.orreva)", FileTypes(dialog).itemText(0)) << "the old format, not Open";
        dialog.reject();
    });
    press(Qt::Key_O, Qt::ControlModifier);
    activate();
    press(Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(1u, helpPages.size());
}

TEST_F(MainFrame, OpenTellsOfAMissingFileAndGoesOn)
{
    InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        EXPECT_EQ("Orreva Dateien (*.orreva.xml)", FileTypes(dialog).itemText(0));
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ("Die Datei noname.orreva.xml existiert nicht!", box.text());
            box.accept();
        });
        dialog.selectFile("missing.orreva.xml");
        static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    Choose(32802);
    EXPECT_FALSE(app->Document().HasFile());
}

/// The names in the list of a file dialog.
QStringList ShownFiles(const QFileDialog& dialog)
{
    const auto& list = *dialog.findChild<QListView*>("listView");
    QStringList names;
    for (int row = 0; row < list.model()->rowCount(list.rootIndex()); ++row) {
        names << list.model()->index(row, 0, list.rootIndex()).data().toString();
    }
    names.sort();
    return names;
}

TEST_F(MainFrame, TheFileDialogsListTheFilesOfTheChosenType)
{
    const TemporaryFolder files;
    for (const char* name : {"mine.orreva.xml", "notes.txt", "telescope"}) {
        files.Write(name, "");
    }
    InNextDialog<QFileDialog>([&files](QFileDialog& dialog) {
        dialog.setDirectory(QString::fromStdString(files.Path().string())); // it begins in the last one used
        QComboBox& types = FileTypes(dialog);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ShownFiles(dialog) == QStringList{"mine.orreva.xml"}; }));
        EXPECT_EQ("All Files (*.*)", types.itemText(1));
        types.setFocus();
        QTest::keyClick(&types, Qt::Key_Down);
        const QStringList all{"mine.orreva.xml", "notes.txt", "telescope"};
        EXPECT_TRUE(QTest::qWaitFor([&] { return ShownFiles(dialog) == all; }));
        dialog.reject();
    });
    Choose(32802);
}

TEST_F(MainFrame, PrintingLeavesTheScreensZoomAlone)
{
    MakeTelescope();
    COrrevaView& view = app->Frame().RightView();
    QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(view.width() - 5, view.height() - 5));
    const SectionZoom before = view.Zoom();
    QPrinter printer(QPrinter::ScreenResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName("paper.pdf");
    view.OnPrint(printer);
    EXPECT_EQ(before, view.Zoom());
    EXPECT_EQ(0u, folder.Read("paper.pdf").find("%PDF"));
    app->Frame().LeftView().OnPrint(printer);
    EXPECT_EQ(0u, folder.Read("paper.pdf").find("%PDF"));
}

TEST_F(MainFrame, PrintingOnPaperSmallerThanThePaneLeavesTheScreensScrollAlone)
{
    MakeTelescope();
    COrrevaView& view = app->Frame().RightView();
    view.resize(900, 700);
    QTest::mouseDClick(&view, Qt::LeftButton, {}, QPoint(890, 690));
    view.grab(); // the screen's own pull
    ASSERT_EQ((SectionZoom{2, 890, 690}), view.Zoom());
    RecordingPrinter printer({300, 200});
    view.OnPrint(printer);
    EXPECT_EQ((SectionZoom{2, 890, 690}), view.Zoom());
    ASSERT_FALSE(printer.Rects().empty());
    EXPECT_EQ(QRectF(0, 0, 300, 200), printer.Rects().front()) << "the page's own size";
}

TEST_F(MainFrame, TheSummaryIsPrintedInThePapersFont)
{
    MakeTelescope();
    RecordingPrinter printer({800, 1100});
    app->Frame().LeftView().OnPrint(printer);
    ASSERT_LT(20u, printer.Texts().size());
    EXPECT_EQ("Untitleld", printer.Texts().front().text.left(9));
    for (const RecordingPrinter::Text& text : printer.Texts()) {
        EXPECT_EQ(21, text.pixelSize) << "lines of 24 pixels: 24 * 2048 / 2288";
    }
    EXPECT_EQ(QRectF(0, 0, 800, 1100), printer.Rects().front());
}

TEST_F(MainFrame, ThePreviewShowsTheActivePane)
{
    MakeTelescope();
    const auto shown = [this](const QColor& colour) {
        bool found = false;
        InNextDialog<QPrintPreviewDialog>([&](QPrintPreviewDialog& dialog) {
            QCoreApplication::processEvents();
            found = Shows(*dialog.findChild<QPrintPreviewWidget*>(), colour);
            dialog.reject();
        });
        Choose(57609);
        return found;
    };
    const QColor summary(51, 153, 102);
    const QColor section(0, 102, 153);
    EXPECT_TRUE(shown(summary));
    EXPECT_FALSE(shown(section));
    QTest::mouseClick(&app->Frame().RightView(), Qt::LeftButton, {}, QPoint(50, 50));
    EXPECT_TRUE(shown(section));
    EXPECT_FALSE(shown(summary));
}

TEST_F(MainFrame, ANewFrameGivesTheSummaryTwiceTheWidthAskedFor)
{
    EXPECT_EQ(520, CLeftView::CreationWidth(260));
}

TEST_F(MainFrame, ATinyAndAHugeWindowPaint)
{
    MakeTelescope();
    Choose(32776);
    COrrevaView& view = app->Frame().RightView();
    for (const QSize size : {QSize(1, 1), QSize(29, 400), QSize(30, 30), QSize(7680, 4320)}) {
        view.resize(size);
        EXPECT_FALSE(view.grab().isNull());
    }
}

TEST_F(MainFrame, OddNumbersInTheRecordPaint)
{
    MakeTelescope();
    COrrevaData& data = app->Document().main_record;
    for (const double value : {0.0, -1.0, 1e300, -1e300, 1e-300, -HUGE_VAL, std::nan("")}) {
        for (void (COrrevaData::*set)(double) :
             {&COrrevaData::SetMirrorDiameter, &COrrevaData::SetFocalLength,
              &COrrevaData::SetInsideDiameterHat, &COrrevaData::SetDistanceFront,
              &COrrevaData::SetFocuserHeight, &COrrevaData::SetSecondaryDiameter}) {
            const double before = data.GetFocalLength();
            (data.*set)(value);
            for (const int mode : {32776, 32778, 32775}) {
                Choose(mode);
                EXPECT_FALSE(app->Frame().grab().isNull());
            }
            (data.*set)(HUGE_VAL);
            data.SetFocalLength(before);
        }
    }
}

TEST_F(MainFrame, HelpOpensItsPages)
{
    Choose(32790);
    Choose(32810);
    Choose(57667);
    QTest::keyClick(&app->Frame(), Qt::Key_F1);
    ASSERT_EQ(4u, helpPages.size());
    EXPECT_TRUE(helpPages[0].toString().endsWith("/en/Forum.html"));
    for (int i = 1; i < 4; ++i) {
        EXPECT_EQ(helpPages[1], helpPages[static_cast<std::size_t>(i)]);
    }
    EXPECT_NE(helpPages[0], helpPages[1]);
    // A build without the manual says so; where it is built, the page is in the browser and nothing need be
    // said.
    const bool missing = !QFileInfo::exists(helpPages[3].toLocalFile());
    EXPECT_EQ(missing ? UnopenedHelpText(helpPages[3], kEnglish) : QString(),
              ToQString(app->Document().Status().Text()));
}

TEST_F(MainFrame, F1InADialogAsksForHelpOnIt)
{
    MakeTelescope();
    for (const int command : {57664, 32779, 32789}) {
        InDialogOf(command,
                   [](QDialog& dialog) { QTest::keyClick(dialog.findChild<QWidget*>(), Qt::Key_F1); });
    }
    Choose(32810);
    ASSERT_EQ(4u, helpPages.size());
    EXPECT_TRUE(helpPages[0].toString().endsWith("/en/Formelsammlung.html")) << "the about box";
    EXPECT_EQ(helpPages[3], helpPages[1]) << "a dialog without a page of its own";
    EXPECT_EQ(helpPages[3], helpPages[2]);
}

// The what-if bar ------------------------------------------------------------------------------------------

TEST_F(MainFrame, WhatIfBarTriesAParameter)
{
    MakeTelescope();
    QWidget& frame = app->Frame();
    auto* const list = FindControl<QComboBox>(&frame, 1026);
    auto* const slider = FindControl<QSlider>(&frame, 1023);
    ASSERT_EQ(7, list->count());
    EXPECT_EQ("Brennweite", list->itemText(0));
    EXPECT_EQ(Utf8("OAZ-Extra Höhe für Zubehör"), list->itemText(6));
    EXPECT_EQ("Reset", Text(frame, 1025));
    EXPECT_EQ("Accept ", Text(frame, 1027));

    ChooseParameter(0);
    EXPECT_EQ(750, slider->minimum());
    EXPECT_EQ(3000, slider->maximum());
    EXPECT_EQ(1500, slider->value());
    const QImage before = app->Frame().RightView().grab().toImage();
    slider->setValue(2000);
    QCoreApplication::processEvents();
    EXPECT_EQ(2000.0, app->Document().main_record.GetFocalLength());
    EXPECT_NE(before, app->Frame().RightView().grab().toImage()) << "the whole picture fits itself anew";
    Click(frame, 1025);
    EXPECT_EQ(1500.0, app->Document().main_record.GetFocalLength());
    EXPECT_EQ(1500, slider->value());
}

TEST_F(MainFrame, ARepaintOfTheSliderWritesNothing)
{
    MakeTelescope();
    auto* const slider = FindControl<QSlider>(&app->Frame(), 1023);
    ChooseParameter(2);
    slider->repaint();
    EXPECT_EQ(46.482, app->Document().main_record.GetSecondaryDiameter());
    slider->setValue(60);
    slider->repaint();
    EXPECT_EQ(60.0, app->Document().main_record.GetSecondaryDiameter());
    Click(app->Frame(), 1025);
    slider->repaint();
    EXPECT_EQ(46.482, app->Document().main_record.GetSecondaryDiameter());
}

TEST_F(MainFrame, EscapeOrDeleteInTheListEndsTheTrial)
{
    MakeTelescope();
    auto* const list = FindControl<QComboBox>(&app->Frame(), 1026);
    auto* const slider = FindControl<QSlider>(&app->Frame(), 1023);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Delete}) {
        ChooseParameter(0);
        slider->setValue(2000);
        slider->repaint();
        QTest::keyClick(list, key);
        EXPECT_EQ(1500.0, app->Document().main_record.GetFocalLength());
        EXPECT_EQ(-1, list->currentIndex());
        EXPECT_EQ(slider->minimum(), slider->maximum()) << "it shows none";
        slider->repaint();
        EXPECT_EQ(1500.0, app->Document().main_record.GetFocalLength());
    }
}

TEST_F(MainFrame, AParameterChosenBeforeTheTelescopeIsTriedWhenItIsChosenAgain)
{
    ChooseParameter(0);
    MakeTelescope();
    EXPECT_EQ(0, app->Document().bar_params[0].selected);
    ChooseParameter(0);
    EXPECT_EQ(1, app->Document().bar_params[0].selected);
    EXPECT_EQ(1500, FindControl<QSlider>(&app->Frame(), 1023)->value());
    ChooseParameter(6);
    EXPECT_EQ(1, app->Document().bar_params[6].selected);
}

TEST_F(MainFrame, ATrialDoesNotReachTheRecordWhileQuickNewIsOpen)
{
    MakeTelescope();
    ChooseParameter(0);
    auto* const slider = FindControl<QSlider>(&app->Frame(), 1023);
    app->Document().main_record.SetModified(0);
    InNextDialog<QDialog>([this, slider](QDialog& dialog) {
        QCoreApplication::processEvents();
        slider->repaint();
        EXPECT_EQ(HUGE_VAL, app->Document().main_record.inside_diameter_hat);
        dialog.findChild<QLineEdit*>("aperture")->setText("114");
        dialog.findChild<QLineEdit*>("focalLength")->setText("900");
        dialog.accept();
    });
    Choose(32771);
    EXPECT_EQ(900.0, app->Document().main_record.GetFocalLength());
    EXPECT_DOUBLE_EQ(150.0, app->Document().main_record.GetInsideDiameterHat()) << "114 + 36, not 250 + 36";
    slider->repaint();
    EXPECT_EQ(900.0, app->Document().main_record.GetFocalLength()) << "the trial ended with its telescope";
    EXPECT_EQ(-1, FindControl<QComboBox>(&app->Frame(), 1026)->currentIndex());
}

TEST_F(MainFrameGerman, WhatIfBarButtonsAreGermanAndItsListToo)
{
    EXPECT_EQ(Utf8("Zurücksetzen"), Text(app->Frame(), 1025));
    EXPECT_EQ(Utf8("Übernehmen"), Text(app->Frame(), 1027));
    EXPECT_EQ("Brennweite", FindControl<QComboBox>(&app->Frame(), 1026)->itemText(0));
}

// The command line -----------------------------------------------------------------------------------------

TEST(CommandLineOfTheWindow, AFileArrivesByWayOfTheOldFormat)
{
    const TemporaryFolder folder;
    std::filesystem::copy_file(ORREVA_SOURCE_DIR "/tests/golden/exchange/truss.orreva", "old.orreva");
    COrrevaApp app;
    ASSERT_TRUE(app.InitInstance({"old.orreva"}));
    EXPECT_TRUE(app.Document().HasFile());
    EXPECT_STREQ("noname.orreva.xml", app.Document().main_record.file_path);
    EXPECT_EQ(1, app.Document().main_record.IsModified());
    app.Document().main_record.SetModified(0);
}

TEST(CommandLineOfTheWindow, WordsWithADashAreNoFiles)
{
    const TemporaryFolder folder;
    std::filesystem::copy_file(ORREVA_SOURCE_DIR "/tests/golden/exchange/truss.orreva", "old.orreva");
    std::filesystem::copy_file("old.orreva", "-old.orreva");
    {
        COrrevaApp app;
        ASSERT_TRUE(app.InitInstance({"-old.orreva", "--old.orreva", "-"}));
        EXPECT_FALSE(app.Document().HasFile());
    }
    COrrevaApp app;
    ASSERT_TRUE(app.InitInstance({"-x", "--style", "old.orreva", "missing.orreva"}));
    EXPECT_TRUE(app.Document().HasFile()) << "the first word that has none";
    app.Document().main_record.SetModified(0);
}

// Language -------------------------------------------------------------------------------------------------

TEST_F(MainFrameGerman, EnglishComesForNewDialogsAtOnceAndForTheRestLater)
{
    InNextDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ("Orreva will use English on it's next start.", box.text());
        box.accept();
    });
    Choose(32809);
    EXPECT_EQ(0, COrrevaApp::Profile().value("Settings/Language").toInt());
    EXPECT_EQ(kGerman, g_nLanguage);
    EXPECT_EQ("Speicherm", Action(32803)->text()) << "the menu on the screen stays";
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ("New", dialog.windowTitle());
        dialog.reject();
    });
    Choose(32771);
}

TEST_F(MainFrame, GermanIsAnnouncedInGerman)
{
    InNextDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(Utf8("Beim nächsten Start wird Orreva Deutsch verwenden."), box.text());
        box.accept();
    });
    Choose(32808);
    EXPECT_EQ(1, COrrevaApp::Profile().value("Settings/Language").toInt());
    EXPECT_TRUE(app->IsThreadGerman());
}

TEST(Language, AnUnknownEntryIsOverwrittenByTheSystemsLanguage)
{
    for (const QVariant& entry : {QVariant(2), QVariant(99), QVariant(-1), QVariant("abc"), QVariant("")}) {
        COrrevaApp::Profile().setValue("Settings/Language", entry);
        COrrevaApp app;
        ASSERT_TRUE(app.InitInstance({}));
        const int expected = QLocale::system().language() == QLocale::German ? 1 : 0;
        EXPECT_EQ(expected, COrrevaApp::Profile().value("Settings/Language").toInt());
        EXPECT_EQ(expected, g_nLanguage);
        g_nLanguage = kEnglish;
    }
}

TEST(Language, AMissingEntryIsWrittenWithTheSystemsLanguage)
{
    COrrevaApp::Profile().remove("Settings/Language");
    ASSERT_FALSE(COrrevaApp::Profile().contains("Settings/Language"));
    COrrevaApp app;
    ASSERT_TRUE(app.InitInstance({}));
    const int expected = QLocale::system().language() == QLocale::German ? 1 : 0;
    EXPECT_TRUE(COrrevaApp::Profile().contains("Settings/Language"));
    EXPECT_EQ(expected, COrrevaApp::Profile().value("Settings/Language").toInt());
    EXPECT_EQ(expected, g_nLanguage);
    EXPECT_EQ(expected == 1, app.IsThreadGerman());
    g_nLanguage = kEnglish;
}

TEST_F(MainFrame, AboutBox)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ("Info about Orreva", dialog.windowTitle());
        EXPECT_EQ("Orreva Version 0.3.1.34", dialog.findChild<QLabel*>("version")->text());
        EXPECT_FALSE(FindControl<QWidget>(&dialog, 1006)->isVisible());
        dialog.accept();
    });
    Choose(57664);
}

TEST_F(MainFrameGerman, AboutBoxHasTheFormulasButtonWhichOpensTheManual)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        EXPECT_EQ(Utf8("Info über Orreva"), dialog.windowTitle());
        EXPECT_EQ("Formelsammlung", Text(dialog, 1006));
        Click(dialog, 1006);
        dialog.accept();
    });
    Choose(57664);
    Choose(32810);
    ASSERT_EQ(2u, helpPages.size());
    EXPECT_EQ(helpPages[1], helpPages[0]);
}

} // namespace

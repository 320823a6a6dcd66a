#include "pages/sheet/SheetFixture.h"
#include "views/PaintCounter.h"

#include "model/record/Formulas.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"

#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>

namespace {

class TelescopeSheet : public SheetFixture {};
class TelescopeSheetGerman : public GermanSheetFixture {};

struct PageRow {
    SheetPage page;
    int dialog;
    const char* english;
    const char* german;
    const char* help;
};

constexpr PageRow kPages[] = {
    {kRemarks, 103, "General Remarks", "Bemerkungen", "Reiter_Bemerkungen"},
    {kPrimary, 104, "Primary", "Hauptspiegel", "Reiter_Hauptspiegel"},
    {kTube, 105, "Tube", "Tubus", "Reiter_Tubus"},
    {kFocuser, 106, "Focuser", "Focuser", "Reiter_Focuser"},
    {kSecondary, 107, "Secondary", "Fangspiegel", "Reiter_Fangspiegel"},
    {kCell, 108, "Mirror Cell", "Spiegelzelle", "Reiter_Spiegelzelle"},
    {kEyepieces, 129, "Eyepieces", "Okulare", "Reiter_Okulare"},
    {kBalance, 135, "Center of Gravity", "Schwerpunkt", "Reiter_Schwerpunkt"},
};

/// The angle that a recalculation sets.
double FieldAngleOf(COrrevaData& record)
{
    return FullFieldAngle(record.GetMirrorDiameter(), record.GetFocalLength(), record.GetSecondaryDiameter(),
                          record.GetFocalPlaneHeight());
}

QString TabText(const CPropertySheet& sheet, int index)
{
    return sheet.findChild<QTabWidget*>()->tabText(index);
}

// Tabs, labels, help ---------------------------------------------------------------------------------------

TEST_F(TelescopeSheet, EightTabsInTheirOrder)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        EXPECT_EQ("Telescope Properties", sheet.windowTitle());
        ASSERT_EQ(8, sheet.PageCount());
        for (const PageRow& row : kPages) {
            EXPECT_EQ(row.english, TabText(sheet, row.page));
            EXPECT_EQ(row.dialog, Visit(sheet, row.page).property(kDialogId).toInt());
        }
    });
}

TEST_F(TelescopeSheetGerman, EightTabsInTheirOrder)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        EXPECT_EQ("Eigenschaften des Teleskops", sheet.windowTitle());
        for (const PageRow& row : kPages) {
            EXPECT_EQ(row.german, TabText(sheet, row.page));
        }
    });
}

struct LabelRow {
    SheetPage page;
    int control;
    const char* english;
    const char* german;
};

constexpr LabelRow kLabels[] = {
    {kRemarks, 1001, "Projects Working Title", "Arbeitstitel des Projekts"},
    {kRemarks, 1000, "General Remarks", "Bemerkungen"},
    {kPrimary, 1008, "Focal Length (mm)", "Brennweite (mm)"},
    {kPrimary, 1007, "Diameter (mm)", "Durchmesser (mm)"},
    {kPrimary, 1010, "Thickness (mm)", "Spiegeldicke (mm)"},
    {kPrimary, 1038, "Modulus (E-Modul)", "E-Modul (Modulus)"},
    {kPrimary, 1039, "Poisson's Ratio", "Querkontraktionszahl (Poisson)"},
    {kPrimary, 1037, "Density", "Dichte (Density)"},
    {kTube, 1049, "Wanted 100% illuminated field of view", "Gewünschtes 100% ausgeleuchtetes Bildfeld"},
    {kTube, 1048, "Degrees", "Grad"},
    {kTube, 1012, "Inner Diameter (mm)", "Innendurchmesser (mm)"},
    {kTube, 1013, "Thickness (mm)", "Wanddicke (mm)"},
    {kTube, 1014, "Distance Mirror to rear End of Tube (mm)",
     "Abstand Hauptspiegel - hinteres Tubusende (mm)"},
    {kTube, 1015, "Distance Focuser to front End of Tube (mm)", "Abstand Focuser - vorderes Tubusende (mm)"},
    {kFocuser, 1016, "Inner Diameter (mm)", "Innendurchmesser (mm)"},
    {kFocuser, 1017, "Hieght of retracted Focuser (mm)", "Höhe des (eingefahrenen) Focusers (mm)"},
    {kFocuser, 1002,
     "Height of Focal Plane above retracted Focuser\n(additional height for eyepieces and correctors, mm)",
     "Höhe der Brennebene über dem (eingefahrenen) Focuser\n"
     "(zusätzliche Höhe für Okulare und Korrektoren, mm)"},
    {kFocuser, 1052, "Travel (mm)", "Verstellweg des Innenrohres (Travel)"},
    {kFocuser, 1054, "Pipe Length", "Länge des Innenrohres"},
    {kFocuser, 1053, "Travel (mm)", "Verstellweg (Travel)"},
    {kFocuser, 1055, "Innendurchmesser der Gehäusebohrung", "Innendurchmesser der Gehäusebohrung"},
    {kSecondary, 1049, "Wanter 100% illuminated field of view (mm)",
     "Gewünschtes 100% ausgeleuchtetes Bildfeld"},
    {kSecondary, 1048, "Degrees", "Grad"},
    {kSecondary, 1018, "Diameter of minor Axis (mm)", "Durchmesser der kleinen Achse"},
    {kEyepieces, 1011, "Designation", "Bezeichnung"},
    {kBalance, 1030, "Weight and Center of Gravity of the Components",
     "Gewichte und Schwerpunkte der verwendeten Komponenten"},
};

constexpr LabelRow kButtons[] = {
    {kPrimary, 1050, "Show Details", "Details einblenden"},
    {kSecondary, 1050, "Show Details", "Details einblenden"},
    {kFocuser, 1041, "Focuser", "Okularauszug"},
    {kFocuser, 1042, "Sliding Focuser", "Okularschlitten"},
    {kFocuser, 1007, "Combination Focuser / Sliding Focuser",
     "Kombination aus Okularauszug und Okularschlittern"},
    {kCell, 1006, "Ergebnisse neu berechnen", "Ergebnisse neu berechnen"},
    {kBalance, 1006, "Edit selected Component", "Markierte Komponente bearbeiten"},
    {kBalance, 1007, "Suggest reasonable Values", "Sinnvolle Werte vorschlagen"},
};

TEST_F(TelescopeSheet, Labels)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        for (const LabelRow& row : kLabels) {
            EXPECT_EQ(row.english, LabelOf(Visit(sheet, row.page), row.control));
        }
        for (const LabelRow& row : kButtons) {
            EXPECT_EQ(row.english, TextOf(Visit(sheet, row.page), row.control));
        }
    });
}

TEST_F(TelescopeSheetGerman, Labels)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        for (const LabelRow& row : kLabels) {
            EXPECT_EQ(row.german, LabelOf(Visit(sheet, row.page), row.control));
        }
        for (const LabelRow& row : kButtons) {
            EXPECT_EQ(row.german, TextOf(Visit(sheet, row.page), row.control));
        }
    });
}

struct HeaderRow {
    SheetPage page;
    std::vector<const char*> english;
    std::vector<const char*> german;
    std::vector<int> widths; ///< at least: columns widen for longer texts
};

const HeaderRow kHeaders[] = {
    {kPrimary, {"Property", "Value"}, {"Eigenschaft", "Wert"}, {280, 150}},
    {kTube, {"Property", "Value"}, {"Eigenschaft", "Wert"}, {280, 150}},
    {kSecondary, {"Eigenschaft", "Wert"}, {"Property", "Value"}, {380, 100}},
    {kCell, {"Type", "lambda p/v"}, {"Typ", "lambda p/v"}, {222, 75}},
    {kEyepieces, {"Property", "Value"}, {"Eigenschaft", "Wert"}, {222, 75}},
    {kBalance,
     {"Designation", "Weight", "Center of Gravity", "Center of Gravity (relative)"},
     {"Bezeichnung", "Gewicht", "Schwerpunkt", "Schwerpunkt (relativ)"},
     {222, 90, 90, 222}},
};

void CheckHeader(CResultList& list, const std::vector<const char*>& titles, const std::vector<int>& widths)
{
    ASSERT_EQ(static_cast<int>(titles.size()), list.header()->count());
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const int column = static_cast<int>(i);
        EXPECT_EQ(titles[i], list.header()->model()->headerData(column, Qt::Horizontal).toString());
        EXPECT_GE(list.columnWidth(column), widths[i]);
        EXPECT_EQ(QHeaderView::Interactive, list.header()->sectionResizeMode(column));
    }
}

TEST_F(TelescopeSheet, ColumnsOfTheLists)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        for (const HeaderRow& row : kHeaders) {
            CheckHeader(List(Visit(sheet, row.page)), row.english, row.widths);
        }
    });
}

TEST_F(TelescopeSheetGerman, ColumnsOfTheLists)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        for (const HeaderRow& row : kHeaders) {
            CheckHeader(List(Visit(sheet, row.page)), row.german, row.widths);
        }
    });
}

TEST_F(TelescopeSheet, InfoAndHelpOpenTheirPagesUnderAHand)
{
    MakeTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        for (const PageRow& row : kPages) {
            CPropertyPage& page = Visit(sheet, row.page);
            for (const int picture : {1019, 1020}) {
                EXPECT_EQ(Qt::PointingHandCursor, FindControl<QWidget>(&page, picture)->cursor().shape());
                Click(page, picture);
            }
            ASSERT_EQ(2u, helpPages.size()) << row.english;
            EXPECT_TRUE(helpPages[0].toString().endsWith("/index.html")) << row.english;
            EXPECT_TRUE(helpPages[1].toString().endsWith(QString(row.help) + ".html")) << row.english;
            helpPages.clear();
            QTest::keyClick(&sheet, Qt::Key_F1);
            ASSERT_EQ(1u, helpPages.size());
            EXPECT_TRUE(helpPages[0].toString().endsWith(QString(row.help) + ".html")) << row.english;
            helpPages.clear();
        }
    });
}

TEST_F(TelescopeSheet, KeysReachEveryControlInReadingOrder)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        for (const PageRow& row : kPages) {
            CPropertyPage& page = Visit(sheet, row.page);
            QCoreApplication::processEvents();
            // In each column of a form, from its top down.
            std::vector<const QWidget*> reached;
            for (QWidget* next = page.nextInFocusChain(); next != &page; next = next->nextInFocusChain()) {
                // TAB goes to the chosen one of several radio buttons, arrows to the others.
                const bool byKeys =
                    (next->focusPolicy() & Qt::TabFocus) != 0 || next->inherits("QRadioButton");
                if (page.isAncestorOf(next) && next->property(kControlId).toInt() != 0 && byKeys) {
                    reached.push_back(next);
                }
            }
            for (const QWidget* const control : page.findChildren<QWidget*>()) {
                const bool takesKeys = control->inherits("QLineEdit") || control->inherits("QAbstractButton");
                if (control->property(kControlId).toInt() != 0 && takesKeys) {
                    EXPECT_EQ(1, std::ranges::count(reached, control)) << control->objectName().toStdString();
                }
            }
            for (std::size_t i = 1; i < reached.size(); ++i) {
                const QPoint before = reached[i - 1]->mapTo(&page, QPoint(0, 0));
                const QPoint after = reached[i]->mapTo(&page, QPoint(0, 0));
                EXPECT_TRUE(after.y() > before.y() || after.x() > before.x())
                    << reached[i - 1]->objectName().toStdString() << " -> "
                    << reached[i]->objectName().toStdString();
            }
        }
    });
}

/// The controls that TAB reaches one after the other, from the tabs on until it is back at them.
std::vector<const QWidget*> TabRound(CPropertySheet& sheet)
{
    constexpr int kMostControls = 60;
    auto* const tabs = sheet.findChild<QTabBar*>();
    tabs->setFocus();
    std::vector<const QWidget*> reached;
    for (int i = 0; i < kMostControls; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (QApplication::focusWidget() == tabs) {
            break;
        }
        reached.push_back(QApplication::focusWidget());
    }
    return reached;
}

TEST_F(TelescopeSheetGerman, TheSheetKeepsItsSizeFromPageToPage)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        const QSize size = sheet.size();
        for (const PageRow& row : kPages) {
            Visit(sheet, row.page);
            EXPECT_EQ(size, sheet.size()) << row.german;
        }
    });
}

TEST_F(TelescopeSheet, KeysGoFromTabToTabAndAround)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
            return sheet.ActiveIndex();
        };
        EXPECT_EQ(kPrimary, press(Qt::Key_Tab, Qt::ControlModifier));
        EXPECT_EQ(kTube, press(Qt::Key_PageDown, Qt::ControlModifier));
        EXPECT_EQ(kPrimary, press(Qt::Key_PageUp, Qt::ControlModifier));
        EXPECT_EQ(kRemarks, press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier));
        EXPECT_EQ(kPrimary, press(Qt::Key_Tab, Qt::ControlModifier));
        EXPECT_EQ(kRemarks, press(Qt::Key_Backtab, Qt::ControlModifier));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(FindControl<QWidget>(sheet.Page(kRemarks), 1000), QApplication::focusWidget());
        EXPECT_EQ(kBalance, press(Qt::Key_PageUp, Qt::ControlModifier)) << "from the remarks too";
        EXPECT_EQ(kRemarks, press(Qt::Key_Tab, Qt::ControlModifier));
    });
}

TEST_F(TelescopeSheet, TheFirstFieldOfAPageIsSelectedToTypeOverIt)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        for (const SheetPage index : {kRemarks, kPrimary, kTube, kSecondary}) {
            Visit(sheet, index);
            const auto* const field = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
            ASSERT_NE(nullptr, field) << index;
            EXPECT_FALSE(field->text().isEmpty());
            EXPECT_EQ(field->text(), field->selectedText()) << index;
        }
    });
}

/// The desktop changes its look.
void ChangeStyle(CPropertySheet& sheet)
{
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(&sheet, &change);
    QCoreApplication::sendEvent(sheet.findChild<QDialogButtonBox*>(), &change);
    QCoreApplication::processEvents();
}

TEST_F(TelescopeSheet, TheKeyboardGoesFromTheTabsOverThePageToTheButtons)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        // A page that was built behind others, too, is met before the buttons.
        for (const SheetPage index : {kBalance, kRemarks, kPrimary, kTube, kFocuser, kSecondary, kCell}) {
            const CPropertyPage& page = Visit(sheet, index);
            ChangeStyle(sheet);
            Button(sheet, "apply").setEnabled(true);
            const std::vector<const QWidget*> reached = TabRound(sheet);
            ASSERT_LT(3u, reached.size()) << index;
            const auto buttons = reached.end() - 3;
            EXPECT_TRUE(std::all_of(reached.begin(), buttons, [&](const QWidget* control) {
                return page.isAncestorOf(control);
            })) << index;
            EXPECT_EQ((std::vector<const QWidget*>{&Button(sheet, "ok"), &Button(sheet, "cancel"),
                                                   &Button(sheet, "apply")}),
                      std::vector<const QWidget*>(buttons, reached.end()))
                << index;
        }
    });
}

/// The texts of the buttons that are seen below the pages, from left to right.
QStringList ButtonTexts(const CPropertySheet& sheet)
{
    std::vector<const QPushButton*> buttons;
    for (const QPushButton* const button : sheet.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->property(kControlId).toInt() == 0) { // no page's
            buttons.push_back(button);
        }
    }
    std::ranges::sort(buttons, {},
                      [&](const QPushButton* button) { return button->mapTo(&sheet, QPoint()).x(); });
    QStringList texts;
    for (const QPushButton* const button : buttons) {
        texts << button->text();
    }
    return texts;
}

/// The controls that TAB reaches one after the other, beginning with `first`.
std::vector<const QWidget*> KeysFrom(QWidget& first, int count)
{
    first.setFocus();
    std::vector<const QWidget*> reached{QApplication::focusWidget()};
    for (int i = 1; i < count; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        reached.push_back(QApplication::focusWidget());
    }
    return reached;
}

TEST_F(TelescopeSheet, ButtonsFromLeftToRight)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        const QStringList tabbed{"OK", "Cancel", "&Apply"};
        EXPECT_EQ(tabbed, ButtonTexts(sheet));
        ChangeStyle(sheet);
        EXPECT_EQ(tabbed, ButtonTexts(sheet));
        EXPECT_TRUE(Button(sheet, "ok").isDefault());
    });
}

TEST_F(TelescopeSheet, ButtonsOfTheWizardFromLeftToRight)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        const QStringList forward{"< &Back", "&Next >", "Cancel"};
        EXPECT_EQ(forward, ButtonTexts(sheet));
        ChangeStyle(sheet);
        EXPECT_EQ(forward, ButtonTexts(sheet));
        EXPECT_TRUE(Button(sheet, "next").isDefault());
        for (int i = 0; i < 4; ++i) {
            Press(sheet, "next");
        }
        QCoreApplication::processEvents();
        const QStringList last{"< &Back", "Finish", "Cancel"};
        EXPECT_EQ(last, ButtonTexts(sheet));
        ChangeStyle(sheet);
        EXPECT_EQ(last, ButtonTexts(sheet));
        EXPECT_TRUE(Button(sheet, "finish").isDefault());
        Press(sheet, "back");
        QCoreApplication::processEvents();
        EXPECT_EQ(forward, ButtonTexts(sheet)) << "on the way back";
        EXPECT_TRUE(Button(sheet, "next").isDefault());
        EXPECT_EQ((std::vector<const QWidget*>{&Button(sheet, "back"), &Button(sheet, "next"),
                                               &Button(sheet, "cancel")}),
                  KeysFrom(Button(sheet, "back"), 3));
    });
}

// The protocol ---------------------------------------------------------------------------------------------

TEST_F(TelescopeSheet, APageNeverVisitedNeitherReadsNorWrites)
{
    MakeSmallTelescope();
    Record().SetFocuserHeight(33.333);
    Record().SetThicknessHat(HUGE_VAL);
    InSheet([this](CMyPropertySheet0& sheet) {
        EXPECT_NE(nullptr, sheet.Page(kRemarks));
        for (int i = kPrimary; i < sheet.PageCount(); ++i) {
            EXPECT_EQ(nullptr, sheet.Page(i));
        }
        EXPECT_EQ(HUGE_VAL, Record().thickness_hat) << "not read";
        Press(sheet, "ok");
    });
    EXPECT_EQ(33.333, Record().GetFocuserHeight()) << "not written";
    OnPage(kFocuser, "ok", [](CPropertyPage&) {});
    EXPECT_EQ(33.3, Record().GetFocuserHeight()) << "as the page showed it";
}

TEST_F(TelescopeSheet, ApplyWaitsForAChangeAndWritesAllVisitedPages)
{
    MakeSmallTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        EXPECT_FALSE(Button(sheet, "apply").isEnabled());
        Type(Visit(sheet, kRemarks), 1001, "Applied");
        EXPECT_TRUE(Button(sheet, "apply").isEnabled());
        Type(Visit(sheet, kPrimary), 1008, "1300");
        EXPECT_EQ(1200.0, Record().GetFocalLength()) << "typing does not write";
        EXPECT_EQ(0, Record().IsModified());
        Press(sheet, "apply");
        EXPECT_FALSE(Button(sheet, "apply").isEnabled());
        EXPECT_STREQ("Applied", Record().GetTitle());
        EXPECT_EQ(1300.0, Record().GetFocalLength());
        EXPECT_EQ(1, Record().IsModified());
        EXPECT_DOUBLE_EQ(FieldAngleOf(Record()), app->Document().field_angle_100);
    });
    EXPECT_EQ(1300.0, Record().GetFocalLength()) << "Cancel takes nothing back";
}

TEST_F(TelescopeSheet, OkWithNothingChangedStillSetsModified)
{
    MakeSmallTelescope();
    InSheet([](CMyPropertySheet0& sheet) { Press(sheet, "ok"); });
    EXPECT_EQ(1, Record().IsModified());
}

TEST_F(TelescopeSheet, ApplyOnAnyPageRefreshesTheViewsOnce)
{
    MakeSmallTelescope();
    for (const PageRow& row : kPages) {
        InSheet([&](CMyPropertySheet0& sheet) {
            CPropertyPage& page = Visit(sheet, row.page);
            emit page.Modified();
            PaintCounter left(app->Frame().LeftView());
            PaintCounter right(app->Frame().RightView());
            Record().SetModified(0);
            Press(sheet, "apply");
            EXPECT_EQ(1, left.Take()) << row.english;
            EXPECT_EQ(1, right.Take()) << row.english;
            EXPECT_EQ(1, Record().IsModified()) << row.english;
        });
    }
}

TEST_F(TelescopeSheet, CancelDropsWhatWasTypedAndKeepsWhatResetsWrote)
{
    MakeSmallTelescope();
    Record().SetDensity(3.5);
    OnPage(kPrimary, "cancel", [](CPropertyPage& page) {
        Type(page, 1008, "999");
        Click(page, 1060);
        EXPECT_EQ("2.40", TextOf(page, 1037));
    });
    EXPECT_EQ(1200.0, Record().GetFocalLength());
    EXPECT_EQ(2.4, Record().density);
}

TEST_F(TelescopeSheet, ApplyWritesInTheOrderOfTheTabs)
{
    MakeSmallTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        Visit(sheet, kSecondary);
        Type(Visit(sheet, kTube), 1049, "20");
        Press(sheet, "apply");
    });
    EXPECT_EQ(12.0, Record().GetWanted100PercentFow()) << "the page Secondary still held the old field";
}

TEST_F(TelescopeSheet, ShowDetailsChangesNoData)
{
    MakeSmallTelescope();
    for (const SheetPage index : {kPrimary, kSecondary}) {
        InSheet([&](CMyPropertySheet0& sheet) {
            CPropertyPage& page = Visit(sheet, index);
            const int before = List(page).RowCount();
            Click(page, 1050);
            EXPECT_LT(before, List(page).RowCount());
            EXPECT_FALSE(Button(sheet, "apply").isEnabled());
            Click(page, 1050);
            EXPECT_EQ(before, List(page).RowCount());
        });
    }
}

TEST_F(TelescopeSheet, AWindowThatComesBackKeepsWhatWasTyped)
{
    MakeSmallTelescope();
    OnPage(kTube, "cancel", [](CPropertyPage& page) {
        Type(page, 1049, "20");
        QShowEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(page.window(), &event); // sendEvent would mark it as the program's own
        EXPECT_EQ("20", TextOf(page, 1049));
    });
}

struct ResetRow {
    SheetPage page;
    int button;
    int edit;
    void (COrrevaData::*set)(double);
    const char* text; ///< what a telescope of 200 mm and 1200 mm gets, else untouched
};

constexpr ResetRow kResets[] = {
    {kPrimary, 1060, 1037, &COrrevaData::SetDensity, "2.40"},
    {kTube, 1056, 1049, &COrrevaData::SetWanted100PercentFow, "12.00"},
    {kTube, 1059, 1014, &COrrevaData::SetDistanceBack, "50.0"},
    {kTube, 1060, 1013, &COrrevaData::SetThicknessHat, "5.0"},
    {kFocuser, 1060, 1017, &COrrevaData::SetFocuserHeight, "40.0"},
    {kFocuser, 1058, 1052, &COrrevaData::SetOazTravel, "30.0"},
    {kFocuser, 1057, 1054, &COrrevaData::SetOazLength, "40.0"},
    {kSecondary, 1056, 1049, &COrrevaData::SetWanted100PercentFow, "12.00"},
};

TEST_F(TelescopeSheet, ResetButtonsWriteTheProposedValueAtOnce)
{
    for (const ResetRow& row : kResets) {
        MakeSmallTelescope();
        (Record().*row.set)(77.5);
        InSheet([&](CMyPropertySheet0& sheet) {
            CPropertyPage& page = Visit(sheet, row.page);
            EXPECT_TRUE(QString::fromStdString(TextOf(page, row.edit)).startsWith("77.5"));
            Click(page, row.button);
            EXPECT_EQ(row.text, TextOf(page, row.edit));
            EXPECT_TRUE(Button(sheet, "apply").isEnabled());
        });
        OnPage(row.page, "cancel", [&](CPropertyPage& page) {
            EXPECT_EQ(row.text, TextOf(page, row.edit)) << "the record took it in spite of Cancel";
        });
        Record().SetModified(0);
    }
}

TEST_F(TelescopeSheet, EveryFieldHasItsResetButton)
{
    MakeSmallTelescope();
    const std::vector<std::pair<SheetPage, std::vector<int>>> buttons{
        {kPrimary, {1056, 1057, 1060, 1061}},
        {kTube, {1056, 1057, 1058, 1059, 1060}},
        {kFocuser, {1056, 1057, 1058, 1059, 1060, 1061}},
        {kSecondary, {1056, 1057}},
    };
    InSheet([&](CMyPropertySheet0& sheet) {
        for (const auto& [index, ids] : buttons) {
            CPropertyPage& page = Visit(sheet, index);
            for (const int id : ids) {
                ASSERT_NE(nullptr, FindControl<QAbstractButton>(&page, id)) << id;
                EXPECT_FALSE(FindControl<QAbstractButton>(&page, id)->toolTip().isEmpty());
                Click(page, id);
            }
        }
    });
}

TEST_F(TelescopeSheet, DegreesFollowTheWantedFieldAlone)
{
    const std::pair<SheetPage, int> rows[] = {{kTube, 1012}, {kSecondary, 1018}};
    for (const auto& [index, other] : rows) {
        MakeMeasuredTelescope();
        OnPage(index, "cancel", [&](CPropertyPage& page) {
            EXPECT_EQ("0.5730", TextOf(page, 1048));
            Record().SetFocalLength(2400);
            Type(page, other, "51");
            EXPECT_EQ("0.5730", TextOf(page, 1048)) << "another field changed";
            Type(page, 1049, "12");
            EXPECT_EQ("0.2865", TextOf(page, 1048));
            Type(page, 1049, "20");
            Click(page, 1056);
            EXPECT_EQ("0.2865", TextOf(page, 1048)) << "the reset's 12 mm";
        });
        Record().SetModified(0);
    }
}

TEST_F(TelescopeSheet, TheSheetOpensNoLargerThanTheScreen)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        const QSize room = sheet.screen()->availableSize();
        EXPECT_LE(sheet.width(), room.width());
        EXPECT_LE(sheet.height(), room.height());
    });
}

constexpr const char* kAnyTexts[] = {"",
                                     "abc",
                                     "0",
                                     "-1",
                                     "-250",
                                     "1e-300",
                                     "1e300",
                                     "-1e300",
                                     "1e999",
                                     "inf",
                                     "nan",
                                     "1,5,5",
                                     "1.#INF",
                                     "%s%n",
                                     "9999999999999999999999",
                                     "\xE2\x88\x9E \xF0\x9F\x94\xAD"};

TEST_F(TelescopeSheet, AnyTextInAnyFieldLeavesTheProgramAlive)
{
    MakeSmallTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        for (const PageRow& row : kPages) {
            CPropertyPage& page = Visit(sheet, row.page);
            for (QLineEdit* const edit : page.findChildren<QLineEdit*>()) {
                const QString before = edit->text();
                for (const char* const text : kAnyTexts) {
                    edit->setText(QString::fromUtf8(text));
                    Button(sheet, "apply").click();
                    app->Frame().grab();
                }
                edit->setText(QString(5000, '7'));
                Button(sheet, "apply").click();
                edit->setText(before);
                Button(sheet, "apply").click();
            }
            EXPECT_EQ(&page, sheet.Page(row.page));
        }
        Press(sheet, "ok");
    });
    EXPECT_EQ(1200.0, Record().GetFocalLength()) << "the last text that each field got counts";
    EXPECT_EQ(200.0, Record().GetMirrorDiameter());
}

// General Remarks ------------------------------------------------------------------------------------------

TEST_F(TelescopeSheet, RemarksKeepTitleAndLines)
{
    MakeTelescope();
    OnPage(kRemarks, "ok", [](CPropertyPage& page) {
        EXPECT_EQ("Untitleld Telescope", TextOf(page, 1001));
        EXPECT_EQ("Ein 08/15 Teleskop", TextOf(page, 1000));
        Type(page, 1001, QString::fromUtf8("Großer Dobson"));
        Type(page, 1000, "First");
        QTest::keyClick(FindControl<QPlainTextEdit>(&page, 1000), Qt::Key_Return);
        QTest::keyClicks(FindControl<QPlainTextEdit>(&page, 1000), "Second");
    });
    EXPECT_STREQ("Gro\xDF"
                 "er Dobson",
                 Record().GetTitle());
    EXPECT_STREQ("First\nSecond", Record().GetDescription());
}

TEST_F(TelescopeSheet, RemarksKeepTheirFixedBlanks)
{
    MakeTelescope();
    Record().SetDescription("200\xA0mm\nf/6");
    OnPage(kRemarks, "ok", [](CPropertyPage& page) { Type(page, 1001, "Dobson"); });
    EXPECT_STREQ("200\xA0mm\nf/6", Record().GetDescription());
}

TEST_F(TelescopeSheet, AnEmptyTitleBecomesUnbenannt)
{
    MakeTelescope();
    OnPage(kRemarks, "ok", [](CPropertyPage& page) { Type(page, 1001, ""); });
    EXPECT_STREQ("Unbenannt", Record().GetTitle());
}

TEST_F(TelescopeSheetGerman, AnEmptyTitleBecomesUnbenannt)
{
    MakeTelescope();
    OnPage(kRemarks, "ok", [](CPropertyPage& page) { Type(page, 1001, ""); });
    EXPECT_STREQ("Unbenannt", Record().GetTitle());
}

// The wizard -----------------------------------------------------------------------------------------------

struct WizardRow {
    SheetPage page;
    const char* heading;
    bool back;
    bool finish;
};

constexpr WizardRow kWizard[] = {{kRemarks, "General Remarks", false, false},
                                 {kPrimary, "Primary", true, false},
                                 {kTube, "Tube", true, false},
                                 {kFocuser, "Focuser", true, false},
                                 {kSecondary, "Secondary", true, true}};

TEST_F(TelescopeSheet, TheWizardRunsFromRemarksToSecondary)
{
    InSheet(kNewDetailed, [this](CMyPropertySheet0& sheet) {
        for (const WizardRow& row : kWizard) {
            EXPECT_EQ(row.page, sheet.ActiveIndex());
            EXPECT_EQ(row.heading, sheet.findChild<QLabel*>("heading")->text());
            EXPECT_EQ(row.back, Button(sheet, "back").isEnabled());
            EXPECT_EQ(row.finish, Button(sheet, "finish").isVisible());
            EXPECT_EQ(!row.finish, Button(sheet, "next").isVisible());
            if (row.page == kRemarks) {
                Type(*sheet.Page(kRemarks), 1001, "Wizard");
            } else if (row.page == kPrimary) {
                Type(*sheet.Page(kPrimary), 1007, "300");
                Type(*sheet.Page(kPrimary), 1008, "1500,5");
            } else if (row.page == kSecondary) {
                Type(*sheet.Page(kSecondary), 1018, "70");
            }
            Press(sheet, row.finish ? "finish" : "next");
        }
        EXPECT_FALSE(sheet.isVisible());
        EXPECT_EQ(nullptr, sheet.Page(kCell)) << "only the tabbed sheet has the last three";
    });
    EXPECT_TRUE(app->Document().HasFile());
    EXPECT_STREQ("Wizard", Record().GetTitle());
    EXPECT_EQ(300.0, Record().GetMirrorDiameter());
    EXPECT_EQ(1500.5, Record().GetFocalLength());
    EXPECT_EQ(70.0, Record().GetSecondaryDiameter());
    EXPECT_DOUBLE_EQ(FieldAngleOf(Record()), app->Document().field_angle_100);
}

TEST_F(TelescopeSheetGerman, TheWizardsButtonsAreGerman)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        EXPECT_EQ("Bemerkungen", sheet.findChild<QLabel*>("heading")->text());
        EXPECT_EQ(QString::fromUtf8("< &Zurück"), Button(sheet, "back").text());
        EXPECT_EQ("&Weiter >", Button(sheet, "next").text());
        EXPECT_EQ("Abbrechen", Button(sheet, "cancel").text());
        for (int i = 0; i < 4; ++i) {
            Press(sheet, "next");
        }
        EXPECT_EQ("Fertig stellen", Button(sheet, "finish").text());
        Press(sheet, "finish");
    });
    EXPECT_TRUE(app->Document().HasFile());
}

TEST_F(TelescopeSheet, EachPageOfTheWizardOpensWithTheKeyboardInItsFirstField)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents(); // the sheet becomes the active window
        for (const int control : {1001, 1008, 1049, 1041, 1049}) {
            ASSERT_NE(nullptr, QApplication::focusWidget()) << sheet.ActiveIndex();
            EXPECT_EQ(control, QApplication::focusWidget()->property(kControlId).toInt());
            EXPECT_TRUE(sheet.Page(sheet.ActiveIndex())->isAncestorOf(QApplication::focusWidget()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        EXPECT_FALSE(sheet.isVisible());
    });
    EXPECT_TRUE(app->Document().HasFile()) << "five times Return run the wizard to its end";
}

TEST_F(TelescopeSheet, TheKeysThatChangeTabsDoNotLeadAroundTheWizardsButtons)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_PageDown, Qt::Key_PageUp}) {
            QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
            EXPECT_EQ(kRemarks, sheet.ActiveIndex()) << "a page left so would not be stored";
        }
    });
}

TEST_F(TelescopeSheet, OfRadioButtonsTheChosenOneHasTheKeyboard)
{
    const std::pair<int, int> rows[] = {{0, 1041}, {1, 1016}, {2, 1007}}; // the sliding kind is disabled
    for (const auto& [type, control] : rows) {
        MakeSmallTelescope();
        Record().SetFocuserType(type);
        InSheet([&](CMyPropertySheet0& sheet) {
            QCoreApplication::processEvents();
            Visit(sheet, kFocuser);
            ASSERT_NE(nullptr, QApplication::focusWidget());
            EXPECT_EQ(control, QApplication::focusWidget()->property(kControlId).toInt()) << type;
        });
        EXPECT_EQ(type, Record().GetFocuserType());
        Record().SetModified(0);
    }
}

TEST_F(TelescopeSheet, TheSpaceBarOnNextEndsOnFinishAndNotOnCancel)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        QCoreApplication::processEvents();
        Button(sheet, "next").setFocus();
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        }
        EXPECT_EQ(kSecondary, sheet.ActiveIndex());
        EXPECT_EQ(&Button(sheet, "finish"), QApplication::focusWidget());
        Button(sheet, "back").click(); // as its key does, which leaves the focus where it is
        EXPECT_EQ(kFocuser, sheet.ActiveIndex());
        EXPECT_EQ(&Button(sheet, "next"), QApplication::focusWidget());
    });
}

TEST_F(TelescopeSheet, CancelOfTheWizardLeavesNoTelescope)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        Type(*sheet.Page(kRemarks), 1001, "Gone");
        Press(sheet, "next");
        Press(sheet, "cancel");
    });
    EXPECT_FALSE(app->Document().HasFile());
    EXPECT_STREQ("", Record().GetTitle());
}

TEST_F(TelescopeSheet, NextOfRemarksAloneRecalculates)
{
    InSheet(kNewDetailed, [this](CMyPropertySheet0& sheet) {
        Record().SetModified(0);
        Press(sheet, "next");
        EXPECT_EQ(1, Record().IsModified());
        Record().SetModified(0);
        Press(sheet, "next");
        EXPECT_EQ(0, Record().IsModified());
        Press(sheet, "back");
        EXPECT_EQ(0, Record().IsModified());
    });
}

TEST_F(TelescopeSheet, BackWritesToo)
{
    InSheet(kNewDetailed, [this](CMyPropertySheet0& sheet) {
        Press(sheet, "next");
        Type(*sheet.Page(kPrimary), 1007, "222");
        Press(sheet, "back");
        EXPECT_EQ(222.0, Record().GetMirrorDiameter());
        EXPECT_EQ(kRemarks, sheet.ActiveIndex());
    });
}

TEST_F(TelescopeSheet, WizardButtonsArePostedInATabbedSheetToo)
{
    MakeTelescope();
    const unsigned expected[] = {kWizardNext,
                                 kWizardBack | kWizardNext,
                                 kWizardBack | kWizardNext,
                                 kWizardBack | kWizardNext,
                                 kWizardBack | kWizardFinish,
                                 kWizardBack | kWizardNext,
                                 kWizardNext,
                                 kWizardBack | kWizardFinish};
    InSheet([&](CMyPropertySheet0& sheet) {
        for (const PageRow& row : kPages) {
            CPropertyPage& page = Visit(sheet, row.page);
            unsigned posted = 0;
            QObject::connect(&page, &CPropertyPage::WizardButtons, &page,
                             [&](unsigned buttons) { posted = buttons; });
            page.OnSetActive();
            EXPECT_EQ(expected[row.page], posted) << row.english;
            EXPECT_FALSE(Button(sheet, "finish").isVisible()) << "no visible effect";
            page.disconnect(&page);
        }
    });
}

TEST_F(TelescopeSheetGerman, AfterChoosingEnglishTheFormsAreEnglishAndTheRowsGerman)
{
    MakeTelescope();
    InNextDialog<QMessageBox>([](QMessageBox& box) { box.accept(); });
    Choose(32809);
    OnPage(kPrimary, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Diameter (mm)", LabelOf(page, 1007));
        EXPECT_EQ("Durchmesser | 250.0 mm (9.84 inch)", Rows(page)[0]);
    });
}

} // namespace

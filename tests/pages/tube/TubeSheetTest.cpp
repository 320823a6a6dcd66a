#include "pages/sheet/SheetHelpers.h"
#include "views/PaintCounter.h"

#include "document/Commands.h"
#include "pages/tube/PropertyPageTube1.h"
#include "pages/tube/PropertySheetTube.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/TubePanel.h"

#include <QComboBox>
#include <QGroupBox>
#include <QRadioButton>

namespace {

template <class Base>
class TubeSheetOf : public OnSavedTelescope<Base> {
protected:
    template <class Act>
    void InTubeSheet(Act act)
    {
        this->template InSheet<CPropertySheetTube>(command_id::kTubeProperties, act);
    }
};

class TubeSheet : public TubeSheetOf<AppFixture> {
protected:
    /// Opens the sheet on a truss tube, at its second page.
    template <class Act>
    void OnTrussPage(Act act)
    {
        Main().SetTubeType(3);
        InTubeSheet([act](CPropertySheetTube& sheet) { act(PageOf(sheet, 1)); });
    }
};

class TubeSheetGerman : public TubeSheetOf<GermanAppFixture> {};

struct LabelRow {
    int page;
    int control;
    const char* english;
    const char* german;
};

constexpr LabelRow kTrussLabels[] = {
    {1, 1069, "Tickness (mm)", "Wanddicke (mm)"},
    {1, 1015, "Height (mm)", "Höhe (mm)"},
    {1, 1071, "Type", "Typ"},
    {1, 1087, "Distance rror Box / Upper Cage", "Abstand Spiegelzelle/Hut (mm)"},
    {1, 1014, "Tickness (mm)", "Wanddicke (mm)"},
    {1, 1016, "Height (mm)", "Höhe (mm)"},
};

QStringList GroupTitles(const QWidget& page)
{
    QStringList titles;
    for (const QGroupBox* const group : page.findChildren<QGroupBox*>()) {
        titles << group->title();
    }
    return titles;
}

QImage Picture(const CPropertySheetTube& sheet) { return sheet.findChild<CTubePanel*>()->grab().toImage(); }

TEST_F(TubeSheet, Texts)
{
    InTubeSheet([](CPropertySheetTube& sheet) {
        EXPECT_EQ("Tube Properties", sheet.windowTitle());
        EXPECT_EQ("General", TabTitle(sheet, 0));
        EXPECT_EQ("Tube", TabTitle(sheet, 1));
        const QWidget& first = PageOf(sheet, 0);
        EXPECT_EQ(QStringList({Utf8("Maße"), "Design"}), GroupTitles(first));
        EXPECT_EQ("Tube", Text(first, 1067));
        EXPECT_EQ("Truss Tube", Text(first, 1068));
        EXPECT_EQ(110, first.property(kDialogId).toInt());
        EXPECT_EQ("Tube Thickness (mm)", LabelOf(PageOf(sheet, 1), 1013));
        EXPECT_EQ(111, sheet.Page(1)->property(kDialogId).toInt());
    });
    Main().SetTubeType(2);
    InTubeSheet([](CPropertySheetTube& sheet) {
        EXPECT_EQ("Truss Tube", TabTitle(sheet, 1));
        for (const LabelRow& row : kTrussLabels) {
            EXPECT_EQ(Utf8(row.english), LabelOf(PageOf(sheet, row.page), row.control)) << row.control;
        }
        EXPECT_EQ(QStringList({"Mirror Box", "Trusses", "Upper Cage"}), GroupTitles(*sheet.Page(1)));
        EXPECT_EQ(112, sheet.Page(1)->property(kDialogId).toInt());
    });
}

TEST_F(TubeSheetGerman, Texts)
{
    InTubeSheet([](CPropertySheetTube& sheet) {
        EXPECT_EQ("Eigenschaften Tubus", sheet.windowTitle());
        EXPECT_EQ("Allgemein", TabTitle(sheet, 0));
        EXPECT_EQ("Volltubus", TabTitle(sheet, 1));
        const QWidget& first = PageOf(sheet, 0);
        EXPECT_EQ(QStringList({Utf8("Maße"), "Design"}), GroupTitles(first));
        EXPECT_EQ("Volltubus", Text(first, 1067));
        EXPECT_EQ("Gitterrohrtubus", Text(first, 1068));
        EXPECT_EQ("Wanddicke (mm)", LabelOf(PageOf(sheet, 1), 1013));
    });
    Main().SetTubeType(2);
    InTubeSheet([](CPropertySheetTube& sheet) {
        EXPECT_EQ("Gitterrohrtubus", TabTitle(sheet, 1));
        for (const LabelRow& row : kTrussLabels) {
            EXPECT_EQ(Utf8(row.german), LabelOf(PageOf(sheet, row.page), row.control)) << row.control;
        }
        EXPECT_EQ(QStringList({"Spiegelbox", "Trusses", "Hut"}), GroupTitles(*sheet.Page(1)));
    });
}

TEST_F(TubeSheet, ReadsTheRecordIntoItsFields)
{
    Main().SetInsideDiameterHat(311.25);
    Main().SetDistanceBack(62.54);
    Main().SetDistanceFront(130);
    Main().SetWanted100PercentFow(26.2);
    Main().SetThicknessHat(6);
    InTubeSheet([](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_EQ("311.2", Text(page, 1012)) << "a half goes to the even digit";
        EXPECT_EQ("62.5", Text(page, 1014));
        EXPECT_EQ("130.0", Text(page, 1015));
        EXPECT_EQ("26.20", Text(page, 1049));
        EXPECT_EQ("1.0007", Text(page, 1048));
        EXPECT_TRUE(FindControl<QRadioButton>(&page, 1067)->isChecked());
        EXPECT_EQ("6.0", Text(PageOf(sheet, 1), 1013));
    });
}

TEST_F(TubeSheet, EveryKeystrokeGoesIntoTheScratchRecordAndShowsEverywhere)
{
    const double before = Main().GetInsideDiameterHat();
    InTubeSheet([&](CPropertySheetTube& sheet) {
        EXPECT_EQ(&Scratch(), Document().active_record);
        const QWidget& page = PageOf(sheet, 0);
        const QImage panel = Picture(sheet);
        const QImage summary = app->Frame().LeftView().grab().toImage();
        const QImage section = app->Frame().RightView().grab().toImage();
        Type(page, 1012, "");
        EXPECT_EQ(0.0, Scratch().GetInsideDiameterHat()) << "the field is empty for a while";
        double expected = 0;
        for (const char key : {'4', '2', '0'}) {
            QTest::keyClick(FindControl<QWidget>(&page, 1012), key);
            expected = expected * 10 + (key - '0');
            EXPECT_EQ(expected, Scratch().GetInsideDiameterHat());
            EXPECT_FALSE(app->Frame().grab().isNull());
        }
        EXPECT_NE(panel, Picture(sheet));
        EXPECT_NE(summary, app->Frame().LeftView().grab().toImage());
        EXPECT_NE(section, app->Frame().RightView().grab().toImage());
        EXPECT_EQ(before, Main().GetInsideDiameterHat());
    });
    EXPECT_EQ(before, Main().GetInsideDiameterHat());
    EXPECT_EQ(&Main(), Document().active_record);
}

TEST_F(TubeSheet, AKeystrokeRepaintsViewsAndPanelByItself)
{
    for (const int control : {1012, 1014, 1015, 1048, 1049}) {
        InTubeSheet([&](CPropertySheetTube& sheet) {
            const QWidget& page = PageOf(sheet, 0);
            PaintCounter panel(*sheet.findChild<CTubePanel*>());
            PaintCounter summary(app->Frame().LeftView());
            PaintCounter section(app->Frame().RightView());
            QTest::keyClick(FindControl<QWidget>(&page, control), '7');
            EXPECT_LE(1, panel.Take()) << control;
            EXPECT_LE(1, summary.Take()) << control;
            EXPECT_LE(1, section.Take()) << control;
        });
    }
}

TEST_F(TubeSheet, AChoiceOfTrussesRepaintsViewsAndPanelByItself)
{
    Main().SetTubeType(3);
    InTubeSheet([&](CPropertySheetTube& sheet) {
        auto* const list = FindControl<QComboBox>(&PageOf(sheet, 1), 1071);
        list->setFocus();
        PaintCounter panel(*sheet.findChild<CTubePanel*>());
        PaintCounter section(app->Frame().RightView());
        QTest::keyClick(list, Qt::Key_Down);
        EXPECT_EQ(4, Scratch().GetTubeType());
        EXPECT_LE(1, panel.Take());
        EXPECT_LE(1, section.Take());
    });
}

TEST_F(TubeSheet, StoresEachFieldOfTheFirstPage)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_FALSE(SheetButton(sheet, "apply").isEnabled());
        Type(page, 1014, "71,5");
        EXPECT_EQ(71.5, Scratch().GetDistanceBack()) << "a comma counts as a point";
        EXPECT_TRUE(SheetButton(sheet, "apply").isEnabled());
        Type(page, 1015, "99");
        EXPECT_EQ(99.0, Scratch().GetDistanceFront());
        Type(page, 1049, "26.2");
        EXPECT_EQ(26.2, Scratch().GetWanted100PercentFow());
        EXPECT_EQ("1.0007", Text(page, 1048));
        QTest::mouseClick(&SheetButton(sheet, "apply"), Qt::LeftButton);
        EXPECT_TRUE(sheet.isVisible());
        EXPECT_EQ(99.0, Scratch().GetDistanceFront());
    });
}

TEST_F(TubeSheet, DegreesSetTheMillimetresAndZeroIsNotUnset)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        Type(page, 1048, "0.5");
        EXPECT_EQ("0.5", Text(page, 1048)) << "what is typed stays";
        EXPECT_EQ("13.1", Text(page, 1049)) << "tan(0.5 / 360 pi) * 3000 = 13.0900";
        EXPECT_EQ(13.1, Scratch().GetWanted100PercentFow());
        Type(page, 1048, "0");
        EXPECT_EQ("0.0", Text(page, 1049));
        EXPECT_EQ(0.0, Scratch().GetWanted100PercentFow());
        Type(page, 1048, "");
        EXPECT_EQ(0.0, Scratch().GetWanted100PercentFow());
    });
}

TEST_F(TubeSheet, TheButtonBesideTheDegreesSetsAFieldOfSixTenths)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        Click(page, 1055);
        EXPECT_NEAR(15.708107, Scratch().GetWanted100PercentFow(), 1e-6);
        EXPECT_EQ("15.71", Text(page, 1049));
        EXPECT_EQ("0.6001", Text(page, 1048)) << "from the millimetres that the page shows";
        EXPECT_TRUE(SheetButton(sheet, "apply").isEnabled());
    });
}

TEST_F(TubeSheet, ResetsOfTheFirstTwoPagesBringTheProposalsBack)
{
    struct Row {
        int page;
        int field;
        int button;
        const char* proposal;
    };
    // For a mirror of 250 mm: 250 / 4, 250 / 2, 250 / 40, and 12 mm of field.
    constexpr Row kRows[] = {
        {0, 1014, 1059, "62.5"}, {0, 1015, 1058, "125.0"}, {0, 1049, 1056, "12.00"}, {1, 1013, 1060, "6.2"}};
    InTubeSheet([&](CPropertySheetTube& sheet) {
        for (const Row& row : kRows) {
            const QWidget& page = PageOf(sheet, row.page);
            Type(page, row.field, "3");
            const QImage panel = Picture(sheet);
            Click(page, row.button);
            EXPECT_EQ(row.proposal, Text(page, row.field)) << row.button;
            if (row.field != 1049) {
                EXPECT_NE(panel, Picture(sheet)) << row.button;
            }
        }
        EXPECT_EQ(62.5, Scratch().GetDistanceBack());
        EXPECT_EQ(125.0, Scratch().GetDistanceFront());
        EXPECT_EQ(12.0, Scratch().GetWanted100PercentFow());
        EXPECT_EQ("0.4584", Text(PageOf(sheet, 0), 1048)) << "the degrees follow the reset";
        EXPECT_EQ(6.25, Scratch().GetThicknessHat());
    });
}

TEST_F(TubeSheet, ResetOfTheInnerDiameterBringsItsProposalBack)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        const QString proposal = Text(page, 1012);
        Type(page, 1012, "1");
        Click(page, 1057);
        EXPECT_EQ(proposal, Text(page, 1012));
        EXPECT_LT(250.0, Scratch().GetInsideDiameterHat());
    });
}

// OK and Cancel of the command -----------------------------------------------------------------------------

TEST_F(TubeSheet, OkCopiesBackAndLosesTheFilesPath)
{
    ASSERT_STREQ("mine.orreva.xml", Main().file_path.GetText());
    InTubeSheet([](CPropertySheetTube& sheet) {
        Type(PageOf(sheet, 0), 1014, "71.5");
        QTest::mouseClick(&SheetButton(sheet, "ok"), Qt::LeftButton);
    });
    EXPECT_EQ(71.5, Main().GetDistanceBack());
    EXPECT_STREQ("noname.orreva.xml", Main().file_path.GetText());
    EXPECT_EQ("noname.orreva.xml - Orreva", app->Frame().windowTitle());
    EXPECT_EQ(1, Main().IsModified());
    EXPECT_EQ(&Main(), Document().active_record);
}

TEST_F(TubeSheet, CancelKeepsThePathButNotTheTitleAndMarksModified)
{
    EXPECT_EQ(0, Main().IsModified());
    InTubeSheet([](CPropertySheetTube& sheet) {
        Type(PageOf(sheet, 0), 1014, "71.5");
        QTest::keyClick(&sheet, Qt::Key_Escape);
        EXPECT_FALSE(sheet.isVisible());
    });
    EXPECT_EQ(62.5, Main().GetDistanceBack());
    EXPECT_STREQ("mine.orreva.xml", Main().file_path.GetText());
    EXPECT_EQ("noname.orreva.xml - Orreva", app->Frame().windowTitle());
    EXPECT_EQ(1, Main().IsModified());
    EXPECT_EQ(&Main(), Document().active_record);
}

TEST_F(TubeSheet, OkOverAModifiedTelescopeRaisesTheSavePrompt)
{
    Main().SetModified(1);
    InTubeSheet([this](CPropertySheetTube& sheet) {
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ("Save mine.orreva.xml?", box.text());
            QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
        });
        sheet.accept();
    });
    EXPECT_STREQ("noname.orreva.xml", Main().file_path.GetText());
}

// The design -----------------------------------------------------------------------------------------------

TEST_F(TubeSheet, ADesignButtonExchangesTheSecondPage)
{
    Document().show_box_and_cage = 1;
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        PageOf(sheet, 1);
        PageOf(sheet, 0);
        Click(page, 1068);
        EXPECT_EQ(1, Scratch().GetTubeType());
        EXPECT_EQ("Truss Tube", TabTitle(sheet, 1));
        EXPECT_EQ(2, sheet.PageCount());
        EXPECT_EQ(0, sheet.ActiveIndex());
        EXPECT_EQ(1, Document().show_box_and_cage);
        EXPECT_EQ(112, PageOf(sheet, 1).property(kDialogId).toInt());
        PageOf(sheet, 0);
        Click(page, 1067);
        EXPECT_EQ(0, Scratch().GetTubeType());
        EXPECT_EQ("Tube", TabTitle(sheet, 1));
        EXPECT_EQ(0, Document().show_box_and_cage) << "a solid tube has neither box nor cage";
        EXPECT_EQ(111, PageOf(sheet, 1).property(kDialogId).toInt());
        EXPECT_EQ(2, sheet.PageCount());
    });
}

TEST_F(TubeSheet, TypingOnTheGeneralPageKeepsTheDesignThatIsChosen)
{
    Main().SetTubeType(0);
    Document().show_box_and_cage = 1;
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_TRUE(FindControl<QRadioButton>(&page, 1067)->isChecked());
        for (const int field : {1012, 1014, 1048, 1049}) {
            Type(page, field, "87.5");
            EXPECT_EQ(0, Scratch().GetTubeType()) << field;
        }
        EXPECT_TRUE(FindControl<QRadioButton>(&page, 1067)->isChecked());
        EXPECT_EQ("Tube", TabTitle(sheet, 1));
        EXPECT_EQ(1, Document().show_box_and_cage) << "only a click takes box and cage away";
        // Once the truss tube is clicked and the tube again, and once a truss is typed on.
        Click(page, 1068);
        Type(page, 1014, "88");
        EXPECT_EQ(1, Scratch().GetTubeType());
        Click(page, 1067);
        Type(page, 1014, "89");
        EXPECT_EQ(0, Scratch().GetTubeType());
    });
}

TEST_F(TubeSheet, ASecondClickOnTrussTubeKeepsTheTrussesThatWereChosen)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        Click(page, 1068);
        auto* const list = FindControl<QComboBox>(&PageOf(sheet, 1), 1071);
        EXPECT_EQ(Utf8("Acht schräge Trusses"), list->currentText());
        list->setFocus();
        QTest::keyClick(list, Qt::Key_3);
        EXPECT_EQ("3 senkrechte Trusses", list->currentText());
        EXPECT_EQ(4, Scratch().GetTubeType());
        PageOf(sheet, 0);
        Click(page, 1068);
        EXPECT_EQ(4, Scratch().GetTubeType());
        Click(page, 1067);
        EXPECT_EQ(0, Scratch().GetTubeType());
        Click(page, 1068);
        EXPECT_EQ(1, Scratch().GetTubeType()) << "not the old type";
    });
}

TEST_F(TubeSheet, ChoosingTubusLeavesTheTrussPageUntilADesignIsClicked)
{
    Main().SetTubeType(3);
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_TRUE(FindControl<QRadioButton>(&page, 1068)->isChecked());
        auto* const list = FindControl<QComboBox>(&PageOf(sheet, 1), 1071);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Home);
        EXPECT_EQ("Tubus", list->currentText());
        EXPECT_EQ(0, Scratch().GetTubeType());
        EXPECT_EQ("Truss Tube", TabTitle(sheet, 1));
        PageOf(sheet, 0);
        Click(page, 1067);
        EXPECT_EQ("Tube", TabTitle(sheet, 1));
    });
}

TEST_F(TubeSheet, TheDesignIsChosenByKeysToo)
{
    InTubeSheet([&](CPropertySheetTube& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        auto* const truss = FindControl<QRadioButton>(&page, 1068);
        truss->setFocus();
        QTest::keyClick(truss, Qt::Key_Space);
        EXPECT_EQ(1, Scratch().GetTubeType());
        EXPECT_EQ("Truss Tube", TabTitle(sheet, 1));
    });
}

// The truss page -------------------------------------------------------------------------------------------

TEST_F(TubeSheet, TheDropDownReadsFromTheTubusDown)
{
    OnTrussPage([](CPropertyPage& page) {
        const auto* const list = FindControl<QComboBox>(&page, 1071);
        const QStringList expected{"Tubus",
                                   Utf8("Acht schräge Trusses"),
                                   Utf8("Sechs schräge Trusses"),
                                   "4 senkrechte Trusses",
                                   "3 senkrechte Trusses",
                                   "2 senkrechte Trusses"};
        QStringList texts;
        for (int i = 0; i < list->count(); ++i) {
            texts << list->itemText(i);
        }
        EXPECT_EQ(expected, texts);
        EXPECT_EQ("4 senkrechte Trusses", list->currentText());
    });
}

TEST_F(TubeSheet, StoresEachFieldOfTheTrussPage)
{
    struct Row {
        int field;
        int button;
        double (COrrevaData::*get)();
        const char* proposal;
    };
    constexpr Row kRows[] = {{1069, 1070, &COrrevaData::GetThicknessBox, "6.2"},
                             {1015, 1062, &COrrevaData::GetHeightBox, "150.0"},
                             {1014, 1061, &COrrevaData::GetThicknessHat, "6.2"},
                             {1016, 1063, &COrrevaData::GetHeightHat, "150.0"}};
    OnTrussPage([&](CPropertyPage& page) {
        for (const Row& row : kRows) {
            EXPECT_EQ(row.proposal, Text(page, row.field));
            Type(page, row.field, "87.5");
            EXPECT_EQ(87.5, (Scratch().*row.get)()) << row.field;
            Type(page, row.field, "");
            EXPECT_EQ(0.0, (Scratch().*row.get)()) << row.field;
            Click(page, row.button);
            EXPECT_EQ(row.proposal, Text(page, row.field)) << row.button;
            EXPECT_NE(0.0, (Scratch().*row.get)()) << row.field;
        }
    });
}

TEST_F(TubeSheet, TheGapFollowsTheHeightsAndMayBeNegative)
{
    OnTrussPage([&](CPropertyPage& page) {
        EXPECT_TRUE(FindControl<QLineEdit>(&page, 1087)->isReadOnly());
        Type(page, 1014, "6"); // each change stores all four texts, and with them their rounding
        const double gap = Text(page, 1087).toDouble();
        Type(page, 1015, "160");
        EXPECT_DOUBLE_EQ(gap - 10, Text(page, 1087).toDouble()) << "the box is 10 mm higher";
        Type(page, 1016, "149");
        EXPECT_DOUBLE_EQ(gap - 9, Text(page, 1087).toDouble());
        Click(page, 1062);
        EXPECT_DOUBLE_EQ(gap + 1, Text(page, 1087).toDouble());
        Type(page, 1016, "5000");
        EXPECT_DOUBLE_EQ(gap - 4850, Text(page, 1087).toDouble());
        EXPECT_TRUE(Text(page, 1087).startsWith('-'));
    });
}

TEST_F(TubeSheet, TheGapFollowsTheFirstPage)
{
    Main().SetTubeType(3);
    InTubeSheet([](CPropertySheetTube& sheet) {
        const double gap = Text(PageOf(sheet, 1), 1087).toDouble();
        Type(PageOf(sheet, 0), 1014, "72.5");
        EXPECT_DOUBLE_EQ(gap + 10, Text(PageOf(sheet, 1), 1087).toDouble());
    });
}

// Help, panel, odd input -----------------------------------------------------------------------------------

TEST_F(TubeSheet, HelpOfTheThreePages)
{
    const auto ask = [](CPropertySheetTube& sheet) {
        for (const int index : {0, 1}) {
            Click(PageOf(sheet, index), 1019);
            Click(PageOf(sheet, index), 1031);
        }
    };
    InTubeSheet(ask);
    Main().SetTubeType(1);
    InTubeSheet(ask);
    ASSERT_EQ(8u, helpPages.size());
    for (std::size_t i = 0; i < helpPages.size(); i += 2) {
        EXPECT_TRUE(helpPages[i].toString().endsWith("/index.html")) << "context 0";
        EXPECT_TRUE(helpPages[i + 1].toString().endsWith("/Reiter_Tubus.html")) << "context 105";
    }
}

TEST_F(TubeSheet, ThePanelStandsAtTheRightOnTheSheetsBackground)
{
    InTubeSheet([](CPropertySheetTube& sheet) {
        auto* const panel = FindControl<CTubePanel>(&sheet, 4096);
        ASSERT_NE(nullptr, panel);
        EXPECT_EQ(285, panel->width());
        const QWidget& place = *sheet.Page(0)->parentWidget(); // where it scrolls on this small screen
        EXPECT_LT(place.mapTo(&sheet, QPoint(place.width(), 0)).x(), panel->mapTo(&sheet, QPoint()).x());
        const QImage image = panel->grab().toImage();
        EXPECT_EQ(sheet.palette().color(QPalette::Window), image.pixelColor(1, 1));
        EXPECT_EQ(QColor(144, 144, 144), image.pixelColor(100, 34)) << "the line on the second row";
    });
}

TEST_F(TubeSheet, ThePanelWritesInTheColourOfTheSheet)
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Window, QColor(32, 32, 32));
    dark.setColor(QPalette::WindowText, QColor(240, 240, 240));
    QApplication::setPalette(dark);
    InTubeSheet([](CPropertySheetTube& sheet) {
        const QImage image = Picture(sheet);
        EXPECT_EQ(QColor(32, 32, 32), image.pixelColor(1, 1));
        int brightest = 0;
        for (int y = 20; y < 34; ++y) {
            for (int x = 2; x < 60; ++x) {
                brightest = std::max(brightest, image.pixelColor(x, y).lightness());
            }
        }
        EXPECT_LT(128, brightest) << "the label of the first row";
    });
    QApplication::setPalette(before);
}

TEST_F(TubeSheet, OddTextsInAnyFieldAreSurvived)
{
    int changes = 0;
    for (const int type : {0, 1}) {
        Main().SetTubeType(type);
        Main().SetModified(0);
        InTubeSheet([&](CPropertySheetTube& sheet) {
            for (const int index : {0, 1}) {
                const QWidget& page = PageOf(sheet, index);
                for (QLineEdit* const edit : page.findChildren<QLineEdit*>()) {
                    const QString before = edit->text();
                    const int control = edit->property(kControlId).toInt();
                    for (const QString& text : edit->isReadOnly() ? QStringList() : OddTexts()) {
                        Paste(page, control, text);
                        EXPECT_FALSE(app->Frame().grab().isNull());
                        EXPECT_FALSE(sheet.grab().isNull());
                        ++changes;
                    }
                    Paste(page, control, before);
                }
            }
        });
    }
    EXPECT_EQ(15 * (5 + 1 + 5 + 4), changes);
}

} // namespace

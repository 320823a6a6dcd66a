#include "pages/sheet/SheetHelpers.h"

#include "document/Commands.h"
#include "model/optics/CouderMask.h"
#include "pages/optics/PropertySheetCouder.h"
#include "views/MirrorPanel.h"
#include "views/ResultList.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QRadioButton>
#include <QScrollBar>

namespace {

constexpr int kMasks = 4; // the index of the zone calculator

template <class Base>
class FoucaultSheetOf : public OnSavedTelescope<Base> {
protected:
    FoucaultSheetOf()
    {
        g_pCurrentMask.reset();
        this->Main().SetMirrorDiameter(200);
        this->Main().SetFocalLength(1200);
    }
    ~FoucaultSheetOf() override { g_pCurrentMask.reset(); }

    template <class Act>
    void InFoucaultSheet(Act act)
    {
        this->template InSheet<CPropertySheetCouder>(command_id::kFoucaultTest, act);
    }
    template <class Act>
    void OnMasks(Act act)
    {
        InFoucaultSheet([act](CPropertySheetCouder& sheet) { act(PageOf(sheet, kMasks)); });
    }
};

class FoucaultSheet : public FoucaultSheetOf<AppFixture> {};
class FoucaultSheetGerman : public FoucaultSheetOf<GermanAppFixture> {};

const CResultList& Zones(const QWidget& page) { return *FindControl<CResultList>(&page, 1030); }
const CResultList& Mask(const QWidget& page) { return *FindControl<CResultList>(&page, 1031); }

QStringList Titles(const QTreeView& list)
{
    QStringList titles;
    for (int i = 0; i < list.model()->columnCount(); ++i) {
        titles << list.model()->headerData(i, Qt::Horizontal).toString();
    }
    return titles;
}

QStringList Row(const CResultList& list, int row)
{
    QStringList cells;
    for (int i = 0; i < list.header()->count(); ++i) {
        cells << list.Cell(row, i);
    }
    return cells;
}

/// What both languages show: the sheet exists in German only, but for its caption.
void ExpectGermanTexts(CPropertySheetCouder& sheet)
{
    const char* const titles[] = {"Setup", "Messreihen", "Messwerte", "WaveFront Error", "Masken"};
    ASSERT_EQ(5, sheet.PageCount());
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(titles[i], TabTitle(sheet, i));
    }
    const QWidget& setup = PageOf(sheet, 0);
    EXPECT_EQ("Foucault Test Setup", setup.findChild<QGroupBox*>()->title());

    const struct {
        int control;
        const char* text;
    } labels[] = {
        {1091, "Couder Maske / Everest Pinstick auswählen"},
        {1093, "Aktuelle Messreihe auswählen"},
        {1074, "Gewünschte Anzahl Zonen"},
        {1073, "Optimale Anzahl (k=37 nm)"},
        {1075, "Fläche im Zentrum, die nicht einbezogen werden soll (Prozent der Gesammtfläche)"},
        {1076, "Breite der äußeren Randzone, die nicht einbezogen werden soll (mm)"},
        {1030, "Berechnete Zonen"},
    };
    const QWidget& masks = PageOf(sheet, kMasks);
    for (const auto& row : labels) {
        EXPECT_EQ(Utf8(row.text), LabelOf(row.control > 1090 ? setup : masks, row.control)) << row.control;
    }
    const struct {
        int control;
        const char* text;
    } buttons[] = {
        {1092, "Neue Maske oder Pistick hinzufügen"},
        {1094, "Neue Messreihe hinzufügen"},
        {1096, "Neuen Messwert hinzufügen"},
        {1004, "Couder Maske"},
        {1005, "Everest Pinstick"},
        {1077, "Carlin (empfohlen)"},
        {1078, "Couder"},
        {1079, "Texereau"},
        {1080, "Movung Source"},
        {1081, "Fixed Source"},
        {1088, "Daten aus dem Zonenrechner übernehmen"},
        {1082, "Markierte Zone bearbeiten"},
        {1040, "Maske/Pinstick speichern"},
        {1086, "Maske/Pinstick auswählen"},
        {1090, "Zonenbezeichnungen beginnend bei 0"},
    };
    for (const auto& row : buttons) {
        auto* const button = FindControl<QAbstractButton>(&sheet, row.control);
        ASSERT_NE(nullptr, button) << row.control;
        EXPECT_EQ(Utf8(row.text), button->text());
        EXPECT_EQ(row.control != 1090, button->isEnabled());
    }
    QStringList groups;
    for (const QGroupBox* const group : masks.findChildren<QGroupBox*>()) {
        groups << group->title();
    }
    EXPECT_EQ(QStringList({"Schablone", "Berechnung Zonenzentrum", "Lichtquelle",
                           "Aktuelle Coucdermasken und Everest Pinsticks"}),
              groups);
}

TEST_F(FoucaultSheet, Texts)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        EXPECT_EQ("Couder Properties", sheet.windowTitle());
        ExpectGermanTexts(sheet);
    });
}

TEST_F(FoucaultSheetGerman, Texts)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        EXPECT_EQ("Eigenschaften Couder", sheet.windowTitle());
        ExpectGermanTexts(sheet);
    });
}

TEST_F(FoucaultSheet, OpensOnTheOptimumCutToAWholeNumber)
{
    OnMasks([](const QWidget& page) {
        EXPECT_EQ("3.3", Text(page, 1073)) << "0.95 * 40000 / (sqrt(2400 ^ 3 * 3.7e-05) * 16) = 3.32";
        EXPECT_TRUE(FindControl<QLineEdit>(&page, 1073)->isReadOnly());
        EXPECT_EQ("3", Text(page, 1074));
        EXPECT_EQ("5", Text(page, 1075));
        EXPECT_EQ("0", Text(page, 1076));
        for (const int first : {1004, 1077, 1080}) {
            EXPECT_TRUE(FindControl<QRadioButton>(&page, first)->isChecked()) << first;
        }
        EXPECT_EQ(QStringList({"Zone", "Inner Radius", "Outer Radius", "Corrected Center Radius (Carlin)",
                               "Schnittweitendifferenz"}),
                  Titles(Zones(page)));
        ASSERT_EQ(3, Zones(page).RowCount());
        EXPECT_EQ(QStringList({"1", "22.3607 mm", "60.5530 mm", "43.6005 mm", "0.0000 mm"}),
                  Row(Zones(page), 0));
        EXPECT_EQ(QStringList({"3", "82.6640 mm", "100.0000 mm", "91.5374 mm", "1.3496 mm"}),
                  Row(Zones(page), 2));
        const int widths[] = {40, 80, 80, 130, 120};
        for (int i = 0; i < 5; ++i) {
            EXPECT_LE(widths[i], Zones(page).columnWidth(i));
        }
        EXPECT_TRUE(Titles(Mask(page)).isEmpty());
        EXPECT_EQ(0, Mask(page).RowCount());
    });
}

TEST_F(FoucaultSheet, ReadsTheMainRecordEvenIfAnotherIsActive)
{
    Document().active_record = &Document().scratch_record;
    Document().scratch_record.Reset();
    OnMasks([](const QWidget& page) { EXPECT_EQ("3.3", Text(page, 1073)); });
    Document().active_record = &Main();
}

TEST_F(FoucaultSheet, AWantedNumberThatIsNotWholeDividesByItself)
{
    OnMasks([](const QWidget& page) {
        Type(page, 1074, "3.7");
        ASSERT_EQ(3, Zones(page).RowCount());
        EXPECT_EQ(QStringList({"3", "75.0675 mm", "90.5688 mm", "82.9993 mm", "1.0920 mm"}),
                  Row(Zones(page), 2));
        Type(page, 1074, "3,7");
        EXPECT_EQ("100.0000 mm", Zones(page).Cell(2, 2)) << "a comma ends a number here";
        Type(page, 1074, "");
        EXPECT_EQ(0, Zones(page).RowCount());
        EXPECT_EQ(5, Titles(Zones(page)).size());
    });
}

TEST_F(FoucaultSheet, CentreAndEdgeRebuildRowsAndOptimumAtEveryKeystroke)
{
    OnMasks([](const QWidget& page) {
        Type(page, 1076, "10");
        EXPECT_EQ("2.7", Text(page, 1073)) << "with a mirror of 180 mm";
        EXPECT_EQ("90.0000 mm", Zones(page).Cell(2, 2));
        EXPECT_EQ("3", Text(page, 1074)) << "the wanted number stays";
        Click(page, 1087);
        EXPECT_EQ("0", Text(page, 1076));
        EXPECT_EQ("100.0000 mm", Zones(page).Cell(2, 2));
        Type(page, 1075, "50");
        EXPECT_EQ("1.7", Text(page, 1073));
        Click(page, 1084);
        EXPECT_EQ("1", Text(page, 1074));
        EXPECT_EQ(1, Zones(page).RowCount());
        Click(page, 1083);
        EXPECT_EQ("5", Text(page, 1075));
        EXPECT_EQ("3.3", Text(page, 1073));
        Click(page, 1084);
        EXPECT_EQ("3", Text(page, 1074));
        EXPECT_EQ(3, Zones(page).RowCount());
    });
}

TEST_F(FoucaultSheet, RadioButtonsRebuildColumnsAndRows)
{
    OnMasks([](const QWidget& page) {
        Click(page, 1078);
        EXPECT_EQ("Center Radius (Couder)", Titles(Zones(page)).at(3));
        EXPECT_EQ("45.6435 mm", Zones(page).Cell(0, 3));
        Click(page, 1079);
        EXPECT_EQ("Center Radius (Texereau)", Titles(Zones(page)).at(3));
        EXPECT_EQ("41.4568 mm", Zones(page).Cell(0, 3));
        Click(page, 1077);
        Click(page, 1081);
        EXPECT_EQ("1.3700 mm", Zones(page).Cell(1, 4)) << "a fixed source doubles every shift";
        EXPECT_EQ("2.6992 mm", Zones(page).Cell(2, 4));
        Click(page, 1005);
        EXPECT_EQ(QStringList({"Zone", "Corrected Center Radius (Carlin)", "Schnittweitendifferenz"}),
                  Titles(Zones(page)));
        EXPECT_EQ(QStringList({"2", "72.0339 mm", "1.3700 mm"}), Row(Zones(page), 1));
        Click(page, 1004);
        Click(page, 1080);
        EXPECT_EQ("0.6850 mm", Zones(page).Cell(1, 4));
    });
}

TEST_F(FoucaultSheet, AThousandMillionZonesOpenAndScroll)
{
    OnMasks([](QWidget& page) {
        Type(page, 1074, "1000000000");
        EXPECT_FALSE(page.grab().isNull());
        EXPECT_EQ(1000000000, Zones(page).RowCount());
        EXPECT_EQ("1000000000", Zones(page).Cell(999999999, 0));
        EXPECT_EQ("100.0000 mm", Zones(page).Cell(999999999, 2));

        QScrollBar* const bar = Zones(page).verticalScrollBar();
        const int before = bar->maximum();
        bar->setValue(before);
        QCoreApplication::processEvents();
        EXPECT_LT(before, bar->maximum()) << "more rows come at the end";
        Click(page, 1081);
        EXPECT_EQ(1000000000, Zones(page).RowCount());
    });
}

// The mask -------------------------------------------------------------------------------------------------

TEST_F(FoucaultSheet, TakingOverMakesTheMaskOfTheFullDiameter)
{
    OnMasks([](const QWidget& page) {
        Type(page, 1076, "10");
        Click(page, 1078);
        Click(page, 1081);
        Click(page, 1088);
        ASSERT_NE(nullptr, g_pCurrentMask);
        EXPECT_EQ(10.0, g_pCurrentMask->edge_width);
        EXPECT_EQ(3, Mask(page).RowCount());
        EXPECT_EQ("Corrected Center Radius (Carlin)", Titles(Mask(page)).at(3));
        EXPECT_EQ(QStringList({"2", "60.5530 mm", "82.6640 mm", "72.0339 mm", "0.6850 mm"}),
                  Row(Mask(page), 1));
        Type(page, 1074, "5");
        EXPECT_EQ(3, Mask(page).RowCount()) << "the mask does not follow the calculator";
        Click(page, 1005);
        EXPECT_EQ(5, Titles(Mask(page)).size());
    });
}

TEST_F(FoucaultSheet, ASecondPressReplacesTheMaskAndTheMaskOutlivesTheSheet)
{
    OnMasks([](const QWidget& page) {
        Click(page, 1088);
        Click(page, 1005);
        Type(page, 1074, "5.9");
        Click(page, 1088);
        EXPECT_EQ(5, g_pCurrentMask->zone_count) << "a whole number";
        EXPECT_EQ(5, Mask(page).RowCount());
        EXPECT_EQ(3, Titles(Mask(page)).size());
    });
    OnMasks([](const QWidget& page) {
        EXPECT_EQ(3, Zones(page).RowCount()) << "the calculator starts anew";
        EXPECT_EQ(5, Mask(page).RowCount());
        EXPECT_EQ(3, Titles(Mask(page)).size());
    });
}

TEST_F(FoucaultSheet, OneZoneTooManyAsksAndWritesNothingOutside)
{
    OnMasks([this](const QWidget& page) {
        Type(page, 1074, "64");
        Click(page, 1088);
        EXPECT_EQ(64, Mask(page).RowCount());
        for (const char* const count : {"65", "1000000000"}) {
            Type(page, 1074, count);
            InNextDialog<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ("Assert", box.windowTitle());
                EXPECT_TRUE(box.text().contains("i<MAX_MASK_ZONES")) << box.text().toStdString();
                QTest::mouseClick(box.button(QMessageBox::Ignore), Qt::LeftButton);
            });
            Click(page, 1088);
            EXPECT_EQ(64, Mask(page).RowCount());
            EXPECT_EQ(HUGE_VAL, g_pCurrentMask->GetInnerRadius(64));
        }
    });
}

TEST_F(FoucaultSheet, UnfinishedButtonsSaySo)
{
    OnMasks([this](const QWidget& page) {
        for (const int control : {1082, 1040, 1086}) {
            InNextDialog<QMessageBox>([](QMessageBox& box) {
                EXPECT_EQ("**** Leider noch nicht fertig. ****", box.text());
                box.accept();
            });
            Click(page, control);
        }
    });
    EXPECT_EQ(nullptr, g_pCurrentMask);
}

// Setup, panel, record -------------------------------------------------------------------------------------

TEST_F(FoucaultSheet, SetupLeadsToTheMasks)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QWidget& setup = PageOf(sheet, 0);
        for (const int list : {1091, 1093}) { // neither a mask nor a series yet
            EXPECT_EQ(0, FindControl<QComboBox>(&setup, list)->count());
        }
        Click(setup, 1092);
        EXPECT_EQ(kMasks, sheet.ActiveIndex());
    });
}

TEST_F(FoucaultSheet, TheSheetHoldsThePanelAndStandsInTheMiddleOfTheScreen)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        auto* const panel = FindControl<CMirrorPanel>(&sheet, 4096);
        ASSERT_NE(nullptr, panel);
        EXPECT_EQ(285, panel->width());
        const QImage image = panel->grab().toImage();
        EXPECT_EQ(sheet.palette().color(QPalette::Window), image.pixelColor(1, 1));
        // Under two rows of 14 from 20 on the picture starts: its lower cap is black.
        EXPECT_EQ(QColor(Qt::black), image.pixelColor(127, 48 + 240));
        const QPoint off = sheet.frameGeometry().center() - sheet.screen()->availableGeometry().center();
        EXPECT_GE(2, off.manhattanLength());
    });
}

TEST_F(FoucaultSheet, TheSheetStaysOnTheScreenWhenItsLargestPageMakesItGrow)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        sheet.resize(sheet.minimumSizeHint()); // as a user may leave it
        const QRect opened = sheet.frameGeometry();
        PageOf(sheet, kMasks);
        QCoreApplication::processEvents();
        const QRect grown = sheet.frameGeometry();
        const QRect room = sheet.screen()->availableGeometry();
        EXPECT_LT(opened.height(), grown.height());
        EXPECT_LE(room.top(), grown.top());
        EXPECT_GE(room.bottom(), grown.bottom()) << "the buttons can be reached";
        EXPECT_LE(room.left(), grown.left());
        EXPECT_GE(room.right(), grown.right()) << "a page that is wider than the screen scrolls";
    });
}

TEST_F(FoucaultSheet, OkWritesNothingToTheRecord)
{
    Main().SetModified(0);
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        Type(PageOf(sheet, kMasks), 1074, "8");
        sheet.accept();
    });
    EXPECT_EQ(0, Main().IsModified());
    EXPECT_EQ(200.0, Main().GetMirrorDiameter());
}

TEST_F(FoucaultSheet, OddTextsAndMirrorsAreSurvived)
{
    for (const double value : {200.0, 0.0, -1.0, 1e300, 1e-300}) {
        Main().SetMirrorDiameter(value);
        Main().SetFocalLength(value);
        OnMasks([](QWidget& page) {
            for (const int control : {1074, 1075, 1076}) {
                for (const QString& text : OddTexts()) {
                    Paste(page, control, text);
                    EXPECT_FALSE(page.grab().isNull());
                    if (control == 1074 && text.size() < 3) {
                        Click(page, 1088);
                    }
                }
                Paste(page, control, "4");
            }
            EXPECT_EQ(4, Zones(page).RowCount());
        });
    }
}

} // namespace

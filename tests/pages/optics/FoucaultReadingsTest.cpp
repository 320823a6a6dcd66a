// The pages of series, readings and wavefront of the sheet of the Foucault test.

#include "pages/sheet/SheetHelpers.h"

#include "document/Commands.h"
#include "model/optics/CouderMask.h"
#include "pages/optics/PropertySheetCouder.h"
#include "pages/optics/ReadingsView.h"
#include "views/WavefrontWidget.h"

#include <QComboBox>
#include <QFileDialog>
#include <QRadioButton>
#include <QTableWidget>

namespace {

constexpr int kSetup = 0;
constexpr int kSeries = 1;
constexpr int kReadings = 2;
constexpr int kWavefront = 3;

template <class Base>
class FoucaultPagesOf : public OnSavedTelescope<Base> {
protected:
    FoucaultPagesOf()
    {
        g_pCurrentMask.reset();
        this->Main().SetMirrorDiameter(200);
        this->Main().SetFocalLength(1200);
        this->Main().SetModified(0);
    }
    ~FoucaultPagesOf() override
    {
        g_pCurrentMask.reset();
        this->Main().SetModified(0);
    }

    template <class Act>
    void InFoucaultSheet(Act act)
    {
        this->template InSheet<CPropertySheetCouder>(command_id::kFoucaultTest, act);
    }

    /// A sphere read at three zones: 452 nm off a paraboloid.
    void GiveSphere(const char* name = "A")
    {
        ReadingBook book = this->Document().readings.Book();
        ReadingSeries& series = book.series.emplace_back();
        series.name = name;
        series.zones = {{"30", {"0"}}, {"60", {"0"}}, {"90", {"0"}}};
        this->Document().StoreReadings(book);
        this->Main().SetModified(0);
    }

    const ReadingBook& Kept() { return this->Document().readings.Book(); }
};

class FoucaultPages : public FoucaultPagesOf<AppFixture> {};
class FoucaultPagesGerman : public FoucaultPagesOf<GermanAppFixture> {};

QTableWidget& SeriesTable(CPropertySheet& sheet)
{
    return *FindControl<QTableWidget>(&PageOf(sheet, kSeries), 1101);
}
CReadingsView& Readings(CPropertySheet& sheet)
{
    return *FindControl<CReadingsView>(&PageOf(sheet, kReadings), 1113);
}
QString LabelText(const QWidget& page, int control) { return FindControl<QLabel>(&page, control)->text(); }
QString Cell(const QAbstractItemView& view, int row, int column)
{
    return view.model()->index(row, column).data().toString();
}

void StandOn(QAbstractItemView& view, int row, int column)
{
    view.setCurrentIndex(view.model()->index(row, column));
}

/// The editor that is open in a table, null if there is none; those that have closed are gone then.
QLineEdit* EditorOf(const QAbstractItemView& view)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return view.viewport()->findChild<QLineEdit*>();
}

/// Types into the cell that the table stands on, and ends with a key.
void TypeCell(CReadingsView& view, const QString& text, int key)
{
    view.setFocus();
    for (const QChar c : text) {
        QWidget* const editor = EditorOf(view);
        QTest::keyClicks(editor != nullptr ? editor : static_cast<QWidget*>(&view), QString(c));
    }
    QTest::keyClick(EditorOf(view), static_cast<Qt::Key>(key));
    QCoreApplication::processEvents();
}

// Setup ------------------------------------------------------------------------------------------------

TEST_F(FoucaultPages, SetupListsMasksAndSeriesAndItsButtonsLeadToThePages)
{
    ZoneFields fields;
    fields.wanted_zones = "4";
    TakeOverZones(fields, 200, 1200);
    GiveSphere("A");
    GiveSphere("B");
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QWidget& setup = PageOf(sheet, kSetup);
        EXPECT_EQ("Couder mask, 4 zones", FindControl<QComboBox>(&setup, 1091)->currentText());
        auto* const series = FindControl<QComboBox>(&setup, 1093);
        ASSERT_EQ(2, series->count());
        EXPECT_EQ("A", series->currentText());
        QTest::keyClick(series, Qt::Key_Down);
        EXPECT_EQ(1, SeriesTable(sheet).currentRow());
        PageOf(sheet, kSetup);
        Click(setup, 1094);
        EXPECT_EQ(kSeries, sheet.ActiveIndex());
        EXPECT_EQ(3, SeriesTable(sheet).rowCount());
        EXPECT_EQ("Couder mask, 4 zones", Cell(SeriesTable(sheet), 2, 3));
        PageOf(sheet, kSetup);
        Click(setup, 1096);
        EXPECT_EQ(kReadings, sheet.ActiveIndex());
        EXPECT_EQ(Readings(sheet).model()->index(0, 1), Readings(sheet).currentIndex());
    });
}

TEST_F(FoucaultPages, ANewReadingWithoutASeriesMakesOneByTheZoneCalculator)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        Type(PageOf(sheet, 4), 1074, "5");
        Click(PageOf(sheet, kSetup), 1096);
        EXPECT_EQ(kReadings, sheet.ActiveIndex());
        EXPECT_EQ(6, Readings(sheet).model()->rowCount()); // and one to be filled
        EXPECT_EQ("Series 1", FindControl<QComboBox>(&PageOf(sheet, kReadings), 1111)->currentText());
    });
}

// Series -----------------------------------------------------------------------------------------------

TEST_F(FoucaultPages, SeriesAreAddedCopiedRenamedAndDeleted)
{
    InFoucaultSheet([this](CPropertySheetCouder& sheet) {
        const QWidget& page = PageOf(sheet, kSeries);
        EXPECT_FALSE(FindControl<QPushButton>(&page, 1105)->isEnabled());
        Click(page, 1102);
        QTableWidget& table = SeriesTable(sheet);
        ASSERT_EQ(1, table.rowCount());
        EXPECT_EQ("Series 1", Cell(table, 0, 0));
        EXPECT_EQ("moving", Cell(table, 0, 2));
        EXPECT_EQ("0", Cell(table, 0, 4));
        EXPECT_TRUE(SheetButton(sheet, "apply").isEnabled());
        Click(page, 1103);
        ASSERT_EQ(2, table.rowCount());
        EXPECT_EQ("Series 1 (2)", Cell(table, 1, 0));
        Click(page, 1104);
        auto* const editor = EditorOf(table);
        ASSERT_NE(nullptr, editor);
        editor->setText("second polish");
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor ends after the key
        EXPECT_EQ("second polish", Cell(table, 1, 0));
        table.item(1, 0)->setText("Series 1");
        EXPECT_EQ("second polish", Cell(table, 1, 0));
        EXPECT_EQ("A series needs a name of its own.", LabelText(page, 1110));
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ("Delete the series second polish with its readings?", box.text());
            box.button(QMessageBox::No)->click();
        });
        Click(page, 1105);
        EXPECT_EQ(2, table.rowCount());
        InNextDialog<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
        Click(page, 1105);
        EXPECT_EQ(1, table.rowCount());
        EXPECT_EQ(0, table.currentRow());
    });
    EXPECT_TRUE(Kept().series.empty()); // the sheet ended with Cancel
    EXPECT_EQ(0, Main().modified);
}

TEST_F(FoucaultPages, AFileOfReadingsIsImportedOrItsFaultIsTold)
{
    folder.Write("good.csv", "30,0.1\n60,0.2\n90,0.3\n");
    folder.Write("bad.csv", "30,0.1\n60,x\n90,0.3\n");
    InFoucaultSheet([this](CPropertySheetCouder& sheet) {
        const QWidget& page = PageOf(sheet, kSeries);
        const auto choose = [this](const char* name) {
            InNextDialog<QFileDialog>([path = QString::fromStdString(folder / name)](QFileDialog& dialog) {
                dialog.selectFile(path);
                dialog.setAcceptMode(dialog.acceptMode());
                static_cast<QDialog&>(dialog).done(QDialog::Accepted);
            });
        };
        choose("good.csv");
        Click(page, 1106);
        ASSERT_EQ(1, SeriesTable(sheet).rowCount());
        EXPECT_EQ("good", Cell(SeriesTable(sheet), 0, 0));
        EXPECT_EQ("3", Cell(SeriesTable(sheet), 0, 4));
        choose("bad.csv");
        Click(page, 1106);
        EXPECT_EQ(1, SeriesTable(sheet).rowCount());
        EXPECT_TRUE(LabelText(page, 1110).endsWith("bad.csv: line 2: a reading is no number"))
            << LabelText(page, 1110).toStdString();
        choose("out.csv");
        Click(page, 1107);
        const ReadingsParse parse = ParseReadings(folder.Read("out.csv"), 100);
        EXPECT_FALSE(parse.fault);
        EXPECT_EQ(3u, parse.zones.size());
    });
}

// Readings ---------------------------------------------------------------------------------------------

TEST_F(FoucaultPages, EnterWalksDownARunAndOnToTheNextAndTabAlongAZone)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        CReadingsView& view = Readings(sheet);
        StandOn(view, 0, 1);
        TypeCell(view, "0,5", Qt::Key_Return);
        EXPECT_EQ("0.5", Cell(view, 0, 1));
        EXPECT_EQ(view.model()->index(1, 1), view.currentIndex());
        TypeCell(view, "1.5", Qt::Key_Tab);
        EXPECT_EQ("1.5", Cell(view, 1, 1));
        EXPECT_EQ(view.model()->index(1, 2), view.currentIndex());
        EXPECT_TRUE(sheet.isVisible());
        if (QLineEdit* const next = EditorOf(view)) { // of the cell that TAB led to
            QTest::keyClick(next, Qt::Key_Escape);
            QCoreApplication::processEvents();
        }
        StandOn(view, 3, 1); // the zone that waits to be filled is the last row
        view.setFocus();
        QTest::keyClick(&view, Qt::Key_Return);
        EXPECT_EQ(view.model()->index(0, 2), view.currentIndex());
        TypeCell(view, "0.7", Qt::Key_Return);
        EXPECT_EQ("0.600", Cell(view, 0, 4)); // mean and spread, behind a new run
        EXPECT_EQ("0.141", Cell(view, 0, 5));
        EXPECT_EQ(6, view.model()->columnCount());
    });
}

TEST_F(FoucaultPages, TabStepsOverWhatNobodyTypes)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        CReadingsView& view = Readings(sheet);
        const auto press = [&](int key) {
            view.setFocus();
            QTest::keyClick(&view, static_cast<Qt::Key>(key));
            if (QLineEdit* const editor = EditorOf(view)) {
                QTest::keyClick(editor, Qt::Key_Escape);
            }
            QCoreApplication::processEvents();
        };
        ASSERT_EQ(5, view.model()->columnCount()); // radius, a run, one to be filled, mean and spread
        StandOn(view, 0, 2);
        press(Qt::Key_Tab);
        EXPECT_EQ(view.model()->index(1, 0), view.currentIndex());
        press(Qt::Key_Backtab);
        EXPECT_EQ(view.model()->index(0, 2), view.currentIndex());
    });
}

TEST_F(FoucaultPages, EveryPageShowsTheSeriesThatIsChosen)
{
    GiveSphere("A");
    GiveSphere("B");
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        auto* const series = FindControl<QComboBox>(&PageOf(sheet, kSetup), 1093);
        QTest::keyClick(series, Qt::Key_Down);
        EXPECT_EQ("B", FindControl<QComboBox>(&PageOf(sheet, kReadings), 1111)->currentText());
    });
}

TEST_F(FoucaultPages, AWrongCellIsMarkedAndToldAndKeepsItsText)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        CReadingsView& view = Readings(sheet);
        const QWidget& page = PageOf(sheet, kReadings);
        EXPECT_TRUE(LabelText(page, 1114).startsWith("The wavefront exceeds lambda/4 (PV 0.82 lambda)"));
        StandOn(view, 1, 1);
        TypeCell(view, "1x", Qt::Key_Return);
        EXPECT_EQ("1x", Cell(view, 1, 1));
        EXPECT_EQ("zone 2, reading 1: this is no number", LabelText(page, 1114));
        const QModelIndex wrong = view.model()->index(1, 1);
        EXPECT_TRUE(wrong.data(Qt::BackgroundRole).isValid());
        EXPECT_EQ("this is no number", wrong.data(Qt::ToolTipRole).toString());
        EXPECT_FALSE(view.model()->index(0, 1).data(Qt::BackgroundRole).isValid());
        StandOn(view, 2, 0);
        TypeCell(view, "101", Qt::Key_Return);
        EXPECT_TRUE(view.model()->index(2, 0).data(Qt::BackgroundRole).isValid());
    });
}

TEST_F(FoucaultPages, TheTableHasAHeadingForEachRunAndForWhatComesOfThem)
{
    ReadingBook book;
    ReadingSeries& series = book.series.emplace_back();
    series.zones = {{"30", {"0", "0.1"}}, {"90", {"3", "3.3"}}};
    Document().StoreReadings(book);
    Main().SetModified(0);
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QAbstractItemModel& table = *Readings(sheet).model();
        QStringList headings;
        for (int i = 0; i < table.columnCount(); ++i) {
            headings << table.headerData(i, Qt::Horizontal).toString();
        }
        EXPECT_EQ("Radius (mm)", headings.front());
        EXPECT_EQ("Reading 1", headings[1]);
        EXPECT_EQ("Mean", headings[headings.size() - 2]);
        EXPECT_EQ("Spread", headings.back());
        EXPECT_EQ("Reading " + QString::number(headings.size() - 3), headings[headings.size() - 3]);
        EXPECT_EQ(1, headings.count("Mean"));
    });
}

TEST_F(FoucaultPages, ABlockIsPastedAndCopied)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        CReadingsView& view = Readings(sheet);
        StandOn(view, 0, 1);
        view.setFocus();
        QGuiApplication::clipboard()->setText("0,1\t0,2\n0,3\t0,4\n");
        QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("0.2", Cell(view, 0, 2));
        EXPECT_EQ("0.4", Cell(view, 1, 2));
        EXPECT_EQ("0", Cell(view, 2, 1));
        QString tall;
        for (int i = 0; i < 70; ++i) {
            tall += "1\n";
        }
        QGuiApplication::clipboard()->setText(tall);
        QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("0.1", Cell(view, 0, 1));
        EXPECT_TRUE(LabelText(PageOf(sheet, kReadings), 1114).startsWith("The block does not fit"));
        view.selectionModel()->select({view.model()->index(0, 1), view.model()->index(1, 2)},
                                      QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ("0.1\t0.2\n0.3\t0.4\n", QGuiApplication::clipboard()->text());
        QTest::keyClick(&view, Qt::Key_Delete);
        EXPECT_EQ("", Cell(view, 0, 1));
        StandOn(view, 1, 0);
        Click(PageOf(sheet, kReadings), 1112);
        EXPECT_EQ("90", Cell(view, 1, 0));
    });
}

TEST_F(FoucaultPages, AZoneIsTakenFromASeriesAlone)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const auto* const remove = FindControl<QPushButton>(&PageOf(sheet, kReadings), 1112);
        EXPECT_FALSE(remove->isEnabled());
        Click(PageOf(sheet, kSeries), 1102);
        PageOf(sheet, kReadings);
        EXPECT_TRUE(remove->isEnabled());
    });
}

// Wavefront --------------------------------------------------------------------------------------------

TEST_F(FoucaultPages, TheWavefrontFollowsReadingsConicWavelengthAndSource)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QWidget& page = PageOf(sheet, kWavefront);
        auto* const results = FindControl<QTableWidget>(&page, 1124);
        EXPECT_EQ("452.1 nm (0.822 lambda)", Cell(*results, 0, 1));
        EXPECT_TRUE(LabelText(page, 1128).startsWith("The wavefront exceeds lambda/4"));
        const Chart profile = FindControl<CWavefrontWidget>(&page, 1125)->Shown();
        ASSERT_EQ(1u, profile.lines.size());
        EXPECT_EQ(101u, profile.lines[0].points.size());
        EXPECT_EQ(3u, FindControl<CWavefrontWidget>(&page, 1127)->Shown().dots.size());

        Type(page, 1122, "1100");
        EXPECT_EQ("452.1 nm (0.411 lambda)", Cell(*results, 0, 1));
        Type(page, 1121, "-0,5");
        EXPECT_EQ("226.1 nm (0.206 lambda)", Cell(*results, 0, 1)); // half of it
        Type(page, 1121, "x");
        EXPECT_FALSE(FindControl<QLineEdit>(&page, 1121)->styleSheet().isEmpty());
        EXPECT_EQ("226.1 nm (0.206 lambda)", Cell(*results, 0, 1));
        Type(page, 1122, "0");
        EXPECT_FALSE(FindControl<QLineEdit>(&page, 1122)->styleSheet().isEmpty());
        Type(page, 1121, "0");
        EXPECT_TRUE(LabelText(page, 1128).startsWith("The wavefront keeps to lambda/4 (PV 0.00 lambda)"));

        StandOn(Readings(sheet), 2, 1);
        TypeCell(Readings(sheet), "3.375", Qt::Key_Return);
        EXPECT_NE("0.0 nm (0.000 lambda)", Cell(*results, 0, 1));
        const QString moving = Cell(*results, 5, 1);
        auto* const source = FindControl<QComboBox>(&PageOf(sheet, kWavefront), 1123);
        EXPECT_EQ(0, source->currentIndex());
        QTest::keyClick(source, Qt::Key_Down);
        EXPECT_NE(moving, Cell(*results, 5, 1));
        EXPECT_EQ("fixed", Cell(SeriesTable(sheet), 0, 2));
    });
}

TEST_F(FoucaultPages, ConicAndWavelengthOfTheReadingsAreShown)
{
    GiveSphere();
    ReadingBook book = Kept();
    book.conic = -0.5;
    book.wavelength = 600;
    Document().StoreReadings(book);
    Main().SetModified(0);
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QWidget& page = PageOf(sheet, kWavefront);
        EXPECT_EQ(-0.5, FindControl<QLineEdit>(&page, 1121)->text().toDouble());
        EXPECT_EQ(600, FindControl<QLineEdit>(&page, 1122)->text().toDouble());
    });
}

TEST_F(FoucaultPages, CheckedSeriesStandSideBySideOrAreAveraged)
{
    GiveSphere("A");
    GiveSphere("B");
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        SeriesTable(sheet).item(1, 0)->setCheckState(Qt::Checked);
        auto* const results = FindControl<QTableWidget>(&PageOf(sheet, kWavefront), 1124);
        ASSERT_EQ(3, results->columnCount());
        EXPECT_EQ("B", results->horizontalHeaderItem(2)->text());
        FindControl<QRadioButton>(&PageOf(sheet, kSeries), 1109)->click();
        ASSERT_EQ(2, results->columnCount());
        EXPECT_EQ("Mean of 2 series", results->horizontalHeaderItem(1)->text());
        EXPECT_EQ("452.1 nm (0.822 lambda)", Cell(*results, 0, 1));
    });
}

// Keeping ----------------------------------------------------------------------------------------------

TEST_F(FoucaultPages, OkHandsTheReadingsToTheDesignAsItsChange)
{
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        Click(PageOf(sheet, kSeries), 1102);
        SheetButton(sheet, "ok").click();
    });
    EXPECT_EQ(1u, Kept().series.size());
    EXPECT_EQ(1, Main().modified);
    Main().SetModified(0);
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        EXPECT_EQ(1, SeriesTable(sheet).rowCount());
        SheetButton(sheet, "ok").click();
    });
    EXPECT_EQ(0, Main().modified); // nothing was changed
}

TEST_F(FoucaultPagesGerman, TheNewPagesSpeakGerman)
{
    GiveSphere();
    InFoucaultSheet([](CPropertySheetCouder& sheet) {
        const QWidget& series = PageOf(sheet, kSeries);
        EXPECT_EQ(Utf8("Hinzufügen"), FindControl<QPushButton>(&series, 1102)->text());
        EXPECT_EQ("Angekreuzte Messreihen mitteln", FindControl<QRadioButton>(&series, 1109)->text());
        EXPECT_EQ("Couder Maske, 3 Zonen", Cell(SeriesTable(sheet), 0, 3));
        EXPECT_EQ("Streuung", Readings(sheet).model()->headerData(4, Qt::Horizontal).toString());
        const QWidget& wavefront = PageOf(sheet, kWavefront);
        EXPECT_EQ(Utf8("Wellenlänge (nm)"), LabelOf(wavefront, 1122));
        EXPECT_TRUE(LabelText(wavefront, 1128).startsWith(Utf8("Die Wellenfront überschreitet lambda/4")));
        Click(series, 1102);
        EXPECT_EQ("Messreihe 1", Cell(SeriesTable(sheet), 1, 0));
    });
}

} // namespace

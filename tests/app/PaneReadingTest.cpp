#include "app/AppFixture.h"

#include "painting/QtText.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/PaneReading.h"

#include <QAccessible>
#include <QMenu>
#include <QToolBar>

#include <cmath>

namespace {

/// Somebody listens, as far as the program can know on a platform without screen readers.
struct Listener {
    Listener() { QAccessible::setActive(true); }
    ~Listener() { QAccessible::setActive(false); }
};

class PaneReading : public AppFixture {
protected:
    QAccessibleInterface& Summary() const
    {
        return *QAccessible::queryAccessibleInterface(&app->Frame().LeftView());
    }
    QAccessibleInterface& Section() const
    {
        return *QAccessible::queryAccessibleInterface(&app->Frame().RightView());
    }
    static QString TextOf(QAccessibleInterface* shown)
    {
        return shown == nullptr ? QString("nothing") : shown->text(QAccessible::Name);
    }
    QString Cell(int row, int column) const
    {
        return TextOf(Summary().tableInterface()->cellAt(row, column));
    }
};
class PaneReadingGerman : public GermanAppFixture {};

TEST_F(PaneReading, OfTheSummaryIsATable)
{
    EXPECT_EQ(QAccessible::Table, Summary().role());
    EXPECT_EQ("design summary", Summary().text(QAccessible::Name));
    ASSERT_NE(nullptr, Summary().tableInterface());
    EXPECT_EQ(0, Summary().tableInterface()->rowCount()) << "no telescope is loaded";
    EXPECT_EQ(nullptr, Summary().tableInterface()->cellAt(0, 0));
    MakeTelescope();
    EXPECT_EQ(2, Summary().tableInterface()->columnCount());
    EXPECT_EQ(25, Summary().tableInterface()->rowCount()); // as the pane has
    EXPECT_EQ(50, Summary().childCount());
    EXPECT_EQ("Untitleld Telescope", Cell(0, 0));
    EXPECT_EQ("Primary", Cell(1, 0));
    EXPECT_EQ("", Cell(1, 1));
    EXPECT_EQ("Diameter:", Cell(2, 0));
    EXPECT_EQ("250.0 mm (9.84\")", Cell(2, 1));
    EXPECT_EQ("nothing", Cell(25, 0));
    EXPECT_EQ("nothing", Cell(0, 2));
    EXPECT_EQ("nothing", Cell(-1, 0));
}

TEST_F(PaneReading, OfACellTellsItsPlaceAndItsLabel)
{
    MakeTelescope();
    QAccessibleInterface* const value = Summary().child(5);
    ASSERT_NE(nullptr, value);
    EXPECT_EQ(QAccessible::Cell, value->role());
    EXPECT_TRUE(value->state().readOnly);
    EXPECT_EQ(&Summary(), value->parent());
    EXPECT_EQ(5, Summary().indexOfChild(value));
    QAccessibleTableCellInterface* const cell = value->tableCellInterface();
    ASSERT_NE(nullptr, cell);
    EXPECT_EQ(2, cell->rowIndex());
    EXPECT_EQ(1, cell->columnIndex());
    EXPECT_EQ(&Summary(), cell->table());
    ASSERT_EQ(1, cell->rowHeaderCells().size());
    EXPECT_EQ("Diameter:", TextOf(cell->rowHeaderCells().first()));
    EXPECT_TRUE(app->Frame().LeftView().rect().translated(app->Frame().LeftView().mapToGlobal(QPoint())) ==
                value->rect());
}

TEST_F(PaneReading, OfAWarningSaysSoInWords)
{
    MakeTelescope();
    app->Document().main_record.SetWanted100PercentFow(500);
    app->Document().Recalculate();
    EXPECT_TRUE(Cell(23, 1).endsWith(", less than wanted")) << Cell(23, 1).toStdString();
    app->Document().main_record.SetWanted100PercentFow(0.1);
    app->Document().Recalculate();
    EXPECT_FALSE(Cell(23, 1).contains("wanted"));
}

TEST_F(PaneReading, OfTheCrossSectionIsMadeOfSentences)
{
    EXPECT_EQ(QAccessible::Graphic, Section().role());
    EXPECT_EQ("cross-section", Section().text(QAccessible::Name));
    ASSERT_EQ(1, Section().childCount());
    EXPECT_TRUE(TextOf(Section().child(0)).startsWith("Please create a new set of data"));
    MakeTelescope();
    ASSERT_EQ(5, Section().childCount());
    EXPECT_EQ(QAccessible::StaticText, Section().child(0)->role());
    EXPECT_TRUE(TextOf(Section().child(1)).startsWith("Primary: 250.0 mm in diameter"));
    EXPECT_TRUE(Section().text(QAccessible::Description).contains("Primary: 250.0 mm in diameter"));
    EXPECT_EQ(nullptr, Section().tableInterface());
    Choose(32776);
    EXPECT_EQ("Parallel rays from a spot in infinity.", TextOf(Section().child(5)));
    QTest::keyClick(&app->Frame().RightView(), Qt::Key_Plus);
    EXPECT_EQ("Enlarged 2 times.", TextOf(Section().child(7)));
}

TEST_F(PaneReading, FollowsTheRecordWhileSomebodyListens)
{
    CPane& pane = app->Frame().LeftView();
    MakeTelescope();
    EXPECT_TRUE(pane.LastLines().empty()) << "nobody has asked";
    const Listener listener;
    app->Document().main_record.SetFocalLength(1400);
    app->Document().Recalculate();
    ASSERT_EQ(25u, pane.LastLines().size());
    EXPECT_EQ((PaneLine{"Focal Length:", "1400.0 mm (55.12\")"}), pane.LastLines()[3]);
    EXPECT_EQ(5u, app->Frame().RightView().LastLines().size());
}

TEST(ChangedChildren, AreThoseOfTextsThatDiffer)
{
    const std::vector<PaneLine> before{{"a", "1"}, {"b", "2"}, {"c", "3"}};
    EXPECT_EQ(std::vector<int>{}, ChangedChildren(before, before, 2));
    EXPECT_EQ((std::vector<int>{1, 2, 4, 5}),
              ChangedChildren(before, {{"a", "0"}, {"x", "2"}, {"y", "z"}}, 2));
    EXPECT_EQ((std::vector<int>{1}), ChangedChildren(before, {{"a", "0"}, {"x", "2"}}, 1));
    EXPECT_EQ(std::vector<int>{}, ChangedChildren({}, before, 2)) << "other rows are told at once";
}

TEST_F(PaneReading, LeavesTheRecordAloneWhileADialogFillsIt)
{
    const Listener listener;
    MakeTelescope();
    app->Document().main_record.SetModified(0);
    InNextDialog<QDialog>([this](QDialog& dialog) {
        app->Frame().UpdateAllViews();
        EXPECT_EQ("250.0 mm (9.84\")", Cell(2, 1)) << "what the pane showed before";
        EXPECT_EQ(HUGE_VAL, app->Document().main_record.inside_diameter_hat);
        dialog.accept();
    });
    Choose(32771);
}

TEST_F(PaneReading, OfToolbarButtonsHasNoKeyBehindTheName)
{
    QStringList names;
    auto* const bar = app->Frame().findChild<QToolBar*>("toolBar");
    for (QAction* const action : bar->actions()) {
        if (!action->isSeparator()) {
            names << QAccessible::queryAccessibleInterface(bar->widgetForAction(action))
                         ->text(QAccessible::Name);
        }
    }
    EXPECT_EQ((QStringList{"New ...", "Open...", "Save", "Print...", "Small Icons", "Large Icons", "List",
                           "Details", "About Orreva...", "Help on ...", "Properties"}),
              names);
    for (const char* const name : {"toolBar", "dialogBarBand"}) {
        auto* const rest =
            app->Frame().findChild<QToolBar*>(name)->findChild<QWidget*>("qt_toolbar_ext_button");
        ASSERT_NE(nullptr, rest) << name;
        EXPECT_EQ("More", QAccessible::queryAccessibleInterface(rest)->text(QAccessible::Name));
    }
}

TEST_F(PaneReadingGerman, IsGerman)
{
    MakeTelescope();
    QAccessibleInterface* const summary = QAccessible::queryAccessibleInterface(&app->Frame().LeftView());
    EXPECT_EQ(ToQString("\xDC"
                        "bersicht"),
              summary->text(QAccessible::Name));
    EXPECT_EQ("Durchmesser:", summary->child(4)->text(QAccessible::Name));
    QAccessibleInterface* const section = QAccessible::queryAccessibleInterface(&app->Frame().RightView());
    EXPECT_EQ("Querschnitt", section->text(QAccessible::Name));
    EXPECT_TRUE(section->child(1)->text(QAccessible::Name).startsWith("Hauptspiegel: 250.0 mm Durchmesser"));
}

} // namespace

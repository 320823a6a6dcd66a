#include "views/ResultList.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QTest>

namespace {

constexpr ListColumn kColumns[] = {{{"Property", "Eigenschaft"}, 280}, {{"Value", "Wert"}, 150, true}};

TEST(ResultList, InsertsEachRowAtTheTop)
{
    CResultList list;
    list.SetColumns(kColumns, kGerman);
    list.SetRows({{"first", "1"}, {"second", "2"}, {"third", "\xF6"}});
    EXPECT_EQ(3, list.RowCount());
    EXPECT_EQ("second", list.Cell(1, 0));
    EXPECT_EQ("first", list.Cell(2, 0));
    EXPECT_EQ(QString::fromUtf8("ö"), list.Cell(0, 1));
    EXPECT_EQ("Eigenschaft", list.QTreeView::model()->headerData(0, Qt::Horizontal).toString());
    EXPECT_EQ(280, list.header()->sectionSize(0));
    EXPECT_EQ(QHeaderView::Interactive, list.header()->sectionResizeMode(0));
    list.SetRows({});
    EXPECT_EQ(0, list.RowCount());
}

TEST(ResultList, AnIndexThatIsNoneShowsNothing)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"first", "1"}});
    const QAbstractItemModel& model = *list.QTreeView::model();
    for (const int role : {static_cast<int>(Qt::DisplayRole), static_cast<int>(Qt::TextAlignmentRole)}) {
        EXPECT_TRUE(model.data(model.index(0, 1), role).isValid());
        EXPECT_FALSE(model.data({}, role).isValid());
        EXPECT_FALSE(model.headerData(-1, Qt::Horizontal, role).isValid());
        EXPECT_FALSE(model.headerData(2, Qt::Horizontal, role).isValid());
    }
    const QModelIndex once = model.index(0, 1);
    list.SetRows({});
    EXPECT_FALSE(model.data(once, Qt::DisplayRole).isValid()) << "of a row that is no more";
}

TEST(ResultList, CopiesTheSelectedRowsAsText)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"first", "1"}, {"second", "2"}});
    EXPECT_EQ(-1, list.SelectedRow());
    list.selectAll();
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("second\t2\nfirst\t1", QGuiApplication::clipboard()->text());
    EXPECT_EQ(0, list.SelectedRow());
}

TEST(ResultList, ItsContextMenuCopies)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"second", "2"}, {"first", "1"}});
    EXPECT_EQ(Qt::ActionsContextMenu, list.contextMenuPolicy());
    ASSERT_EQ(1, list.actions().size());
    EXPECT_EQ("Copy", list.actions().front()->text());
    list.selectAll();
    list.actions().front()->trigger();
    EXPECT_EQ("first\t1\nsecond\t2", QGuiApplication::clipboard()->text());
}

TEST(ResultList, CopyingWithoutASelectionLeavesTheClipboardAlone)
{
    QGuiApplication::clipboard()->setText("kept");
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"first", "1"}});
    QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("kept", QGuiApplication::clipboard()->text());
}

TEST(ResultList, CopiesFromTheTopDownInWhateverOrderRowsWereSelected)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"fifth", "5"}, {"fourth", "4"}, {"third", "3"}, {"second", "2"}, {"first", "1"}});
    list.resize(500, 300);
    list.show();
    for (const int row : {4, 0, 2}) {
        const QModelIndex cell = list.QTreeView::model()->index(row, 0);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list.visualRect(cell).center());
    }
    list.CopySelection();
    EXPECT_EQ("first\t1\nthird\t3\nfifth\t5", QGuiApplication::clipboard()->text());
}

TEST(ResultList, TellsTheTopmostOfSeveralSelectedRows)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"fifth", "5"}, {"fourth", "4"}, {"third", "3"}, {"second", "2"}, {"first", "1"}});
    list.resize(500, 300);
    list.show();
    const auto click = [&](int row, Qt::KeyboardModifiers modifiers) {
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                          list.visualRect(list.QTreeView::model()->index(row, 0)).center());
    };
    click(3, {});
    click(1, Qt::ControlModifier);
    click(4, Qt::ControlModifier);
    EXPECT_EQ(1, list.SelectedRow());
    click(0, {});
    click(2, Qt::ControlModifier);
    EXPECT_EQ(0, list.SelectedRow()) << "the first one clicked, this time";
}

TEST(ResultList, NumbersStandAtTheRightUnderTheirTitle)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"first", "1"}});
    const QAbstractItemModel& rows = *list.QTreeView::model();
    const auto sides = [](const QVariant& alignment) { return alignment.toInt() & Qt::AlignHorizontal_Mask; };
    EXPECT_EQ(Qt::AlignLeft, sides(rows.data(rows.index(0, 0), Qt::TextAlignmentRole)));
    EXPECT_EQ(Qt::AlignRight, sides(rows.data(rows.index(0, 1), Qt::TextAlignmentRole)));
    EXPECT_EQ(Qt::AlignLeft, sides(rows.headerData(0, Qt::Horizontal, Qt::TextAlignmentRole)));
    EXPECT_EQ(Qt::AlignRight, sides(rows.headerData(1, Qt::Horizontal, Qt::TextAlignmentRole)));
    // And so they are painted: a row's ink is at the right end of its column.
    list.resize(500, 300);
    list.show();
    const QRect cell = list.visualRect(rows.index(0, 1));
    const QImage image = list.viewport()->grab(cell).toImage();
    const auto inked = [&](int from, int to) {
        for (int x = from; x < to; ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y) != image.pixelColor(image.width() / 2, 0)) {
                    return true;
                }
            }
        }
        return false;
    };
    EXPECT_TRUE(inked(image.width() - 20, image.width()));
    EXPECT_FALSE(inked(0, image.width() - 40));
}

TEST(ResultList, ColumnsWidenForEachLongerTextUntilTheUserResizesOne)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{std::string(80, 'm'), "1"}});
    const int once = list.columnWidth(0);
    EXPECT_LT(280, once);
    EXPECT_EQ(150, list.columnWidth(1)) << "a short text leaves its column alone";
    list.SetRows({{std::string(120, 'm'), "1"}});
    const int twice = list.columnWidth(0);
    EXPECT_LT(once, twice);
    list.header()->resizeSection(0, 300); // as by the mouse
    list.SetRows({{std::string(160, 'm'), "1"}});
    EXPECT_EQ(300, list.columnWidth(0));
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{std::string(160, 'm'), "1"}});
    EXPECT_LT(twice, list.columnWidth(0)) << "new columns are nobody's yet";
}

TEST(ResultList, CopiesTenThousandRowsAtMost)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    const auto copied = [&](int count) {
        list.SetComputedRows(count, [](int row) { return ListRow{std::to_string(row), "x"}; });
        QAbstractItemModel& rows = *list.QTreeView::model();
        for (int i = 0; i < 100 && rows.canFetchMore({}); ++i) {
            rows.fetchMore({});
        }
        EXPECT_EQ(count, rows.rowCount());
        list.selectAll();
        list.CopySelection();
        return QGuiApplication::clipboard()->text().split('\n');
    };
    EXPECT_EQ(9999, copied(9999).size());
    EXPECT_EQ(10000, copied(10000).size());
    const QStringList most = copied(10001);
    EXPECT_EQ(10000, most.size());
    EXPECT_EQ("0\tx", most.first());
    EXPECT_EQ("9999\tx", most.last());
}

constexpr ListColumn kNarrow[] = {{{"Type", "Typ"}, 30}, {{"A heading of some length", "Wert"}, 10}};

TEST(ResultList, AnEmptyListShowsItsWholeHeadings)
{
    CResultList list;
    list.SetColumns(kNarrow, kEnglish);
    for (const int column : {0, 1}) {
        EXPECT_GE(list.columnWidth(column), list.header()->sectionSizeHint(column)) << column;
    }
    const QFontMetrics metrics(list.header()->font());
    EXPECT_GT(list.columnWidth(1), metrics.horizontalAdvance("A heading of some length"));
}

TEST(ResultList, ColumnsWidenForLongValuesAndShrinkAgainWhenTheyGo)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{std::string(100, 'm'), "1"}});
    const QFontMetrics metrics(list.font());
    EXPECT_GT(list.columnWidth(0), metrics.horizontalAdvance(QString(100, 'm')));
    EXPECT_EQ(150, list.columnWidth(1));
    list.SetRows({{"short", std::string(60, 'm')}});
    EXPECT_EQ(280, list.columnWidth(0));
    EXPECT_GT(list.columnWidth(1), metrics.horizontalAdvance(QString(60, 'm')));
    list.SetRows({{"short", "1"}});
    EXPECT_EQ(150, list.columnWidth(1));
}

TEST(ResultList, AWidthThatTheUserChoseStays)
{
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetRows({{"short", "1"}});
    list.header()->resizeSection(0, 77);
    list.SetRows({{std::string(100, 'm'), "1"}});
    EXPECT_EQ(77, list.columnWidth(0));
    list.SetRows({{"short", "1"}});
    EXPECT_EQ(77, list.columnWidth(0));
}

TEST(ResultList, AThousandMillionRowsAreComputedWhenLookedAt)
{
    int computed = 0;
    CResultList list;
    list.SetColumns(kColumns, kEnglish);
    list.SetComputedRows(1000000000, [&](int row) {
        ++computed;
        return ListRow{std::to_string(row), ""};
    });
    list.resize(400, 300);
    list.show();
    list.grab();
    EXPECT_EQ("999999999", list.Cell(999999999, 0));
    EXPECT_LT(computed, 1000);
}

} // namespace

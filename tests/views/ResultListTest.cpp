#include "views/ResultList.h"

#include <gtest/gtest.h>

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

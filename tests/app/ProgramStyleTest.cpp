#include "app/ProgramStyle.h"

#include "views/ResultList.h"
#include "views/WidgetPixels.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QStyleFactory>

#include <memory>

namespace {

QColor Background(bool readOnly, QStyle& style)
{
    QLineEdit edit;
    edit.setReadOnly(readOnly);
    edit.setStyle(&style);
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::yellow);
    palette.setColor(QPalette::Window, Qt::cyan);
    edit.setPalette(palette);
    edit.resize(100, 30);
    return Shown(edit).pixelColor(80, 15);
}

/// The width that a column with a short title and a longer text asks for.
int ColumnWidth(QStyle& style)
{
    static constexpr ListColumn kColumns[] = {{{"A", "A"}, 1}};
    CResultList list;
    list.setStyle(&style);
    list.header()->setStyle(&style);
    list.SetColumns(kColumns, 0);
    list.SetRows({{"a text of some length"}});
    return list.columnWidth(0);
}

TEST(ProgramStyle, AFieldThatOnlyShowsHasTheColourOfItsDialog)
{
    CProgramStyle style;
    EXPECT_EQ(QColor(Qt::cyan), Background(true, style));
    EXPECT_EQ(QColor(Qt::yellow), Background(false, style));
}

TEST(ProgramStyle, TheColumnsOfAResultListStandApart)
{
    CProgramStyle style;
    const std::unique_ptr<QStyle> desktops(QStyleFactory::create(style.baseStyle()->objectName()));
    ASSERT_NE(nullptr, desktops);
    EXPECT_EQ(ColumnWidth(*desktops) + 8, ColumnWidth(style)) << "4 pixels on either side";
}

} // namespace

// What the sheets are put together of.

#include "pages/sheet/Fields.h"
#include "pages/sheet/HelpStrip.h"
#include "pages/sheet/PageArea.h"
#include "views/ProgramIcon.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

namespace {

TEST(NameReset, NamesTheFieldByTheLabelThatBelongsToIt)
{
    QDialog dialog;
    QLineEdit width(&dialog);
    QLineEdit height(&dialog);
    QLineEdit alone(&dialog);
    QLabel widthLabel("&Width (mm)", &dialog);
    QLabel heightLabel("&Height (mm)", &dialog);
    widthLabel.setBuddy(&width);
    heightLabel.setBuddy(&height);
    QToolButton reset(&dialog);
    reset.setToolTip("Put back");
    NameReset(&reset, &height);
    EXPECT_EQ("Height (mm): Put back", reset.accessibleName());
    NameReset(&reset, &width);
    EXPECT_EQ("Width (mm): Put back", reset.accessibleName());
    alone.setAccessibleName("Depth");
    NameReset(&reset, &alone);
    EXPECT_EQ("Depth: Put back", reset.accessibleName());
}

TEST(PageArea, KeepsNumbersWhole)
{
    auto* const page = new QWidget;
    auto* const edit = new QLineEdit("0000.00", page);
    const int number = edit->fontMetrics().horizontalAdvance("0000.00");
    const CPageArea area(page, QSize(300, 200));
    EXPECT_GT(edit->minimumWidth(), number) << "and the field's edges";
    EXPECT_LT(edit->minimumWidth(), 2 * number);
}

TEST(PageArea, AsksForNoMoreThanTheRoom)
{
    const auto page = [] {
        auto* const wide = new QWidget;
        wide->setMinimumSize(600, 520);
        return wide;
    };
    CPageArea roomy(page(), QSize(700, 600));
    EXPECT_EQ(QSize(600, 520), roomy.minimumSizeHint());
    EXPECT_EQ(QSize(600, 520), roomy.sizeHint());
    CPageArea narrow(page(), QSize(300, 200));
    EXPECT_EQ(QSize(300, 200), narrow.minimumSizeHint());
    CPageArea low(page(), QSize(1000, 200));
    EXPECT_EQ(200, low.minimumSizeHint().height());
    EXPECT_LT(600, low.minimumSizeHint().width()) << "and the scroll bar's width";
}

TEST(PageArea, ScrollsToTheFieldThatTakesTheKeyboard)
{
    auto* const page = new QWidget;
    page->setMinimumSize(300, 900);
    auto* const first = new QLineEdit(page);
    auto* const last = new QLineEdit(page);
    first->move(0, 0);
    last->move(0, 860);
    QWidget window;
    auto* const area = new CPageArea(page, QSize(300, 200));
    area->setParent(&window);
    area->resize(300, 200);
    window.resize(300, 200);
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_TRUE(last->hasFocus());
    EXPECT_TRUE(area->viewport()->rect().contains(last->mapTo(area->viewport(), QPoint(5, 5))));
}

TEST(HelpStrip, HasItsPictures)
{
    const CHelpStrip strip;
    const auto pictures = strip.findChildren<QToolButton*>();
    ASSERT_EQ(2, pictures.size());
    EXPECT_EQ(ProgramIcon("info").pixmap(16).toImage(), pictures[0]->icon().pixmap(16).toImage());
    EXPECT_EQ(ProgramIcon("question").pixmap(16).toImage(), pictures[1]->icon().pixmap(16).toImage());
    EXPECT_NE(pictures[0]->icon().pixmap(16).toImage(), pictures[1]->icon().pixmap(16).toImage());
}

} // namespace

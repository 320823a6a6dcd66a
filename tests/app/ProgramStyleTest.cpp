#include "app/ProgramStyle.h"

#include "pages/sheet/PropertySheet.h"
#include "views/ResultList.h"
#include "views/WidgetPixels.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
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

int RowHeight(QStyle& style)
{
    static constexpr ListColumn kColumns[] = {{{"A", "A"}, 1}};
    CResultList list;
    list.setStyle(&style);
    list.SetColumns(kColumns, 0);
    list.SetRows({{"a text"}});
    return list.sizeHintForRow(0);
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

TEST(ProgramStyle, TheRowsOfAResultListHaveRoomForUmlauts)
{
    CProgramStyle style;
    const std::unique_ptr<QStyle> desktops(QStyleFactory::create(style.baseStyle()->objectName()));
    EXPECT_EQ(RowHeight(*desktops) + 6, RowHeight(style)) << "3 pixels above and below";
}

/// The rows of pixels of a list's row in which there is ink.
std::vector<int> InkedRows(const char* text)
{
    static constexpr ListColumn kColumns[] = {{{"A", "A"}, 100}};
    CResultList list;
    list.setAlternatingRowColors(false);
    list.SetColumns(kColumns, 0);
    list.SetRows({{text}});
    list.resize(200, 100);
    const QImage shown = Shown(*list.viewport());
    const QRect row = list.visualRect(static_cast<QTreeView&>(list).model()->index(0, 0));
    std::vector<int> inked;
    for (int y = row.top(); y <= row.bottom(); ++y) {
        for (int x = row.left(); x <= row.right(); ++x) {
            if (shown.pixelColor(x, y) != shown.pixelColor(row.right(), row.bottom())) {
                inked.push_back(y - row.top());
                break;
            }
        }
    }
    return inked;
}

TEST(ProgramStyle, UmlautsKeepTheirDots)
{
    const std::vector<int> plain = InkedRows("AOU");
    const std::vector<int> dotted = InkedRows("\xC4\xD6\xDC");
    ASSERT_FALSE(plain.empty());
    ASSERT_FALSE(dotted.empty());
    EXPECT_LE(dotted.front() + 2, plain.front()) << "dots and a gap";
    EXPECT_LE(1, dotted.front()) << "and room above them";
}

/// A desktop that puts icons on the buttons of dialogs, and their order its own way round.
class OtherDesktop : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override
    {
        switch (hint) {
        case SH_DialogButtonBox_ButtonsHaveIcons:
            return 1;
        case SH_DialogButtonLayout:
            return QDialogButtonBox::GnomeLayout;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
        }
    }
};

TEST(ProgramStyle, NoButtonOfADialogHasAnIcon)
{
    CProgramStyle style;
    style.setBaseStyle(new OtherDesktop);
    QDialogButtonBox box;
    EXPECT_EQ(0, style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, &box, nullptr));
    // As the tests run in the program's style.
    const QDialogButtonBox standard(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (const QAbstractButton* const button : standard.buttons()) {
        EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
    }
}

TEST(ProgramStyle, TheButtonsOfASheetStandInOneOrderOnEveryDesktop)
{
    CProgramStyle style;
    style.setBaseStyle(new OtherDesktop);
    const CPropertySheet sheet("Sheet", nullptr);
    const auto layoutOf = [&](const QWidget* box) {
        return style.styleHint(QStyle::SH_DialogButtonLayout, nullptr, box, nullptr);
    };
    EXPECT_EQ(QDialogButtonBox::WinLayout, layoutOf(sheet.findChild<QDialogButtonBox*>()));
    EXPECT_EQ(QDialogButtonBox::GnomeLayout, layoutOf(std::make_unique<QDialogButtonBox>().get()))
        << "other dialogs follow the desktop";
}

} // namespace

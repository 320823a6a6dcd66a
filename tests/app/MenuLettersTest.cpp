#include "app/MenuLetters.h"
#include "app/AppFixture.h"

#include "document/Commands.h"

#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>

#include <map>
#include <set>

namespace {

class MenuLetters : public AppFixture {
protected:
    explicit MenuLetters(int language = kEnglish) : AppFixture(language) {}

    QMenu& Menu(const char* name) const { return *app->Frame().findChild<QMenu*>(name); }
    QMenu& Open(const char* name) const
    {
        QMenu& menu = Menu(name);
        menu.popup(QPoint(0, 0));
        QCoreApplication::processEvents();
        return menu;
    }
    std::vector<QMenu*> AllMenus() const
    {
        std::vector<QMenu*> menus;
        for (const QAction* const item : app->Frame().menuBar()->actions()) {
            menus.push_back(item->menu());
        }
        return menus;
    }
    void ExpectMarksAreUnique() const;
    void ExpectEveryItemIsReached() const;
};
class MenuLettersGerman : public MenuLetters {
protected:
    MenuLettersGerman() : MenuLetters(kGerman) {}
};

/// No two items of a menu are marked with the same letter.
void MenuLetters::ExpectMarksAreUnique() const
{
    for (const QMenu* const menu : AllMenus()) {
        std::map<QString, QString> owners;
        for (const QAction* const item : menu->actions()) {
            const QString mark = QKeySequence::mnemonic(item->text()).toString();
            if (!mark.isEmpty()) {
                EXPECT_TRUE(owners.emplace(mark, item->text()).second) << item->text().toStdString();
            }
        }
    }
}

/// In each menu, a letter that marks none goes to each enabled item that begins with it, one after the other.
void MenuLetters::ExpectEveryItemIsReached() const
{
    MakeTelescope();
    int reached = 0;
    for (QMenu* const menu : AllMenus()) {
        menu->popup(QPoint(0, 0));
        std::map<QChar, QList<QAction*>> items;
        std::set<QChar> marks;
        for (QAction* const item : menu->actions()) {
            if (!item->isSeparator() && item->isEnabled()) {
                ASSERT_FALSE(MenuLetter(item->text()).isNull());
                items[MenuLetter(item->text())] << item;
                if (!QKeySequence::mnemonic(item->text()).isEmpty()) {
                    marks.insert(MenuLetter(item->text()));
                }
            }
        }
        for (const auto& [letter, same] : items) {
            if (same.size() < 2 || marks.contains(letter)) {
                continue; // one would be chosen
            }
            for (QAction* const item : same) {
                QTest::keyClick(menu, letter.toLower().toLatin1());
                EXPECT_EQ(item, menu->activeAction()) << item->text().toStdString();
                ++reached;
            }
        }
        menu->close();
    }
    EXPECT_LT(10, reached);
}

TEST_F(MenuLetters, AreMarkedOnce) { ExpectMarksAreUnique(); }
TEST_F(MenuLettersGerman, AreMarkedOnce) { ExpectMarksAreUnique(); }

TEST_F(MenuLetters, ReachEveryItem) { ExpectEveryItemIsReached(); }
TEST_F(MenuLettersGerman, ReachEveryItem) { ExpectEveryItemIsReached(); }

TEST_F(MenuLetters, ChooseAnItemThatIsAloneWithItsLetter)
{
    QMenu& menu = Open("menuView");
    QTest::keyClick(&menu, 'h');
    QCoreApplication::processEvents();
    EXPECT_EQ(1, app->Document().high_contrast) << "High contrast";
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(MenuLetters, PassOverItemsThatAreDisabled)
{
    QMenu& menu = Open("menuView"); // no telescope: "Parallel rays" is grey
    QTest::keyClick(&menu, 'p');
    EXPECT_EQ(nullptr, menu.activeAction());
    EXPECT_TRUE(menu.isVisible());
    menu.close();
}

TEST_F(MenuLetters, ChooseTheMarkedItemBeforeThoseThatBeginSo)
{
    MakeTelescope();
    QMenu& menu = Open("menuFile");
    InNextDialog<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
    QTest::keyClick(&menu, 'p'); // "Print Preview" and "Print Setup" begin with it, too
    QCoreApplication::processEvents();
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(MenuLetters, GoRoundTheItemsThatBeginSo)
{
    MakeTelescope();
    QMenu& menu = Open("menuFile");
    QTest::keyClick(&menu, 's');
    EXPECT_EQ("Save", menu.activeAction()->text());
    QTest::keyClick(&menu, 'S', Qt::ShiftModifier);
    EXPECT_EQ("Save as...", menu.activeAction()->text());
    QTest::keyClick(&menu, 's');
    EXPECT_EQ("Save", menu.activeAction()->text()) << "and around";
    menu.close();
}

TEST_F(MenuLetters, OpenAMenuOfTheBar)
{
    QMenuBar& bar = *app->Frame().menuBar();
    bar.setActiveAction(bar.actions().first());
    bar.setFocus();
    QTest::keyClick(&bar, 's');
    QCoreApplication::processEvents();
    EXPECT_TRUE(Menu("menuLanguage").isVisible()) << "Sparche / Language has no mark";
    Menu("menuLanguage").close();
}

TEST(MenuLetter, IsTheMarkedOrTheFirst)
{
    EXPECT_EQ(QChar('T'), MenuLetter("Sei&tenansicht"));
    EXPECT_EQ(QChar('P'), MenuLetter("Print Preview"));
    EXPECT_EQ(QChar(u'Ö'), MenuLetter(QString::fromUtf16(u"öffnen...")));
    EXPECT_EQ(QChar('N'), MenuLetter(" ... New"));
    EXPECT_TRUE(MenuLetter("...").isNull());
    EXPECT_TRUE(MenuLetter("").isNull());
}

} // namespace

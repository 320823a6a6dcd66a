#include "app/MenuLetters.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

namespace {

bool IsLetter(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers others = event.modifiers() & ~Qt::ShiftModifier;
    return others == Qt::NoModifier && event.text().size() == 1 && event.text().at(0).isLetterOrNumber();
}

bool IsMarked(const QString& text) { return !QKeySequence::mnemonic(text).isEmpty(); }

/// The item that is marked with a letter, or else those that begin with it.
QList<QAction*> ItemsOf(const QWidget& menu, QChar letter)
{
    QList<QAction*> marked;
    QList<QAction*> others;
    for (QAction* const item : menu.actions()) {
        if (item->isVisible() && item->isEnabled() && !item->isSeparator() &&
            MenuLetter(item->text()) == letter) {
            (IsMarked(item->text()) ? marked : others) << item;
        }
    }
    return marked.isEmpty() ? others : marked;
}

QAction* NextOf(const QList<QAction*>& items, QAction* active)
{
    return items[(items.indexOf(active) + 1) % items.size()]; // -1, and so the first, if it is none of them
}

/// Menus and menu bars have the same two functions, and no class in common that has them.
template <class Menu>
bool GoTo(Menu& menu, const QKeyEvent& event)
{
    const QList<QAction*> items = ItemsOf(menu, event.text().at(0).toUpper());
    if (items.isEmpty()) {
        return false;
    }
    menu.setActiveAction(NextOf(items, menu.activeAction()));
    if (items.size() == 1) {
        QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&menu, &choose);
    }
    return true;
}

} // namespace

QChar MenuLetter(const QString& text)
{
    const QKeySequence marked = QKeySequence::mnemonic(text);
    if (!marked.isEmpty()) {
        return QChar(static_cast<char16_t>(marked[0].key())).toUpper();
    }
    const auto first = std::ranges::find_if(text, [](QChar one) { return one.isLetterOrNumber(); });
    return first == text.end() ? QChar() : first->toUpper();
}

CMenuLetters::CMenuLetters(QMainWindow& window) : QObject(&window)
{
    window.menuBar()->installEventFilter(this);
    for (QMenu* const menu : window.findChildren<QMenu*>()) {
        menu->installEventFilter(this);
    }
}

bool CMenuLetters::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!IsLetter(key)) {
        return false;
    }
    if (auto* const menu = qobject_cast<QMenu*>(watched)) {
        return GoTo(*menu, key);
    }
    auto* const bar = qobject_cast<QMenuBar*>(watched);
    return bar != nullptr && GoTo(*bar, key);
}

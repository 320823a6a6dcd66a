#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QWidget;

/// In an open menu, and in the menu bar while it has the keyboard, a letter chooses the item that is marked
/// with it. Where none is, it goes to the next one without a mark that begins with it; the only such item is
/// chosen at once.
class CMenuLetters : public QObject {
    Q_OBJECT

public:
    /// For all menus that the window has by now.
    explicit CMenuLetters(QMainWindow& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

/// The letter of an item's text in upper case: the marked one, else the first; null if there is none.
QChar MenuLetter(const QString& text);

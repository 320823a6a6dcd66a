#pragma once

#include <QScrollArea>

class QDialog;

/// How large a window may become: the screen without its panels and the window's frame, which is guessed
/// until the window has one.
QSize RoomOnScreen(const QWidget& window);

/// Holds a page of a sheet. It asks for what the page asks for, as far as there is room on the screen; a page
/// that needs more is scrolled.
class CPageArea : public QScrollArea {
    Q_OBJECT

public:
    CPageArea(QWidget* page, QSize room);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize m_room;
};

/// To be called for a picture of a dialog that has just been built: it is scrolled where the screen is too
/// small for it, so that the rest of the dialog stays in sight.
void ScrollOnSmallScreens(QDialog& dialog, QWidget& picture);

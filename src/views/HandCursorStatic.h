#pragma once

#include <QToolButton>

/// The small Info and help pictures of the pages: flat, and the mouse is a hand over them.
class CHandCursorStatic : public QToolButton {
    Q_OBJECT

public:
    explicit CHandCursorStatic(QWidget* parent = nullptr) : QToolButton(parent)
    {
        setAutoRaise(true);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
    }
};

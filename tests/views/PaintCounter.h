#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

/// Counts the repaints of a widget.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget)
    {
        QCoreApplication::processEvents();
        widget.installEventFilter(this);
    }

    /// Repaints since the last call.
    int Take()
    {
        QCoreApplication::processEvents();
        return std::exchange(paints, 0);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

private:
    int paints = 0;
};

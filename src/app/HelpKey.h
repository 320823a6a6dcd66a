#pragma once

#include <QObject>

/// F1 in a dialog: help on its number. A sheet of pages, which has none, asks for help on its page itself.
class HelpKey : public QObject {
    Q_OBJECT

public:
    /// Listens to the whole application.
    HelpKey();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

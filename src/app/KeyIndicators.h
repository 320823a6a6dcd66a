#pragma once

#include <QObject>

class QLabel;
class QStatusBar;

/// The status bar's fields for caps lock, num lock and scroll lock, which follow the keyboard as far as key
/// events tell its state.
class KeyIndicators : public QObject {
    Q_OBJECT

public:
    explicit KeyIndicators(QStatusBar& bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Follow(int key, unsigned modifiers);

    struct Field {
        QLabel* label;
        bool on;
    };
    Field m_fields[3];
};

#pragma once

#include <QObject>

/// What drop-downs, sliders and fields of the whole program do and do not do with wheel and keys: a wheel
/// that rolls over one changes it only while it has the keyboard's focus, and Alt with a letter, which is
/// meant for a menu or a button, types nothing.
class FieldHabits : public QObject {
    Q_OBJECT

public:
    /// Listens to the whole application.
    FieldHabits();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

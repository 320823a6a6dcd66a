#include "app/FieldHabits.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSlider>
#include <QTextEdit>

namespace {

template <class... Widgets>
bool IsOneOf(const QObject* object)
{
    return ((qobject_cast<const Widgets*>(object) != nullptr) || ...);
}

bool TurnsByWheel(const QObject* object) { return IsOneOf<QComboBox, QSlider, QAbstractSpinBox>(object); }

bool TakesLetters(const QObject* object)
{
    return IsOneOf<QLineEdit, QPlainTextEdit, QTextEdit, QComboBox, QAbstractSpinBox>(object);
}

/// Not with Ctrl: that is how some keyboards make their third level of characters.
bool IsAltWithACharacter(const QKeyEvent& key)
{
    const bool alone =
        key.modifiers().testFlag(Qt::AltModifier) && !key.modifiers().testFlag(Qt::ControlModifier);
    return alone && !key.text().isEmpty() && key.text().front().isPrint();
}

/// The toolkit would give the focus to what the wheel rolls over.
void LetTheWheelGiveNoFocus(QWidget& widget)
{
    if (widget.focusPolicy() == Qt::WheelFocus) {
        widget.setFocusPolicy(Qt::StrongFocus);
    }
}

} // namespace

FieldHabits::FieldHabits() { qApp->installEventFilter(this); }

bool FieldHabits::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Polish:
        if (TurnsByWheel(watched)) {
            LetTheWheelGiveNoFocus(*static_cast<QWidget*>(watched));
        }
        break;
    case QEvent::Wheel:
        if (TurnsByWheel(watched) && !static_cast<QWidget*>(watched)->hasFocus()) {
            event->ignore(); // it goes on to what may scroll
            return true;
        }
        break;
    case QEvent::KeyPress:
        if (TakesLetters(watched) && IsAltWithACharacter(*static_cast<QKeyEvent*>(event))) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

#include "moc_FieldHabits.cpp"

#include "app/KeyIndicators.h"

#include <QApplication>
#include <QFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QStatusBar>

namespace {

struct Lock {
    const char* text;
    int key;
    unsigned mask; ///< in a key event's native modifiers; 0 where the platform does not tell
};

constexpr Lock kLocks[] = {
    {QT_TRANSLATE_NOOP("KeyIndicators", "CAP"), Qt::Key_CapsLock, 0x02},
    {QT_TRANSLATE_NOOP("KeyIndicators", "NUM"), Qt::Key_NumLock, 0x10},
    {QT_TRANSLATE_NOOP("KeyIndicators", "SCRL"), Qt::Key_ScrollLock, 0},
};

} // namespace

KeyIndicators::KeyIndicators(QStatusBar& bar) : QObject(&bar)
{
    for (std::size_t i = 0; i < std::size(kLocks); ++i) {
        auto* const label = new QLabel(tr(kLocks[i].text), &bar);
        label->setObjectName(kLocks[i].text);
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->setEnabled(false);
        bar.addPermanentWidget(label);
        m_fields[i] = {label, false};
    }
    qApp->installEventFilter(this);
}

bool KeyIndicators::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* const key = static_cast<QKeyEvent*>(event);
        if (key->spontaneous() && watched->isWindowType()) {
            Follow(key->key(), key->nativeModifiers());
        }
    }
    return QObject::eventFilter(watched, event);
}

/// The modifiers of a lock key's own press are those from before it.
void KeyIndicators::Follow(int key, unsigned modifiers)
{
    for (std::size_t i = 0; i < std::size(kLocks); ++i) {
        const Lock& lock = kLocks[i];
        Field& field = m_fields[i];
        const bool before = lock.mask != 0 ? (modifiers & lock.mask) != 0 : field.on;
        field.on = key == lock.key ? !before : before;
        field.label->setEnabled(field.on);
    }
}

#include "moc_KeyIndicators.cpp"

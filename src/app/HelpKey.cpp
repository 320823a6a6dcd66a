#include "app/HelpKey.h"

#include "pages/sheet/Controls.h"
#include "pages/sheet/Help.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

HelpKey::HelpKey() { qApp->installEventFilter(this); }

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1 &&
        watched->isWidgetType() && static_cast<QWidget*>(watched)->isWindow()) {
        const QVariant number = watched->property(kDialogId);
        if (number.isValid()) {
            WinHelp(number.toInt(), kHelpContext);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

#include "moc_HelpKey.cpp"

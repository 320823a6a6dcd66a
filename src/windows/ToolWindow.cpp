#include "windows/ToolWindow.h"

#include "pages/sheet/Controls.h"
#include "pages/sheet/PageArea.h"

#include <QVariant>
#include <QWidget>

void PrepareToolWindow(QWidget& window, QSize usual, WindowHelp help)
{
    window.setProperty(kDialogId, static_cast<int>(help));
    window.resize(usual.boundedTo(RoomOnScreen(window)));
}

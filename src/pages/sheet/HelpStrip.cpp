#include "pages/sheet/HelpStrip.h"

#include "pages/sheet/Controls.h"
#include "views/HandCursorStatic.h"
#include "views/ProgramIcon.h"

#include <QVBoxLayout>

CHelpStrip::CHelpStrip(QWidget* parent) : QWidget(parent)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](int controlId, const char* icon, const QString& name) {
        auto* const picture = new CHandCursorStatic(this);
        picture->setProperty(kControlId, controlId);
        picture->setIcon(ProgramIcon(icon));
        picture->setToolTip(name);
        picture->setAccessibleName(name);
        column->addWidget(picture);
        return picture;
    };
    add(kInfoControl, "info", tr("Info"));
    m_help = add(kHelpControl, "question", tr("Help on this page"));
    column->addStretch();
}

void CHelpStrip::setHelpControl(int controlId) { m_help->setProperty(kControlId, controlId); }

#include "moc_HelpStrip.cpp"

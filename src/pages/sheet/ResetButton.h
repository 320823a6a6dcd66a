#pragma once

#include "views/ProgramIcon.h"

#include <QToolButton>

/// The small button beside a field that puts it back to what the program proposes.
class CResetButton : public QToolButton {
    Q_OBJECT

public:
    explicit CResetButton(QWidget* parent = nullptr) : QToolButton(parent)
    {
        setIcon(ProgramIcon("reset"));
        setAutoRaise(true);
        setFocusPolicy(Qt::StrongFocus);
        setToolTip(tr("Put back to the proposed value"));
        setAccessibleName(toolTip());
    }
};

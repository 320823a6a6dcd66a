#include "views/Pane.h"

CPane::CPane(COrrevaDoc& doc, QWidget* parent) : QWidget(parent), document(doc)
{
    setFocusPolicy(Qt::StrongFocus);
    // A picture covers its pane whole; erasing it first would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(1, 1);
}

bool CPane::OnCommand(std::int32_t) { return false; }

void CPane::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    emit Activated(this);
}

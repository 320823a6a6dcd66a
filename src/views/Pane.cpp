#include "views/Pane.h"

#include <QEvent>

CPane::CPane(COrrevaDoc& doc, QWidget* parent) : QWidget(parent), m_document(doc)
{
    setFocusPolicy(Qt::StrongFocus);
    // A picture covers its pane whole; erasing it first would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(1, 1);
}

bool CPane::OnCommand(std::int32_t) { return false; }

bool CPane::event(QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress) {
        emit Activated(this);
    }
    return QWidget::event(event);
}

#include "views/Pane.h"

#include "painting/PainterSurface.h"
#include "painting/QtText.h"

#include <QEvent>
#include <QPainter>
#include <QPrinter>

CPane::CPane(COrrevaDoc& doc, const Bilingual& title, QWidget* parent)
    : CPictureWidget(parent), m_document(doc), m_title(title)
{
    setAccessibleName(ToQString(title.In(g_nLanguage)));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(1, 1);
}

bool CPane::OnCommand(std::int32_t) { return false; }

const std::vector<PaneLine>& CPane::Lines()
{
    if (updatesEnabled()) {
        m_lines = Read();
    }
    return m_lines;
}

void CPane::OnPrint(QPrinter& printer)
{
    QPainter painter(&printer);
    PainterSurface surface(painter, printer.width(), printer.height());
    PaintPage(surface);
}

bool CPane::event(QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress) {
        emit Activated(this);
    }
    return CPictureWidget::event(event);
}

#include "moc_Pane.cpp"

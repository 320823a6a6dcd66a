#include "views/LeftView.h"

#include "document/OrrevaDoc.h"
#include "drawing/SummaryPicture.h"
#include "lib/text/Language.h"
#include "model/analysis/Summary.h"
#include "painting/PainterSurface.h"

#include <QPainter>
#include <QPrinter>

CLeftView::CLeftView(COrrevaDoc& doc, QWidget* parent) : CPane(doc, parent) { setObjectName("leftView"); }

void CLeftView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    PaintSummary(surface, *m_document.active_record,
                 {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage);
}

void CLeftView::OnPrint(QPrinter& printer)
{
    QPainter painter(&printer);
    PainterSurface surface(painter, printer.width(), printer.height());
    PaintSummary(surface, *m_document.active_record,
                 {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage, kPaperFontHeight);
}

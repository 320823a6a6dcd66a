#include "views/LeftView.h"

#include "document/OrrevaDoc.h"
#include "drawing/SummaryPicture.h"
#include "lib/text/Language.h"
#include "model/analysis/Summary.h"

CLeftView::CLeftView(COrrevaDoc& doc, QWidget* parent) : CPane(doc, parent) { setObjectName("leftView"); }

void CLeftView::Paint(Surface& surface)
{
    PaintSummary(surface, *m_document.active_record,
                 {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage);
}

void CLeftView::PaintPage(Surface& surface)
{
    PaintSummary(surface, *m_document.active_record,
                 {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage, kPaperFontHeight);
}

#include "moc_LeftView.cpp"

#include "views/LeftView.h"

#include "document/OrrevaDoc.h"
#include "drawing/SummaryPicture.h"
#include "lib/text/CodePage.h"
#include "model/analysis/Summary.h"

namespace {

constexpr Bilingual kSummaryPaneTitle{"design summary", "Übersicht"_cp1252};

} // namespace

CLeftView::CLeftView(COrrevaDoc& doc, QWidget* parent) : CPane(doc, kSummaryPaneTitle, parent) {}

void CLeftView::PaintAt(Surface& surface, std::int32_t fontHeight)
{
    PaintSummary(surface, *m_document.active_record,
                 {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage, fontHeight,
                 m_document.high_contrast != 0 ? kContrastSummary : kUsualSummary);
}

void CLeftView::Paint(Surface& surface) { PaintAt(surface, kScreenFontHeight); }

void CLeftView::PaintPage(Surface& surface) { PaintAt(surface, kPaperFontHeight); }

std::vector<PaneLine> CLeftView::Read()
{
    std::vector<PaneLine> lines;
    if (m_document.HasFile()) {
        for (const SummaryRow& row :
             SummaryRows(*m_document.active_record,
                         {m_document.field_diameter_100, m_document.field_angle_100}, g_nLanguage)) {
            lines.push_back({row.label, SpokenValue(row, g_nLanguage)});
        }
    }
    return lines;
}

#include "moc_LeftView.cpp"

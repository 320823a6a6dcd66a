#include "views/MatchingRonchiWidget.h"

#include "document/OrrevaDoc.h"
#include "drawing/RonchiPicture.h"

#include <ctime>

namespace {

constexpr int kSimulationControl = 1043;
// Room for the patterns with a margin around them.
constexpr int kWidth = 640;
constexpr int kHeight = 680;

} // namespace

CMatchingRonchiWidget::CMatchingRonchiWidget(COrrevaDoc& doc, QWidget* parent)
    : CPictureWidget(parent), m_document(doc), m_grating(doc.active_record->GetRonchiGrating()),
      m_constant(doc.active_record->GetRonchiConstant())
{
    setProperty("controlId", kSimulationControl);
    setMinimumSize(kWidth, kHeight);
}

void CMatchingRonchiWidget::Paint(Surface& surface)
{
    DrawRonchiPicture(surface, *m_document.active_record, m_grating, m_constant,
                      static_cast<std::uint32_t>(std::time(nullptr)));
}

#include "moc_MatchingRonchiWidget.cpp"

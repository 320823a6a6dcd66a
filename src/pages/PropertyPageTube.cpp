#include "pages/PropertyPageTube.h"

#include "document/OrrevaDoc.h"

CPropertyPageTube::CPropertyPageTube(COrrevaDoc& doc, QWidget* parent) : CPropertyPage(parent), document(doc)
{}

COrrevaData& CPropertyPageTube::Record() { return *document.active_record; }

void CPropertyPageTube::BindTubeHelp()
{
    constexpr int kInfo = 1019;
    constexpr int kHelp = 1031;
    constexpr long kTubePage = 105;
    BindHelp(kInfo, kHelp, kTubePage);
}

void CPropertyPageTube::ShowChange()
{
    emit Modified();
    document.UpdateAllViews();
    emit RecordChanged();
}

#include "pages/tube/PropertyPageTube.h"

#include "document/OrrevaDoc.h"
#include "pages/sheet/HelpStrip.h"

CPropertyPageTube::CPropertyPageTube(COrrevaDoc& doc, QWidget* parent) : CPropertyPage(parent), document(doc)
{}

COrrevaData& CPropertyPageTube::Record() { return *document.active_record; }

void CPropertyPageTube::BindTubeHelp()
{
    constexpr int kHelpControl = 1031;
    constexpr long kTubePage = 105;
    BindHelp(CHelpStrip::kInfoControl, kHelpControl, kTubePage);
}

void CPropertyPageTube::ShowChange()
{
    emit Modified();
    document.UpdateAllViews();
    emit RecordChanged();
}

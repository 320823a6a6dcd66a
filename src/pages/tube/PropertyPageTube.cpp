#include "pages/tube/PropertyPageTube.h"

#include "document/OrrevaDoc.h"
#include "model/analysis/TubeDesign.h"
#include "pages/sheet/HelpStrip.h"

CPropertyPageTube::CPropertyPageTube(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPage(parent), m_document(doc)
{}

COrrevaData& CPropertyPageTube::Record() { return *m_document.active_record; }

void CPropertyPageTube::BindTubeHelp()
{
    constexpr int kHelpControl = 1031;
    constexpr long kTubePage = 105;
    BindHelp(CHelpStrip::kInfoControl, kHelpControl, kTubePage);
}

void CPropertyPageTube::ShowChange()
{
    emit Modified();
    m_document.UpdateAllViews();
    emit RecordChanged();
}

void CPropertyPageTube::BindReset(QAbstractButton* button, QLineEdit* edit, const NumberField& field)
{
    ::BindReset(
        button, edit, [this, field] { return ResetTubeMeasure(Record(), field); }, [this] { ShowChange(); });
}

#include "moc_PropertyPageTube.cpp"

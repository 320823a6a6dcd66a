#include "pages/tube/PropertySheetTube.h"

#include "document/OrrevaDoc.h"
#include "pages/tube/PropertyPageTube1.h"
#include "pages/tube/PropertyPageTube2.h"
#include "pages/tube/PropertyPageTube3.h"
#include "views/TubePanel.h"

CPropertySheetTube::CPropertySheetTube(COrrevaDoc& doc, QWidget* parent)
    : CPropertySheet(tr("Tube Properties"), parent), m_document(doc), m_panel(new CTubePanel(doc, this))
{
    AddPage(tr("General"), [this](QWidget* place) {
        auto* const page = NewPage<CPropertyPageTube1>(place);
        connect(page, &CPropertyPageTube1::DesignClicked, this, &CPropertySheetTube::ExchangeDesignPage);
        return page;
    });
    AddDesignPage();
    AddPanel(m_panel);
    OpenWithRoom({840, 400});
}

template <class Page>
Page* CPropertySheetTube::NewPage(QWidget* place)
{
    auto* const page = new Page(m_document, place);
    connect(page, &CPropertyPageTube::RecordChanged, m_panel, qOverload<>(&QWidget::update));
    return page;
}

void CPropertySheetTube::AddDesignPage()
{
    m_solid = DesignOf(m_document.active_record->GetTubeType()) == kSolidTube ? 1 : 0;
    if (m_solid != 0) {
        AddPage(tr("Tube"), [this](QWidget* place) { return NewPage<CPropertyPageTube2>(place); });
    } else {
        AddPage(tr("Truss Tube"), [this](QWidget* place) { return NewPage<CPropertyPageTube3>(place); });
    }
}

void CPropertySheetTube::ExchangeDesignPage()
{
    constexpr int kDesignPage = 1;
    RemovePage(kDesignPage);
    AddDesignPage();
}

#include "moc_PropertySheetTube.cpp"

#include "pages/optics/PropertySheetCouder.h"

#include "pages/optics/PropertyPageCouder1.h"
#include "pages/optics/PropertyPageCouder5.h"
#include "pages/optics/PropertyPagesCouder.h"
#include "views/MirrorPanel.h"

#include <QScreen>

namespace {

template <class Page>
CPropertyPage* NewPage(QWidget* parent)
{
    return new Page(parent);
}

} // namespace

CPropertySheetCouder::CPropertySheetCouder(COrrevaDoc& document, QWidget* parent)
    : CPropertySheet(tr("Couder Properties"), parent)
{
    AddPage("Setup", [this](QWidget* place) {
        auto* const page = new CPropertyPageCouder5(place);
        connect(page, &CPropertyPageCouder5::MasksAsked, this, [this] { SetActivePage(PageCount() - 1); });
        return page;
    });
    AddPage("Messreihen", NewPage<CPropertyPageCouder2>);
    AddPage("Messwerte", NewPage<CPropertyPageCouder3>);
    AddPage("WaveFront Error", NewPage<CPropertyPageCouder4>);
    AddPage("Masken", [&document](QWidget* place) { return new CPropertyPageCouder1(document, place); });
    AddPanel(new CMirrorPanel(document, this));
    OpenWithRoom({1160, 760});
}

void CPropertySheetCouder::showEvent(QShowEvent* event)
{
    CPropertySheet::showEvent(event);
    move(screen()->availableGeometry().center() - frameGeometry().center() + pos());
}

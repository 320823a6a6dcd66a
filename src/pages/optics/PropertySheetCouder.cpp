#include "pages/optics/PropertySheetCouder.h"

#include "document/OrrevaDoc.h"
#include "pages/optics/FoucaultSession.h"
#include "pages/optics/PropertyPageCouder1.h"
#include "pages/optics/PropertyPageCouder2.h"
#include "pages/optics/PropertyPageCouder3.h"
#include "pages/optics/PropertyPageCouder4.h"
#include "pages/optics/PropertyPageCouder5.h"
#include "views/MirrorPanel.h"

#include <QScreen>

namespace {

/// The pages that others lead to.
constexpr int kSeriesPage = 1;
constexpr int kReadingsPage = 2;
constexpr int kMasksPage = 4;

} // namespace

CPropertySheetCouder::CPropertySheetCouder(COrrevaDoc& document, QWidget* parent)
    : CPropertySheet(tr("Couder Properties"), parent)
{
    auto* const session = new CFoucaultSession(
        document, [this, &document] { return ZoneTexts(document); }, this);
    AddPage("Setup", [this, session](QWidget* place) {
        auto* const page = new CPropertyPageCouder5(*session, place);
        connect(page, &CPropertyPageCouder5::MasksAsked, this, [this] { SetActivePage(kMasksPage); });
        connect(page, &CPropertyPageCouder5::SeriesAsked, this, [this] { SetActivePage(kSeriesPage); });
        connect(page, &CPropertyPageCouder5::ReadingsAsked, this, &CPropertySheetCouder::GoToNextReading);
        return page;
    });
    AddPage("Messreihen", [session](QWidget* place) { return new CPropertyPageCouder2(*session, place); });
    AddPage("Messwerte", [session](QWidget* place) { return new CPropertyPageCouder3(*session, place); });
    AddPage("WaveFront Error",
            [session](QWidget* place) { return new CPropertyPageCouder4(*session, place); });
    AddPage("Masken", [&document](QWidget* place) { return new CPropertyPageCouder1(document, place); });
    AddPanel(new CMirrorPanel(document, this));
    OpenWithRoom({1160, 760});
}

ZoneFields CPropertySheetCouder::ZoneTexts(COrrevaDoc& document) const
{
    if (const auto* const masks = qobject_cast<CPropertyPageCouder1*>(Page(kMasksPage))) {
        return masks->TakeFields();
    }
    const double D = document.main_record.GetMirrorDiameter();
    const double F = document.main_record.GetFocalLength();
    return OpenZoneFields(D, F);
}

void CPropertySheetCouder::GoToNextReading()
{
    SetActivePage(kReadingsPage);
    qobject_cast<CPropertyPageCouder3*>(Page(kReadingsPage))->GoToNextReading();
}

void CPropertySheetCouder::showEvent(QShowEvent* event)
{
    CPropertySheet::showEvent(event);
    move(screen()->availableGeometry().center() - frameGeometry().center() + pos());
}

#include "moc_PropertySheetCouder.cpp"

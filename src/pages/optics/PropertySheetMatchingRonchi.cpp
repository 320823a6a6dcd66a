#include "pages/optics/PropertySheetMatchingRonchi.h"

#include "pages/optics/PropertyPageMatchingRonchi1.h"
#include "pages/optics/PropertyPageMatchingRonchi2.h"

CPropertySheetMatchingRonchi::CPropertySheetMatchingRonchi(COrrevaDoc& document, QWidget* parent)
    : CPropertySheet(tr("Properties"), parent)
{
    AddPage("Setup",
            [&document](QWidget* place) { return new CPropertyPageMatchingRonchi1(document, place); });
    AddPage("Simulation",
            [&document](QWidget* place) { return new CPropertyPageMatchingRonchi2(document, place); });
    OpenWithRoom({690, 790});
}

#include "moc_PropertySheetMatchingRonchi.cpp"

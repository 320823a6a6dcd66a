#pragma once

#include "model/optics/FoucaultZones.h"
#include "pages/sheet/PropertySheet.h"

class COrrevaDoc;

/// The Foucault test, with the mirror's data and the look of a mask beside its pages. Its caption and the
/// pages of series, readings and wavefront are in the program's language; all else is German in both.
class CPropertySheetCouder : public CPropertySheet {
    Q_OBJECT

public:
    CPropertySheetCouder(COrrevaDoc& document, QWidget* parent);

protected:
    /// Centres the sheet on the screen.
    void showEvent(QShowEvent* event) override;

private:
    /// The zone calculator as it stands, or as it would open.
    ZoneFields ZoneTexts(COrrevaDoc& document) const;
    void GoToNextReading();
};

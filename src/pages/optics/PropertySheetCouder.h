#pragma once

#include "pages/sheet/PropertySheet.h"

class COrrevaDoc;

/// The Foucault test, with the mirror's data and the look of a mask beside its pages. All but its caption is
/// German in both languages.
class CPropertySheetCouder : public CPropertySheet {
    Q_OBJECT

public:
    CPropertySheetCouder(COrrevaDoc& document, QWidget* parent);

protected:
    /// Centres the sheet on the screen.
    void showEvent(QShowEvent* event) override;
};

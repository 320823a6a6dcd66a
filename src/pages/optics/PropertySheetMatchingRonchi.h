#pragma once

#include "pages/sheet/PropertySheet.h"

class COrrevaDoc;

/// The matching Ronchi test. All but its caption is German in both languages.
class CPropertySheetMatchingRonchi : public CPropertySheet {
    Q_OBJECT

public:
    CPropertySheetMatchingRonchi(COrrevaDoc& document, QWidget* parent);
};

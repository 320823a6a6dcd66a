#pragma once

#include "pages/sheet/PropertyPage.h"

class COrrevaDoc;

/// "Simulation": the picture of the test, and nothing else.
class CPropertyPageMatchingRonchi2 : public CPropertyPage {
    Q_OBJECT

public:
    CPropertyPageMatchingRonchi2(COrrevaDoc& document, QWidget* parent);
};

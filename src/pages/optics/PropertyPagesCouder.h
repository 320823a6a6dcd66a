#pragma once

#include "pages/sheet/PropertyPage.h"

#include <QGroupBox>
#include <QVBoxLayout>

// The pages of the Foucault test that hold nothing yet. Their titles mark what a complete test would hold.

/// "Messreihen": an empty frame.
class CPropertyPageCouder2 : public CPropertyPage {
    Q_OBJECT

public:
    explicit CPropertyPageCouder2(QWidget* parent) : CPropertyPage(parent)
    {
        (new QVBoxLayout(this))->addWidget(new QGroupBox(this));
    }
};

/// "Messwerte".
class CPropertyPageCouder3 : public CPropertyPage {
    Q_OBJECT

public:
    using CPropertyPage::CPropertyPage;
};

/// "WaveFront Error".
class CPropertyPageCouder4 : public CPropertyPage {
    Q_OBJECT

public:
    using CPropertyPage::CPropertyPage;
};

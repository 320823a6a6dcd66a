#include "pages/optics/PropertyPageCouder5.h"

#include "ui_PropertyPageCouder5.h"

CPropertyPageCouder5::CPropertyPageCouder5(QWidget* parent)
    : CPropertyPage(parent), ui(std::make_unique<Ui::PropertyPageCouder5>())
{
    ui->setupUi(this);
    connect(ui->newMask, &QPushButton::clicked, this, &CPropertyPageCouder5::MasksAsked);
}

CPropertyPageCouder5::~CPropertyPageCouder5() = default;

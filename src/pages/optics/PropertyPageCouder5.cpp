#include "pages/optics/PropertyPageCouder5.h"

#include "ui_PropertyPageCouder5.h"

CPropertyPageCouder5::CPropertyPageCouder5(QWidget* parent)
    : CPropertyPage(parent), m_ui(std::make_unique<Ui::PropertyPageCouder5>())
{
    m_ui->setupUi(this);
    connect(m_ui->newMask, &QPushButton::clicked, this, &CPropertyPageCouder5::MasksAsked);
}

CPropertyPageCouder5::~CPropertyPageCouder5() = default;

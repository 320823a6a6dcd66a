#include "pages/dialogs/RaytracingSettingsDialog.h"

#include "ui_RaytracingSettingsDialog.h"

CRaytracingSettingsDialog::CRaytracingSettingsDialog(std::uint8_t miss_in_grey, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::RaytracingSettingsDialog>())
{
    m_ui->setupUi(this);
    (miss_in_grey == 0 ? m_ui->hideMissing : m_ui->greyMissing)->setChecked(true);
}

CRaytracingSettingsDialog::~CRaytracingSettingsDialog() = default;

#include "moc_RaytracingSettingsDialog.cpp"

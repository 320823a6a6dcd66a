#include "pages/dialogs/RaytracingSettingsDialog.h"

#include "ui_RaytracingSettingsDialog.h"

CRaytracingSettingsDialog::CRaytracingSettingsDialog(std::uint8_t miss_in_grey, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::RaytracingSettingsDialog>())
{
    ui->setupUi(this);
    (miss_in_grey == 0 ? ui->hideMissing : ui->greyMissing)->setChecked(true);
}

CRaytracingSettingsDialog::~CRaytracingSettingsDialog() = default;

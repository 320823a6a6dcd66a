#include "pages/optics/FieldSimulationDlg.h"

#include "document/OrrevaDoc.h"

#include "ui_FieldSimulationDlg.h"

CFieldSimulationDlg::CFieldSimulationDlg(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::FieldSimulationDlg>())
{
    ui->setupUi(this);
    ui->field->SetTelescope(*document.active_record);
}

CFieldSimulationDlg::~CFieldSimulationDlg() = default;

#include "pages/optics/FieldSimulationDlg.h"

#include "document/OrrevaDoc.h"
#include "pages/sheet/PageArea.h"

#include "ui_FieldSimulationDlg.h"

CFieldSimulationDlg::CFieldSimulationDlg(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::FieldSimulationDlg>())
{
    m_ui->setupUi(this);
    ScrollOnSmallScreens(*this, *m_ui->field);
    m_ui->field->SetTelescope(*document.active_record);
}

CFieldSimulationDlg::~CFieldSimulationDlg() = default;

#include "moc_FieldSimulationDlg.cpp"

#include "pages/tools/SectorDialog.h"

#include "lib/text/Numbers.h"
#include "model/tools/SectorMeasures.h"
#include "painting/QtText.h"

#include "ui_SectorDialog.h"

CSectorDialog::CSectorDialog(QWidget* parent) : QDialog(parent), ui(std::make_unique<Ui::SectorDialog>())
{
    ui->setupUi(this);
    // The rows come in the language of the form and are sorted by it; what the index means does not follow.
    ui->type->model()->sort(0);
    ui->diameter->setText(kSectorStartDiameter);
    ui->diameter->selectAll();
    ui->type->setCurrentIndex(kSectorStartType);
    ui->value->setText(kSectorStartValue);
    OnChange();
    connect(ui->diameter, &QLineEdit::textChanged, this, &CSectorDialog::OnChange);
    connect(ui->type, &QComboBox::currentIndexChanged, this, &CSectorDialog::OnChange);
    connect(ui->value, &QLineEdit::textChanged, this, &CSectorDialog::OnChange);
}

CSectorDialog::~CSectorDialog() = default;

void CSectorDialog::OnChange()
{
    m_strDiameter = FromQString(ui->diameter->text());
    m_strValue = FromQString(ui->value->text());
    m_nType = ui->type->currentIndex();
    CopyValues();
    ui->m_wndSector->update();
}

void CSectorDialog::CopyValues()
{
    ui->m_wndSector->m_dDiameter = TextToDouble(m_strDiameter.c_str());
    ui->m_wndSector->m_dValue = TextToDouble(m_strValue.c_str());
    ui->m_wndSector->m_nType = m_nType;
}

void CSectorDialog::paintEvent(QPaintEvent* event)
{
    CopyValues();
    QDialog::paintEvent(event);
}

#include "pages/tools/SectorDialog.h"

#include "lib/text/Numbers.h"
#include "model/tools/SectorMeasures.h"
#include "pages/sheet/Fields.h"

#include "ui_SectorDialog.h"

CSectorDialog::CSectorDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::SectorDialog>())
{
    m_ui->setupUi(this);
    // The rows come in the language of the form and are sorted by it; what the index means does not follow.
    m_ui->type->model()->sort(0);
    ShowText(m_ui->diameter, kSectorStartDiameter);
    m_ui->diameter->selectAll();
    m_ui->type->setCurrentIndex(kSectorStartType);
    ShowText(m_ui->value, kSectorStartValue);
    OnChange();
    connect(m_ui->type, &QComboBox::currentIndexChanged, this, &CSectorDialog::OnChange);
    BindTyping({m_ui->diameter, m_ui->value}, [this] { OnChange(); });
}

CSectorDialog::~CSectorDialog() = default;

void CSectorDialog::OnChange()
{
    m_strDiameter = TextOf(m_ui->diameter);
    m_strValue = TextOf(m_ui->value);
    m_nType = m_ui->type->currentIndex();
    CopyValues();
    m_ui->m_wndSector->update();
}

void CSectorDialog::CopyValues()
{
    m_ui->m_wndSector->m_dDiameter = TextToDouble(m_strDiameter.c_str());
    m_ui->m_wndSector->m_dValue = TextToDouble(m_strValue.c_str());
    m_ui->m_wndSector->m_nType = m_nType;
}

void CSectorDialog::paintEvent(QPaintEvent* event)
{
    CopyValues();
    QDialog::paintEvent(event);
}

#include "moc_SectorDialog.cpp"

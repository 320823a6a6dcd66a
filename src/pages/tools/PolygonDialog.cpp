#include "pages/tools/PolygonDialog.h"

#include "lib/text/Numbers.h"
#include "model/tools/PolygonMeasures.h"
#include "painting/QtText.h"

#include "ui_PolygonDialog.h"

CPolygonDialog::CPolygonDialog(QWidget* parent) : QDialog(parent), ui(std::make_unique<Ui::PolygonDialog>())
{
    ui->setupUi(this);
    for (std::int32_t nType = 0; nType < kPolygonTypeCount; ++nType) {
        ui->type->addItem(ToQString(PolygonTypeName(nType)));
    }
    ui->type->setCurrentIndex(kPolygonStartType);
    ui->diameter->setText(kPolygonStartDiameter);
    ui->thickness->setText(kPolygonStartThickness);
    OnChange();
    connect(ui->type, &QComboBox::currentIndexChanged, this, &CPolygonDialog::OnChange);
    connect(ui->diameter, &QLineEdit::textChanged, this, &CPolygonDialog::OnChange);
    connect(ui->thickness, &QLineEdit::textChanged, this, &CPolygonDialog::OnChange);
}

CPolygonDialog::~CPolygonDialog() = default;

void CPolygonDialog::OnChange()
{
    m_nType = ui->type->currentIndex();
    m_strDiameter = FromQString(ui->diameter->text());
    m_strThickness = FromQString(ui->thickness->text());
    CopyValues();
    ui->m_wndPolygon->update();
}

void CPolygonDialog::CopyValues()
{
    ui->m_wndPolygon->m_dDiameter = TextToDouble(m_strDiameter.c_str());
    ui->m_wndPolygon->m_dValue = TextToDouble(m_strThickness.c_str());
    ui->m_wndPolygon->m_nType = m_nType;
}

void CPolygonDialog::paintEvent(QPaintEvent* event)
{
    CopyValues();
    QDialog::paintEvent(event);
}

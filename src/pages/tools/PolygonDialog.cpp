#include "pages/tools/PolygonDialog.h"

#include "lib/text/Numbers.h"
#include "model/tools/PolygonMeasures.h"
#include "painting/QtText.h"

#include "ui_PolygonDialog.h"

CPolygonDialog::CPolygonDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::PolygonDialog>())
{
    m_ui->setupUi(this);
    for (std::int32_t nType = 0; nType < kPolygonTypeCount; ++nType) {
        m_ui->type->addItem(ToQString(PolygonTypeName(nType)));
    }
    m_ui->type->setCurrentIndex(kPolygonStartType);
    m_ui->diameter->setText(kPolygonStartDiameter);
    m_ui->thickness->setText(kPolygonStartThickness);
    OnChange();
    connect(m_ui->type, &QComboBox::currentIndexChanged, this, &CPolygonDialog::OnChange);
    connect(m_ui->diameter, &QLineEdit::textChanged, this, &CPolygonDialog::OnChange);
    connect(m_ui->thickness, &QLineEdit::textChanged, this, &CPolygonDialog::OnChange);
}

CPolygonDialog::~CPolygonDialog() = default;

void CPolygonDialog::OnChange()
{
    m_nType = m_ui->type->currentIndex();
    m_strDiameter = FromQString(m_ui->diameter->text());
    m_strThickness = FromQString(m_ui->thickness->text());
    CopyValues();
    m_ui->m_wndPolygon->update();
}

void CPolygonDialog::CopyValues()
{
    m_ui->m_wndPolygon->m_dDiameter = TextToDouble(m_strDiameter.c_str());
    m_ui->m_wndPolygon->m_dValue = TextToDouble(m_strThickness.c_str());
    m_ui->m_wndPolygon->m_nType = m_nType;
}

void CPolygonDialog::paintEvent(QPaintEvent* event)
{
    CopyValues();
    QDialog::paintEvent(event);
}

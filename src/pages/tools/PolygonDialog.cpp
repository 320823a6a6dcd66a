#include "pages/tools/PolygonDialog.h"

#include "lib/text/Numbers.h"
#include "model/tools/PolygonMeasures.h"
#include "pages/sheet/Fields.h"
#include "pages/sheet/PageArea.h"
#include "painting/QtText.h"

#include "ui_PolygonDialog.h"

CPolygonDialog::CPolygonDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::PolygonDialog>())
{
    m_ui->setupUi(this);
    ScrollOnSmallScreens(*this, *m_ui->m_wndPolygon);
    for (std::int32_t nType = 0; nType < kPolygonTypeCount; ++nType) {
        m_ui->type->addItem(ToQString(PolygonTypeName(nType)));
    }
    m_ui->type->setCurrentIndex(kPolygonStartType);
    ShowText(m_ui->diameter, kPolygonStartDiameter);
    ShowText(m_ui->thickness, kPolygonStartThickness);
    OnChange();
    connect(m_ui->type, &QComboBox::currentIndexChanged, this, &CPolygonDialog::OnChange);
    BindTyping({m_ui->diameter, m_ui->thickness}, [this] { OnChange(); });
}

CPolygonDialog::~CPolygonDialog() = default;

void CPolygonDialog::OnChange()
{
    m_nType = m_ui->type->currentIndex();
    m_strDiameter = TextOf(m_ui->diameter);
    m_strThickness = TextOf(m_ui->thickness);
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

#include "moc_PolygonDialog.cpp"

#include "pages/telescope/MyPropertyPage06.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"

#include "ui_MyPropertyPage06.h"

CMyPropertyPage06::CMyPropertyPage06(COrrevaDoc& doc, QWidget* parent)
    : CWantedFieldPage(doc, kWizardBack | kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage06>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    const TubeTexts texts = ReadTube(Record());
    ShowText(m_ui->insideDiameter, texts.inside_diameter);
    ShowText(m_ui->thickness, texts.thickness);
    ShowText(m_ui->distanceBack, texts.distance_back);
    ShowText(m_ui->distanceFront, texts.distance_front);
    m_ui->results->SetColumns(kTubeColumns, g_nLanguage);

    BindWantedField(m_ui->wantedField, m_ui->wantedDegrees, m_ui->resetWantedField);
    BindData({m_ui->insideDiameter, m_ui->thickness, m_ui->distanceBack, m_ui->distanceFront});
    BindReset(m_ui->resetInsideDiameter, m_ui->insideDiameter, kTubeInsideDiameter);
    BindReset(m_ui->resetThickness, m_ui->thickness, kTubeThickness);
    BindReset(m_ui->resetDistanceBack, m_ui->distanceBack, kTubeDistanceBack);
    BindReset(m_ui->resetDistanceFront, m_ui->distanceFront, kTubeDistanceFront);
    Refresh();
}

CMyPropertyPage06::~CMyPropertyPage06() = default;

void CMyPropertyPage06::OnApply()
{
    CWantedFieldPage::OnApply();
    Refresh(); // the list also rests on the focuser and the primary
}

TubeTexts CMyPropertyPage06::Texts() const
{
    return {TextOf(m_ui->wantedField), TextOf(m_ui->wantedDegrees), TextOf(m_ui->insideDiameter),
            TextOf(m_ui->thickness),   TextOf(m_ui->distanceBack),  TextOf(m_ui->distanceFront)};
}

void CMyPropertyPage06::Store() { StoreTube(Record(), Texts()); }

void CMyPropertyPage06::Refresh() { m_ui->results->SetRows(TubeRows(Record(), Texts(), g_nLanguage)); }

#include "moc_MyPropertyPage06.cpp"

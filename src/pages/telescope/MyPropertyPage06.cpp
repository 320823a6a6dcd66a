#include "pages/telescope/MyPropertyPage06.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"

#include "ui_MyPropertyPage06.h"

CMyPropertyPage06::CMyPropertyPage06(COrrevaDoc& doc, QWidget* parent)
    : CWantedFieldPage(doc, kWizardBack | kWizardNext, parent), ui(std::make_unique<Ui::MyPropertyPage06>())
{
    ui->setupUi(this);
    BindHelpStrip();
    const TubeTexts texts = ReadTube(Record());
    ShowText(ui->insideDiameter, texts.inside_diameter);
    ShowText(ui->thickness, texts.thickness);
    ShowText(ui->distanceBack, texts.distance_back);
    ShowText(ui->distanceFront, texts.distance_front);
    ui->results->SetColumns(kTubeColumns, g_nLanguage);

    BindWantedField(ui->wantedField, ui->wantedDegrees, ui->resetWantedField);
    BindData({ui->insideDiameter, ui->thickness, ui->distanceBack, ui->distanceFront});
    BindReset(ui->resetInsideDiameter, ui->insideDiameter, kTubeInsideDiameter);
    BindReset(ui->resetThickness, ui->thickness, kTubeThickness);
    BindReset(ui->resetDistanceBack, ui->distanceBack, kTubeDistanceBack);
    BindReset(ui->resetDistanceFront, ui->distanceFront, kTubeDistanceFront);
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
    return {TextOf(ui->wantedField), TextOf(ui->wantedDegrees), TextOf(ui->insideDiameter),
            TextOf(ui->thickness),   TextOf(ui->distanceBack),  TextOf(ui->distanceFront)};
}

void CMyPropertyPage06::Store() { StoreTube(Record(), Texts()); }

void CMyPropertyPage06::Refresh() { ui->results->SetRows(TubeRows(Record(), Texts(), g_nLanguage)); }

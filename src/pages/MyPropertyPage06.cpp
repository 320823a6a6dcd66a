#include "pages/MyPropertyPage06.h"

#include "document/OrrevaDoc.h"
#include "lib/Language.h"
#include "model/WantedField.h"

#include "ui_MyPropertyPage06.h"

CMyPropertyPage06::CMyPropertyPage06(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), ui(std::make_unique<Ui::MyPropertyPage06>())
{
    ui->setupUi(this);
    BindHelpStrip();
    const TubeTexts texts = ReadTube(Record());
    ShowText(ui->wantedField, texts.wanted_field);
    ShowText(ui->insideDiameter, texts.inside_diameter);
    ShowText(ui->thickness, texts.thickness);
    ShowText(ui->distanceBack, texts.distance_back);
    ShowText(ui->distanceFront, texts.distance_front);
    ui->results->SetColumns(kTubeColumns, g_nLanguage);

    // Before the data: the list rests on the degrees.
    connect(ui->wantedField, &QLineEdit::textChanged, this, [this] { ShowDegrees(TextOf(ui->wantedField)); });
    BindData({ui->wantedField, ui->insideDiameter, ui->thickness, ui->distanceBack, ui->distanceFront});
    BindReset(ui->resetWantedField, ui->wantedField, [this] {
        const std::string text = ResetNumber(Record(), kTubeWantedField);
        ShowDegrees(text);
        return text;
    });
    BindReset(ui->resetInsideDiameter, ui->insideDiameter, kTubeInsideDiameter);
    BindReset(ui->resetThickness, ui->thickness, kTubeThickness);
    BindReset(ui->resetDistanceBack, ui->distanceBack, kTubeDistanceBack);
    BindReset(ui->resetDistanceFront, ui->distanceFront, kTubeDistanceFront);
    ShowDegrees(TextOf(ui->wantedField));
    Refresh();
}

CMyPropertyPage06::~CMyPropertyPage06() = default;

void CMyPropertyPage06::OnSetActive()
{
    CTelescopePage::OnSetActive();
    ShowText(ui->wantedField, ShowNumber(Record(), kTubeWantedField));
    ShowDegrees(TextOf(ui->wantedField));
}

void CMyPropertyPage06::OnApply()
{
    CTelescopePage::OnApply();
    Refresh(); // the list also rests on the focuser and the primary
}

TubeTexts CMyPropertyPage06::Texts() const
{
    return {TextOf(ui->wantedField), TextOf(ui->wantedDegrees), TextOf(ui->insideDiameter),
            TextOf(ui->thickness),   TextOf(ui->distanceBack),  TextOf(ui->distanceFront)};
}

void CMyPropertyPage06::Store() { StoreTube(Record(), Texts()); }

void CMyPropertyPage06::ShowDegrees(const std::string& wantedField)
{
    ShowText(ui->wantedDegrees, WantedFieldDegrees(Record(), wantedField));
}

void CMyPropertyPage06::Refresh() { ui->results->SetRows(TubeRows(Record(), Texts(), g_nLanguage)); }

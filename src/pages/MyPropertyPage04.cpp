#include "pages/MyPropertyPage04.h"

#include "document/OrrevaDoc.h"
#include "lib/Language.h"
#include "model/WantedField.h"
#include "views/QtText.h"

#include "ui_MyPropertyPage04.h"

CMyPropertyPage04::CMyPropertyPage04(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardFinish, parent), ui(std::make_unique<Ui::MyPropertyPage04>())
{
    ui->setupUi(this);
    BindHelpStrip();
    const SecondaryTexts texts = ReadSecondary(Record());
    ShowText(ui->wantedField, texts.wanted_field);
    ShowText(ui->minorAxis, texts.minor_axis);
    ui->results->SetColumns(kSecondaryColumns, g_nLanguage);

    // Before the data: the list rests on the degrees.
    connect(ui->wantedField, &QLineEdit::textChanged, this, [this] { ShowDegrees(TextOf(ui->wantedField)); });
    BindData({ui->wantedField, ui->minorAxis});
    BindReset(ui->resetWantedField, ui->wantedField, [this] {
        const std::string text = ResetNumber(Record(), kSecondaryWantedField);
        ShowDegrees(text);
        return text;
    });
    BindReset(ui->resetMinorAxis, ui->minorAxis, kSecondaryMinorAxis);
    connect(ui->details, &QCheckBox::toggled, this, &CMyPropertyPage04::Refresh);
    ShowDegrees(TextOf(ui->wantedField));
    Refresh();
}

CMyPropertyPage04::~CMyPropertyPage04() = default;

void CMyPropertyPage04::OnSetActive()
{
    CTelescopePage::OnSetActive();
    ShowText(ui->wantedField, ShowNumber(Record(), kSecondaryWantedField));
    ShowDegrees(TextOf(ui->wantedField));
}

SecondaryTexts CMyPropertyPage04::Texts() const
{
    return {TextOf(ui->wantedField), TextOf(ui->wantedDegrees), TextOf(ui->minorAxis)};
}

void CMyPropertyPage04::Store() { StoreSecondary(Record(), Texts()); }

void CMyPropertyPage04::ShowDegrees(const std::string& wantedField)
{
    ShowText(ui->wantedDegrees, WantedFieldDegrees(Record(), wantedField));
}

void CMyPropertyPage04::Refresh()
{
    const SecondaryResult result = AnalyseSecondary(Record(), Texts(), ui->details->isChecked(), g_nLanguage);
    ui->results->SetRows(result.rows);
    ui->verdict->setText(ToQString(result.verdict));
}

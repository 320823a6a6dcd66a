#include "pages/telescope/MyPropertyPage04.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage04.h"

CMyPropertyPage04::CMyPropertyPage04(COrrevaDoc& doc, QWidget* parent)
    : CWantedFieldPage(doc, kWizardBack | kWizardFinish, parent), ui(std::make_unique<Ui::MyPropertyPage04>())
{
    ui->setupUi(this);
    BindHelpStrip();
    ShowText(ui->minorAxis, ReadSecondary(Record()).minor_axis);
    ui->results->SetColumns(kSecondaryColumns, g_nLanguage);

    BindWantedField(ui->wantedField, ui->wantedDegrees, ui->resetWantedField);
    BindData({ui->minorAxis});
    BindReset(ui->resetMinorAxis, ui->minorAxis, kSecondaryMinorAxis);
    connect(ui->details, &QCheckBox::toggled, this, &CMyPropertyPage04::Refresh);
    Refresh();
}

CMyPropertyPage04::~CMyPropertyPage04() = default;

SecondaryTexts CMyPropertyPage04::Texts() const
{
    return {TextOf(ui->wantedField), TextOf(ui->wantedDegrees), TextOf(ui->minorAxis)};
}

void CMyPropertyPage04::Store() { StoreSecondary(Record(), Texts()); }

void CMyPropertyPage04::Refresh()
{
    const SecondaryResult result = AnalyseSecondary(Record(), Texts(), ui->details->isChecked(), g_nLanguage);
    ui->results->SetRows(result.rows);
    ui->verdict->setText(ToQString(result.verdict));
}

#include "pages/telescope/MyPropertyPage08.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "model/analysis/Balance.h"
#include "pages/telescope/ComponentDialog.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage08.h"

CMyPropertyPage08::CMyPropertyPage08(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardFinish, parent), ui(std::make_unique<Ui::MyPropertyPage08>())
{
    ui->setupUi(this);
    BindHelpStrip();
    ui->results->SetColumns(kBalanceColumns, g_nLanguage);
    connect(ui->edit, &QPushButton::clicked, this, &CMyPropertyPage08::EditComponent);
    connect(ui->suggest, &QPushButton::clicked, this, &CMyPropertyPage08::Suggest);
    Refresh();
}

CMyPropertyPage08::~CMyPropertyPage08() = default;

void CMyPropertyPage08::OnSetActive()
{
    CTelescopePage::OnSetActive();
    Refresh();
}

void CMyPropertyPage08::Refresh()
{
    ui->results->SetRows(BalanceRows(Record(), document.mirror_back_position, g_nLanguage));
    ui->totalWeight->setText(ToQString(TotalWeightText(Record())));
    ui->centerOfGravity->setText(ToQString(CenterOfGravityText(Record(), g_nLanguage)));
}

void CMyPropertyPage08::EditComponent()
{
    const int row = ui->results->SelectedRow();
    if (const Bilingual* const message = BalanceEditMessage(row)) {
        document.Host().ShowMessage(message->In(g_nLanguage));
        return;
    }
    CComponentDialog(Record(), static_cast<std::size_t>(row), this).exec();
    Changed(); // after Cancel too: a reset button may have written
}

void CMyPropertyPage08::Suggest()
{
    if (document.Host().AskYesNo(kSuggestQuestion.In(g_nLanguage))) {
        SuggestBalance(Record());
        Changed();
    }
}

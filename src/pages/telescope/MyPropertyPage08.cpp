#include "pages/telescope/MyPropertyPage08.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "model/analysis/Balance.h"
#include "pages/telescope/ComponentDialog.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage08.h"

CMyPropertyPage08::CMyPropertyPage08(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardFinish, parent), m_ui(std::make_unique<Ui::MyPropertyPage08>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    m_ui->results->SetColumns(kBalanceColumns, g_nLanguage);
    connect(m_ui->edit, &QPushButton::clicked, this, &CMyPropertyPage08::EditComponent);
    connect(m_ui->suggest, &QPushButton::clicked, this, &CMyPropertyPage08::Suggest);
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
    m_ui->results->SetRows(BalanceRows(Record(), m_document.mirror_back_position, g_nLanguage));
    m_ui->totalWeight->setText(ToQString(TotalWeightText(Record())));
    m_ui->centerOfGravity->setText(ToQString(CenterOfGravityText(Record(), g_nLanguage)));
}

void CMyPropertyPage08::EditComponent()
{
    const int row = m_ui->results->SelectedRow();
    if (const Bilingual* const message = BalanceEditMessage(row)) {
        m_document.Host().ShowMessage(message->In(g_nLanguage));
        return;
    }
    CComponentDialog(Record(), static_cast<std::size_t>(row), this).exec();
    Changed(); // after Cancel too: a reset button may have written
}

void CMyPropertyPage08::Suggest()
{
    if (m_document.Host().AskYesNo(kSuggestQuestion.In(g_nLanguage))) {
        SuggestBalance(Record());
        Changed();
        m_document.NoteSuggestion();
    }
}

#include "moc_MyPropertyPage08.cpp"

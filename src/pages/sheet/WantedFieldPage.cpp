#include "pages/sheet/WantedFieldPage.h"

#include "model/rows/WantedField.h"

#include <QAbstractButton>
#include <QLineEdit>

void CWantedFieldPage::OnSetActive()
{
    CTelescopePage::OnSetActive();
    ShowWantedField(ShowNumber(Record(), kWantedField));
}

void CWantedFieldPage::BindWantedField(QLineEdit* millimetres, QLineEdit* degrees, QAbstractButton* reset)
{
    m_wantedField = millimetres;
    m_wantedDegrees = degrees;
    ShowWantedField(ShowNumber(Record(), kWantedField));
    connect(m_wantedField, &QLineEdit::textChanged, this, &CWantedFieldPage::ShowDegrees);
    BindData({m_wantedField});
    connect(reset, &QAbstractButton::clicked, this, [this] {
        ShowWantedField(ResetNumber(Record(), kWantedField));
        Changed();
    });
}

void CWantedFieldPage::ShowWantedField(const std::string& text)
{
    ShowText(m_wantedField, text);
    ShowDegrees();
}

void CWantedFieldPage::ShowDegrees()
{
    ShowText(m_wantedDegrees, WantedFieldDegrees(Record(), TextOf(m_wantedField)));
}

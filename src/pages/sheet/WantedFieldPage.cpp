#include "pages/sheet/WantedFieldPage.h"

#include "model/rows/WantedField.h"

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
    BindTyping({m_wantedField}, [this] { ShowDegrees(); });
    BindData({m_wantedField});
    ::BindReset(
        reset, m_wantedField, [this] { return ResetNumber(Record(), kWantedField); },
        [this] {
            ShowDegrees();
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

#include "moc_WantedFieldPage.cpp"

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
    wantedField = millimetres;
    wantedDegrees = degrees;
    ShowWantedField(ShowNumber(Record(), kWantedField));
    connect(wantedField, &QLineEdit::textChanged, this, &CWantedFieldPage::ShowDegrees);
    BindData({wantedField});
    connect(reset, &QAbstractButton::clicked, this, [this] {
        ShowWantedField(ResetNumber(Record(), kWantedField));
        Changed();
    });
}

void CWantedFieldPage::ShowWantedField(const std::string& text)
{
    ShowText(wantedField, text);
    ShowDegrees();
}

void CWantedFieldPage::ShowDegrees()
{
    ShowText(wantedDegrees, WantedFieldDegrees(Record(), TextOf(wantedField)));
}

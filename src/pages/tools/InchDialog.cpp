#include "pages/tools/InchDialog.h"

#include "model/tools/InchConversion.h"
#include "pages/sheet/Fields.h"

#include "ui_InchDialog.h"

CInchDialog::CInchDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::InchDialog>())
{
    m_ui->setupUi(this);
    BindTyping({m_ui->mm}, [this] { OnChangeMm(); });
    BindTyping({m_ui->inch}, [this] { OnChangeInch(); });
}

CInchDialog::~CInchDialog() = default;

void CInchDialog::OnChangeMm()
{
    m_strMm = TextOf(m_ui->mm);
    m_strMmResult = MmToInchText(m_strMm);
    ShowText(m_ui->mmResult, m_strMmResult);
}

void CInchDialog::OnChangeInch()
{
    m_strInch = TextOf(m_ui->inch);
    m_strInchResult = InchToMmText(m_strInch);
    ShowText(m_ui->inchResult, m_strInchResult);
}

#include "moc_InchDialog.cpp"

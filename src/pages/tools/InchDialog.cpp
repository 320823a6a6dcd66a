#include "pages/tools/InchDialog.h"

#include "model/tools/InchConversion.h"
#include "painting/QtText.h"

#include "ui_InchDialog.h"

CInchDialog::CInchDialog(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::InchDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->mm, &QLineEdit::textChanged, this, &CInchDialog::OnChangeMm);
    connect(m_ui->inch, &QLineEdit::textChanged, this, &CInchDialog::OnChangeInch);
}

CInchDialog::~CInchDialog() = default;

void CInchDialog::OnChangeMm()
{
    m_strMm = FromQString(m_ui->mm->text());
    m_strMmResult = MmToInchText(m_strMm);
    m_ui->mmResult->setText(ToQString(m_strMmResult));
}

void CInchDialog::OnChangeInch()
{
    m_strInch = FromQString(m_ui->inch->text());
    m_strInchResult = InchToMmText(m_strInch);
    m_ui->inchResult->setText(ToQString(m_strInchResult));
}

#include "pages/tools/InchDialog.h"

#include "model/tools/InchConversion.h"
#include "painting/QtText.h"

#include "ui_InchDialog.h"

CInchDialog::CInchDialog(QWidget* parent) : QDialog(parent), ui(std::make_unique<Ui::InchDialog>())
{
    ui->setupUi(this);
    connect(ui->mm, &QLineEdit::textChanged, this, &CInchDialog::OnChangeMm);
    connect(ui->inch, &QLineEdit::textChanged, this, &CInchDialog::OnChangeInch);
}

CInchDialog::~CInchDialog() = default;

void CInchDialog::OnChangeMm()
{
    m_strMm = FromQString(ui->mm->text());
    m_strMmResult = MmToInchText(m_strMm);
    ui->mmResult->setText(ToQString(m_strMmResult));
}

void CInchDialog::OnChangeInch()
{
    m_strInch = FromQString(ui->inch->text());
    m_strInchResult = InchToMmText(m_strInch);
    ui->inchResult->setText(ToQString(m_strInchResult));
}

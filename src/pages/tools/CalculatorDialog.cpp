#include "pages/tools/CalculatorDialog.h"

#include "model/tools/Calculator.h"
#include "painting/QtText.h"

#include "ui_CalculatorDialog.h"

CCalculatorDialog::CCalculatorDialog(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::CalculatorDialog>())
{
    ui->setupUi(this);
    connect(ui->input, &QPlainTextEdit::textChanged, this, &CCalculatorDialog::OnChangeInput);
}

CCalculatorDialog::~CCalculatorDialog() = default;

void CCalculatorDialog::OnChangeInput()
{
    m_strInput = FromTextDocument(*ui->input->document());
    m_strResult = Calculate(m_strInput).text;
    ui->result->setText(ToQString(m_strResult));
    ui->result->setCursorPosition(0); // a long number is read from its first digit
}

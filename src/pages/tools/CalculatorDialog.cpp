#include "pages/tools/CalculatorDialog.h"

#include "model/tools/Calculator.h"
#include "pages/sheet/Fields.h"
#include "painting/QtText.h"

#include "ui_CalculatorDialog.h"

CCalculatorDialog::CCalculatorDialog(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::CalculatorDialog>())
{
    m_ui->setupUi(this);
    connect(m_ui->input, &QPlainTextEdit::textChanged, this, &CCalculatorDialog::OnChangeInput);
}

CCalculatorDialog::~CCalculatorDialog() = default;

void CCalculatorDialog::OnChangeInput()
{
    m_strInput = FromTextDocument(*m_ui->input->document());
    m_strResult = Calculate(m_strInput).text;
    ShowText(m_ui->result, m_strResult);
    m_ui->result->setCursorPosition(0); // a long number is read from its first digit
}

#include "moc_CalculatorDialog.cpp"

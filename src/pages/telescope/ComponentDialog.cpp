#include "pages/telescope/ComponentDialog.h"

#include "model/analysis/Balance.h"
#include "pages/sheet/Fields.h"

#include "ui_ComponentDialog.h"

CComponentDialog::CComponentDialog(COrrevaData& record, std::size_t row, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ComponentDialog>()), m_record(record), m_component(row)
{
    m_ui->setupUi(this);
    const ComponentTexts texts = ReadComponent(m_record, m_component);
    ShowText(m_ui->weight, texts.weight);
    ShowText(m_ui->balance, texts.balance);
    m_ui->weight->selectAll();
    BindReset(m_ui->resetWeight, m_ui->weight,
              [this] { return ResetComponentWeight(m_record, m_component); });
    BindReset(m_ui->resetBalance, m_ui->balance,
              [this] { return ResetComponentBalance(m_record, m_component); });
}

CComponentDialog::~CComponentDialog() = default;

void CComponentDialog::accept()
{
    StoreComponent(m_record, m_component, {TextOf(m_ui->weight), TextOf(m_ui->balance)});
    QDialog::accept();
}

#include "moc_ComponentDialog.cpp"

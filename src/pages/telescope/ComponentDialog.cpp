#include "pages/telescope/ComponentDialog.h"

#include "model/analysis/Balance.h"
#include "painting/QtText.h"

#include "ui_ComponentDialog.h"

CComponentDialog::CComponentDialog(COrrevaData& record, std::size_t row, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ComponentDialog>()), m_record(record), m_component(row)
{
    m_ui->setupUi(this);
    const ComponentTexts texts = ReadComponent(m_record, m_component);
    m_ui->weight->setText(ToQString(texts.weight));
    m_ui->balance->setText(ToQString(texts.balance));
    m_ui->weight->selectAll();
    connect(m_ui->resetWeight, &QAbstractButton::clicked, this,
            [this] { m_ui->weight->setText(ToQString(ResetComponentWeight(m_record, m_component))); });
    connect(m_ui->resetBalance, &QAbstractButton::clicked, this,
            [this] { m_ui->balance->setText(ToQString(ResetComponentBalance(m_record, m_component))); });
}

CComponentDialog::~CComponentDialog() = default;

void CComponentDialog::accept()
{
    StoreComponent(m_record, m_component,
                   {FromQString(m_ui->weight->text()), FromQString(m_ui->balance->text())});
    QDialog::accept();
}

#include "pages/telescope/ComponentDialog.h"

#include "model/analysis/Balance.h"
#include "painting/QtText.h"

#include "ui_ComponentDialog.h"

CComponentDialog::CComponentDialog(COrrevaData& data, std::size_t row, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::ComponentDialog>()), record(data), component(row)
{
    ui->setupUi(this);
    const ComponentTexts texts = ReadComponent(record, component);
    ui->weight->setText(ToQString(texts.weight));
    ui->balance->setText(ToQString(texts.balance));
    ui->weight->selectAll();
    connect(ui->resetWeight, &QAbstractButton::clicked, this,
            [this] { ui->weight->setText(ToQString(ResetComponentWeight(record, component))); });
    connect(ui->resetBalance, &QAbstractButton::clicked, this,
            [this] { ui->balance->setText(ToQString(ResetComponentBalance(record, component))); });
}

CComponentDialog::~CComponentDialog() = default;

void CComponentDialog::accept()
{
    StoreComponent(record, component, {FromQString(ui->weight->text()), FromQString(ui->balance->text())});
    QDialog::accept();
}

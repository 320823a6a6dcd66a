#include "pages/dialogs/EarlierDesignsDialog.h"

#include "document/EarlierDesigns.h"
#include "lib/text/Language.h"
#include "model/record/OrrevaData.h"

#include "ui_EarlierDesignsDialog.h"

#include <QItemSelectionModel>
#include <QPushButton>

CEarlierDesignsDialog::CEarlierDesignsDialog(std::span<const RescueCopy> copies,
                                             std::optional<std::size_t> selected, QWidget* parent)
    : QDialog(parent), m_copies(copies), m_ui(std::make_unique<Ui::EarlierDesignsDialog>())
{
    m_ui->setupUi(this);
    m_ui->buttons->button(QDialogButtonBox::Open)->setDefault(true);
    CResultList& list = *m_ui->designs;
    list.SetColumns(kEarlierDesignColumns, g_nLanguage);
    list.SetComputedRows(static_cast<int>(copies.size()), [copies](int row) {
        return EarlierDesignRow(copies[static_cast<std::size_t>(row)], g_nLanguage);
    });
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CEarlierDesignsDialog::ShowChosen);
    connect(&list, &QAbstractItemView::doubleClicked, this, &QDialog::accept);
    const std::size_t first = selected.value_or(0); // the newest
    if (first < copies.size()) {
        list.setCurrentIndex(list.model()->index(static_cast<int>(first), 0));
    }
    ShowChosen();
}

CEarlierDesignsDialog::~CEarlierDesignsDialog() = default;

std::optional<std::size_t> CEarlierDesignsDialog::Chosen() const
{
    const int row = m_ui->designs->SelectedRow();
    return row < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(row));
}

void CEarlierDesignsDialog::ShowChosen()
{
    COrrevaData design;
    const auto chosen = Chosen();
    const bool readable = chosen && ReadEarlierDesign(m_copies[*chosen], design);
    m_ui->section->SetTelescope(readable ? &design : nullptr);
    m_ui->buttons->button(QDialogButtonBox::Open)->setEnabled(readable);
}

#include "moc_EarlierDesignsDialog.cpp"

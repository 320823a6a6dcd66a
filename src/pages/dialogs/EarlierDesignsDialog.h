#pragma once

#include "document/RescueCopies.h"

#include <QDialog>

#include <memory>
#include <optional>
#include <span>

namespace Ui {
class EarlierDesignsDialog;
}

/// The copies of designs that were kept aside, newest first, with the cross-section of the one that is
/// marked.
class CEarlierDesignsDialog : public QDialog {
    Q_OBJECT

public:
    /// The copies must outlive the dialog.
    CEarlierDesignsDialog(std::span<const RescueCopy> copies, std::optional<std::size_t> selected,
                          QWidget* parent);
    ~CEarlierDesignsDialog() override;

    /// The index of the copy that is marked, nothing if none is.
    std::optional<std::size_t> Chosen() const;

private:
    void ShowChosen();

    std::span<const RescueCopy> m_copies;
    std::unique_ptr<Ui::EarlierDesignsDialog> m_ui;
};

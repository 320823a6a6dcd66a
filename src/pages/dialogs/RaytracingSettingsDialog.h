#pragma once

#include <QDialog>

#include <cstdint>
#include <memory>

namespace Ui {
class RaytracingSettingsDialog;
}

/// Rays that miss the focal plane: shown in grey, or not. The dialog opens on the button of the present
/// value; what its OK does is the document's business.
class CRaytracingSettingsDialog : public QDialog {
    Q_OBJECT

public:
    CRaytracingSettingsDialog(std::uint8_t miss_in_grey, QWidget* parent);
    ~CRaytracingSettingsDialog() override;

private:
    std::unique_ptr<Ui::RaytracingSettingsDialog> m_ui;
};

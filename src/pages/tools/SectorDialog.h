#pragma once

#include <QDialog>

#include <cstdint>
#include <memory>
#include <string>

namespace Ui {
class SectorDialog;
}

/// Sagitta and chord of a segment of a circle, as labels of a drawing.
class CSectorDialog : public QDialog {
    Q_OBJECT

public:
    explicit CSectorDialog(QWidget* parent);
    ~CSectorDialog() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void OnChange();
    void CopyValues();

    std::unique_ptr<Ui::SectorDialog> m_ui;
    std::string m_strDiameter;
    std::string m_strValue;
    std::int32_t m_nType = -1; ///< row of the list
};

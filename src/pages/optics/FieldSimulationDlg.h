#pragma once

#include <QDialog>

#include <memory>

class COrrevaDoc;
namespace Ui {
class FieldSimulationDlg;
}

/// What the eye will see of the field: a disc that darkens outward. Nothing is written back.
class CFieldSimulationDlg : public QDialog {
    Q_OBJECT

public:
    CFieldSimulationDlg(COrrevaDoc& document, QWidget* parent);
    ~CFieldSimulationDlg() override;

private:
    std::unique_ptr<Ui::FieldSimulationDlg> m_ui;
};

#pragma once

#include "model/analysis/DesignCheck.h"

#include <QDialog>

class QLabel;
class QTableWidget;

/// The findings of the design check in a window beside the workbench: severity, sentence, remedy. It stays
/// open and is told each new state.
class CDesignCheckWindow : public QDialog {
    Q_OBJECT

public:
    explicit CDesignCheckWindow(QWidget* parent);

    void ShowFindings(const std::vector<DesignFinding>& findings);
    /// No telescope is loaded.
    void ShowNothing();

signals:
    /// The user wants to see the field of a key of the design file.
    void FieldWanted(const QString& key);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void AddFinding(int row, const DesignFinding& finding);
    void ShowMessage(const Bilingual& message);

    QLabel* m_message;
    QTableWidget* m_table;
};

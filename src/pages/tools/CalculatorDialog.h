#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class CalculatorDialog;
}

/// The expression calculator: evaluates what is typed at every change.
class CCalculatorDialog : public QDialog {
    Q_OBJECT

public:
    explicit CCalculatorDialog(QWidget* parent);
    ~CCalculatorDialog() override;

private:
    void OnChangeInput();

    std::unique_ptr<Ui::CalculatorDialog> m_ui;
    std::string m_strInput;
    std::string m_strResult;
};

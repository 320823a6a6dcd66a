#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class InchDialog;
}

/// Converts mm to inches and inches to mm; the two directions do not feed one another.
class CInchDialog : public QDialog {
    Q_OBJECT

public:
    explicit CInchDialog(QWidget* parent);
    ~CInchDialog() override;

private:
    void OnChangeMm();
    void OnChangeInch();

    std::unique_ptr<Ui::InchDialog> m_ui;
    std::string m_strMm;
    std::string m_strInch;
    std::string m_strMmResult; ///< what the mm are in inches
    std::string m_strInchResult;
};

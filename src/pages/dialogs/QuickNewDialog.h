#pragma once

#include "document/DocumentHost.h"

#include <QDialog>

#include <memory>

namespace Ui {
class QuickNewDialog;
}

/// The quick New dialog: title, aperture and focal length. It checks nothing, but tells how
/// it reads the two numbers.
class CQuickNewDialog : public QDialog {
    Q_OBJECT

public:
    CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent);
    ~CQuickNewDialog() override;

    QuickNewTexts Texts() const;

private:
    void ShowUnderstood();

    std::unique_ptr<Ui::QuickNewDialog> m_ui;
};

#pragma once

#include "document/DocumentHost.h"

#include <QDialog>

#include <memory>

namespace Ui {
class QuickNewDialog;
}

/// The quick New dialog: title, aperture and focal length. It checks nothing.
class CQuickNewDialog : public QDialog {
    Q_OBJECT

public:
    CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent);
    ~CQuickNewDialog() override;

    QuickNewTexts Texts() const;

private:
    std::unique_ptr<Ui::QuickNewDialog> m_ui;
};

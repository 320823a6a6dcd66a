#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class AboutBox;
}

/// The about box. Its German form has one button more, to the formula collection; kept: it opens the start
/// page of the manual.
class CAboutBox : public QDialog {
    Q_OBJECT

public:
    CAboutBox(bool germanForm, QWidget* parent);
    ~CAboutBox() override;

private:
    std::unique_ptr<Ui::AboutBox> m_ui;
};

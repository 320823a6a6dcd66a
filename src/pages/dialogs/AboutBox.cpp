#include "pages/dialogs/AboutBox.h"

#include "pages/sheet/Help.h"

#include "ui_AboutBox.h"

CAboutBox::CAboutBox(bool germanForm, QWidget* parent) : QDialog(parent), ui(std::make_unique<Ui::AboutBox>())
{
    ui->setupUi(this);
    ui->icon->setPixmap(QIcon(":/icons/orreva.svg").pixmap(64, 64));
    ui->formulas->setVisible(germanForm);
    connect(ui->formulas, &QPushButton::clicked, this, [] { WinHelp(0, kHelpContext); });
}

CAboutBox::~CAboutBox() = default;

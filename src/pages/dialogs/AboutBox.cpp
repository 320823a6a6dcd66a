#include "pages/dialogs/AboutBox.h"

#include "pages/sheet/Help.h"
#include "views/ProgramIcon.h"

#include "Version.h"
#include "ui_AboutBox.h"

CAboutBox::CAboutBox(bool germanForm, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::AboutBox>())
{
    m_ui->setupUi(this);
    m_ui->version->setText(QString("Orreva Version ") + kVersion);
    m_ui->icon->setPixmap(ProgramIcon("orreva").pixmap(64, 64));
    m_ui->formulas->setVisible(germanForm);
    m_ui->buttons->button(QDialogButtonBox::Ok)->setFocus(); // and not the button before it
    connect(m_ui->formulas, &QPushButton::clicked, this, [] { WinHelp(0, kHelpContext); });
}

CAboutBox::~CAboutBox() = default;

#include "moc_AboutBox.cpp"

#include "pages/telescope/MyPropertyPage01.h"

#include "document/OrrevaDoc.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage01.h"

CMyPropertyPage01::CMyPropertyPage01(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardNext, parent), ui(std::make_unique<Ui::MyPropertyPage01>())
{
    ui->setupUi(this);
    BindHelpStrip();
    ShowText(ui->title, Record().GetTitle().GetText());
    ui->remarks->setPlainText(ToQString(Record().GetDescription().GetText()));
    BindData({ui->title});
    connect(ui->remarks, &QPlainTextEdit::textChanged, this, &CMyPropertyPage01::Changed);
}

CMyPropertyPage01::~CMyPropertyPage01() = default;

void CMyPropertyPage01::Store()
{
    const std::string title = TextOf(ui->title);
    Record().SetTitle(title.empty() ? "Unbenannt" : title.c_str()); // in both languages
    Record().SetDescription(FromTextDocument(*ui->remarks->document()).c_str());
}

#include "pages/telescope/MyPropertyPage01.h"

#include "document/OrrevaDoc.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage01.h"

CMyPropertyPage01::CMyPropertyPage01(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage01>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    ShowText(m_ui->title, Record().GetTitle().GetText());
    m_ui->remarks->setPlainText(ToQString(Record().GetDescription().GetText()));
    BindData({m_ui->title});
    connect(m_ui->remarks, &QPlainTextEdit::textChanged, this, &CMyPropertyPage01::Changed);
}

CMyPropertyPage01::~CMyPropertyPage01() = default;

void CMyPropertyPage01::Store()
{
    const std::string title = TextOf(m_ui->title);
    Record().SetTitle(title.empty() ? "Unbenannt" : title.c_str()); // in both languages
    Record().SetDescription(FromTextDocument(*m_ui->remarks->document()).c_str());
}

#include "moc_MyPropertyPage01.cpp"

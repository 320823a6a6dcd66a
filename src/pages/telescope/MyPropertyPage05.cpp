#include "pages/telescope/MyPropertyPage05.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "model/analysis/Cell.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage05.h"

CMyPropertyPage05::CMyPropertyPage05(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage05>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    m_ui->results->SetColumns(kCellColumns, g_nLanguage);
    connect(m_ui->recompute, &QPushButton::clicked, this, &CMyPropertyPage05::Analyse);
}

CMyPropertyPage05::~CMyPropertyPage05() = default;

void CMyPropertyPage05::Analyse()
{
    const CellFigures figures = ComputeCell(Record());
    m_ui->results->SetRows(CellRows(figures, g_nLanguage));
    m_ui->verdict->setText(ToQString(CellVerdict(figures, g_nLanguage)));
}

#include "moc_MyPropertyPage05.cpp"

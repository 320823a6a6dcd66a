#include "pages/telescope/MyPropertyPage04.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "lib/text/Numbers.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage04.h"

CMyPropertyPage04::CMyPropertyPage04(COrrevaDoc& doc, QWidget* parent)
    : CWantedFieldPage(doc, kWizardBack | kWizardFinish, parent),
      m_ui(std::make_unique<Ui::MyPropertyPage04>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    ShowText(m_ui->minorAxis, ReadSecondary(Record()).minor_axis);
    m_ui->results->SetColumns(kSecondaryColumns, g_nLanguage);

    BindWantedField(m_ui->wantedField, m_ui->wantedDegrees, m_ui->resetWantedField);
    BindData({m_ui->minorAxis});
    BindReset(m_ui->resetMinorAxis, m_ui->minorAxis, kSecondaryMinorAxis);
    connect(m_ui->details, &QCheckBox::toggled, this, &CMyPropertyPage04::Refresh);
    connect(m_ui->curve, &QPushButton::clicked, this, [this] {
        const SecondaryTexts typed = Texts();
        m_document.Host().ShowIllumination(StopsOf(Record(), typed),
                                           TextToDouble(typed.wanted_field.c_str()));
    });
    Refresh();
}

CMyPropertyPage04::~CMyPropertyPage04() = default;

SecondaryTexts CMyPropertyPage04::Texts() const
{
    return {TextOf(m_ui->wantedField), TextOf(m_ui->wantedDegrees), TextOf(m_ui->minorAxis)};
}

void CMyPropertyPage04::Store() { StoreSecondary(Record(), Texts()); }

void CMyPropertyPage04::Refresh()
{
    const SecondaryResult result =
        AnalyseSecondary(Record(), Texts(), m_ui->details->isChecked(), g_nLanguage);
    m_ui->results->SetRows(result.rows);
    m_ui->verdict->setText(ToQString(result.verdict));
}

#include "moc_MyPropertyPage04.cpp"

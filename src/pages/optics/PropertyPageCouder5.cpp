#include "pages/optics/PropertyPageCouder5.h"

#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"
#include "pages/optics/SeriesList.h"
#include "painting/QtText.h"

#include "ui_PropertyPageCouder5.h"

CPropertyPageCouder5::CPropertyPageCouder5(CFoucaultSession& session, QWidget* parent)
    : CFoucaultPage(session, parent), m_ui(std::make_unique<Ui::PropertyPageCouder5>())
{
    m_ui->setupUi(this);
    connect(m_ui->newMask, &QPushButton::clicked, this, &CPropertyPageCouder5::MasksAsked);
    connect(m_ui->newSeries, &QPushButton::clicked, this, [this] {
        m_session.Add();
        emit SeriesAsked();
    });
    connect(m_ui->newValue, &QPushButton::clicked, this, [this] {
        if (m_session.CurrentSeries() == nullptr) {
            m_session.Add();
        }
        emit ReadingsAsked();
    });
    connect(m_ui->series, &QComboBox::activated, this, [this](int index) { m_session.Choose(index); });
    ShowSession();
}

CPropertyPageCouder5::~CPropertyPageCouder5() = default;

void CPropertyPageCouder5::ShowSession()
{
    ListSeries(*m_ui->series, m_session);
    m_ui->mask->clear();
    if (g_pCurrentMask != nullptr) { // there is one current mask and no more
        const ZoneTable zones = MaskZones(g_pCurrentMask.get());
        m_ui->mask->addItem(ToQString(
            MaskName(g_pCurrentMask->mask_type, static_cast<std::size_t>(zones.RowCount()), g_nLanguage)));
    }
}

#include "moc_PropertyPageCouder5.cpp"

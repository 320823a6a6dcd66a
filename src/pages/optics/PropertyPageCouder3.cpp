#include "pages/optics/PropertyPageCouder3.h"

#include "lib/text/CodePage.h"
#include "pages/optics/ReadingsModel.h"
#include "pages/optics/SeriesList.h"
#include "painting/QtText.h"

#include "ui_PropertyPageCouder3.h"

CPropertyPageCouder3::CPropertyPageCouder3(CFoucaultSession& session, QWidget* parent)
    : CFoucaultPage(session, parent), m_model(new CReadingsModel(session, this)),
      m_ui(std::make_unique<Ui::PropertyPageCouder3>())
{
    m_ui->setupUi(this);
    m_ui->readings->setModel(m_model);
    connect(m_ui->series, &QComboBox::activated, this, [this](int index) { m_session.Choose(index); });
    connect(m_ui->readings, &CReadingsView::Pasted, this, &CPropertyPageCouder3::PasteAt);
    connect(m_ui->removeZone, &QPushButton::clicked, this, &CPropertyPageCouder3::RemoveZoneAt);
    ShowSession();
}

CPropertyPageCouder3::~CPropertyPageCouder3() = default;

void CPropertyPageCouder3::GoToNextReading()
{
    const QPoint at = m_model->NextReading();
    if (at.x() >= 0) {
        m_ui->readings->setCurrentIndex(m_model->index(at.y(), at.x()));
        m_ui->readings->setFocus();
    }
}

void CPropertyPageCouder3::ShowSession()
{
    ListSeries(*m_ui->series, m_session);
    const bool any = m_session.CurrentSeries() != nullptr;
    m_ui->series->setEnabled(any);
    m_ui->removeZone->setEnabled(any);
    Tell();
}

void CPropertyPageCouder3::Tell()
{
    constexpr Bilingual kNoSeries{"There is no series yet: the page \"Messreihen\" adds one.",
                                  "Noch keine Messreihe: Die Seite \"Messreihen\" fügt eine hinzu."_cp1252};
    if (m_session.CurrentSeries() == nullptr) {
        m_ui->told->setText(ToQString(kNoSeries.In(g_nLanguage)));
        return;
    }
    const auto current = static_cast<std::size_t>(m_session.Current());
    const auto figures =
        FiguresOfSeries(m_session.Book(), {&current, 1}, false, m_session.D(), m_session.f(), g_nLanguage);
    m_ui->told->setText(ToQString(SeriesVerdict(figures, g_nLanguage)));
}

void CPropertyPageCouder3::PasteAt(const QString& block)
{
    constexpr Bilingual kTooLarge{
        "The block does not fit: a series has at most 64 zones of 100 readings.",
        "Der Block passt nicht: Eine Messreihe hat höchstens 64 Zonen mit 100 Messwerten."_cp1252};
    const QModelIndex at = m_ui->readings->currentIndex();
    if (block.isEmpty() || !at.isValid() || !m_model->IsTyped(at.column())) {
        return;
    }
    const std::string text = FromQString(block);
    const bool pasted = m_session.ChangeCurrent([&](ReadingSeries& series) {
        return PasteBlock(series, static_cast<std::size_t>(at.row()), static_cast<std::size_t>(at.column()),
                          text);
    });
    if (!pasted) {
        m_ui->told->setText(ToQString(kTooLarge.In(g_nLanguage)));
    }
}

void CPropertyPageCouder3::RemoveZoneAt()
{
    const int row = m_ui->readings->currentIndex().row();
    m_session.ChangeCurrent([row](ReadingSeries& series) {
        if (row < 0 || static_cast<std::size_t>(row) >= series.zones.size()) {
            return false;
        }
        series.zones.erase(series.zones.begin() + row);
        return true;
    });
}

#include "moc_PropertyPageCouder3.cpp"

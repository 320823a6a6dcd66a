#include "pages/optics/PropertyPageCouder2.h"

#include "document/OrrevaDoc.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "painting/QtText.h"

#include "ui_PropertyPageCouder2.h"

#include <QScopedValueRollback>

namespace {

constexpr int kNameColumn = 0;
constexpr const char* kReadingsFilter = "CSV (*.csv)|*.csv|All Files (*.*)|*.*||";
constexpr FileDialog kImportReadings{
    false, kReadingsFilter, "csv", "", {"Import Readings", "Messwerte importieren"}};
constexpr FileDialog kExportReadings{
    true, kReadingsFilter, "csv", "", {"Export Readings", "Messwerte exportieren"}};
constexpr Bilingual kBadName{"A series needs a name of its own.",
                             "Eine Messreihe braucht einen eigenen Namen."};

} // namespace

CPropertyPageCouder2::CPropertyPageCouder2(CFoucaultSession& session, QWidget* parent)
    : CFoucaultPage(session, parent), m_ui(std::make_unique<Ui::PropertyPageCouder2>())
{
    m_ui->setupUi(this);
    QTableWidget& table = *m_ui->series;
    table.setColumnCount(static_cast<int>(std::size(kSeriesColumns)));
    for (int column = 0; column < table.columnCount(); ++column) {
        const ListColumn& shown = kSeriesColumns[column];
        table.setHorizontalHeaderItem(column, new QTableWidgetItem(ToQString(shown.title.In(g_nLanguage))));
        table.setColumnWidth(column, shown.width);
    }
    ConnectButtons();
    ShowSession();
}

CPropertyPageCouder2::~CPropertyPageCouder2() = default;

void CPropertyPageCouder2::ConnectButtons()
{
    connect(m_ui->add, &QPushButton::clicked, this, [this] { m_session.Add(); });
    connect(m_ui->copy, &QPushButton::clicked, this, [this] { m_session.Copy(); });
    connect(m_ui->rename, &QPushButton::clicked, this,
            [this] { m_ui->series->editItem(m_ui->series->item(m_session.Current(), kNameColumn)); });
    connect(m_ui->remove, &QPushButton::clicked, this, &CPropertyPageCouder2::RemoveSeries);
    connect(m_ui->importSeries, &QPushButton::clicked, this, &CPropertyPageCouder2::ImportFile);
    connect(m_ui->exportSeries, &QPushButton::clicked, this, &CPropertyPageCouder2::ExportFile);
    connect(m_ui->averaged, &QRadioButton::toggled, this,
            [this](bool averaged) { m_session.SetAveraged(averaged); });
    connect(m_ui->series, &QTableWidget::cellChanged, this, &CPropertyPageCouder2::RowEdited);
    connect(m_ui->series, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (!m_showing) {
            m_session.Choose(row);
        }
    });
}

void CPropertyPageCouder2::ShowRow(int row)
{
    const ListRow cells = SeriesRow(m_session.Book().series[static_cast<std::size_t>(row)], g_nLanguage);
    for (int column = 0; column < m_ui->series->columnCount(); ++column) {
        auto* item = m_ui->series->item(row, column);
        if (item == nullptr) {
            item = new QTableWidgetItem;
            m_ui->series->setItem(row, column, item);
        }
        item->setText(ToQString(cells[static_cast<std::size_t>(column)]));
        if (column == kNameColumn) {
            item->setCheckState(m_session.IsShown(row) ? Qt::Checked : Qt::Unchecked);
        } else {
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        }
        if (kSeriesColumns[column].right_aligned) {
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
    }
}

void CPropertyPageCouder2::ShowSession()
{
    const QScopedValueRollback showing(m_showing, true);
    m_ui->series->setRowCount(static_cast<int>(m_session.Book().series.size()));
    for (int row = 0; row < m_ui->series->rowCount(); ++row) {
        ShowRow(row);
    }
    if (m_ui->series->currentRow() != m_session.Current()) {
        m_ui->series->setCurrentCell(m_session.Current(), kNameColumn);
    }
    for (QPushButton* const button : {m_ui->copy, m_ui->rename, m_ui->remove, m_ui->exportSeries}) {
        button->setEnabled(m_session.CurrentSeries() != nullptr);
    }
    m_ui->told->clear();
}

void CPropertyPageCouder2::RowEdited(int row, int column)
{
    if (m_showing || column != kNameColumn) {
        return;
    }
    const QTableWidgetItem& item = *m_ui->series->item(row, column);
    const bool checked = item.checkState() == Qt::Checked;
    const bool named = m_session.Rename(row, FromQString(item.text()));
    m_session.Show(row, checked);
    if (!named) {
        ShowSession(); // the name that it had
        m_ui->told->setText(ToQString(kBadName.In(g_nLanguage)));
    }
}

void CPropertyPageCouder2::RemoveSeries()
{
    constexpr Bilingual kQuestion{"Delete the series %s with its readings?",
                                  "Messreihe %s mit ihren Messwerten löschen?"_cp1252};
    const ReadingSeries* const series = m_session.CurrentSeries();
    const std::string question = FormatText(kQuestion.In(g_nLanguage), series->name.c_str());
    if (m_session.Document().Host().AskYesNo(question.c_str())) {
        m_session.Remove();
    }
}

void CPropertyPageCouder2::ImportFile()
{
    const std::string path = m_session.Document().Host().AskPath(kImportReadings);
    if (!path.empty()) {
        const std::string told = m_session.Import(path);
        m_ui->told->setText(ToQString(told));
    }
}

void CPropertyPageCouder2::ExportFile()
{
    constexpr Bilingual kNotWritten{"The file could not be written.",
                                    "Die Datei konnte nicht geschrieben werden."};
    const std::string path = m_session.Document().Host().AskPath(kExportReadings);
    if (!path.empty()) {
        m_ui->told->setText(m_session.Export(path) ? QString() : ToQString(kNotWritten.In(g_nLanguage)));
    }
}

#include "moc_PropertyPageCouder2.cpp"

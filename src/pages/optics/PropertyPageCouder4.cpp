#include "pages/optics/PropertyPageCouder4.h"

#include "drawing/WavefrontCharts.h"
#include "lib/text/CodePage.h"
#include "lib/text/ShortestNumber.h"
#include "painting/QtText.h"

#include "ui_PropertyPageCouder4.h"

#include <QSignalBlocker>

#include <algorithm>

namespace {

/// The number of a field: a comma counts as a point; nothing if it is none.
std::optional<double> NumberOf(const QLineEdit& edit)
{
    std::string text = FromQString(edit.text());
    std::ranges::replace(text, ',', '.');
    return ReadingValue(text);
}

/// Marks a field that holds no number of its kind.
void Mark(QLineEdit& edit, bool wrong)
{
    edit.setStyleSheet(wrong ? "background: #ffc8c3; color: black" : "");
}

void ShowNumber(QLineEdit& edit, double value)
{
    if (edit.hasFocus()) {
        return; // the user is typing it
    }
    std::string text;
    AppendNumber(text, value);
    edit.setText(ToQString(text));
    Mark(edit, false);
}

} // namespace

CPropertyPageCouder4::CPropertyPageCouder4(CFoucaultSession& session, QWidget* parent)
    : CFoucaultPage(session, parent), m_ui(std::make_unique<Ui::PropertyPageCouder4>())
{
    m_ui->setupUi(this);
    m_ui->results->verticalHeader()->hide();
    ConnectChoices();
    ShowSession();
}

CPropertyPageCouder4::~CPropertyPageCouder4() = default;

void CPropertyPageCouder4::ConnectChoices()
{
    connect(m_ui->conic, &QLineEdit::textEdited, this, &CPropertyPageCouder4::TakeConic);
    connect(m_ui->wavelength, &QLineEdit::textEdited, this, &CPropertyPageCouder4::TakeWavelength);
    for (const QLineEdit* const edit : {m_ui->conic, m_ui->wavelength}) {
        connect(edit, &QLineEdit::editingFinished, this, &CPropertyPageCouder4::ShowSession);
    }
    connect(m_ui->source, &QComboBox::activated, this, [this](int source) {
        m_session.ChangeCurrent([source](ReadingSeries& series) {
            series.light_source = source;
            return true;
        });
    });
}

void CPropertyPageCouder4::TakeConic()
{
    const std::optional<double> conic = NumberOf(*m_ui->conic);
    Mark(*m_ui->conic, !conic);
    if (conic) {
        m_session.SetConic(*conic);
    }
}

void CPropertyPageCouder4::TakeWavelength()
{
    const std::optional<double> wavelength = NumberOf(*m_ui->wavelength);
    const bool good = wavelength && *wavelength > 0;
    Mark(*m_ui->wavelength, !good);
    if (good) {
        m_session.SetWavelength(*wavelength);
    }
}

void CPropertyPageCouder4::ShowSession()
{
    ShowNumber(*m_ui->conic, m_session.Book().conic);
    ShowNumber(*m_ui->wavelength, m_session.Book().wavelength);
    const ReadingSeries* const series = m_session.CurrentSeries();
    m_ui->source->setEnabled(series != nullptr);
    m_ui->source->setCurrentIndex(series != nullptr && series->light_source == kFixedSource ? 1 : 0);
    const std::vector<SeriesFigure> figures = m_session.Figures();
    ShowResults(figures);
    ShowPictures(figures);
    m_ui->verdict->setText(ToQString(SeriesVerdict(figures, g_nLanguage)));
}

void CPropertyPageCouder4::ShowResults(const std::vector<SeriesFigure>& figures)
{
    const std::vector<std::string> titles = SeriesResultTitles(figures, g_nLanguage);
    const ListRows rows = SeriesResultRows(figures, g_nLanguage);
    QTableWidget& table = *m_ui->results;
    table.setColumnCount(static_cast<int>(titles.size()));
    table.setRowCount(static_cast<int>(rows.size()));
    for (int column = 0; column < table.columnCount(); ++column) {
        const auto at = static_cast<std::size_t>(column);
        table.setHorizontalHeaderItem(column, new QTableWidgetItem(ToQString(titles[at])));
        for (int row = 0; row < table.rowCount(); ++row) {
            auto* const item = new QTableWidgetItem(ToQString(rows[static_cast<std::size_t>(row)][at]));
            item->setTextAlignment((column == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
            table.setItem(row, column, item);
        }
    }
    table.resizeColumnsToContents();
}

void CPropertyPageCouder4::ShowPictures(const std::vector<SeriesFigure>& figures)
{
    std::vector<WavefrontCurve> curves;
    for (const SeriesFigure& figure : figures) {
        if (figure.figure) {
            curves.push_back({&*figure.figure, figures.size() > 1 ? figure.name : std::string()});
        }
    }
    const double D = m_session.D();
    m_ui->profile->Show(WavefrontChart(curves, D, m_session.Book().wavelength, g_nLanguage));
    m_ui->transverse->Show(TransverseChart(curves, D, g_nLanguage));
    m_ui->disc->Show(curves.empty() ? std::nullopt : std::optional(*curves.front().figure), D);
}

#include "moc_PropertyPageCouder4.cpp"

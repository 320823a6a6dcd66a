#include "pages/optics/ReadingsModel.h"

#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "pages/optics/FoucaultSession.h"
#include "painting/QtText.h"

#include <QColor>

namespace {

constexpr int kStatistics = 2; ///< columns behind the runs

QColor MarkColour() { return {255, 200, 195}; }

} // namespace

CReadingsModel::CReadingsModel(CFoucaultSession& session, QObject* parent)
    : QAbstractTableModel(parent), m_session(session), m_rows(WantedRows()), m_runs(WantedRuns())
{
    connect(&m_session, &CFoucaultSession::Changed, this, &CReadingsModel::Refresh);
}

int CReadingsModel::WantedRows() const
{
    const ReadingSeries* const series = m_session.CurrentSeries();
    return series == nullptr ? 0 : static_cast<int>(std::min(series->zones.size() + 1, kMostZones));
}

int CReadingsModel::WantedRuns() const
{
    const ReadingSeries* const series = m_session.CurrentSeries();
    return series == nullptr ? 0 : static_cast<int>(std::min(RunsOf(*series) + 1, kMostReadings));
}

void CReadingsModel::Refresh()
{
    const int rows = WantedRows();
    const int runs = WantedRuns();
    if ((rows == 0) != (m_rows == 0)) { // the columns come and go with the series
        beginResetModel();
        m_rows = rows;
        m_runs = runs;
        endResetModel();
        return;
    }
    if (runs > m_runs) {
        beginInsertColumns({}, m_runs + 1, runs);
        m_runs = runs;
        endInsertColumns();
    } else if (runs < m_runs) {
        beginRemoveColumns({}, runs + 1, m_runs);
        m_runs = runs;
        endRemoveColumns();
    }
    if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    } else if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    }
    if (m_rows > 0) {
        emit dataChanged(index(0, 0), index(m_rows - 1, columnCount() - 1));
    }
}

int CReadingsModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : m_rows; }

int CReadingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_rows == 0 ? 0 : 1 + m_runs + kStatistics;
}

QVariant CReadingsModel::Statistics(int row, bool spread) const
{
    const ReadingSeries* const series = m_session.CurrentSeries();
    if (series == nullptr || static_cast<std::size_t>(row) >= series->zones.size()) {
        return {};
    }
    const ZoneSpread statistics = SpreadOf(series->zones[static_cast<std::size_t>(row)]);
    if (statistics.count < (spread ? 2u : 1u)) {
        return {};
    }
    return ToQString(FormatText("%0.3f", spread ? statistics.spread : statistics.mean));
}

QVariant CReadingsModel::data(const QModelIndex& index, int role) const
{
    const ReadingSeries* const series = m_session.CurrentSeries();
    if (!index.isValid() || series == nullptr) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    }
    const bool shows = role == Qt::DisplayRole || role == Qt::EditRole;
    if (!IsTyped(index.column())) {
        return shows ? Statistics(index.row(), index.column() == m_runs + kStatistics) : QVariant();
    }
    const auto zone = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    if (shows) {
        return ToQString(CellOf(*series, zone, column));
    }
    const Bilingual* const fault = CellFault(*series, zone, column, m_session.D() / 2);
    if (fault == nullptr) {
        return {};
    }
    switch (role) {
    case Qt::BackgroundRole:
        return MarkColour();
    case Qt::ForegroundRole:
        return QColor(Qt::black); // on the mark, whatever the desktop's colours are
    case Qt::ToolTipRole:
        return ToQString(fault->In(g_nLanguage));
    default:
        return {};
    }
}

QVariant CReadingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    constexpr Bilingual kRadius{"Radius (mm)", "Radius (mm)"};
    constexpr Bilingual kRun{"Reading %d", "Messung %d"};
    constexpr Bilingual kMean{"Mean", "Mittel"};
    constexpr Bilingual kSpread{"Spread", "Streuung"};
    if (section == 0) {
        return ToQString(kRadius.In(g_nLanguage));
    }
    if (section <= m_runs) {
        return ToQString(FormatText(kRun.In(g_nLanguage), section));
    }
    return ToQString((section == m_runs + 1 ? kMean : kSpread).In(g_nLanguage));
}

bool CReadingsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !IsTyped(index.column())) {
        return false;
    }
    const std::string text = FromQString(value.toString());
    return m_session.ChangeCurrent([&](ReadingSeries& series) {
        return StoreCell(series, static_cast<std::size_t>(index.row()),
                         static_cast<std::size_t>(index.column()), text);
    });
}

Qt::ItemFlags CReadingsModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && IsTyped(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

QPoint CReadingsModel::NextReading() const
{
    const ReadingSeries* const series = m_session.CurrentSeries();
    if (series == nullptr || series->zones.empty()) {
        return series == nullptr ? QPoint(-1, -1) : QPoint(0, 0);
    }
    for (int column = 1; column <= m_runs; ++column) {
        for (int row = 0; row < static_cast<int>(series->zones.size()); ++row) {
            if (CellOf(*series, static_cast<std::size_t>(row), static_cast<std::size_t>(column)).empty()) {
                return {column, row};
            }
        }
    }
    return {m_runs, 0};
}

#include "moc_ReadingsModel.cpp"

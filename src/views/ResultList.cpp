#include "views/ResultList.h"

#include "painting/QtText.h"

#include <QAbstractTableModel>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

namespace {

/// So that a list of a thousand million rows is not pasted by accident.
constexpr qsizetype kMostCopiedRows = 10000;

/// The toolkit's list keeps something for each row that it is announced of, so it is announced of more only
/// when the user has scrolled to the end of those it has.
constexpr int kRowsAtOnce = 1000;

/// Rows beyond those in sight that widths are measured by.
constexpr int kRowsMeasured = 100;

} // namespace

class ResultModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(std::span<const ListColumn> newColumns, int newLanguage)
    {
        beginResetModel();
        m_columns.assign(newColumns.begin(), newColumns.end());
        m_language = newLanguage;
        m_count = 0;
        m_announced = 0;
        endResetModel();
    }

    void SetRows(int newCount, std::function<ListRow(int)> newRow)
    {
        beginResetModel();
        m_count = newCount;
        m_announced = std::min(m_count, kRowsAtOnce);
        m_row = std::move(newRow);
        endResetModel();
    }

    int Count() const { return m_count; }

    QString Cell(int index, int column) const
    {
        const ListRow cells = m_row(index);
        const auto place = static_cast<std::size_t>(column);
        return place < cells.size() ? ToQString(cells[place]) : QString();
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : m_announced; }
    bool canFetchMore(const QModelIndex& parent) const override
    {
        return !parent.isValid() && m_announced < m_count;
    }
    void fetchMore(const QModelIndex&) override
    {
        const int more = std::min(m_count - m_announced, kRowsAtOnce);
        beginInsertRows({}, m_announced, m_announced + more - 1);
        m_announced += more;
        endInsertRows();
    }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid() || index.row() >= m_count || index.column() >= columnCount()) {
            return {};
        }
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
            return Cell(index.row(), index.column());
        }
        return role == Qt::TextAlignmentRole ? Alignment(index.column()) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
            return {};
        }
        if (role == Qt::DisplayRole) {
            return ToQString(m_columns[static_cast<std::size_t>(section)].title.In(m_language));
        }
        return role == Qt::TextAlignmentRole ? Alignment(section) : QVariant();
    }

    const std::vector<ListColumn>& Columns() const { return m_columns; }

private:
    QVariant Alignment(int column) const
    {
        const bool right = m_columns[static_cast<std::size_t>(column)].right_aligned;
        return QVariant::fromValue(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
    }

    std::vector<ListColumn> m_columns;
    std::function<ListRow(int)> m_row;
    int m_count = 0;
    int m_announced = 0; ///< how many of them the toolkit knows
    int m_language = 0;
};

CResultList::CResultList(QWidget* parent) : QTreeView(parent), m_results(new ResultModel(this))
{
    setModel(m_results);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setResizeContentsPrecision(kRowsMeasured);
    connect(header(), &QHeaderView::sectionResized, this, [this] { m_sizedByUser = true; });

    auto* const copy = new QAction(tr("Copy"), this);
    connect(copy, &QAction::triggered, this, &CResultList::CopySelection);
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CResultList::SetColumns(std::span<const ListColumn> columns, int language)
{
    m_results->SetColumns(columns, language);
    m_sizedByUser = false;
    FitColumns();
}

void CResultList::SetRows(const ListRows& rows)
{
    SetComputedRows(static_cast<int>(rows.size()),
                    [rows](int i) { return rows[rows.size() - 1 - static_cast<std::size_t>(i)]; });
}

/// The widths that columns come with suit most rows; room is made for longer ones and for headings, as long
/// as they are shown and until the user resizes.
void CResultList::FitColumns()
{
    if (m_sizedByUser) {
        return;
    }
    for (int column = 0; column < m_results->columnCount(); ++column) {
        const int usual = m_results->Columns()[static_cast<std::size_t>(column)].width;
        header()->resizeSection(
            column, std::max({usual, sizeHintForColumn(column), header()->sectionSizeHint(column)}));
    }
    m_sizedByUser = false;
}

void CResultList::SetComputedRows(int count, std::function<ListRow(int)> row)
{
    m_results->SetRows(count, std::move(row));
    FitColumns();
}

int CResultList::RowCount() const { return m_results->Count(); }

QString CResultList::Cell(int row, int column) const { return m_results->Cell(row, column); }

int CResultList::SelectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    const auto topmost = std::ranges::min_element(rows, {}, &QModelIndex::row);
    return topmost == rows.end() ? -1 : topmost->row();
}

void CResultList::CopySelection() const
{
    QItemSelection ranges = selectionModel()->selection(); // in the order of selecting
    std::ranges::sort(ranges, {}, &QItemSelectionRange::top);
    QStringList lines;
    for (const QItemSelectionRange& range : ranges) {
        for (int row = range.top(); row <= range.bottom() && lines.size() < kMostCopiedRows; ++row) {
            QStringList cells;
            for (int column = 0; column < m_results->columnCount(); ++column) {
                cells << Cell(row, column);
            }
            lines << cells.join('\t');
        }
    }
    if (!lines.isEmpty()) {
        QGuiApplication::clipboard()->setText(lines.join('\n'));
    }
}

void CResultList::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

#include "moc_ResultList.cpp"

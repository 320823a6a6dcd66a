#include "views/ResultList.h"

#include "views/QtText.h"

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

} // namespace

class ResultModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetColumns(std::span<const ListColumn> newColumns, int newLanguage)
    {
        beginResetModel();
        columns.assign(newColumns.begin(), newColumns.end());
        language = newLanguage;
        count = 0;
        endResetModel();
    }

    void SetRows(int newCount, std::function<ListRow(int)> newRow)
    {
        beginResetModel();
        count = newCount;
        row = std::move(newRow);
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : count; }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(columns.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
            const ListRow cells = row(index.row());
            const auto column = static_cast<std::size_t>(index.column());
            return column < cells.size() ? ToQString(cells[column]) : QString();
        }
        return role == Qt::TextAlignmentRole ? Alignment(index.column()) : QVariant();
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation != Qt::Horizontal || section >= columnCount()) {
            return {};
        }
        if (role == Qt::DisplayRole) {
            return ToQString(columns[static_cast<std::size_t>(section)].title.In(language));
        }
        return role == Qt::TextAlignmentRole ? Alignment(section) : QVariant();
    }

    const std::vector<ListColumn>& Columns() const { return columns; }

private:
    QVariant Alignment(int column) const
    {
        const bool right = columns[static_cast<std::size_t>(column)].right_aligned;
        return QVariant::fromValue(Qt::AlignVCenter | (right ? Qt::AlignRight : Qt::AlignLeft));
    }

    std::vector<ListColumn> columns;
    std::function<ListRow(int)> row;
    int count = 0;
    int language = 0;
};

CResultList::CResultList(QWidget* parent) : QTreeView(parent), model(new ResultModel(this))
{
    setModel(model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);

    auto* const copy = new QAction(tr("Copy"), this);
    connect(copy, &QAction::triggered, this, &CResultList::CopySelection);
    addAction(copy);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void CResultList::SetColumns(std::span<const ListColumn> columns, int language)
{
    model->SetColumns(columns, language);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        header()->resizeSection(static_cast<int>(i), columns[i].width);
    }
}

void CResultList::SetRows(const ListRows& rows)
{
    SetComputedRows(static_cast<int>(rows.size()),
                    [rows](int i) { return rows[rows.size() - 1 - static_cast<std::size_t>(i)]; });
}

void CResultList::SetComputedRows(int count, std::function<ListRow(int)> row)
{
    model->SetRows(count, std::move(row));
}

int CResultList::RowCount() const { return model->rowCount(); }

QString CResultList::Cell(int row, int column) const
{
    return model->data(model->index(row, column), Qt::DisplayRole).toString();
}

int CResultList::SelectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    const auto topmost = std::ranges::min_element(rows, {}, &QModelIndex::row);
    return topmost == rows.end() ? -1 : topmost->row();
}

void CResultList::CopySelection() const
{
    QStringList lines;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom() && lines.size() < kMostCopiedRows; ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column) {
                cells << Cell(row, column);
            }
            lines << cells.join('\t');
        }
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void CResultList::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        CopySelection();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

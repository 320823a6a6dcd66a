#pragma once

#include "model/rows/ListColumn.h"
#include "model/rows/ListRow.h"

#include <QTreeView>

#include <functional>
#include <span>

class ResultModel;

/// The report list of pages and sheets: columns that can be resized, rows of text that can be selected and
/// copied, as lines with TABs between the cells, to the clipboard.
class CResultList : public QTreeView {
    Q_OBJECT

public:
    explicit CResultList(QWidget* parent = nullptr);

    /// Replaces all columns; widths are pixels at least, and grow for longer texts. The rows are emptied.
    void SetColumns(std::span<const ListColumn> columns, int language);
    /// Empties the list and inserts each row at its top, so that the last one made is read first.
    void SetRows(const ListRows& rows);
    /// A list that asks for a row when it is looked at; row 0 stands on top.
    void SetComputedRows(int count, std::function<ListRow(int)> row);

    int RowCount() const;
    QString Cell(int row, int column) const;
    /// The selected row, the topmost of several, counted from the top; -1 for none.
    int SelectedRow() const;

    void CopySelection() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FitColumns();

    ResultModel* m_results;
    bool m_sizedByUser = false; ///< a width is no longer ours
};

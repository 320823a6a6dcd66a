#pragma once

#include <QAbstractTableModel>

class CFoucaultSession;

/// The current series as a table: its radii, its readings run by run, and their mean and spread, one zone a
/// row. One run and one zone more than there are wait to be filled. A cell at fault is marked, its tip says
/// why.
class CReadingsModel : public QAbstractTableModel {
    Q_OBJECT

public:
    CReadingsModel(CFoucaultSession& session, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    bool IsTyped(int column) const { return column <= m_runs; }
    /// The first zone without a reading, else the next run of the first zone; (-1, -1) without a series.
    QPoint NextReading() const;

private:
    /// Follows the session, keeping the places of cells that stay.
    void Refresh();
    int WantedRows() const;
    int WantedRuns() const;
    QVariant Statistics(int row, bool spread) const;

    CFoucaultSession& m_session;
    int m_rows = 0;
    int m_runs = 0;
};

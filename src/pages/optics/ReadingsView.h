#pragma once

#include <QTableView>

/// The table of readings: Enter walks down a run and on to the next one, TAB along a zone and on to the next
/// one, and blocks are copied to and pasted from a spreadsheet.
class CReadingsView : public QTableView {
    Q_OBJECT

public:
    explicit CReadingsView(QWidget* parent);

signals:
    /// A block is to be pasted, its first cell where the user stands.
    void Pasted(const QString& block);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    bool IsEditable(const QModelIndex& index) const;
    void WalkDown();
    void CopyBlock() const;
    void EmptySelection();
};

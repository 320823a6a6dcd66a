#include "pages/optics/ReadingsView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>

#include <algorithm>

CReadingsView::CReadingsView(QWidget* parent) : QTableView(parent)
{
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setTabKeyNavigation(true);
    horizontalHeader()->setDefaultSectionSize(92);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

bool CReadingsView::IsEditable(const QModelIndex& index) const
{
    return index.isValid() && (index.flags() & Qt::ItemIsEditable) != 0;
}

void CReadingsView::WalkDown()
{
    const QModelIndex at = currentIndex();
    const QModelIndex below = at.siblingAtRow(at.row() + 1);
    // The zone that waits to be filled begins with its radius.
    const bool measured = at.column() == 0 || !below.siblingAtColumn(0).data().toString().isEmpty();
    const QModelIndex next = below.isValid() && measured ? below : at.sibling(0, at.column() + 1);
    if (IsEditable(next)) {
        setCurrentIndex(next);
    }
}

void CReadingsView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTableView::closeEditor(editor, hint);
    if (hint == QAbstractItemDelegate::SubmitModelCache) { // Enter
        WalkDown();
    }
}

QModelIndex CReadingsView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    QModelIndex next = QTableView::moveCursor(action, modifiers);
    if (action != MoveNext && action != MovePrevious) {
        return next;
    }
    const int step = action == MoveNext ? 1 : -1;
    const int columns = model()->columnCount();
    const int cells = model()->rowCount() * columns;
    // Over the cells that nobody types into.
    for (int tries = 0; tries < columns && next.isValid() && !IsEditable(next); ++tries) {
        const int cell = (next.row() * columns + next.column() + step + cells) % cells;
        next = model()->index(cell / columns, cell % columns);
    }
    return next;
}

void CReadingsView::CopyBlock() const
{
    const QItemSelectionRange range = selectionModel()->selection().value(0);
    if (range.isEmpty()) {
        return;
    }
    QString block;
    for (int row = range.top(); row <= range.bottom(); ++row) {
        for (int column = range.left(); column <= range.right(); ++column) {
            block += (column == range.left() ? "" : "\t") + model()->index(row, column).data().toString();
        }
        block += '\n';
    }
    QGuiApplication::clipboard()->setText(block);
}

void CReadingsView::EmptySelection()
{
    for (const QModelIndex& index : selectionModel()->selectedIndexes()) {
        model()->setData(index, QString());
    }
}

void CReadingsView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Paste)) {
        emit Pasted(QGuiApplication::clipboard()->text());
    } else if (event->matches(QKeySequence::Copy)) {
        CopyBlock();
    } else if (event->matches(QKeySequence::Delete) || event->key() == Qt::Key_Backspace) {
        EmptySelection();
    } else if (enter && state() != EditingState) {
        WalkDown();
    } else {
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept(); // no button of the sheet is pressed
}

#include "moc_ReadingsView.cpp"

#include "views/PaneReading.h"

#include "painting/QtText.h"
#include "views/Pane.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace {

constexpr int kColumns = 2;

/// A label, a value or a sentence. It outlives no pane: the pane's interface forgets its cells with itself.
class PaneCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    PaneCell(CPane& pane, int place, bool inTable) : m_pane(&pane), m_place(place), m_inTable(inTable) {}

    bool isValid() const override { return !m_pane.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_pane.isNull() ? nullptr : m_pane->window()->windowHandle(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(m_pane); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QRect rect() const override
    {
        return isValid() ? QRect(m_pane->mapToGlobal(QPoint(0, 0)), m_pane->size()) : QRect();
    }
    QAccessible::Role role() const override
    {
        return m_inTable ? QAccessible::Cell : QAccessible::StaticText;
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.invisible = !isValid() || !m_pane->isVisible();
        return state;
    }
    QString text(QAccessible::Text kind) const override
    {
        const std::vector<PaneLine> none;
        const std::vector<PaneLine>& lines = isValid() ? m_pane->Lines() : none;
        const auto line = static_cast<std::size_t>(rowIndex());
        if (kind != QAccessible::Name || line >= lines.size()) {
            return {};
        }
        return ToQString(columnIndex() == 0 ? lines[line].text : lines[line].value);
    }
    void setText(QAccessible::Text, const QString&) override {}
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface && m_inTable
                   ? static_cast<QAccessibleTableCellInterface*>(this)
                   : nullptr;
    }

    // As a cell of the table. It has no headers: the labels are its first column.
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override
    {
        QAccessibleInterface* const pane = parent();
        return columnIndex() == 0 || pane == nullptr
                   ? QList<QAccessibleInterface*>()
                   : QList<QAccessibleInterface*>{pane->child(m_place - columnIndex())};
    }
    int columnIndex() const override { return m_inTable ? m_place % kColumns : 0; }
    int rowIndex() const override { return m_inTable ? m_place / kColumns : m_place; }
    bool isSelected() const override { return false; }
    QAccessibleInterface* table() const override { return parent(); }

private:
    QPointer<CPane> m_pane;
    int m_place;
    bool m_inTable;
};

class PaneInterface : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit PaneInterface(CPane& pane)
        : QAccessibleWidget(&pane, pane.IsTable() ? QAccessible::Table : QAccessible::Graphic), m_pane(pane)
    {}
    ~PaneInterface() override { ForgetCells(); }

    int childCount() const override
    {
        return static_cast<int>(m_pane.Lines().size()) * (m_pane.IsTable() ? kColumns : 1);
    }
    QAccessibleInterface* child(int index) const override
    {
        if (index < 0 || index >= childCount()) {
            return nullptr;
        }
        while (static_cast<int>(m_cells.size()) <= index) {
            m_cells.push_back(QAccessible::registerAccessibleInterface(
                new PaneCell(m_pane, static_cast<int>(m_cells.size()), m_pane.IsTable())));
        }
        return QAccessible::accessibleInterface(m_cells[static_cast<std::size_t>(index)]);
    }
    int indexOfChild(const QAccessibleInterface* sought) const override
    {
        const auto found = std::ranges::find(m_cells, sought, &QAccessible::accessibleInterface);
        return found == m_cells.end() ? -1 : static_cast<int>(found - m_cells.begin());
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Description && !m_pane.IsTable() ? AllLines()
                                                                     : QAccessibleWidget::text(kind);
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableInterface && m_pane.IsTable()
                   ? static_cast<QAccessibleTableInterface*>(this)
                   : QAccessibleWidget::interface_cast(type);
    }

    // As a table that nobody selects in.
    QAccessibleInterface* cellAt(int row, int column) const override
    {
        const bool inside = row >= 0 && row < rowCount() && column >= 0 && column < kColumns;
        return inside ? child(row * kColumns + column) : nullptr;
    }
    int rowCount() const override { return static_cast<int>(m_pane.Lines().size()); }
    int columnCount() const override { return kColumns; }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int row) const override
    {
        QAccessibleInterface* const label = cellAt(row, 0);
        return label == nullptr ? QString() : label->text(QAccessible::Name);
    }
    int selectedCellCount() const override { return 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

private:
    QString AllLines() const
    {
        QStringList texts;
        for (const PaneLine& line : m_pane.Lines()) {
            texts << ToQString(line.text);
        }
        return texts.join(' ');
    }

    void ForgetCells()
    {
        for (const QAccessible::Id cell : std::exchange(m_cells, {})) {
            QAccessible::deleteAccessibleInterface(cell);
        }
    }

    CPane& m_pane;
    mutable std::vector<QAccessible::Id> m_cells; ///< row by row, as far as they were asked for
};

QAccessibleInterface* MakePaneInterface(const QString&, QObject* object)
{
    auto* const pane = qobject_cast<CPane*>(object);
    return pane == nullptr ? nullptr : new PaneInterface(*pane);
}

/// Whether there is anybody to tell.
class Listeners : public QAccessible::ActivationObserver {
public:
    /// For as long as the program runs: the toolkit may be gone before it.
    static Listeners& Get()
    {
        static Listeners& listeners = *new Listeners;
        return listeners;
    }

    void accessibilityActiveChanged(bool active) override { m_present = active; }
    bool IsPresent() const { return m_present; }

private:
    Listeners() { QAccessible::installActivationObserver(this); }

    bool m_present = QAccessible::isActive();
};

void AnnounceText(QAccessibleInterface* changed)
{
    if (changed != nullptr) {
        QAccessibleEvent event(changed, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace

void InstallPaneReading()
{
    QAccessible::installFactory(MakePaneInterface);
    Listeners::Get();
}

std::vector<int> ChangedChildren(const std::vector<PaneLine>& before, const std::vector<PaneLine>& now,
                                 int columns)
{
    std::vector<int> changed;
    for (std::size_t i = 0; i < std::min(before.size(), now.size()); ++i) {
        const int child = static_cast<int>(i) * columns;
        if (before[i].text != now[i].text) {
            changed.push_back(child);
        }
        if (columns > 1 && before[i].value != now[i].value) {
            changed.push_back(child + 1);
        }
    }
    return changed;
}

void AnnouncePane(CPane& pane)
{
    if (!Listeners::Get().IsPresent() || !pane.updatesEnabled()) {
        return;
    }
    const std::vector<PaneLine> before = pane.LastLines();
    const std::vector<PaneLine>& now = pane.Lines();
    QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(&pane);
    if (before == now || shown == nullptr) {
        return;
    }
    if (before.size() != now.size()) {
        QAccessibleTableModelChangeEvent event(&pane, QAccessibleTableModelChangeEvent::ModelReset);
        QAccessible::updateAccessibility(&event);
    }
    for (const int child : ChangedChildren(before, now, pane.IsTable() ? kColumns : 1)) {
        AnnounceText(shown->child(child));
    }
    if (!pane.IsTable()) {
        QAccessibleEvent event(&pane, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    }
}

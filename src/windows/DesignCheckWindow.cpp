#include "windows/DesignCheckWindow.h"

#include "lib/text/CodePage.h"
#include "windows/SeverityMark.h"
#include "windows/ToolWindow.h"
#include "windows/WindowText.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr Bilingual kCheckTitle{"Design check", "Entwurf prüfen"_cp1252};
constexpr Bilingual kNoTelescope{"No telescope is loaded.", "Es ist kein Teleskop geladen."};
constexpr Bilingual kNothingFound{"The check finds nothing to complain of.",
                                  "Die Prüfung hat nichts zu beanstanden."_cp1252};
constexpr Bilingual kCheckHint{"A double click opens the sheet at the field.",
                               "Ein Doppelklick öffnet das Blatt bei dem Feld."_cp1252};
constexpr Bilingual kCheckColumns[] = {{"Severity", "Schwere"}, {"Finding", "Befund"}, {"Remedy", "Abhilfe"}};
constexpr int kSeverityColumn = 0;
constexpr int kKeyRole = Qt::UserRole;

} // namespace

CDesignCheckWindow::CDesignCheckWindow(QWidget* parent)
    : QDialog(parent), m_message(new QLabel(this)),
      m_table(new QTableWidget(0, std::size(kCheckColumns), this))
{
    setWindowTitle(Shown(kCheckTitle));
    setObjectName("designCheckWindow");
    m_table->setAccessibleName(windowTitle());
    QStringList titles;
    for (const Bilingual& column : kCheckColumns) {
        titles << Shown(column);
    }
    m_table->setHorizontalHeaderLabels(titles);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(kSeverityColumn, QHeaderView::ResizeToContents);
    // Sentences wrap, so that a row is as high as the columns' widths make it.
    connect(m_table->horizontalHeader(), &QHeaderView::sectionResized, m_table,
            &QTableView::resizeRowsToContents);
    m_table->verticalHeader()->hide();
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setWordWrap(true);
    connect(m_table, &QTableWidget::itemActivated, this, [this](const QTableWidgetItem* item) {
        emit FieldWanted(m_table->item(item->row(), kSeverityColumn)->data(kKeyRole).toString());
    });
    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_message);
    column->addWidget(m_table, 1);
    PrepareToolWindow(*this, {720, 300}, WindowHelp::Check);
    ShowNothing();
}

void CDesignCheckWindow::ShowFindings(const std::vector<DesignFinding>& findings)
{
    ShowMessage(findings.empty() ? kNothingFound : kCheckHint);
    m_table->setRowCount(static_cast<int>(findings.size()));
    for (int row = 0; row < m_table->rowCount(); ++row) {
        AddFinding(row, findings[static_cast<std::size_t>(row)]);
    }
    m_table->resizeRowsToContents();
}

void CDesignCheckWindow::AddFinding(int row, const DesignFinding& finding)
{
    auto* const severity = new QTableWidgetItem(
        SeverityMark(finding.severity), Shown(kSeverityNames[static_cast<std::size_t>(finding.severity)]));
    severity->setData(kKeyRole, QString::fromLatin1(finding.concern));
    m_table->setItem(row, kSeverityColumn, severity);
    m_table->setItem(row, 1, new QTableWidgetItem(ToQString(finding.sentence.c_str())));
    m_table->setItem(row, 2, new QTableWidgetItem(ToQString(finding.remedy.c_str())));
}

void CDesignCheckWindow::ShowNothing()
{
    ShowMessage(kNoTelescope);
    m_table->setRowCount(0);
}

void CDesignCheckWindow::ShowMessage(const Bilingual& message) { m_message->setText(Shown(message)); }

#include "moc_DesignCheckWindow.cpp"

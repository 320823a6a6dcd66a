#include "windows/CompareWindow.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/FormatText.h"
#include "lib/text/ShortestNumber.h"
#include "model/analysis/Comparison.h"
#include "views/ResultList.h"
#include "windows/SectionPair.h"
#include "windows/ToolWindow.h"
#include "windows/WindowText.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr Bilingual kCompareTitle{"Compare designs", "Entwürfe vergleichen"_cp1252};
constexpr Bilingual kAll{"Show all values", "Alle Werte zeigen"};
constexpr Bilingual kEarlier{"Earlier design...", "Früherer Entwurf..."_cp1252};
constexpr Bilingual kFile{"Other file...", "Andere Datei..."};
constexpr ListColumn kCompareColumns[] = {
    {{"Value", "Wert"}, 300},
    {{"This design", "Dieser Entwurf"}, 170, true},
    {{"The other design", "Der andere Entwurf"}, 170, true},
    {{"Unit", "Einheit"}, 70},
};

/// A number with up to six digits behind the point, which is more than any builder measures.
std::string ShownNumber(double value)
{
    if (!std::isfinite(value)) {
        return "–"_cp1252;
    }
    std::string text;
    AppendNumber(text, std::abs(value) < 1e9 ? std::round(value * 1e6) / 1e6 : value);
    return text;
}

ListRow RowOf(const ComparedRow& row)
{
    if (row.is_text) {
        return {row.label.In(g_nLanguage), row.first_text, row.second_text, ""};
    }
    const bool bare = std::string_view(row.unit) == "1";
    return {row.label.In(g_nLanguage), ShownNumber(row.first), ShownNumber(row.second), bare ? "" : row.unit};
}

} // namespace

CCompareWindow::CCompareWindow(QWidget* parent)
    : QDialog(parent), m_names(new QLabel(this)), m_sections(new CSectionPair(this)),
      m_all(new QCheckBox(Shown(kAll), this)), m_list(new CResultList(this))
{
    setWindowTitle(Shown(kCompareTitle));
    setObjectName("compareWindow");
    m_names->setTextFormat(Qt::PlainText);
    m_list->SetColumns(kCompareColumns, g_nLanguage);
    m_list->setAccessibleName(windowTitle());
    auto* const file = new QPushButton(Shown(kFile), this);
    file->setObjectName("otherFile");
    file->setAutoDefault(false);
    auto* const earlier = new QPushButton(Shown(kEarlier), this);
    earlier->setObjectName("earlierDesign");
    earlier->setAutoDefault(false);
    connect(m_all, &QCheckBox::toggled, this, &CCompareWindow::Refresh);
    connect(file, &QPushButton::clicked, this, &CCompareWindow::FileWanted);
    connect(earlier, &QPushButton::clicked, this, &CCompareWindow::EarlierWanted);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_all);
    buttons->addStretch();
    buttons->addWidget(earlier);
    buttons->addWidget(file);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(m_names);
    column->addWidget(m_sections, 2);
    column->addWidget(m_list, 3);
    column->addLayout(buttons);
    PrepareToolWindow(*this, {820, 560}, WindowHelp::Compare);
}

void CCompareWindow::ShowPresent(const TelescopeFields& fields)
{
    m_present = fields;
    Refresh();
}

void CCompareWindow::ShowOther(const TelescopeFields& fields, const QString& name)
{
    m_other = fields;
    m_otherName = name;
    Refresh();
}

void CCompareWindow::Refresh()
{
    m_names->setText(ToQString(m_present.title.GetText()) + "  |  " + ToQString(m_other.title.GetText()) +
                     " (" + m_otherName + ")");
    m_sections->ShowDesigns(m_present, m_other);
    DesignCopy present(m_present);
    DesignCopy other(m_other);
    const auto rows = CompareDesigns(present.State(), other.State());
    ListRows shown;
    for (const bool differing : {true, false}) {
        for (const ComparedRow& row : rows) {
            if (row.Differs() == differing && (differing || m_all->isChecked())) {
                shown.push_back(RowOf(row));
            }
        }
    }
    const int count = static_cast<int>(shown.size());
    m_list->SetComputedRows(
        count, [shown = std::move(shown)](int row) { return shown[static_cast<std::size_t>(row)]; });
}

#include "moc_CompareWindow.cpp"

#include "windows/IlluminationWindow.h"

#include "lib/text/CodePage.h"
#include "model/optics/IlluminationCurve.h"
#include "painting/PainterSurface.h"
#include "painting/PictureFile.h"
#include "views/PrintedFile.h"
#include "views/ResultList.h"
#include "windows/ChartView.h"
#include "windows/PicturePath.h"
#include "windows/ToolWindow.h"
#include "windows/WindowText.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr Bilingual kLightTitle{"Illumination", "Ausleuchtung"};
constexpr Bilingual kSecondaries{"Secondaries", "Fangspiegel"};
constexpr Bilingual kLightTable{"Table", "Tabelle"};
constexpr Bilingual kPrint{"Print...", "Drucken..."};
constexpr Bilingual kSave{"Save picture...", "Bild speichern..."};
constexpr Bilingual kLightHint{"Point into the curve, or move in it with the arrow keys.",
                               "Zeigen Sie in die Kurve, oder gehen Sie in ihr mit den Pfeiltasten."};
constexpr Bilingual kTry{
    "A click or Enter tries the secondary in the what-if bar.",
    "Ein Klick oder die Eingabetaste probiert den Fangspiegel in der Was-wäre-wenn-Leiste."_cp1252};
constexpr Bilingual kLightNone{"No telescope is loaded.", "Es ist kein Teleskop geladen."};

constexpr ListColumn kPointColumns[] = {{{"Off the centre", "Abstand von der Mitte"}, 150, true},
                                        {{"Angle", "Winkel"}, 90, true},
                                        {{"Of the centre's light", "Vom Licht der Mitte"}, 150, true},
                                        {{"Loss", "Verlust"}, 100, true},
                                        {{"Of the mirror's light", "Vom Licht des Spiegels"}, 150, true}};

constexpr std::size_t kAxesEachWay = 4;
constexpr Pixel kLightPictureSize{1200, 750};

QTableWidgetItem* NewCell(const std::string& text, bool bold)
{
    auto* const item = new QTableWidgetItem(ToQString(text.c_str()));
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    QFont font = item->font();
    font.setBold(bold);
    item->setFont(font);
    return item;
}

} // namespace

CIlluminationWindow::CIlluminationWindow(std::vector<Eyepiece> eyepieces, QWidget* parent)
    : QDialog(parent), m_eyepieces(std::move(eyepieces)), m_reading(new QLabel(this)),
      m_curve(new CChartView(this)), m_axesCurves(new CChartView(this)),
      m_axes(new QTableWidget(0, std::size(kSecondaryChoiceColumns), this)), m_points(new CResultList(this)),
      m_print(new QPushButton(Shown(kPrint), this)), m_save(new QPushButton(Shown(kSave), this))
{
    setWindowTitle(Shown(kLightTitle));
    setObjectName("illuminationWindow");
    m_reading->setTextFormat(Qt::PlainText);
    m_reading->setObjectName("reading");
    new QVBoxLayout(this);
    MakeCharts();
    MakeButtons();
    PrepareToolWindow(*this, {1000, 720}, WindowHelp::Illumination);
    ShowNothing();
}

void CIlluminationWindow::MakeCharts()
{
    m_curve->setObjectName("curve");
    m_curve->setAccessibleName(windowTitle());
    m_axesCurves->setObjectName("axesCurves");
    m_axesCurves->setAccessibleName(Shown(kSecondaries));
    m_axes->setAccessibleName(Shown(kSecondaries));
    m_points->setAccessibleName(Shown(kLightTable));
    m_points->SetColumns(kPointColumns, g_nLanguage);
    QStringList titles;
    for (const ListColumn& column : kSecondaryChoiceColumns) {
        titles << Shown(column.title);
    }
    m_axes->setHorizontalHeaderLabels(titles);
    m_axes->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_axes->verticalHeader()->hide();
    m_axes->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_axes->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_axes->setSelectionMode(QAbstractItemView::SingleSelection);
    m_axes->setTabKeyNavigation(false);
    m_axes->setToolTip(Shown(kTry));

    auto* const secondaries = new QSplitter(Qt::Horizontal, this);
    secondaries->addWidget(m_axesCurves);
    secondaries->addWidget(m_axes);
    secondaries->setStretchFactor(0, 1);
    secondaries->setSizes({500, 480}); // the table whole
    auto* const tabs = new QTabWidget(this);
    tabs->addTab(secondaries, Shown(kSecondaries));
    tabs->addTab(m_points, Shown(kLightTable));
    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->addWidget(m_curve);
    parts->addWidget(tabs);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);
    auto* const column = static_cast<QVBoxLayout*>(layout());
    column->addWidget(parts, 1);
    column->addWidget(m_reading);

    connect(m_curve, &CChartView::Pointed, this, &CIlluminationWindow::ReadOut);
    connect(m_curve, &CChartView::PointerGone, this, [this] { m_reading->setText(Shown(kLightHint)); });
    connect(m_curve, &CChartView::GroundChanged, this, &CIlluminationWindow::Refresh);
    connect(m_axesCurves, &CChartView::ClickedAt, this, &CIlluminationWindow::ChooseNearest);
    connect(m_axes, &QTableWidget::cellClicked, this, &CIlluminationWindow::Choose);
    connect(m_axes, &QTableWidget::cellActivated, this, &CIlluminationWindow::Choose);
}

void CIlluminationWindow::MakeButtons()
{
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton* const button : {m_print, m_save}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
    connect(m_print, &QPushButton::clicked, this, &CIlluminationWindow::Print);
    connect(m_save, &QPushButton::clicked, this, &CIlluminationWindow::Save);
}

void CIlluminationWindow::ShowDesign(const IlluminationStops& stops, double wanted, const QString& title)
{
    if (stops == m_stops && wanted == m_wanted && title == m_title && m_print->isEnabled()) {
        return;
    }
    m_stops = stops;
    m_wanted = wanted;
    m_title = title;
    m_print->setEnabled(true);
    m_save->setEnabled(true);
    Refresh();
}

void CIlluminationWindow::ShowNothing()
{
    m_stops = {};
    m_title.clear();
    m_print->setEnabled(false);
    m_save->setEnabled(false);
    Refresh();
    m_reading->setText(Shown(kLightNone));
}

void CIlluminationWindow::Refresh()
{
    const IlluminationColours& colours = m_curve->IsDark() ? kDarkIllumination : kLightIllumination;
    ListAxes();
    std::vector<double> others = m_listed;
    std::erase(others, m_stops.m);
    const auto fieldStops = FieldStopsOf(m_eyepieces, m_stops.f, ShownField(m_stops, m_wanted));
    m_curve->ShowChart(IlluminationChart(m_stops, m_wanted, fieldStops, colours, g_nLanguage));
    m_axesCurves->ShowChart(MinorAxesChart(m_stops, m_wanted, others, colours, g_nLanguage));
    RefreshChoices();
    RefreshPoints();
    if (m_curve->Pointer()) {
        ReadOut(*m_curve->Pointer());
    } else {
        m_reading->setText(Shown(kLightHint));
    }
}

/// The present secondary among the standard ones around it. The list stays while the present one is in it:
/// one that is tried from there, and the one before, do not move away under the pointer.
void CIlluminationWindow::ListAxes()
{
    if (std::ranges::find(m_listed, m_stops.m) == m_listed.end()) {
        m_listed = MinorAxesAround(m_stops.m, kAxesEachWay);
        m_listed.insert(std::ranges::upper_bound(m_listed, m_stops.m), m_stops.m);
    }
}

void CIlluminationWindow::RefreshChoices()
{
    m_choices =
        HasIllumination(m_stops) ? SecondaryChoices(m_stops, m_listed) : std::vector<SecondaryChoice>();
    m_axes->setRowCount(static_cast<int>(m_choices.size()));
    for (int row = 0; row < m_axes->rowCount(); ++row) {
        const SecondaryChoice& choice = m_choices[static_cast<std::size_t>(row)];
        const ListRow cells = SecondaryChoiceCells(choice);
        for (int column = 0; column < m_axes->columnCount(); ++column) {
            m_axes->setItem(row, column,
                            NewCell(cells[static_cast<std::size_t>(column)], choice.minor_axis == m_stops.m));
        }
    }
}

void CIlluminationWindow::RefreshPoints()
{
    ListRows rows = IlluminationPageRows(m_stops);
    const int count = static_cast<int>(rows.size());
    m_points->SetComputedRows(
        count, [rows = std::move(rows)](int row) { return rows[static_cast<std::size_t>(row)]; });
}

void CIlluminationWindow::ReadOut(double field)
{
    m_reading->setText(ToQString(IlluminationReading(m_stops, field, g_nLanguage).c_str()));
}

void CIlluminationWindow::Choose(int row)
{
    if (row >= 0 && static_cast<std::size_t>(row) < m_choices.size()) {
        emit MinorAxisWanted(m_choices[static_cast<std::size_t>(row)].minor_axis);
    }
}

void CIlluminationWindow::ChooseNearest(double field, double percent)
{
    int nearest = -1;
    double smallest = HUGE_VAL;
    for (std::size_t i = 0; i < m_choices.size(); ++i) {
        IlluminationStops stops = m_stops;
        stops.m = m_choices[i].minor_axis;
        const double off = std::fabs(CurvePointAt(stops, field / 2).of_centre - percent);
        if (HasIllumination(stops) && off < smallest) {
            smallest = off;
            nearest = static_cast<int>(i);
        }
    }
    Choose(nearest);
}

void CIlluminationWindow::PaintPage(QPainter& painter, QSize size) const
{
    const int title = 2 * kChartFontHeight;
    const int half = (size.height() - title) / 2;
    Chart charts[] = {IlluminationChart(m_stops, m_wanted,
                                        FieldStopsOf(m_eyepieces, m_stops.f, ShownField(m_stops, m_wanted)),
                                        kLightIllumination, g_nLanguage),
                      SecondaryChoiceChart(m_stops, m_wanted, kLightIllumination, g_nLanguage)};
    painter.save();
    {
        PainterSurface surface(painter, size.width(), title);
        surface.Text({4, 4}, FromQString(m_title), Font{.weight = Font::kBold}, kBlack);
    }
    painter.translate(0, title);
    for (const Chart& chart : charts) {
        PainterSurface surface(painter, size.width(), half);
        PaintChart(surface, chart, kLightChart);
        painter.translate(0, half);
    }
    painter.restore();
}

void CIlluminationWindow::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const auto print = [&] {
        // A page as wide as the picture, whatever the printer's dots are.
        constexpr int kPageWidth = 900;
        const QRect page = printer.pageLayout().paintRectPixels(printer.resolution());
        QPainter painter(&printer);
        const double scale = static_cast<double>(page.width()) / kPageWidth;
        painter.scale(scale, scale);
        PaintPage(painter, QSize(kPageWidth, static_cast<int>(page.height() / scale)));
    };
    if (printer.outputFileName().isEmpty()) {
        print();
    } else if (const auto bytes = PrintedBytes(printer, print)) {
        emit FileMade(printer.outputFileName(), QByteArray::fromStdString(*bytes));
    }
}

void CIlluminationWindow::Save()
{
    const auto path = AskPicturePath(this, Shown(kSave), "illumination.png");
    if (!path) {
        return;
    }
    const auto fieldStops = FieldStopsOf(m_eyepieces, m_stops.f, ShownField(m_stops, m_wanted));
    const Chart chart = IlluminationChart(m_stops, m_wanted, fieldStops, kLightIllumination, g_nLanguage);
    const auto bytes = PictureBytes(QFile::encodeName(*path).toStdString(), kLightPictureSize, m_title,
                                    [&](Surface& surface) { PaintChart(surface, chart, kLightChart); });
    if (bytes) {
        emit FileMade(*path, *bytes);
    }
}

#include "moc_IlluminationWindow.cpp"

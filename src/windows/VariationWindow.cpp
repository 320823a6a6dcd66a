#include "windows/VariationWindow.h"

#include "lib/text/CodePage.h"
#include "lib/text/FiniteText.h"
#include "lib/text/Numbers.h"
#include "lib/text/ShortestNumber.h"
#include "lib/text/Table.h"
#include "painting/PictureFile.h"
#include "windows/ChartView.h"
#include "windows/PicturePath.h"
#include "windows/ToolWindow.h"
#include "windows/VariationRun.h"
#include "windows/WindowText.h"

#include <QComboBox>
#include <QFile>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr Bilingual kVariationTitle{"Variation", "Variation"};
constexpr Bilingual kParameter{"Parameter", "Parameter"};
constexpr Bilingual kFrom{"From", "Von"};
constexpr Bilingual kTo{"To", "Bis"};
constexpr Bilingual kPoints{"Points", "Punkte"};
constexpr Bilingual kValue{"Value %d", "Wert %d"};
constexpr Bilingual kVariationNone{"(none)", "(keiner)"};
constexpr Bilingual kStop{"Stop", "Anhalten"};
constexpr Bilingual kVariationTable{"Table as CSV...", "Tabelle als CSV..."};
constexpr Bilingual kPicture{"Picture...", "Bild..."};
constexpr Bilingual kNoNumber{"The range needs two different numbers.",
                              "Der Bereich braucht zwei verschiedene Zahlen."};
constexpr Bilingual kStopped{"Stopped.", "Angehalten."};

constexpr int kMostPoints = 100'000;
constexpr int kUsualPoints = 201;
constexpr const char* kFirstParameter = "secondary/diameter";
constexpr const char* kFirstValues[] = {"full_field", "linear_obstruction"};
constexpr Pixel kVariationPictureSize{1600, 1000};

std::string Shortest(double value)
{
    std::string text;
    AppendNumber(text, value);
    return text;
}

void Select(QComboBox& box, const char* name)
{
    box.setCurrentIndex(std::max(0, box.findData(QString(name))));
}

} // namespace

CVariationWindow::CVariationWindow(QWidget* parent)
    : QDialog(parent), m_run(new CVariationRun(this)), m_chart(new CChartView(this)),
      m_parameter(new QComboBox(this)), m_from(new QLineEdit(this)), m_to(new QLineEdit(this)),
      m_points(new QSpinBox(this)), m_told(new QLabel(this)), m_progress(new QProgressBar(this)),
      m_stop(new QPushButton(Shown(kStop), this)), m_table(new QPushButton(Shown(kVariationTable), this)),
      m_picture(new QPushButton(Shown(kPicture), this))
{
    setWindowTitle(Shown(kVariationTitle));
    setObjectName("variationWindow");
    m_told->setTextFormat(Qt::PlainText);
    m_told->setObjectName("told");
    auto* const column = new QVBoxLayout(this);
    MakeFields();
    column->addWidget(m_chart, 1);
    column->addWidget(m_told);
    MakeButtons();
    PrepareToolWindow(*this, {860, 640}, WindowHelp::Variation);

    connect(m_run, &CVariationRun::Progress, m_progress, &QProgressBar::setValue);
    connect(m_run, &CVariationRun::Finished, this, &CVariationWindow::Take);
    connect(m_chart, &CChartView::Clicked, this, &CVariationWindow::Choose);
}

CVariationWindow::~CVariationWindow() = default;

void CVariationWindow::MakeFields()
{
    m_points->setRange(2, kMostPoints);
    m_points->setValue(kUsualPoints);
    auto* const left = new QFormLayout;
    left->addRow(Shown(kParameter), m_parameter);
    left->addRow(Shown(kFrom), m_from);
    left->addRow(Shown(kTo), m_to);
    left->addRow(Shown(kPoints), m_points);
    auto* const right = new QFormLayout;
    for (std::size_t i = 0; i < kMostValues; ++i) {
        m_values[i] = new QComboBox(this);
        right->addRow(Shown(kValue).replace("%d", QString::number(i + 1)), m_values[i]);
        if (i > 0) {
            m_values[i]->addItem(Shown(kVariationNone), QString());
        }
    }
    for (const DesignValue& value : DesignValues()) {
        for (QComboBox* const box : m_values) {
            box->addItem(Shown(value.label), QString(value.name));
        }
        if (value.field != nullptr && std::holds_alternative<RealField>(value.field->field)) {
            m_parameter->addItem(Shown(value.label), QString(value.name));
        }
    }
    Select(*m_parameter, kFirstParameter);
    for (std::size_t i = 0; i < std::size(kFirstValues); ++i) {
        Select(*m_values[i], kFirstValues[i]);
    }
    auto* const fields = new QHBoxLayout;
    fields->addLayout(left, 1);
    fields->addLayout(right, 1);
    static_cast<QVBoxLayout*>(layout())->addLayout(fields);

    connect(m_parameter, &QComboBox::currentIndexChanged, this, [this] {
        ProposeRange();
        Restart();
    });
    for (const QComboBox* const box : m_values) {
        connect(box, &QComboBox::currentIndexChanged, this, &CVariationWindow::Restart);
    }
    for (const QLineEdit* const edit : {m_from, m_to}) {
        connect(edit, &QLineEdit::textEdited, this, &CVariationWindow::Restart);
    }
    connect(m_points, &QSpinBox::valueChanged, this, &CVariationWindow::Restart);
}

void CVariationWindow::MakeButtons()
{
    m_progress->setRange(0, 1000);
    m_progress->setTextVisible(false);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_progress, 1);
    for (QPushButton* const button : {m_stop, m_table, m_picture}) {
        button->setAutoDefault(false);
        button->setEnabled(false);
        buttons->addWidget(button);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
    connect(m_stop, &QPushButton::clicked, this, [this] {
        m_run->Stop();
        m_stop->setEnabled(false);
        m_told->setText(Shown(kStopped));
    });
    connect(m_table, &QPushButton::clicked, this, &CVariationWindow::ExportTable);
    connect(m_picture, &QPushButton::clicked, this, &CVariationWindow::ExportPicture);
}

const RecordField* CVariationWindow::Parameter() const
{
    return FindRecordField(m_parameter->currentData().toString().toLatin1().constData());
}

std::vector<const DesignValue*> CVariationWindow::Values() const
{
    std::vector<const DesignValue*> values;
    for (const QComboBox* const box : m_values) {
        const DesignValue* const value = FindDesignValue(box->currentData().toString().toStdString());
        if (value != nullptr) {
            values.push_back(value);
        }
    }
    return values;
}

void CVariationWindow::ShowPresent(const TelescopeFields& fields)
{
    const bool first = !m_hasPresent;
    m_present = fields;
    m_hasPresent = true;
    if (first) {
        ProposeRange();
    }
    Restart();
}

/// From half the present number to twice it, as the what-if bar does.
void CVariationWindow::ProposeRange()
{
    if (!m_hasPresent) {
        return;
    }
    DesignCopy design(m_present);
    const double present = FindDesignValue(Parameter()->key)->Read(design.State());
    const double round = std::isfinite(present) && present != 0 ? present : 1;
    m_from->setText(ToQString(Shortest(round / 2)));
    m_to->setText(ToQString(Shortest(round * 2)));
}

void CVariationWindow::Restart()
{
    m_run->Stop();
    m_stop->setEnabled(false);
    if (!m_hasPresent) {
        return;
    }
    const std::string from = FromQString(m_from->text());
    const std::string to = FromQString(m_to->text());
    const VariedField varied{Parameter(), TextToDouble(from.c_str()), TextToDouble(to.c_str()),
                             m_points->value()};
    if (!IsNumberText(from.c_str()) || !IsNumberText(to.c_str()) || !std::isfinite(varied.from) ||
        !std::isfinite(varied.to) || varied.from == varied.to) {
        m_told->setText(Shown(kNoNumber));
        return;
    }
    m_told->clear();
    m_next = {};
    m_next.field = varied.field;
    m_next.values = Values();
    DesignCopy design(m_present);
    SettleDesign(design.State().record);
    m_next.present = FindDesignValue(varied.field->key)->Read(design.State());
    m_next.wanted_field = design.State().record.GetWanted100PercentFow();
    for (const DesignValue* const value : m_next.values) {
        m_next.present_values.push_back(value->Read(design.State()));
    }
    m_stop->setEnabled(true);
    m_run->Start(std::make_shared<const Variation>(m_present, std::vector{varied}, m_next.values));
}

void CVariationWindow::Take(const std::vector<double>& table)
{
    const std::size_t columns = m_next.values.size() + 1;
    m_next.curves.resize(m_next.values.size());
    for (std::size_t at = 0; at + columns <= table.size(); at += columns) {
        m_next.places.push_back(table[at]);
        for (std::size_t i = 0; i + 1 < columns; ++i) {
            m_next.curves[i].push_back(table[at + 1 + i]);
        }
    }
    m_curves = std::move(m_next);
    m_next = {};
    m_chart->ShowChart(VariationChart(m_curves, g_nLanguage));
    m_stop->setEnabled(false);
    m_table->setEnabled(true);
    m_picture->setEnabled(true);
}

void CVariationWindow::Choose(double x)
{
    if (m_curves.places.empty()) {
        return;
    }
    const std::size_t at = NearestPlace(m_curves, x);
    std::string text = std::string(m_curves.field->label.In(g_nLanguage)) + ": " +
                       FiniteText("%0.2f", {m_curves.places[at]});
    for (std::size_t i = 0; i < m_curves.values.size(); ++i) {
        text += std::string("; ") + m_curves.values[i]->label.In(g_nLanguage) + ": " +
                FiniteText("%0.2f", {m_curves.curves[i][at]});
    }
    const RecordField* const field = m_curves.field;
    const double value = m_curves.places[at];
    m_told->setText(ToQString(text));
    emit TrialWanted(field, value);
}

void CVariationWindow::ExportTable()
{
    const auto path = AskTablePath(this, Shown(kVariationTable), "variation.csv");
    if (!path) {
        return;
    }
    std::vector<std::string> columns{m_curves.field->key};
    for (const DesignValue* const value : m_curves.values) {
        columns.push_back(value->name);
    }
    const TableLayout layout(TableFormat::kCsv, columns, true);
    std::string bytes;
    layout.AppendHead(bytes);
    for (std::size_t row = 0; row < m_curves.places.size(); ++row) {
        std::vector<TableCell> cells{m_curves.places[row]};
        for (const std::vector<double>& curve : m_curves.curves) {
            cells.emplace_back(curve[row]);
        }
        layout.AppendRow(bytes, cells, row == 0);
    }
    emit FileMade(*path, QByteArray::fromStdString(bytes));
}

void CVariationWindow::ExportPicture()
{
    const auto path = AskPicturePath(this, Shown(kPicture), "variation.png");
    if (!path) {
        return;
    }
    const auto bytes = PictureBytes(QFile::encodeName(*path).toStdString(), kVariationPictureSize,
                                    Shown(kVariationTitle), [&](Surface& surface) {
                                        PaintChart(surface, VariationChart(m_curves, g_nLanguage),
                                                   kLightChart, 2 * kChartFontHeight);
                                    });
    if (bytes) {
        emit FileMade(*path, *bytes);
    }
}

#include "moc_VariationWindow.cpp"

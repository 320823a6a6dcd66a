#include "pages/dialogs/WorkshopSheetsDialog.h"

#include "document/FileMasks.h"
#include "document/OrrevaDoc.h"
#include "document/PrintName.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Numbers.h"
#include "model/analysis/Values.h"
#include "painting/PaperFile.h"
#include "painting/QtText.h"

#include "ui_WorkshopSheetsDialog.h"

#include <QFile>
#include <QLocale>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace {

constexpr Bilingual kTitle{"Workshop sheets", "Werkstattblätter"_cp1252};
constexpr Bilingual kPrintFailed{"%s was not printed: the printer takes no pages.",
                                 "%s wurde nicht gedruckt: Der Drucker nimmt keine Seiten an."};

/// The pages that the user wants of the printer.
PaperDocument PagesFor(const QPrinter& printer, const PaperDocument& document)
{
    if (printer.printRange() != QPrinter::PageRange) {
        return document;
    }
    PaperDocument chosen{document.title};
    const int last = std::min(printer.toPage(), static_cast<int>(document.pages.size()));
    for (int page = std::max(printer.fromPage(), 1); page <= last; ++page) {
        chosen.pages.push_back(document.pages[static_cast<std::size_t>(page - 1)]);
    }
    return chosen;
}

} // namespace

CWorkshopSheetsDialog::CWorkshopSheetsDialog(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), m_document(document), m_ui(std::make_unique<Ui::WorkshopSheetsDialog>())
{
    m_ui->setupUi(this);
    ListSheets();
    DesignCopy design(*document.active_record);
    const SheetZones zones = ZonesOfMask(g_pCurrentMask.get(), design.State().record);
    m_ui->zones->setMaximum(MAX_MASK_ZONES);
    m_ui->zones->setValue(zones.count);
    m_ui->centre->setText(ToQString(FormatText("%g", zones.centre_percent)));
    for (const PaperSize& paper : kPapers) {
        m_ui->paper->addItem(paper.name);
    }
    m_ui->paper->setCurrentText(PaperOfLocale(QLocale::system()).name);

    connect(m_ui->sheets, &QListWidget::itemChanged, this, &CWorkshopSheetsDialog::ShowPages);
    connect(m_ui->paper, &QComboBox::currentIndexChanged, this, &CWorkshopSheetsDialog::ShowPages);
    connect(m_ui->zones, &QSpinBox::valueChanged, this, &CWorkshopSheetsDialog::ShowPages);
    connect(m_ui->centre, &QLineEdit::textChanged, this, &CWorkshopSheetsDialog::ShowPages);
    connect(m_ui->size, &QSlider::valueChanged, m_ui->preview, &CPaperPreview::SetScale);
    connect(m_ui->save, &QPushButton::clicked, this, &CWorkshopSheetsDialog::Save);
    connect(m_ui->print, &QPushButton::clicked, this, &CWorkshopSheetsDialog::Print);
    m_ui->preview->SetScale(m_ui->size->value());
    ShowPages();
}

CWorkshopSheetsDialog::~CWorkshopSheetsDialog() = default;

void CWorkshopSheetsDialog::ListSheets()
{
    for (const SheetName& sheet : kSheets) {
        auto* const item = new QListWidgetItem(ToQString(sheet.name.In(g_nLanguage)), m_ui->sheets);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Checked);
    }
    m_ui->sheets->setCurrentRow(0);
}

PaperDocument CWorkshopSheetsDialog::Document(QStringList& faults) const
{
    DesignCopy design(*m_document.active_record);
    const SheetZones zones{m_ui->zones->value(), DecimalValue(FromQString(m_ui->centre->text()).c_str())};
    const PaperSize& paper = kPapers[std::max(m_ui->paper->currentIndex(), 0)];
    PaperDocument document{Name()};
    for (int i = 0; i < m_ui->sheets->count(); ++i) {
        if (m_ui->sheets->item(i)->checkState() != Qt::Checked) {
            continue;
        }
        const SheetKind kind = kSheets[i].kind;
        SheetPages pages = MakeSheet(kind, design.State().record, zones, paper, g_nLanguage);
        std::ranges::move(pages.pages, std::back_inserter(document.pages));
        if (pages.fault) {
            faults << m_ui->sheets->item(i)->text() + ": " + ToQString(pages.fault->In(g_nLanguage));
        }
    }
    return document;
}

void CWorkshopSheetsDialog::ShowPages()
{
    QStringList faults;
    m_pages = Document(faults);
    m_ui->faults->setText(faults.join('\n'));
    m_ui->faults->setVisible(!faults.isEmpty());
    m_ui->save->setEnabled(!m_pages.pages.empty());
    m_ui->print->setEnabled(!m_pages.pages.empty());
    m_ui->preview->ShowDocument(m_pages);
}

std::string CWorkshopSheetsDialog::Name() const
{
    return PrintName(*m_document.active_record, kTitle.In(g_nLanguage));
}

void CWorkshopSheetsDialog::Save()
{
    const std::string name = Utf8FromCp1252(ProposedFile(Name(), ".pdf"));
    m_document.WriteExport(PaperMask(g_nLanguage, name.c_str(), kTitle), PdfBytes(m_pages).toStdString(),
                           "Error writing...");
}

void CWorkshopSheetsDialog::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(ToQString(Name()));
    printer.setPageSize(
        QPageSize(QSizeF(m_pages.pages.front().width, m_pages.pages.front().height), QPageSize::Millimeter));
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle(ToQString(Name()));
    dialog.setMinMax(1, static_cast<int>(m_pages.pages.size()));
    if (dialog.exec() == QDialog::Accepted) {
        PrintOn(printer);
    }
}

void CWorkshopSheetsDialog::PrintOn(QPrinter& printer)
{
    const PaperDocument pages = PagesFor(printer, m_pages);
    if (const QString file = printer.outputFileName(); !file.isEmpty()) {
        m_document.WriteFile(StatusTopic::Print, QFile::encodeName(file).toStdString(),
                             PdfBytes(pages).toStdString());
    } else if (!PaintPaper(printer, pages)) {
        m_document.Status().Fail(StatusTopic::Print,
                                 FormatText(kPrintFailed.In(g_nLanguage), pages.title.c_str()));
        m_document.ShowStatus();
    }
}

#include "moc_WorkshopSheetsDialog.cpp"

#include "app/Printing.h"

#include "document/OrrevaDoc.h"
#include "document/PrintName.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "painting/QtText.h"
#include "views/Pane.h"
#include "views/PrintedFile.h"

#include <QChildEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include <string>
#include <utility>

namespace {

QPrinter& Printer()
{
    static QPrinter printer(QPrinter::ScreenResolution);
    return printer;
}

/// The user has chosen how the paper lies, which no pane proposes otherwise from then on.
bool g_paperChosen = false;

/// Where the last file was printed to.
QString g_folder;

constexpr Bilingual kNotPrinted{"%s was not printed: the page could not be made.",
                                "%s wurde nicht gedruckt: Die Seite konnte nicht erzeugt werden."};

void Print(CPane& pane, QPrinter& printer, COrrevaDoc& document)
{
    if (printer.outputFileName().isEmpty()) {
        pane.OnPrint(printer);
        return;
    }
    const std::string path = QFile::encodeName(printer.outputFileName()).toStdString();
    if (const auto bytes = PrintedBytes(printer, [&] { pane.OnPrint(printer); })) {
        document.WriteFile(StatusTopic::Print, path, *bytes);
        return;
    }
    document.Status().Fail(StatusTopic::Print,
                           FormatText(kNotPrinted.In(g_nLanguage), Cp1252FromUtf8(path).c_str()));
    document.ShowStatus();
}

/// One command to print a pane, from its dialog to its last page.
class PrintJob {
public:
    PrintJob(CPane& which, COrrevaDoc& doc)
        : m_pane(which), m_printer(Printer()),
          m_name(PrintName(*doc.active_record, which.Title().In(g_nLanguage)))
    {
        m_pane.HoldForPrint(true);
        m_printer.setDocName(ToQString(m_name));
        m_printer.setOutputFileName({});
        if (!g_paperChosen) {
            m_proposed = m_pane.IsWide() ? QPageLayout::Landscape : QPageLayout::Portrait;
            m_printer.setPageOrientation(m_proposed);
        }
    }
    ~PrintJob()
    {
        g_paperChosen = g_paperChosen || m_printer.pageLayout().orientation() != m_proposed;
        if (const QString file = m_printer.outputFileName(); !file.isEmpty()) {
            g_folder = QFileInfo(file).absolutePath();
        }
        m_pane.HoldForPrint(false);
    }
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// What is printed, for the title of a dialog.
    QString Title() const { return ToQString(m_name); }

    /// The dialog tells what it prints, and proposes a file of that name.
    void Describe(QPrintDialog& dialog) const
    {
        dialog.setWindowTitle(Title());
        if (auto* const file = dialog.findChild<QLineEdit*>("filename")) {
            const QDir folder(g_folder.isEmpty() ? QDir::currentPath() : g_folder);
            file->setText(folder.filePath(ToQString(ProposedFile(m_name, ".pdf"))));
        }
    }

private:
    CPane& m_pane;
    QPrinter& m_printer;
    std::string m_name;
    QPageLayout::Orientation m_proposed = m_printer.pageLayout().orientation();
};

/// The preview's own button opens a dialog of the toolkit's, which is described like any.
class PreviewWatch : public QObject {
public:
    PreviewWatch(QPrintPreviewDialog& dialog, const PrintJob& printed) : QObject(&dialog), m_job(printed)
    {
        dialog.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::ChildPolished) {
            auto* const child = static_cast<QChildEvent*>(event)->child();
            if (auto* const dialog = qobject_cast<QPrintDialog*>(child)) {
                m_job.Describe(*dialog);
            }
        }
        return false;
    }

private:
    const PrintJob& m_job;
};

} // namespace

void PrintPane(CPane& pane, COrrevaDoc& document, QWidget* parent)
{
    const PrintJob job(pane, document);
    QPrintDialog dialog(&Printer(), parent);
    job.Describe(dialog);
    if (dialog.exec() == QDialog::Accepted) {
        Print(pane, Printer(), document);
    }
}

void PreviewPane(CPane& pane, COrrevaDoc& document, QWidget* parent)
{
    const PrintJob job(pane, document);
    QPrintPreviewDialog dialog(&Printer(), parent);
    dialog.setWindowTitle(job.Title());
    new PreviewWatch(dialog, job);
    dialog.resize(900, 700);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &pane,
                     [&pane, &document](QPrinter* printer) {
                         // Its own button prints by the same request.
                         if (printer->paintEngine()->type() == QPaintEngine::Picture) {
                             pane.OnPrint(*printer);
                         } else {
                             Print(pane, *printer, document);
                         }
                     });
    dialog.exec();
}

void SetUpPrinter(QWidget* parent)
{
    const QPageLayout::Orientation before = Printer().pageLayout().orientation();
    if (QPageSetupDialog(&Printer(), parent).exec() == QDialog::Accepted) {
        g_paperChosen = g_paperChosen || Printer().pageLayout().orientation() != before;
    }
}

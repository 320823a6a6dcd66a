#include "app/Printing.h"

#include "document/OrrevaDoc.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "views/Pane.h"

#include <QFile>
#include <QPageSetupDialog>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTemporaryDir>

#include <optional>
#include <string>

namespace {

QPrinter& Printer()
{
    static QPrinter printer(QPrinter::ScreenResolution);
    return printer;
}

constexpr Bilingual kNotPrinted{"%s was not printed: the page could not be made.",
                                "%s wurde nicht gedruckt: Die Seite konnte nicht erzeugt werden."};

/// What the pane prints into a file, made where nothing stands yet; nothing if not all of it arrived there.
std::optional<std::string> PrintedBytes(CPane& pane, QPrinter& printer)
{
    const QTemporaryDir folder;
    const QString target = printer.outputFileName();
    printer.setOutputFileName(folder.filePath("page.pdf"));
    pane.OnPrint(printer);
    QFile made(printer.outputFileName());
    printer.setOutputFileName(target);
    if (!made.open(QFile::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = made.readAll();
    // The toolkit does not tell that its disk is full.
    return bytes.trimmed().endsWith("%%EOF") ? std::optional(bytes.toStdString()) : std::nullopt;
}

void Print(CPane& pane, QPrinter& printer, COrrevaDoc& document)
{
    if (printer.outputFileName().isEmpty()) {
        pane.OnPrint(printer);
        return;
    }
    const std::string path = QFile::encodeName(printer.outputFileName()).toStdString();
    if (const auto bytes = PrintedBytes(pane, printer)) {
        document.WriteFile(StatusTopic::Print, path, *bytes);
        return;
    }
    document.Status().Fail(StatusTopic::Print,
                           FormatText(kNotPrinted.In(g_nLanguage), Cp1252FromUtf8(path).c_str()));
    document.ShowStatus();
}

} // namespace

void PrintPane(CPane& pane, COrrevaDoc& document, QWidget* parent)
{
    QPrintDialog dialog(&Printer(), parent);
    if (dialog.exec() == QDialog::Accepted) {
        Print(pane, Printer(), document);
    }
}

void PreviewPane(CPane& pane, COrrevaDoc& document, QWidget* parent)
{
    QPrintPreviewDialog dialog(&Printer(), parent);
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

void SetUpPrinter(QWidget* parent) { QPageSetupDialog(&Printer(), parent).exec(); }

#include "app/Printing.h"

#include "views/Pane.h"

#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace {

QPrinter& Printer()
{
    static QPrinter printer(QPrinter::ScreenResolution);
    return printer;
}

} // namespace

void PrintPane(CPane& pane, QWidget* parent)
{
    QPrintDialog dialog(&Printer(), parent);
    if (dialog.exec() == QDialog::Accepted) {
        pane.OnPrint(Printer());
    }
}

void PreviewPane(CPane& pane, QWidget* parent)
{
    QPrintPreviewDialog dialog(&Printer(), parent);
    dialog.resize(900, 700);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &pane,
                     [&pane](QPrinter* printer) { pane.OnPrint(*printer); });
    dialog.exec();
}

void SetUpPrinter(QWidget* parent) { QPageSetupDialog(&Printer(), parent).exec(); }

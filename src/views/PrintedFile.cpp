#include "views/PrintedFile.h"

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

std::optional<std::string> PrintedBytes(QPrinter& printer, const std::function<void()>& print)
{
    const QTemporaryDir folder;
    const QString target = printer.outputFileName();
    printer.setOutputFileName(folder.filePath("page.pdf"));
    print();
    QFile made(printer.outputFileName());
    printer.setOutputFileName(target);
    if (!made.open(QFile::ReadOnly)) {
        return std::nullopt;
    }
    const QByteArray bytes = made.readAll();
    // The toolkit does not tell that its disk is full.
    return bytes.trimmed().endsWith("%%EOF") ? std::optional(bytes.toStdString()) : std::nullopt;
}

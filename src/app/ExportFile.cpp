#include "app/ExportFile.h"

#include "document/OrrevaDoc.h"

#include <QFile>

void ExportFile(COrrevaDoc& document, const QString& path, const QByteArray& bytes)
{
    document.BeginCommand();
    document.WriteFile(StatusTopic::Export, QFile::encodeName(path).toStdString(), bytes.toStdString());
}

#pragma once

#include <QByteArray>
#include <QString>

class COrrevaDoc;

/// Writes what a window made, and the status bar tells it, as with every export.
void ExportFile(COrrevaDoc& document, const QString& path, const QByteArray& bytes);

#pragma once

#include "drawing/paper/Paper.h"

#include <QByteArray>

class QPagedPaintDevice;

/// Paints all pages on a device of pages, each on paper of its own size and from that paper's corner on.
/// False if the device takes none.
bool PaintPaper(QPagedPaintDevice& device, const PaperDocument& document);

/// The pages as a PDF file with the document's title, fonts embedded.
QByteArray PdfBytes(const PaperDocument& document);

#pragma once

#include "drawing/paper/Paper.h"

#include <QByteArray>

class QLocale;
class QPagedPaintDevice;
class QPainter;

/// A4, or Letter where that is what people write on.
const PaperSize& PaperOfLocale(const QLocale& locale);

/// Paints one page from the painter's origin on, a millimetre `scale` units of the painter long.
void PaintPaperPage(QPainter& painter, const PaperPage& page, double scale);

/// Paints all pages on a device of pages, each on paper of its own size and from that paper's corner on.
/// False if the device takes none.
bool PaintPaper(QPagedPaintDevice& device, const PaperDocument& document);

/// The pages as a PDF file with the document's title, fonts embedded.
QByteArray PdfBytes(const PaperDocument& document);

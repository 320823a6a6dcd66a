#include "painting/PaperFile.h"

#include "painting/PainterSurface.h"
#include "painting/QtText.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

namespace {

constexpr int kUnitsPerInch = 2540;
constexpr std::int32_t kPenWidth = 20; // a fifth of a millimetre, for what is one unit wide

QPageLayout LayoutOf(const PaperPage& page)
{
    const bool lying = page.width > page.height;
    const QSizeF upright = lying ? QSizeF(page.height, page.width) : QSizeF(page.width, page.height);
    QPageLayout layout(QPageSize(upright, QPageSize::Millimeter),
                       lying ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void PaintPage(QPainter& painter, QPaintDevice& device, const PaperPage& page)
{
    painter.save();
    painter.scale(static_cast<double>(device.logicalDpiX()) / kUnitsPerInch,
                  static_cast<double>(device.logicalDpiY()) / kUnitsPerInch);
    PainterSurface surface(painter, PaperUnits(page.width), PaperUnits(page.height), kPenWidth);
    page.paint(surface);
    painter.restore();
}

} // namespace

bool PaintPaper(QPagedPaintDevice& device, const PaperDocument& document)
{
    QPainter painter;
    for (const PaperPage& page : document.pages) {
        device.setPageLayout(LayoutOf(page));
        if (painter.isActive() ? !device.newPage() : !painter.begin(&device)) {
            return false;
        }
        PaintPage(painter, device, page);
    }
    return painter.isActive() && painter.end();
}

QByteArray PdfBytes(const PaperDocument& document)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&file);
        writer.setCreator("Orreva");
        writer.setTitle(ToQString(document.title));
        writer.setResolution(kUnitsPerInch);
        PaintPaper(writer, document);
    }
    return file.data();
}

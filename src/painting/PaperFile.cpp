#include "painting/PaperFile.h"

#include "painting/PainterSurface.h"
#include "painting/QtText.h"

#include <QBuffer>
#include <QLocale>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace {

constexpr double kMmPerInch = 25.4;
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

constexpr QLocale::Territory kLetterTerritories[] = {
    QLocale::Belize,     QLocale::Canada,     QLocale::Chile,        QLocale::Colombia, QLocale::CostaRica,
    QLocale::Guatemala,  QLocale::Mexico,     QLocale::Nicaragua,    QLocale::Panama,   QLocale::Philippines,
    QLocale::PuertoRico, QLocale::ElSalvador, QLocale::UnitedStates, QLocale::Venezuela};

} // namespace

const PaperSize& PaperOfLocale(const QLocale& locale)
{
    // The toolkit's locale without any language, C, has no territory.
    const bool letter =
        locale.language() != QLocale::C && std::ranges::count(kLetterTerritories, locale.territory()) > 0;
    return *FindPaper(letter ? "Letter" : "A4");
}

void PaintPaperPage(QPainter& painter, const PaperPage& page, double scale)
{
    painter.save();
    painter.scale(scale / kUnitsPerMm, scale / kUnitsPerMm);
    PainterSurface surface(painter, PaperUnits(page.width), PaperUnits(page.height), kPenWidth);
    page.paint(surface);
    painter.restore();
}

bool PaintPaper(QPagedPaintDevice& device, const PaperDocument& document)
{
    QPainter painter;
    for (const PaperPage& page : document.pages) {
        device.setPageLayout(LayoutOf(page));
        if (painter.isActive() ? !device.newPage() : !painter.begin(&device)) {
            return false;
        }
        PaintPaperPage(painter, page, device.logicalDpiX() / kMmPerInch);
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

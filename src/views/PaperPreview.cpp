#include "views/PaperPreview.h"

#include "painting/PaperFile.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kPageGap = 12; // pixels around a page
constexpr double kMmPerInch = 25.4;

} // namespace

CPaperPreview::CPaperPreview(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void CPaperPreview::ShowDocument(PaperDocument document)
{
    m_document = std::move(document);
    FollowContent();
}

void CPaperPreview::SetScale(int percent)
{
    m_percent = percent;
    FollowContent();
}

double CPaperPreview::PixelsPerMm() const { return logicalDpiX() / kMmPerInch * m_percent / 100; }

std::vector<QRectF> CPaperPreview::PlacesIn(double width) const
{
    std::vector<QRectF> places;
    double x = kPageGap;
    double y = kPageGap;
    double rowHeight = 0;
    for (const PaperPage& page : m_document.pages) {
        const QSizeF size = QSizeF(page.width, page.height) * PixelsPerMm();
        if (x > kPageGap && x + size.width() + kPageGap > width) {
            x = kPageGap;
            y += rowHeight + kPageGap;
            rowHeight = 0;
        }
        places.emplace_back(QPointF(x, y), size);
        x += size.width() + kPageGap;
        rowHeight = std::max(rowHeight, size.height());
    }
    return places;
}

int CPaperPreview::heightForWidth(int width) const
{
    double bottom = 0;
    for (const QRectF& place : PlacesIn(width)) {
        bottom = std::max(bottom, place.bottom());
    }
    return static_cast<int>(std::ceil(bottom + kPageGap));
}

QSize CPaperPreview::sizeHint() const { return {width(), heightForWidth(width())}; }

void CPaperPreview::FollowContent()
{
    double widest = 0;
    for (const PaperPage& page : m_document.pages) {
        widest = std::max(widest, page.width * PixelsPerMm());
    }
    setMinimumSize(static_cast<int>(std::ceil(widest + 2 * kPageGap)), heightForWidth(width()));
    updateGeometry();
    update();
}

void CPaperPreview::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    setMinimumHeight(heightForWidth(width()));
}

void CPaperPreview::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::gray);
    const std::vector<QRectF> places = PlacesIn(width());
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (!places[i].intersects(QRectF(event->rect()))) {
            continue;
        }
        painter.fillRect(places[i], Qt::white);
        painter.save();
        painter.setClipRect(places[i]);
        painter.translate(places[i].topLeft());
        PaintPaperPage(painter, m_document.pages[i], PixelsPerMm());
        painter.restore();
    }
}

#include "moc_PaperPreview.cpp"

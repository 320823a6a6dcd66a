#include "windows/SeverityMark.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kSide = 16;          // in the units in which the marks are drawn
constexpr int kPixels = 4 * kSide; // enough for any screen

void PaintError(QPainter& painter)
{
    painter.setBrush(QColor(198, 40, 40));
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(5.5, 5.5), QPointF(10.5, 10.5));
    painter.drawLine(QPointF(10.5, 5.5), QPointF(5.5, 10.5));
}

/// A stroke with its point, upright or, for a note, on its head.
void PaintStroke(QPainter& painter, const QColor& colour, double pointY, double fromY, double toY)
{
    painter.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoint(QPointF(8, pointY));
    painter.drawLine(QPointF(8, fromY), QPointF(8, toY));
}

void PaintWarning(QPainter& painter)
{
    painter.setBrush(QColor(255, 179, 0));
    painter.setPen(QPen(QColor(120, 80, 0), 1));
    painter.drawPolygon(QPolygonF{{8, 1}, {15.5, 14.5}, {0.5, 14.5}});
    PaintStroke(painter, Qt::black, 12.5, 6, 9.5);
}

void PaintNote(QPainter& painter)
{
    painter.setBrush(QColor(25, 103, 190));
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 2, 2);
    PaintStroke(painter, Qt::white, 4.5, 8, 11.5);
}

void PaintNothing(QPainter& painter)
{
    painter.setBrush(QColor(46, 125, 50));
    painter.drawEllipse(QRectF(1, 1, 14, 14));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{{4.5, 8.5}, {7, 11}, {11.5, 5.5}});
}

void Paint(QPainter& painter, std::optional<Severity> severity)
{
    if (!severity) {
        PaintNothing(painter);
        return;
    }
    switch (*severity) {
    case Severity::kError:
        PaintError(painter);
        break;
    case Severity::kWarning:
        PaintWarning(painter);
        break;
    case Severity::kNote:
        PaintNote(painter);
        break;
    }
}

} // namespace

QIcon SeverityMark(std::optional<Severity> severity)
{
    QPixmap pixmap(kPixels, kPixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(kPixels / kSide, kPixels / kSide);
    painter.setPen(Qt::NoPen);
    Paint(painter, severity);
    return QIcon(pixmap);
}

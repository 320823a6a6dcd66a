#include "views/PictureWidget.h"

#include "painting/PainterSurface.h"

#include <QPainter>
#include <QTransform>

#include <cmath>

namespace {

/// Lets the painter count the device's own pixels, from the widget's upper left corner on; the widget's size
/// in them.
Pixel CountDevicePixels(QPainter& painter, const QSize& size)
{
    const QTransform device = painter.deviceTransform();
    // The corner may lie within a pixel, and a picture must not.
    const QPoint corner = device.map(QPointF(0, 0)).toPoint();
    const QPoint end = device.map(QPointF(size.width(), size.height())).toPoint();
    painter.setWorldTransform(QTransform::fromTranslate(corner.x(), corner.y()) * device.inverted());
    return {end.x() - corner.x(), end.y() - corner.y()};
}

bool IsWhole(double scale)
{
    constexpr double kRounding = 1e-6;
    return std::fabs(scale - std::round(scale)) < kRounding;
}

} // namespace

Colour ToColour(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

CPictureWidget::CPictureWidget(QWidget* parent) : QWidget(parent)
{
    // Erasing it first would flicker.
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CPictureWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    Pixel size{width(), height()};
    const double scale = painter.deviceTransform().m11();
    m_pixelScale = 1;
    if (m_inScreenPixels && !IsWhole(scale)) {
        m_pixelScale = scale;
        size = CountDevicePixels(painter, this->size());
    }
    PainterSurface surface(painter, size.x, size.y);
    Paint(surface);
}

#include "moc_PictureWidget.cpp"

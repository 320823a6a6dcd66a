#include "views/PictureWidget.h"

#include "painting/PainterSurface.h"

#include <QPainter>

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
    PainterSurface surface(painter, width(), height());
    Paint(surface);
}

#include "moc_PictureWidget.cpp"

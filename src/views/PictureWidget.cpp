#include "views/PictureWidget.h"

#include "painting/PainterSurface.h"

#include <QPainter>

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

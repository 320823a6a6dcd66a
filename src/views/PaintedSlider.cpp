#include "views/PaintedSlider.h"

void CPaintedSlider::paintEvent(QPaintEvent* event)
{
    QSlider::paintEvent(event);
    emit Painted(value());
}

#include "moc_PaintedSlider.cpp"

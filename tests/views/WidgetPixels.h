#pragma once

#include "painting/PainterSurface.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

/// What a widget shows.
inline QImage Shown(QWidget& widget) { return widget.grab().toImage().convertToFormat(QImage::Format_RGB32); }

/// What a picture shows in the widget's size.
template <typename Paint>
QImage Painted(const QWidget& widget, Paint paint)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    PainterSurface surface(painter, image.width(), image.height());
    paint(surface);
    painter.end();
    return image;
}

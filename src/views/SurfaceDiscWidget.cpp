#include "views/SurfaceDiscWidget.h"

#include "drawing/SurfaceDisc.h"
#include "painting/PainterSurface.h"

#include <QPainter>

namespace {

Colour OfPalette(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

} // namespace

CSurfaceDiscWidget::CSurfaceDiscWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(220, 150);
}

void CSurfaceDiscWidget::Show(std::optional<Figure> figure, double D)
{
    m_figure = std::move(figure);
    m_D = D;
    update();
}

void CSurfaceDiscWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    PaintSurfaceDisc(surface, m_figure ? &*m_figure : nullptr, m_D,
                     OfPalette(palette().color(QPalette::Window)),
                     OfPalette(palette().color(QPalette::WindowText)));
}

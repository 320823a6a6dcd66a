#include "views/SurfaceDiscWidget.h"

#include "drawing/SurfaceDisc.h"

CSurfaceDiscWidget::CSurfaceDiscWidget(QWidget* parent) : CPictureWidget(parent) { setMinimumSize(220, 150); }

void CSurfaceDiscWidget::Show(std::optional<Figure> figure, double D)
{
    m_figure = std::move(figure);
    m_D = D;
    update();
}

void CSurfaceDiscWidget::Paint(Surface& surface)
{
    PaintSurfaceDisc(surface, m_figure ? &*m_figure : nullptr, m_D,
                     ToColour(palette().color(QPalette::Window)),
                     ToColour(palette().color(QPalette::WindowText)));
}

#include "moc_SurfaceDiscWidget.cpp"

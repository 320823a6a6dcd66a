#include "windows/ChartView.h"

#include "painting/PainterSurface.h"

#include <QMouseEvent>
#include <QPainter>

CChartView::CChartView(QWidget* parent) : QWidget(parent) { setMinimumSize(320, 200); }

void CChartView::ShowChart(Chart chart)
{
    m_chart = std::move(chart);
    update();
}

void CChartView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    PaintChart(surface, m_chart, dark ? kDarkChart : kLightChart);
}

void CChartView::mousePressEvent(QMouseEvent* event)
{
    const QPoint place = event->position().toPoint();
    const ChartPlot plot = PlotOf(m_chart, width(), height());
    if (event->button() == Qt::LeftButton && plot.Has({place.x(), place.y()})) {
        emit Clicked(plot.PlaceOf({place.x(), place.y()}).x);
    }
}

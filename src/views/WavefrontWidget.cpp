#include "views/WavefrontWidget.h"

#include "painting/PainterSurface.h"

#include <QPainter>

CWavefrontWidget::CWavefrontWidget(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(260, 160);
}

void CWavefrontWidget::Show(Chart chart)
{
    m_chart = std::move(chart);
    update();
}

void CWavefrontWidget::paintEvent(QPaintEvent*)
{
    constexpr int kHalfLight = 128;
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    const bool dark = palette().color(QPalette::Window).lightness() < kHalfLight;
    PaintChart(surface, m_chart, dark ? kDarkChart : kLightChart);
}

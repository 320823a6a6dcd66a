#include "views/WavefrontWidget.h"

CWavefrontWidget::CWavefrontWidget(QWidget* parent) : CPictureWidget(parent) { setMinimumSize(260, 160); }

void CWavefrontWidget::Show(Chart chart)
{
    m_chart = std::move(chart);
    update();
}

void CWavefrontWidget::Paint(Surface& surface)
{
    constexpr int kHalfLight = 128;
    const bool dark = palette().color(QPalette::Window).lightness() < kHalfLight;
    PaintChart(surface, m_chart, dark ? kDarkChart : kLightChart);
}

#include "moc_WavefrontWidget.cpp"

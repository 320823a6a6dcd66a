#pragma once

#include "drawing/Chart.h"

#include <QWidget>

/// Shows a chart in the window's own ground, light or dark, and tells where in its plot the user clicks.
class CChartView : public QWidget {
    Q_OBJECT

public:
    explicit CChartView(QWidget* parent = nullptr);

    void ShowChart(Chart chart);

signals:
    /// A click at an x of the plot, in the axis' unit.
    void Clicked(double x);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Chart m_chart{};
};

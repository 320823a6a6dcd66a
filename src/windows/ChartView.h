#pragma once

#include "drawing/Chart.h"

#include <QWidget>

#include <optional>

/// Shows a chart in the window's own ground, light or dark, and tells where in its plot the user points and
/// clicks. With the keyboard the arrows move the pointer, Home and End put it at the ends, and Enter clicks
/// there.
class CChartView : public QWidget {
    Q_OBJECT

public:
    explicit CChartView(QWidget* parent = nullptr);

    void ShowChart(Chart chart);
    /// Whether the window's ground is dark.
    bool IsDark() const;
    /// Where the pointer stands, in the axis' unit.
    std::optional<double> Pointer() const { return m_pointer; }

signals:
    /// A click at an x of the plot, in the axis' unit.
    void Clicked(double x);
    /// The same, with the y of the left axis.
    void ClickedAt(double x, double y);
    /// The pointer stands at an x of the plot.
    void Pointed(double x);
    /// It has left the plot.
    void PointerGone();
    /// The ground has become dark or light.
    void GroundChanged();

protected:
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void MovePointer(std::optional<double> x);

    Chart m_chart{};
    std::optional<double> m_pointer;
};

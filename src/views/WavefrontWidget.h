#pragma once

#include "drawing/Chart.h"

#include <QWidget>

/// A chart of the wavefront, or of the transverse aberrations, that follows what is typed.
class CWavefrontWidget : public QWidget {
    Q_OBJECT

public:
    explicit CWavefrontWidget(QWidget* parent = nullptr);

    void Show(Chart chart);
    const Chart& Shown() const { return m_chart; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Chart m_chart;
};

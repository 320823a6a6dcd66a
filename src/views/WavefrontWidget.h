#pragma once

#include "drawing/Chart.h"
#include "views/PictureWidget.h"

/// A chart of the wavefront, or of the transverse aberrations, that follows what is typed.
class CWavefrontWidget : public CPictureWidget {
    Q_OBJECT

public:
    explicit CWavefrontWidget(QWidget* parent = nullptr);

    void Show(Chart chart);
    const Chart& Shown() const { return m_chart; }

protected:
    void Paint(Surface& surface) override;

private:
    Chart m_chart;
};

#pragma once

#include "model/optics/FieldSimulation.h"

#include <QWidget>

/// The simulated field of view of a telescope. The light paths are counted by the first paint, and again only
/// when the telescope differs; each count writes a dot to the standard error stream.
class CFieldSimulationCtrl : public QWidget {
    Q_OBJECT

public:
    explicit CFieldSimulationCtrl(QWidget* parent = nullptr);

    /// The telescope must outlive the widget; without one the picture stays empty.
    void SetTelescope(COrrevaData& record) { m_telescope = &record; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    COrrevaData* m_telescope = nullptr;
    FieldSimulation m_simulation;
};

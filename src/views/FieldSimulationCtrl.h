#pragma once

#include "model/optics/FieldSimulation.h"
#include "views/PictureWidget.h"

/// The simulated field of view of a telescope. The light paths are counted by the first paint, and again only
/// when the telescope differs; each count writes a dot to the standard error stream.
class CFieldSimulationCtrl : public CPictureWidget {
    Q_OBJECT

public:
    explicit CFieldSimulationCtrl(QWidget* parent = nullptr) : CPictureWidget(parent) {}

    /// The telescope must outlive the widget; without one the picture stays empty.
    void SetTelescope(COrrevaData& record) { m_telescope = &record; }

protected:
    void Paint(Surface& surface) override;

private:
    COrrevaData* m_telescope = nullptr;
    FieldSimulation m_simulation;
};

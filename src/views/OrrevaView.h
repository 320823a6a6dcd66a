#pragma once

#include "drawing/SectionZoom.h"
#include "views/Pane.h"

/// The right pane: the cross-section, its zoom, and the rays that follow the mouse.
class COrrevaView : public CPane {
    Q_OBJECT

public:
    COrrevaView(COrrevaDoc& document, QWidget* parent);

    /// Takes "Show Secondary without Offset" and does nothing with it: the command works only while the
    /// summary is the active pane.
    bool OnCommand(std::int32_t id) override;

    const SectionZoom& Zoom() const { return m_zoom; }

protected:
    void Paint(Surface& surface) override;
    void PaintPage(Surface& surface) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void OnDraw(Surface& surface, SectionZoom& view);

    SectionZoom m_zoom;
};

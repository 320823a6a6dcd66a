#pragma once

#include "drawing/SectionZoom.h"
#include "raytrace/Lines.h"
#include "views/Pane.h"

#include <optional>

/// The right pane: the cross-section, its zoom, and the rays that follow the mouse.
class COrrevaView : public CPane {
    Q_OBJECT

public:
    COrrevaView(COrrevaDoc& document, QWidget* parent);

    /// Takes "Show Secondary without Offset" and does nothing with it: the command works only while the
    /// summary is the active pane.
    bool OnCommand(std::int32_t id) override;

    const SectionZoom& Zoom() const { return m_zoom; }
    bool IsWide() const override { return true; }
    void HoldForPrint(bool hold) override
    {
        m_heldPointer = hold ? std::optional(m_shownPointer) : std::nullopt;
    }

protected:
    std::vector<PaneLine> Read() override;
    void Paint(Surface& surface) override;
    void PaintPage(Surface& surface) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    /// Plus and minus enlarge and shrink the picture about its middle, the arrows move it.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OnDraw(Surface& surface, SectionZoom& view, Point pointer, double pixelScale);
    bool ShowsRays() const;
    bool ZoomByKey(int key);

    SectionZoom m_zoom;
    Point m_shownPointer;               ///< where the rays on the screen start from, mm
    std::optional<Point> m_heldPointer; ///< and those on paper meanwhile
};

#pragma once

#include "views/SidePanel.h"

/// The tube's dimensions beside the pages of the tube design.
class CTubePanel : public CSidePanel {
    Q_OBJECT

public:
    using CSidePanel::CSidePanel;

protected:
    void PaintPanel(Surface& surface, Colour background, Colour text) override;
};

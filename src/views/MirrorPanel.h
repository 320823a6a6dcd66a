#pragma once

#include "views/SidePanel.h"

/// The mirror's data and the look of a Couder mask beside the pages of the Foucault test.
class CMirrorPanel : public CSidePanel {
    Q_OBJECT

public:
    using CSidePanel::CSidePanel;

protected:
    void PaintPanel(Surface& surface, Colour background, Colour text) override;
};

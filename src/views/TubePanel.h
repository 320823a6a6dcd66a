#pragma once

#include "views/Panel.h"

/// The tube's dimensions beside the pages of the tube design.
class CTubePanel : public CPanel {
    Q_OBJECT

public:
    using CPanel::CPanel;

protected:
    void Paint(Surface& surface, Colour background, Colour text) override;
};

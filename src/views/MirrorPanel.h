#pragma once

#include "views/Panel.h"

/// The mirror's data and the look of a Couder mask beside the pages of the Foucault test.
class CMirrorPanel : public CPanel {
    Q_OBJECT

public:
    using CPanel::CPanel;

protected:
    void Paint(Surface& surface, Colour background, Colour text) override;
};

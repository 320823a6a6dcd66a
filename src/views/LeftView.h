#pragma once

#include "views/Pane.h"

/// The left pane: the design summary.
class CLeftView : public CPane {
    Q_OBJECT

public:
    CLeftView(COrrevaDoc& document, QWidget* parent);

    /// Twice the width that it is asked for: labels and values need about 400 pixels.
    static int CreationWidth(int asked) { return 2 * asked; }

protected:
    void Paint(Surface& surface) override;
    void PaintPage(Surface& surface) override;
};

#pragma once

#include "views/Pane.h"

/// The left pane: the design summary.
class CLeftView : public CPane {
    Q_OBJECT

public:
    CLeftView(COrrevaDoc& document, QWidget* parent);

    /// Twice the width that it is asked for: labels and values need about 400 pixels.
    static int CreationWidth(int asked) { return 2 * asked; }

    bool IsTable() const override { return true; }

protected:
    std::vector<PaneLine> Read() override;
    void Paint(Surface& surface) override;
    void PaintPage(Surface& surface) override;

private:
    void PaintAt(Surface& surface, std::int32_t fontHeight);
};

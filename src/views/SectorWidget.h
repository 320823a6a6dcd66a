#pragma once

#include "views/PictureWidget.h"

#include <cstdint>

/// The drawing of the sector calculator. Its dialog writes the values and asks for a repaint.
class CSectorWidget : public CPictureWidget {
    Q_OBJECT

public:
    explicit CSectorWidget(QWidget* parent = nullptr) : CPictureWidget(parent) {}

    double m_dDiameter = 0.0;  ///< of the circle
    double m_dValue = 0.0;     ///< as entered: the angle in degrees
    std::int32_t m_nType = -1; ///< row of the list of types, -1 before the dialog starts

protected:
    void Paint(Surface& surface) override;
};

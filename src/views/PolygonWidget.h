#pragma once

#include "views/PictureWidget.h"

#include <cstdint>

/// The drawing of the polygon calculator. Its dialog writes the values and asks for a repaint.
class CPolygonWidget : public CPictureWidget {
    Q_OBJECT

public:
    explicit CPolygonWidget(QWidget* parent = nullptr) : CPictureWidget(parent) {}

    double m_dDiameter = 0.0;  ///< of the circle inside the tube, mm
    double m_dValue = 0.0;     ///< the wall's thickness, mm
    std::int32_t m_nType = -1; ///< row of the list of polygons, -1 before the dialog starts

protected:
    void Paint(Surface& surface) override;
};

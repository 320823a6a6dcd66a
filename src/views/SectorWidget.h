#pragma once

#include <QWidget>

#include <cstdint>

/// The drawing of the sector calculator. Its dialog writes the values and asks for a repaint.
class CSectorWidget : public QWidget {
    Q_OBJECT

public:
    explicit CSectorWidget(QWidget* parent = nullptr);

    double m_dDiameter = 0.0;  ///< of the circle
    double m_dValue = 0.0;     ///< as entered: the angle in degrees
    std::int32_t m_nType = -1; ///< row of the list of types, -1 before the dialog starts

protected:
    void paintEvent(QPaintEvent* event) override;
};

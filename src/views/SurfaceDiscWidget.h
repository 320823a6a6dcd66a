#pragma once

#include "model/optics/Figure.h"
#include "views/PictureWidget.h"

#include <optional>

/// The heights of a mirror's surface as a disc in colours.
class CSurfaceDiscWidget : public CPictureWidget {
    Q_OBJECT

public:
    explicit CSurfaceDiscWidget(QWidget* parent = nullptr);

    /// D: the mirror's diameter, mm.
    void Show(std::optional<Figure> figure, double D);

protected:
    void Paint(Surface& surface) override;

private:
    std::optional<Figure> m_figure;
    double m_D = 0;
};

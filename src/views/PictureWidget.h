#pragma once

#include "drawing/Surface.h"

#include <QWidget>

/// A colour of the toolkit as pictures have it.
Colour ToColour(const QColor& colour);

/// A widget that is one picture: it covers itself whole at every repaint.
class CPictureWidget : public QWidget {
    Q_OBJECT

public:
    explicit CPictureWidget(QWidget* parent);

protected:
    /// Where a pixel is a broken number of the screen's, the picture is painted in those, so that its lines
    /// are thin and even there, too.
    void PaintInScreenPixels() { m_inScreenPixels = true; }
    /// Pixels of the surface for one of the widget's, while painting.
    double PixelScale() const { return m_pixelScale; }

    void paintEvent(QPaintEvent* event) final;
    /// The picture on a surface of the widget's size.
    virtual void Paint(Surface& surface) = 0;

private:
    bool m_inScreenPixels = false;
    double m_pixelScale = 1;
};

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
    void paintEvent(QPaintEvent* event) final;
    /// The picture on a surface of the widget's size.
    virtual void Paint(Surface& surface) = 0;
};

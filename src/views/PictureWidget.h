#pragma once

#include <QWidget>

class Surface;

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

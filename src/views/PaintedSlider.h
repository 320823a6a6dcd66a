#pragma once

#include <QSlider>

/// A slider that tells its position whenever it is painted: while it is dragged, and on any other repaint.
class CPaintedSlider : public QSlider {
    Q_OBJECT

public:
    using QSlider::QSlider;

signals:
    void Painted(int position);

protected:
    void paintEvent(QPaintEvent* event) override;
};

#pragma once

#include <QProxyStyle>

/// The desktop's own style with two habits of this program: a field that only shows a result has the colour
/// of the dialog, so that it does not look like one to type into, and the columns of a result list stand
/// apart, also where a number at the right meets a text at the left.
class CProgramStyle : public QProxyStyle {
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

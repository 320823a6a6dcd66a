#pragma once

#include <QProxyStyle>

/// The desktop's own style, in which a field that only shows a result has the colour of the dialog, so that
/// it does not look like one to type into.
class CReadOnlyStyle : public QProxyStyle {
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

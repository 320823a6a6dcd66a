#pragma once

#include <QProxyStyle>

/// The desktop's own style with the habits of this program: a field that only shows a result has the colour
/// of the dialog, so that it does not look like one to type into; the columns of a result list stand apart,
/// also where a number at the right meets a text at the left, and its rows have room for the dots of
/// umlauts; the buttons of a property sheet stand in one order on every desktop; no button of a dialog has an
/// icon. The buttons that open the rest of a bar take an icon of the program: the toolkit's would open every
/// plugin of pictures at the start.
class CProgramStyle : public QProxyStyle {
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;
};

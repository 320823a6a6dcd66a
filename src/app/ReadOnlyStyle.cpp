#include "app/ReadOnlyStyle.h"

#include <QStyleOptionFrame>

void CReadOnlyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                   const QWidget* widget) const
{
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == PE_PanelLineEdit && frame != nullptr && frame->state.testFlag(State_ReadOnly)) {
        QStyleOptionFrame shown(*frame);
        shown.palette.setBrush(QPalette::Base, frame->palette.window());
        QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

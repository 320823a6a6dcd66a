#include "app/ProgramStyle.h"

#include "pages/sheet/PropertySheet.h"
#include "views/ProgramIcon.h"
#include "views/ResultList.h"

#include <QHeaderView>
#include <QStyleOptionFrame>

namespace {

/// On either side of a column's texts, in pixels.
constexpr int kColumnGap = 4;
/// Above and below them.
constexpr int kRowGap = 3;

bool IsOfResultList(const QWidget* widget)
{
    const auto* const header = qobject_cast<const QHeaderView*>(widget);
    return qobject_cast<const CResultList*>(header != nullptr ? header->parent() : widget) != nullptr;
}

} // namespace

void CProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
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

int CProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    const int desktops = QProxyStyle::pixelMetric(metric, option, widget);
    const bool margin = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    return margin && IsOfResultList(widget) ? desktops + kColumnGap : desktops;
}

QSize CProgramStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const
{
    const QSize desktops = QProxyStyle::sizeFromContents(type, option, size, widget);
    const bool row = type == CT_ItemViewItem && IsOfResultList(widget);
    return row ? desktops + QSize(0, 2 * kRowGap) : desktops;
}

int CProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* data) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) {
        return 0;
    }
    if (hint == SH_DialogButtonLayout && widget != nullptr &&
        qobject_cast<const CPropertySheet*>(widget->parentWidget()) != nullptr) {
        return QDialogButtonBox::WinLayout; // OK, Cancel, Apply
    }
    return QProxyStyle::styleHint(hint, option, widget, data);
}

QIcon CProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                  const QWidget* widget) const
{
    switch (icon) {
    case SP_ToolBarHorizontalExtensionButton:
        return ProgramIcon("more");
    case SP_ToolBarVerticalExtensionButton:
        return ProgramIcon("more-below");
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

#include "moc_ProgramStyle.cpp"

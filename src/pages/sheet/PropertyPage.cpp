#include "pages/sheet/PropertyPage.h"

#include "pages/sheet/Controls.h"
#include "pages/sheet/Help.h"
#include "views/HandCursorStatic.h"

void CPropertyPage::OnApply()
{
    Store();
    Recalculate();
}

void CPropertyPage::BindHelp(int infoControl, int helpControl, long helpContext)
{
    const auto bind = [this](int control, long context) {
        if (auto* const picture = FindControl<CHandCursorStatic>(this, control)) {
            connect(picture, &CHandCursorStatic::clicked, this,
                    [context] { WinHelp(context, kHelpContext); });
        }
    };
    bind(infoControl, 0);
    bind(helpControl, helpContext);
}

#include "moc_PropertyPage.cpp"

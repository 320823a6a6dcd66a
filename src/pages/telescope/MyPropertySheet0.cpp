#include "pages/telescope/MyPropertySheet0.h"

#include "document/OrrevaDoc.h"
#include "pages/telescope/MyPropertyPage01.h"
#include "pages/telescope/MyPropertyPage02.h"
#include "pages/telescope/MyPropertyPage03.h"
#include "pages/telescope/MyPropertyPage04.h"
#include "pages/telescope/MyPropertyPage05.h"
#include "pages/telescope/MyPropertyPage06.h"
#include "pages/telescope/MyPropertyPage07.h"
#include "pages/telescope/MyPropertyPage08.h"

namespace {

template <typename Page>
CPropertyPage* Make(COrrevaDoc& document, QWidget* parent)
{
    return new Page(document, parent);
}

struct PageOfSheet {
    const char* title;
    CPropertyPage* (*make)(COrrevaDoc&, QWidget*);
};

/// In the order of the tabs, which the classes' numbers do not follow.
constexpr PageOfSheet kPages[] = {
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "General Remarks"), Make<CMyPropertyPage01>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Primary"), Make<CMyPropertyPage02>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Tube"), Make<CMyPropertyPage06>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Focuser"), Make<CMyPropertyPage03>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Secondary"), Make<CMyPropertyPage04>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Mirror Cell"), Make<CMyPropertyPage05>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Eyepieces"), Make<CMyPropertyPage07>},
    {QT_TRANSLATE_NOOP("CMyPropertySheet0", "Center of Gravity"), Make<CMyPropertyPage08>},
};

} // namespace

CMyPropertySheet0::CMyPropertySheet0(COrrevaDoc& document, QWidget* parent)
    : CPropertySheet(tr("Telescope Properties"), parent)
{
    for (const PageOfSheet& page : kPages) {
        AddPage(tr(page.title),
                [&document, make = page.make](QWidget* place) { return make(document, place); });
    }
    if (g_nWizard != 0) {
        SetWizardMode();
    }
    OpenWithRoom({820, 640});
}

#include "moc_MyPropertySheet0.cpp"

#pragma once

#include "pages/sheet/PropertySheet.h"

class COrrevaDoc;

/// The sheet in which a telescope is described and analysed: eight pages as tabs, or as a wizard when
/// g_nWizard is set. The wizard ends on its fifth page; the three behind it are the tabbed sheet's.
class CMyPropertySheet0 : public CPropertySheet {
    Q_OBJECT

public:
    CMyPropertySheet0(COrrevaDoc& document, QWidget* parent);
};

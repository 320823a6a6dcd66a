#pragma once

#include "pages/sheet/PropertySheet.h"

class COrrevaDoc;
class CPropertyPageTube;
class CTubePanel;

/// The tube design with its preview: it runs on the document's scratch record. Its second page is the one of
/// the design that is chosen on the first.
class CPropertySheetTube : public CPropertySheet {
    Q_OBJECT

public:
    CPropertySheetTube(COrrevaDoc& document, QWidget* parent);

private:
    template <class Page>
    Page* NewPage(QWidget* parent);
    void AddDesignPage();
    void ExchangeDesignPage();

    COrrevaDoc& m_document;
    CTubePanel* m_panel;
    int m_solid = 0; ///< which second page stands in the sheet: 1 the solid tube's, 0 the truss tube's
};

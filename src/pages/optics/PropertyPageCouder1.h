#pragma once

#include "model/optics/FoucaultZones.h"
#include "pages/sheet/PropertyPage.h"

#include <memory>

class COrrevaDoc;

namespace Ui {
class PropertyPageCouder1;
}

/// "Masken": the zone calculator, and the mask that was taken over from it last. It reads the document's main
/// record and writes to none.
class CPropertyPageCouder1 : public CPropertyPage {
    Q_OBJECT

public:
    CPropertyPageCouder1(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageCouder1() override;

    /// The texts as they stand, and the radio groups.
    ZoneFields TakeFields() const;

private:
    struct Mirror {
        double D; ///< mm
        double F; ///< mm
    };

    Mirror ReadMirror();
    void ShowFields(const ZoneFields& fields);
    void ConnectFields();
    void ConnectResets();
    void ConnectButtons();
    void RebuildColumnsAndRows();
    void RebuildRows();
    void RebuildMask();

    COrrevaDoc& m_document;
    std::unique_ptr<Ui::PropertyPageCouder1> m_ui;
};

#pragma once

#include "model/analysis/Primary.h"
#include "pages/sheet/TelescopePage.h"

#include <memory>

namespace Ui {
class MyPropertyPage02;
}

/// The page Primary: the mirror's measures, its glass, and what such a mirror will do.
class CMyPropertyPage02 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage02(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage02() override;

    void Store() override;

protected:
    void Refresh() override;

private:
    PrimaryTexts Texts() const;
    /// The name of the glass goes to the record at once, its density with the other fields.
    void SelectMaterial(int index);

    std::unique_ptr<Ui::MyPropertyPage02> m_ui;
};

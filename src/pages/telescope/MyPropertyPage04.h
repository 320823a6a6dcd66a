#pragma once

#include "model/analysis/Secondary.h"
#include "pages/sheet/WantedFieldPage.h"

#include <memory>

namespace Ui {
class MyPropertyPage04;
}

/// The page Secondary: how a flat of the typed size lights the field. When it comes to the front it reads the
/// wanted field again, which the page Tube may have changed; the list stays as it was until something is
/// typed.
class CMyPropertyPage04 : public CWantedFieldPage {
    Q_OBJECT

public:
    CMyPropertyPage04(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage04() override;

    void Store() override;

protected:
    void Refresh() override;

private:
    SecondaryTexts Texts() const;

    std::unique_ptr<Ui::MyPropertyPage04> m_ui;
};

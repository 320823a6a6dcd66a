#pragma once

#include "pages/sheet/TelescopePage.h"

#include <memory>

namespace Ui {
class PropertyPageMatchingRonchi1;
}

/// "Setup": the grating and the conic constant to be matched.
class CPropertyPageMatchingRonchi1 : public CTelescopePage {
    Q_OBJECT

public:
    CPropertyPageMatchingRonchi1(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageMatchingRonchi1() override;

    void Store() override;

private:
    std::unique_ptr<Ui::PropertyPageMatchingRonchi1> m_ui;
};

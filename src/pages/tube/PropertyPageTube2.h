#pragma once

#include "pages/tube/PropertyPageTube.h"

#include <memory>

namespace Ui {
class PropertyPageTube2;
}

/// The second page of the tube design for a solid tube.
class CPropertyPageTube2 : public CPropertyPageTube {
    Q_OBJECT

public:
    CPropertyPageTube2(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageTube2() override;

private:
    std::unique_ptr<Ui::PropertyPageTube2> m_ui;
};

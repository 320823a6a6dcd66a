#pragma once

#include "pages/sheet/PropertyPage.h"

#include <memory>

namespace Ui {
class PropertyPageCouder5;
}

/// "Setup": a frame for the choice of mask and series of measurements. Only the way to the masks is finished.
class CPropertyPageCouder5 : public CPropertyPage {
    Q_OBJECT

public:
    explicit CPropertyPageCouder5(QWidget* parent);
    ~CPropertyPageCouder5() override;

signals:
    /// The user asks for the page of the masks.
    void MasksAsked();

private:
    std::unique_ptr<Ui::PropertyPageCouder5> m_ui;
};

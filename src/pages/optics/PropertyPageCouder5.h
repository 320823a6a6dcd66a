#pragma once

#include "pages/optics/FoucaultPage.h"

#include <memory>

namespace Ui {
class PropertyPageCouder5;
}

/// "Setup": the mask and the series of readings in use, and the ways to the pages that make new ones.
class CPropertyPageCouder5 : public CFoucaultPage {
    Q_OBJECT

public:
    CPropertyPageCouder5(CFoucaultSession& session, QWidget* parent);
    ~CPropertyPageCouder5() override;

    /// Another page may have taken over another mask.
    void OnSetActive() override { ShowSession(); }

signals:
    /// The user asks for the page of the masks, of the series, or of the readings.
    void MasksAsked();
    void SeriesAsked();
    void ReadingsAsked();

protected:
    void ShowSession() override;

private:
    std::unique_ptr<Ui::PropertyPageCouder5> m_ui;
};

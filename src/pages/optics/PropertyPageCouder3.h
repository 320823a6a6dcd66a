#pragma once

#include "pages/optics/FoucaultPage.h"

#include <memory>

class CReadingsModel;

namespace Ui {
class PropertyPageCouder3;
}

/// "Messwerte": the readings of the current series, zones down and runs across.
class CPropertyPageCouder3 : public CFoucaultPage {
    Q_OBJECT

public:
    CPropertyPageCouder3(CFoucaultSession& session, QWidget* parent);
    ~CPropertyPageCouder3() override;

    /// Stands on the first reading that is missing.
    void GoToNextReading();

protected:
    void ShowSession() override;

private:
    void PasteAt(const QString& block);
    void RemoveZoneAt();
    /// What hinders the series from being reduced, else its verdict.
    void Tell();

    CReadingsModel* m_model;
    std::unique_ptr<Ui::PropertyPageCouder3> m_ui;
};

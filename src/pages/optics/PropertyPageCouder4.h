#pragma once

#include "pages/optics/FoucaultPage.h"

#include <memory>

class QLineEdit;

namespace Ui {
class PropertyPageCouder4;
}

/// "WaveFront Error": what the shown series say of the mirror.
class CPropertyPageCouder4 : public CFoucaultPage {
    Q_OBJECT

public:
    CPropertyPageCouder4(CFoucaultSession& session, QWidget* parent);
    ~CPropertyPageCouder4() override;

protected:
    void ShowSession() override;

private:
    void ConnectChoices();
    void TakeConic();
    void TakeWavelength();
    void ShowResults(const std::vector<SeriesFigure>& figures);
    void ShowPictures(const std::vector<SeriesFigure>& figures);

    std::unique_ptr<Ui::PropertyPageCouder4> m_ui;
};

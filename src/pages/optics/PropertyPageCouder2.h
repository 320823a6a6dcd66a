#pragma once

#include "pages/optics/FoucaultPage.h"

#include <memory>

namespace Ui {
class PropertyPageCouder2;
}

/// "Messreihen": the series of readings; those that are checked are shown on the page of the wavefront.
class CPropertyPageCouder2 : public CFoucaultPage {
    Q_OBJECT

public:
    CPropertyPageCouder2(CFoucaultSession& session, QWidget* parent);
    ~CPropertyPageCouder2() override;

protected:
    void ShowSession() override;

private:
    void ConnectButtons();
    void ShowRow(int row);
    void RowEdited(int row, int column);
    void RemoveSeries();
    void ImportFile();
    void ExportFile();

    std::unique_ptr<Ui::PropertyPageCouder2> m_ui;
    bool m_showing = false; ///< the table changes by us and not by the user
};

#pragma once

#include "pages/sheet/TelescopePage.h"

#include <memory>

namespace Ui {
class MyPropertyPage01;
}

/// The page General Remarks: the telescope's title and free remarks. It alone recalculates on Next, too; Back
/// and Finish write nothing.
class CMyPropertyPage01 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage01(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage01() override;

    void Store() override;
    void OnWizardNext() override { OnApply(); }
    void OnWizardBack() override {}
    void OnWizardFinish() override {}

private:
    std::unique_ptr<Ui::MyPropertyPage01> m_ui;
};

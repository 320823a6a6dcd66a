#pragma once

#include "pages/sheet/TelescopePage.h"

#include <memory>

namespace Ui {
class MyPropertyPage08;
}

/// The page Center of Gravity. The record is its only store: it reads all of it whenever it comes to the
/// front, and edits take effect at once.
class CMyPropertyPage08 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage08(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage08() override;

    void OnSetActive() override;

protected:
    void Refresh() override;

private:
    void EditComponent();
    void Suggest();

    std::unique_ptr<Ui::MyPropertyPage08> m_ui;
};

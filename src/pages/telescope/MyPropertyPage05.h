#pragma once

#include "pages/sheet/TelescopePage.h"

#include <memory>

namespace Ui {
class MyPropertyPage05;
}

/// The page Mirror Cell: how many points must support the mirror. It analyses the record when asked to, and
/// stores nothing.
class CMyPropertyPage05 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage05(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage05() override;

private:
    void Analyse();

    std::unique_ptr<Ui::MyPropertyPage05> m_ui;
};

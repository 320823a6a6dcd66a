#pragma once

#include "model/analysis/Focuser.h"
#include "pages/sheet/TelescopePage.h"

#include <array>
#include <cstdint>
#include <memory>

class QRadioButton;

namespace Ui {
class MyPropertyPage03;
}

/// The page Focuser: its kind and measures. It computes nothing itself.
class CMyPropertyPage03 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage03(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage03() override;

    void Store() override;

private:
    /// The kind that is chosen; what the record holds if that is no kind.
    std::int32_t Type() const;
    void EnableFields();

    std::array<QLineEdit*, kFocuserNumbers> m_edits{};
    std::array<QRadioButton*, 3> m_types{};
    std::int32_t m_typeOfRecord;
    std::unique_ptr<Ui::MyPropertyPage03> m_ui;
};

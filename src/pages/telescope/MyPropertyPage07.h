#pragma once

#include "model/analysis/Eyepieces.h"
#include "pages/sheet/TelescopePage.h"

#include <memory>
#include <vector>

namespace Ui {
class MyPropertyPage07;
}

/// The page Eyepieces: what an eyepiece of the user's list gives in this telescope. The list is read from
/// eyepiece.dat in the current folder whenever the page is built. It stores nothing.
class CMyPropertyPage07 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage07(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage07() override;

private:
    /// The row that says that the list is not complete, if it is not.
    ListRows ListNote() const;
    /// `index` counts the rows of the drop-down.
    void ShowEyepiece(int index);

    const EyepieceList m_list;              ///< in the order of the file
    const std::vector<std::size_t> m_order; ///< the row of the drop-down -> the eyepiece
    std::unique_ptr<Ui::MyPropertyPage07> m_ui;
};

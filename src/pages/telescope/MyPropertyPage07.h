#pragma once

#include "model/analysis/EyepiecePlaces.h"
#include "pages/sheet/TelescopePage.h"

#include <memory>
#include <vector>

namespace Ui {
class MyPropertyPage07;
}

/// The page Eyepieces: what an eyepiece of the user's list gives in this telescope. The list is looked for
/// and read whenever the page is built. It stores nothing.
class CMyPropertyPage07 : public CTelescopePage {
    Q_OBJECT

public:
    CMyPropertyPage07(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage07() override;

private:
    void ShowList(EyepieceList list);
    void UseInstalledList();
    /// The row that says that the list is not complete, if it is not.
    ListRows ListNote() const;
    /// `index` counts the rows of the drop-down.
    void ShowEyepiece(int index);

    EyepieceList m_list;              ///< in the order of the file
    std::vector<std::size_t> m_order; ///< the row of the drop-down -> the eyepiece
    std::unique_ptr<Ui::MyPropertyPage07> m_ui;
};

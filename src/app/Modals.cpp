#include "app/Modals.h"

#include "document/OrrevaDoc.h"
#include "pages/MyPropertySheet0.h"

#include <QDialog>

namespace {

template <typename Dialog>
bool Run(COrrevaDoc& document, QWidget* parent)
{
    Dialog dialog(document, parent);
    return dialog.exec() == QDialog::Accepted;
}

struct Entry {
    Modal modal;
    bool (*run)(COrrevaDoc&, QWidget*);
};

constexpr Entry kEntries[] = {
    {Modal::TelescopeSheet, Run<CMyPropertySheet0>},
};

} // namespace

bool RunModalDialog(Modal modal, COrrevaDoc& document, QWidget* parent)
{
    for (const Entry& entry : kEntries) {
        if (entry.modal == modal && entry.run != nullptr) {
            return entry.run(document, parent);
        }
    }
    return false;
}

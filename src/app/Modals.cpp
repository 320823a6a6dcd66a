#include "app/Modals.h"

#include "document/OrrevaDoc.h"
#include "pages/MyPropertySheet0.h"
#include "pages/PropertySheetCouder.h"
#include "pages/PropertySheetMatchingRonchi.h"
#include "pages/PropertySheetTube.h"

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
    {Modal::TubeSheet, Run<CPropertySheetTube>},
    {Modal::FoucaultSheet, Run<CPropertySheetCouder>},
    {Modal::RonchiSheet, Run<CPropertySheetMatchingRonchi>},
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

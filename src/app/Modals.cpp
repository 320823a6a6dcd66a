#include "app/Modals.h"

#include "document/OrrevaDoc.h"
#include "pages/dialogs/WorkshopSheetsDialog.h"
#include "pages/optics/ArtificialStarDialog.h"
#include "pages/optics/FieldSimulationDlg.h"
#include "pages/optics/PropertySheetCouder.h"
#include "pages/optics/PropertySheetMatchingRonchi.h"
#include "pages/telescope/MyPropertySheet0.h"
#include "pages/tools/CalculatorDialog.h"
#include "pages/tools/InchDialog.h"
#include "pages/tools/PolygonDialog.h"
#include "pages/tools/SectorDialog.h"
#include "pages/tube/PropertySheetTube.h"

#include <QDialog>

#include <type_traits>

namespace {

template <typename Dialog>
bool Run(COrrevaDoc& document, QWidget* parent)
{
    Dialog dialog(document, parent);
    if constexpr (std::is_base_of_v<CPropertySheet, Dialog>) {
        QObject::connect(&dialog, &CPropertySheet::Applied, [&document] { document.NoteApply(); });
    }
    return dialog.exec() == QDialog::Accepted;
}

/// A tool that stands apart from the document.
template <typename Dialog>
bool RunTool(COrrevaDoc&, QWidget* parent)
{
    return Dialog(parent).exec() == QDialog::Accepted;
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
    {Modal::ArtificialStar, Run<CArtificialStarDialog>},
    {Modal::FieldSimulation, Run<CFieldSimulationDlg>},
    {Modal::Calculator, RunTool<CCalculatorDialog>},
    {Modal::InchCalculator, RunTool<CInchDialog>},
    {Modal::PolygonCalculator, RunTool<CPolygonDialog>},
    {Modal::SectorCalculator, RunTool<CSectorDialog>},
    {Modal::WorkshopSheets, Run<CWorkshopSheetsDialog>},
};

} // namespace

bool RunModalDialog(Modal modal, COrrevaDoc& document, QWidget* parent)
{
    for (const Entry& entry : kEntries) {
        if (entry.modal == modal) {
            return entry.run(document, parent);
        }
    }
    return false;
}

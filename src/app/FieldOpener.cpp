#include "app/FieldOpener.h"

#include "document/Commands.h"
#include "model/analysis/FieldPlaces.h"
#include "pages/sheet/Controls.h"
#include "pages/sheet/PropertySheet.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

namespace {

std::int32_t CommandOf(FieldSheet sheet)
{
    switch (sheet) {
    case FieldSheet::kTelescope:
        return command_id::kProperties;
    case FieldSheet::kTube:
        return command_id::kTubeProperties;
    case FieldSheet::kArtificialStar:
        return command_id::kArtificialStar;
    case FieldSheet::kRonchi:
        return command_id::kMatchingRonchi;
    case FieldSheet::kNone:
        break;
    }
    return 0;
}

void GoTo(const FieldPlace& place)
{
    QWidget* opened = QApplication::activeModalWidget();
    if (auto* const sheet = qobject_cast<CPropertySheet*>(opened)) {
        sheet->SetActivePage(std::min(place.page, sheet->PageCount() - 1));
        opened = sheet->Page(sheet->ActiveIndex());
    }
    if (opened == nullptr) {
        return;
    }
    if (auto* const field = FindControl(opened, place.control)) {
        field->setFocus(Qt::OtherFocusReason);
        if (auto* const edit = qobject_cast<QLineEdit*>(field)) {
            edit->selectAll();
        }
    }
}

} // namespace

void OpenField(COrrevaDoc& document, const char* key)
{
    const FieldPlace& place = PlaceOfField(key);
    if (place.sheet == FieldSheet::kNone || !document.HasFile()) {
        return;
    }
    // The sheet is modal: its own loop goes on to the field once it stands.
    QTimer::singleShot(0, qApp, [&place] { GoTo(place); });
    RunCommand(CommandOf(place.sheet), document);
}

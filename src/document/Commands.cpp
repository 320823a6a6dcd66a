#include "document/Commands.h"

#include "lib/text/CodePage.h"

#include <algorithm>

namespace {

namespace id = command_id;
using Doc = COrrevaDoc;
using enum Enabled;

constexpr Command Desktop(std::int32_t command, Enabled enabled) { return {command, enabled}; }

constexpr Command Opens(std::int32_t command, Enabled enabled, Modal modal,
                        Bilingual step = {nullptr, nullptr})
{
    return {.id = command, .enabled = enabled, .modal = modal, .step = step};
}

constexpr Command Switch(std::int32_t command, Enabled enabled, void (Doc::*action)(),
                         std::uint8_t ViewSwitches::*check, bool inverted = false)
{
    return {.id = command, .enabled = enabled, .action = action, .check = check, .check_inverted = inverted};
}

constexpr Command kCommands[] = {
    {id::kNewQuick, Always, &Doc::OnFileNewQuick},
    {id::kNewDetailed, Always, &Doc::OnFileNewDetailed},
    {id::kOpen, Always, &Doc::OnFileOpen},
    {id::kSave, Loaded, &Doc::OnFileSave},
    {id::kSaveAs, Loaded, &Doc::OnFileSaveAs},
    {id::kImportOld, Always, &Doc::OnImportOld},
    {id::kExportOslo, Loaded, &Doc::OnExportOslo},
    {id::kExportFta, Loaded, &Doc::OnExportFta},
    Desktop(id::kPrint, Loaded),
    Desktop(id::kPrintPreview, Loaded),
    Desktop(id::kPrintSetup, Always),
    Desktop(id::kRecentFile, Never),
    Desktop(id::kExit, Always),
    {id::kEarlierDesigns, Always, &Doc::OnEarlierDesigns},
    Desktop(id::kReportPdf, Loaded),
    Opens(id::kWorkshopSheets, Loaded, Modal::WorkshopSheets),
    {id::kUndo, Undoable, &Doc::OnUndo},
    {id::kRedo, Redoable, &Doc::OnRedo},
    {id::kProperties, Loaded, &Doc::OnProperties},
    {id::kTubeProperties, Loaded, &Doc::OnTubeProperties},
    {id::kCentreMarks, Loaded, &Doc::OnCentreMarks},
    Opens(id::kArtificialStar, Loaded, Modal::ArtificialStar,
          {"Artificial Star", "Künstlicher Stern"_cp1252}),
    Opens(id::kFoucaultTest, Loaded, Modal::FoucaultSheet, {"Foucault Test", "Foucault Test"}),
    Opens(id::kMatchingRonchi, Loaded, Modal::RonchiSheet, {"Matching Ronchi Test", "Matching Ronchi Test"}),
    Desktop(id::kStartest, Never),
    Opens(id::kFieldSimulation, Loaded, Modal::FieldSimulation,
          {"Simulation of the Field of View", "Gesichtsfeld-Simulation"}),
    Switch(id::kRaysParallel, Loaded, &Doc::OnRayParallel, &ViewSwitches::ray_parallel),
    Switch(id::kRaysFromFocalPlane, Loaded, &Doc::OnRayFromFocalPlane, &ViewSwitches::ray_from_focal_plane),
    Switch(id::kRaysFromMouse, Loaded, &Doc::OnRayFromMouse, &ViewSwitches::ray_from_mouse),
    {id::kRaytracingSettings, Loaded, &Doc::OnRaytracingSettings},
    Switch(id::kShowWithoutOffset, Loaded, &Doc::OnShowOffset, &ViewSwitches::show_offset, true),
    Switch(id::kShowExtendedFocuser, Loaded, &Doc::OnShowExtendedFocuser,
           &ViewSwitches::show_extended_focuser),
    Switch(id::kShowBoxAndCage, LoadedTruss, &Doc::OnShowBoxAndCage, &ViewSwitches::show_box_and_cage),
    Switch(id::kHighContrast, Always, &Doc::OnHighContrast, &ViewSwitches::high_contrast),
    Desktop(id::kGerman, Always),
    Desktop(id::kEnglish, Always),
    Opens(id::kCalculator, Always, Modal::Calculator),
    Opens(id::kInchCalculator, Always, Modal::InchCalculator),
    Opens(id::kPolygonCalculator, Always, Modal::PolygonCalculator),
    Opens(id::kSectorCalculator, Always, Modal::SectorCalculator),
    Desktop(id::kDesignCheck, Loaded),
    Desktop(id::kCompare, Loaded),
    Desktop(id::kVariation, Loaded),
    Desktop(id::kIllumination, Loaded),
    Desktop(id::kForum, Always),
    Desktop(id::kHandbook, Always),
    Desktop(id::kHelpThemes, Always),
    Desktop(id::kContextHelp, Always),
    Desktop(id::kHelp, Always),
    Desktop(id::kAbout, Always),
};

// Ctrl+O opens the old format. Kept.
constexpr Accelerator kAccelerators[] = {
    {"Ctrl+N", id::kNewQuick}, {"Ctrl+E", id::kProperties},    {"Ctrl+O", id::kImportOld},
    {"Ctrl+P", id::kPrint},    {"Ctrl+S", id::kSave},          {"Ctrl+Q", id::kExit},
    {"Ctrl+Z", id::kUndo},     {"Ctrl+Shift+Z", id::kRedo},    {"Ctrl+Y", id::kRedo},
    {"F1", id::kHelp},         {"Shift+F1", id::kContextHelp}, {"F8", id::kDesignCheck},
};

} // namespace

std::span<const Accelerator> Accelerators() { return kAccelerators; }

std::span<const Command> Commands() { return kCommands; }

const Command* FindCommand(std::int32_t command)
{
    const auto found = std::ranges::find(kCommands, command, &Command::id);
    return found == std::end(kCommands) ? nullptr : found;
}

bool IsEnabled(const Command& command, COrrevaDoc& document)
{
    switch (command.enabled) {
    case Always:
        return true;
    case Loaded:
        return document.HasFile();
    case LoadedTruss:
        return document.HasFile() && document.active_record->GetTubeType() > 0;
    case Undoable:
        return document.Steps().UndoName() != nullptr;
    case Redoable:
        return document.Steps().RedoName() != nullptr;
    case Never:
        break;
    }
    return false;
}

bool IsChecked(const Command& command, const COrrevaDoc& document)
{
    return command.check != nullptr && (document.*command.check != 0) != command.check_inverted;
}

bool RunCommand(std::int32_t command, COrrevaDoc& document)
{
    document.BeginCommand();
    const Command* const found = FindCommand(command);
    if (found == nullptr || (found->action == nullptr && !found->modal)) {
        return false;
    }
    if (found->action != nullptr) {
        (document.*found->action)();
    } else {
        document.RunSheet(*found->modal, found->step);
        if (found->step.english != nullptr) {
            document.NoteStep(found->step);
        }
    }
    return true;
}

#pragma once

#include "document/DocumentHost.h"
#include "document/FoucaultReadings.h"
#include "model/record/OrrevaData.h"
#include "raytrace/ViewSwitches.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

class OldArchive;

/// One parameter of the what-if bar.
struct BarParam {
    std::uint8_t selected = 0; ///< 1 while it is under trial; at most one is
    double value = 0.0;        ///< the value to go back to
};

/// The single document: two records, the view switches, and the commands of the menu. Commands work on the
/// record and then call Recalculate, which marks it as changed and refreshes every view.
class COrrevaDoc : public ViewSwitches, private RecordHost {
public:
    explicit COrrevaDoc(DocumentHost& desktop);
    ~COrrevaDoc() override;
    COrrevaDoc(const COrrevaDoc&) = delete;
    COrrevaDoc& operator=(const COrrevaDoc&) = delete;

    // Commands, by their names in the menu ---------------------------------------------------------------

    void OnFileNewQuick();
    void OnFileNewDetailed();
    void OnFileOpen();
    void OnFileSave();
    void OnFileSaveAs();
    void OnImportOld();
    void OnExportOslo();
    void OnExportFta();
    void OnProperties();
    void OnTubeProperties();
    void OnCentreMarks();
    void OnRayParallel() { ToggleRayMode(&ViewSwitches::ray_parallel); }
    void OnRayFromFocalPlane() { ToggleRayMode(&ViewSwitches::ray_from_focal_plane); }
    void OnRayFromMouse() { ToggleRayMode(&ViewSwitches::ray_from_mouse); }
    void OnRaytracingSettings();
    void OnShowOffset() { ToggleSwitch(&ViewSwitches::show_offset); }
    void OnShowExtendedFocuser() { ToggleSwitch(&ViewSwitches::show_extended_focuser); }
    void OnShowBoxAndCage() { ToggleSwitch(&ViewSwitches::show_box_and_cage); }

    /// Opens a file of the old format (bytes of the file system), also one that the command line or the shell
    /// hands over. A failure is told and gives false; the record keeps what was read. After success the
    /// document's title is the file's name, until the next reset of a record.
    bool OpenOldFormat(const char* path);

    /// Raises the save prompt, which has no Cancel: the caller closes in any case.
    void OnCloseDocument();

    /// Reads the old format, then recalculates. False if the archive ends early: nothing is recalculated.
    bool Serialize(OldArchive& archive);

    // What pages, views and exports use ------------------------------------------------------------------

    /// The one operation that every change ends in: the field figures, the mirror's positions, `modified`,
    /// and a repaint of all views.
    void Recalculate();
    void UpdateAllViews() { m_host.UpdateAllViews(); }
    /// Whether a telescope is loaded.
    bool HasFile() const { return active_record->HasFile(); }
    DocumentHost& Host() { return m_host; }

    COrrevaData* active_record = &main_record; ///< the scratch record while the tube properties run
    COrrevaData main_record;
    COrrevaData scratch_record;
    double field_angle_100 = 0.5;     ///< full angle in degrees of the 100% illuminated field
    double field_diameter_100 = 12.0; ///< its diameter in the focal plane, mm
    double mirror_back_position = 0.0;
    double mirror_front_position = 0.0;
    std::array<BarParam, 32> bar_params{};
    FoucaultReadings readings; ///< of the knife edge, kept beside the design

    /// Takes another book of readings over, as the design's own change.
    void StoreReadings(const ReadingBook& book);

private:
    void ToggleRayMode(std::uint8_t ViewSwitches::*mode);
    void ToggleSwitch(std::uint8_t ViewSwitches::*view);
    void DropTelescope();
    void WriteExport(const FileDialog& dialog, const std::optional<std::string>& text, const char* error);

    bool AskYesNo(const char* text) override { return m_host.AskYesNo(text); }
    void ShowMessage(const char* text) override { m_host.ShowMessage(text); }
    void SetDocumentTitle(const char* path) override;
    void BeginWait() override { m_host.BeginWait(); }
    void EndWait() override { m_host.EndWait(); }

    DocumentHost& m_host;
};

/// The current document: the only one whose records set the title bar. The cross-section view stores it at
/// the start of each drawing, and until the first one it is null. Pages and views hold their document
/// themselves.
extern COrrevaDoc* g_pCurrentDocument;

/// 1 while the telescope sheet is to run as a wizard.
extern int g_nWizard;

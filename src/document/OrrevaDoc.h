#pragma once

#include "document/BarTrial.h"
#include "document/DesignFiles.h"
#include "document/DocumentHost.h"
#include "document/FoucaultReadings.h"
#include "document/History.h"
#include "document/StatusLine.h"
#include "model/record/OrrevaData.h"
#include "raytrace/ViewSwitches.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

class OldArchive;

/// The single document: two records, the view switches, and the commands of the menu. Commands work on the
/// record and then call Recalculate, which marks it as changed and refreshes every view; what they changed is
/// a step that can be taken back.
class COrrevaDoc : public ViewSwitches, private RecordHost, private RecordFiles {
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
    void OnHighContrast() { ToggleSwitch(&ViewSwitches::high_contrast); }
    void OnEarlierDesigns() { ChooseEarlierDesign(std::nullopt); }
    void OnUndo();
    void OnRedo();

    /// Opens a file that the command line, the shell or a drop hands over (bytes of the file system), by its
    /// content: a design as the command Open does, anything else as OpenOldFormat does.
    bool OpenByContent(const char* path);
    /// Opens the first of some files that were dropped, and says how many were left.
    void OpenDropped(std::span<const std::string> paths);
    /// Opens a file of the old format. A failure is told and gives false; the record keeps what was read.
    /// After success the document's title is the file's name, until the next reset of a record.
    bool OpenOldFormat(const char* path);
    /// The same for the bytes of such a file, which others have read.
    bool OpenOldBytes(const char* path, std::string_view bytes);

    /// Raises the save prompt, which has no Cancel: the caller closes in any case.
    void OnCloseDocument();

    /// Runs a sheet or dialog; false if it ended with Cancel. Each Apply in it is a step of that name, none
    /// for null texts.
    bool RunSheet(Modal modal, const Bilingual& step);

    // Steps, status, copies ------------------------------------------------------------------------------

    /// Every command begins so: what the last one said goes, and its step will begin here.
    void BeginCommand();
    /// A change that a user would call one ended: it can be undone under that name. Nothing if nothing
    /// changed.
    void NoteStep(const Bilingual& name, StepKind kind = StepKind::Changes);
    /// Apply in the sheet that runs: a step under the name of its command.
    void NoteApply();
    /// The same after Suggest on the balance page, which stores at once: a step by its own name.
    void NoteSuggestion();
    const History& Steps() const { return m_history; }
    /// A trial of the what-if bar begins, and so does the step that accepts it.
    void StartBarTrial();
    /// The trial ends and writes nothing: the record was replaced, or a sheet stored the parameter.
    void EndBarTrial();
    /// The trial is accepted: a step of that name. It goes on from here.
    void AcceptBarTrial(const Bilingual& name);

    /// What the status bar says: an action changes it and then ShowStatus shows it.
    StatusLine& Status() { return m_status; }
    void ShowStatus() { m_host.ShowStatus(m_status.Text().c_str()); }
    /// "modified", "saved 13:05" by the time of the file, or nothing without a telescope.
    std::string StateText(int language) const;

    /// Writes a file of the user's and says so, or what failed.
    bool WriteFile(StatusTopic topic, const std::string& path, std::string_view bytes);
    /// Asks where to, and writes an export there; a failure is told by the message `error` too. Nothing for
    /// an export that cannot be made, which fails like a file that cannot be written.
    void WriteExport(const FileDialog& dialog, const std::optional<std::string>& text, const char* error);
    /// Where copies of designs are kept that would else be lost; null (as at the start) for nowhere.
    void KeepCopies(RescueCopies* copies) { m_files.KeepCopies(copies); }
    /// Brings the live copy up to date with the record; to be called within a second of each change.
    void KeepLiveCopy();
    /// The list of earlier designs, with the one marked whose copy is `file`; opens what the user chooses.
    void ChooseEarlierDesign(const std::optional<std::string>& file);

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
    /// How the document writes files, and how the last save ended.
    DesignFiles& Files() { return m_files; }

private:
    DesignFiles m_files; // which both records use to their end

public:
    COrrevaData* active_record = &main_record; ///< the scratch record while the tube properties run
    COrrevaData main_record;
    COrrevaData scratch_record;
    double field_angle_100 = 0.5;     ///< full angle in degrees of the 100% illuminated field
    double field_diameter_100 = 12.0; ///< its diameter in the focal plane, mm
    double mirror_back_position = 0.0;
    double mirror_front_position = 0.0;
    BarParams bar_params{};
    std::int32_t bar_position = 0;        ///< where the bar's slider stands
    std::optional<RecordState> bar_start; ///< the record before the trial, as long as nothing else changed it
    FoucaultReadings readings;            ///< of the knife edge, kept beside the design

    /// The main record and the readings, as a step of the user finds or leaves them.
    RecordState PresentState() const;
    /// Takes another book of readings over, as the design's own change.
    void StoreReadings(const ReadingBook& book);

private:
    void ToggleRayMode(std::uint8_t ViewSwitches::*mode);
    void ToggleSwitch(std::uint8_t ViewSwitches::*view);
    void DropTelescope();
    void ComputeFigures();
    void OpenDesign(const char* path);
    void OpenCopy(const RescueCopy& copy);
    void TellReadings(const std::string& told);
    void Restore(const RecordState& state, const Bilingual& text, const Bilingual& name);
    void TellSave(StatusTopic topic);
    void TellCopies();
    RescueCopies* Copies() const { return m_files.Copies(); }

    bool AskYesNo(const char* text) override { return m_host.AskYesNo(text); }
    void ShowMessage(const char* text) override { m_host.ShowMessage(text); }
    void SetDocumentTitle(const char* path) override;
    void BeginWait() override { m_host.BeginWait(); }
    void EndWait() override { m_host.EndWait(); }
    void OnStored(void (COrrevaData::*set)(double)) override;

    bool Write(const COrrevaData& record) override;
    void Read(COrrevaData& record) override { m_files.Read(record); }
    void NotSaved(const COrrevaData& record, bool failed) override;

    DocumentHost& m_host;
    History m_history;
    RecordState m_before; ///< the record before the command or the last Apply, a trial included
    StatusLine m_status;
    void NoteWithinSheet(const Bilingual& step);

    Bilingual m_sheetStep{nullptr, nullptr}; ///< the step of the sheet that runs
    std::string m_live;                      ///< what the live copy holds; empty for none
};

/// The current document: the only one whose records set the title bar. The cross-section view stores it at
/// the start of each drawing, and until the first one it is null. Pages and views hold their document
/// themselves.
extern COrrevaDoc* g_pCurrentDocument;

/// 1 while the telescope sheet is to run as a wizard.
extern int g_nWizard;

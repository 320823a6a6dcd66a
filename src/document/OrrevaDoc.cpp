#include "document/OrrevaDoc.h"

#include "document/EarlierDesigns.h"
#include "document/FileContent.h"
#include "document/FileMasks.h"
#include "document/FtaExport.h"
#include "document/OldArchive.h"
#include "document/OldFormat.h"
#include "document/OsloExport.h"
#include "document/RescueCopies.h"
#include "document/TelescopeFile.h"
#include "lib/files/FileBytes.h"
#include "lib/files/FileReason.h"
#include "lib/text/CodePage.h"
#include "lib/text/FormatText.h"
#include "lib/text/Log.h"
#include "lib/text/Numbers.h"
#include "model/analysis/Recalculation.h"
#include "model/optics/CentreMarks.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <utility>

#include <sys/stat.h>

namespace {

/// No builder's remarks come near it; what stands behind it is not read.
constexpr std::size_t kLargestOldFile = std::size_t{64} << 20;

constexpr Bilingual kNotOpened{"The file %s cannot be opened.",
                               "Die Datei %s kann nicht geöffnet werden."_cp1252};
constexpr Bilingual kDamaged{
    "The file %s ends too early. It is damaged, or no file of the old Orreva format.",
    "Die Datei %s endet zu früh. Sie ist beschädigt oder keine Datei im alten Orreva-Format."_cp1252};

constexpr Bilingual kPresentFormat{
    "This is a design of the present format. Open it as such?",
    "Diese Datei ist ein Entwurf im heutigen Format. Als solchen öffnen?"_cp1252};
constexpr Bilingual kOneLeft{"One more file was not opened.",
                             "Eine weitere Datei wurde nicht geöffnet."_cp1252};
constexpr Bilingual kSomeLeft{"%d more files were not opened.",
                              "%d weitere Dateien wurden nicht geöffnet."_cp1252};
constexpr Bilingual kNothingToExport{"%s was not written: a number of the design cannot be written there.",
                                     "%s wurde nicht geschrieben: Eine Zahl des Entwurfs lässt sich dort "
                                     "nicht schreiben."_cp1252};
constexpr Bilingual kNoCopies{
    "No copies of unsaved designs can be kept: %s.",
    "Von ungesicherten Entwürfen können keine Kopien aufgehoben werden: %s."_cp1252};
constexpr Bilingual kCopyGone{"The earlier design cannot be read any more.",
                              "Der frühere Entwurf lässt sich nicht mehr lesen."_cp1252};

// The names of steps, as the menu has them.
constexpr Bilingual kStepNew{"New", "Neu"};
constexpr Bilingual kStepNewDetailed{"New (detailed)", "Neu (ausführlich)"_cp1252};
constexpr Bilingual kStepOpen{"Open", "Öffnen"_cp1252};
constexpr Bilingual kStepImport{"Import", "Importieren"};
constexpr Bilingual kStepProperties{"Properties", "Eigenschaften"};
constexpr Bilingual kStepSuggest{"Suggest reasonable Values", "Sinnvolle Werte vorschlagen"};
constexpr Bilingual kStepTube{"Properties (Tube)", "Eigenschaften Tubus"};
constexpr Bilingual kStepEarlier{"Earlier design", "Früherer Entwurf"_cp1252};

constexpr Bilingual kNoStep{nullptr, nullptr};
constexpr Bilingual kUndo{"Undo: %s", "Rückgängig: %s"_cp1252};
constexpr Bilingual kRedo{"Redo: %s", "Wiederholen: %s"};
constexpr Bilingual kModified{"modified", "geändert"_cp1252};
constexpr Bilingual kSaved{"saved %H:%M", "gesichert %H:%M"};

void Tell(RecordHost& host, const Bilingual& text, const char* path)
{
    LibString message;
    message.Format(text.In(g_nLanguage), Cp1252FromUtf8(path).c_str());
    host.ShowMessage(message);
}

} // namespace

COrrevaDoc* g_pCurrentDocument = nullptr;
int g_nWizard = 0;

// The records clear themselves while the document is being built. It is not the current one then, so that
// nothing is asked of its host.
COrrevaDoc::COrrevaDoc(DocumentHost& desktop)
    : main_record(this, this), scratch_record(this, this), m_host(desktop)
{}

COrrevaDoc::~COrrevaDoc()
{
    if (g_pCurrentDocument == this) {
        g_pCurrentDocument = nullptr;
    }
}

void COrrevaDoc::SetDocumentTitle(const char* path)
{
    if (g_pCurrentDocument == this) {
        m_host.SetDocumentTitle(path);
    }
}

void COrrevaDoc::Recalculate()
{
    ComputeFigures();
    active_record->SetModified(1);
    UpdateAllViews();
}

void COrrevaDoc::ComputeFigures()
{
    const Recalculation result = ::Recalculate(*active_record);
    field_angle_100 = result.field.angle;
    field_diameter_100 = result.field.diameter;
    mirror_back_position = result.mirror_back_position;
    mirror_front_position = result.mirror_front_position;
}

void COrrevaDoc::DropTelescope()
{
    active_record->Clear();
    active_record->SetTitle("");
    UpdateAllViews();
}

void COrrevaDoc::OnFileNewQuick()
{
    active_record->Reset();
    readings.Clear();
    EndBarTrial();
    QuickNewTexts texts = kQuickNewTexts;
    if (m_host.AskQuickNew(texts)) {
        active_record->SetTitle(texts.title.c_str());
        active_record->SetMirrorDiameter(DecimalValue(texts.aperture.c_str()));
        active_record->SetFocalLength(DecimalValue(texts.focal_length.c_str()));
        Recalculate();
        UpdateAllViews();
    } else {
        DropTelescope();
    }
    NoteStep(kStepNew, StepKind::Replaces);
}

void COrrevaDoc::OnFileNewDetailed()
{
    if (!m_host.OnNewDocument()) {
        return;
    }
    g_nWizard = 1;
    active_record->Reset();
    readings.Clear();
    EndBarTrial();
    field_diameter_100 = 10.0;
    field_angle_100 = FieldAngle(active_record->GetFocalLength(), 10.0);
    Recalculate();
    if (RunSheet(Modal::TelescopeSheet, kNoStep)) {
        Recalculate();
        UpdateAllViews();
    } else {
        DropTelescope();
    }
    NoteStep(kStepNewDetailed, StepKind::Replaces);
}

void COrrevaDoc::OnFileOpen()
{
    const std::string path = m_host.AskPath(kOpenTelescope);
    if (!path.empty()) {
        OpenDesign(path.c_str());
    }
}

void COrrevaDoc::OpenDesign(const char* path)
{
    active_record->Reset();
    EndBarTrial();
    readings.Clear();
    const bool read = active_record->Load(path) == 0;
    Recalculate();
    active_record->SetModified(0);
    if (read) {
        TellReadings(readings.Open(path, g_nLanguage));
        m_history.Saved(active_record->file_path.GetText(), *active_record, readings.Book());
    }
    NoteStep(kStepOpen, StepKind::Replaces);
}

bool COrrevaDoc::OpenByContent(const char* path)
{
    if (!LooksLikeDesignFile(path)) {
        return OpenOldFormat(path);
    }
    OpenDesign(path);
    m_host.SetDocumentTitle(active_record->file_path); // at the start the record leaves the title alone
    return true;
}

void COrrevaDoc::OpenDropped(std::span<const std::string> paths)
{
    if (paths.empty()) {
        return;
    }
    BeginCommand();
    OpenByContent(paths.front().c_str());
    const auto left = static_cast<int>(paths.size() - 1);
    if (left > 0) {
        m_status.Say(FormatText((left == 1 ? kOneLeft : kSomeLeft).In(g_nLanguage), left));
        ShowStatus();
    }
}

void COrrevaDoc::OnFileSave() { active_record->Save(); }

void COrrevaDoc::OnFileSaveAs()
{
    const std::string path = m_host.AskPath(kSaveTelescope);
    if (!path.empty()) {
        const std::string before = active_record->file_path.GetText();
        m_history.Renamed(before, path); // before Write compares the steps with what it wrote
        active_record->SaveAs(path.c_str());
    }
}

void COrrevaDoc::OnImportOld()
{
    const std::string path = m_host.AskPath(OldFormatMask(g_nLanguage));
    if (path.empty()) {
        return;
    }
    // Taken for the old format, a design would become nonsense.
    if (LooksLikeDesignFile(path.c_str()) && m_host.AskYesNo(kPresentFormat.In(g_nLanguage))) {
        OpenDesign(path.c_str());
    } else {
        OpenOldFormat(path.c_str());
    }
}

bool COrrevaDoc::Serialize(OldArchive& archive)
{
    if (!ImportOld(archive, *active_record, m_host)) {
        return false;
    }
    Recalculate();
    UpdateAllViews();
    return true;
}

bool COrrevaDoc::OpenOldFormat(const char* path)
{
    const auto bytes = ReadFileBytes(path, kLargestOldFile);
    if (!bytes) {
        Tell(m_host, kNotOpened, path);
        return false;
    }
    return OpenOldBytes(path, *bytes);
}

bool COrrevaDoc::OpenOldBytes(const char* path, std::string_view bytes)
{
    OldArchive archive(bytes);
    const bool replaces = bytes.size() >= sizeof kLastOldVersion; // a shorter file leaves the record alone
    const bool read = Serialize(archive);
    if (replaces) {
        readings.Clear();
        EndBarTrial();
    }
    if (!read) {
        Tell(m_host, kDamaged, path);
        // The record may hold a part of the file now. Its first readings, which are infinite, are not shown.
        if (HasFile()) {
            ComputeFigures();
            ComputeFigures();
        }
        UpdateAllViews();
    }
    NoteStep(kStepImport, StepKind::Replaces);
    if (read) {
        m_host.SetDocumentTitle(std::filesystem::path(path).filename().c_str());
    }
    return read;
}

void COrrevaDoc::OnExportOslo()
{
    Recalculate();
    WriteExport(kExportOslo, OsloExport(*active_record), "Error writing");
}

void COrrevaDoc::OnExportFta() { WriteExport(kExportFta, FtaExport(*active_record), "Error writing..."); }

/// The text is made before the dialog opens; none fails like a file that cannot be written.
void COrrevaDoc::WriteExport(const FileDialog& dialog, const std::optional<std::string>& text,
                             const char* error)
{
    const std::string path = m_host.AskPath(dialog);
    if (path.empty()) {
        return;
    }
    if (!text) {
        m_status.Fail(StatusTopic::Export,
                      FormatText(kNothingToExport.In(g_nLanguage), Cp1252FromUtf8(path).c_str()));
        ShowStatus();
    }
    if (!text || !WriteFile(StatusTopic::Export, path, *text)) {
        m_host.ShowMessage(error);
    }
}

void COrrevaDoc::OnProperties()
{
    if (!HasFile()) {
        m_host.ShowMessage("Bitte zuächst 'Datei/Neu' oder 'Datei/Öffnen' anklicken."_cp1252);
        return;
    }
    g_nWizard = 0;
    if (RunSheet(Modal::TelescopeSheet, kStepProperties)) {
        Recalculate();
    }
    NoteStep(kStepProperties);
}

void COrrevaDoc::OnTubeProperties()
{
    main_record.CopyTo(scratch_record);
    active_record = &scratch_record;
    LibString line;
    line.Format("Vorher im Doc: %d", active_record->GetTubeType());
    LogText(line);
    if (RunSheet(Modal::TubeSheet, kStepTube)) {
        scratch_record.CopyTo(main_record);
        EndBarTrial();
    }
    active_record = &main_record;
    Recalculate();
    NoteStep(kStepTube);
}

void COrrevaDoc::OnCentreMarks() { m_host.ShowMessage(CentreMarksMessage(*active_record).c_str()); }

void COrrevaDoc::OnRaytracingSettings()
{
    // Kept: OK is a toggle, whichever button the user chose.
    if (m_host.AskRaytracingSettings(miss_in_grey)) {
        miss_in_grey = miss_in_grey == 0 ? 1 : 0;
        UpdateAllViews();
    }
}

void COrrevaDoc::OnCloseDocument()
{
    active_record->Reset();
    KeepLiveCopy();
}

void COrrevaDoc::ToggleRayMode(std::uint8_t ViewSwitches::*mode)
{
    const std::uint8_t toggled = this->*mode == 0 ? 1 : 0;
    ray_parallel = 0;
    ray_from_focal_plane = 0;
    ray_from_mouse = 0;
    this->*mode = toggled;
    UpdateAllViews();
}

void COrrevaDoc::ToggleSwitch(std::uint8_t ViewSwitches::*view)
{
    this->*view = this->*view == 0 ? 1 : 0;
    UpdateAllViews();
}

// Steps, status, copies ------------------------------------------------------------------------------------

bool COrrevaDoc::RunSheet(Modal modal, const Bilingual& step)
{
    m_sheetStep = step;
    const bool accepted = m_host.RunModal(modal);
    m_sheetStep = kNoStep;
    return accepted;
}

RecordState COrrevaDoc::PresentState() const
{
    RecordState state = StateOf(main_record);
    state.readings = readings.Book();
    return state;
}

/// The status bar tells what became of the file beside the design.
void COrrevaDoc::TellReadings(const std::string& told)
{
    if (!told.empty()) {
        m_status.Say(told);
        ShowStatus();
    }
}

void COrrevaDoc::StoreReadings(const ReadingBook& book)
{
    if (readings.Change(book)) {
        main_record.SetModified(1);
        UpdateAllViews();
    }
}

void COrrevaDoc::BeginCommand()
{
    m_status.BeginCommand();
    ShowStatus();
    m_before = PresentState();
    if (!TrialAmong(bar_params)) { // a trial that a step takes over is undone with it
        m_history.StartFrom(m_before);
    }
}

void COrrevaDoc::StartBarTrial()
{
    bar_start = PresentState();
    m_history.StartFrom(*bar_start);
}

void COrrevaDoc::EndBarTrial()
{
    for (BarParam& entry : bar_params) {
        entry.selected = 0;
    }
    bar_start.reset();
}

void COrrevaDoc::AcceptBarTrial(const Bilingual& name)
{
    m_history.Note(name, PresentState());
    StartBarTrial();
}

void COrrevaDoc::NoteStep(const Bilingual& name, StepKind kind)
{
    RecordState now = PresentState();
    if (IsSameDesign(m_before, now)) { // a trial alone is no step
        return;
    }
    m_history.Note(name, now, kind);
    m_before = std::move(now);
    bar_start.reset();
}

void COrrevaDoc::NoteWithinSheet(const Bilingual& step)
{
    if (m_sheetStep.english != nullptr) {
        NoteStep(step);
    }
}

void COrrevaDoc::NoteApply() { NoteWithinSheet(m_sheetStep); }

void COrrevaDoc::NoteSuggestion() { NoteWithinSheet(kStepSuggest); }

void COrrevaDoc::OnUndo()
{
    if (const Bilingual* const found = m_history.UndoName()) {
        const Bilingual name = *found;
        Restore(m_history.Undo(PresentState()), kUndo, name);
    }
}

void COrrevaDoc::OnRedo()
{
    if (const Bilingual* const found = m_history.RedoName()) {
        const Bilingual name = *found;
        Restore(m_history.Redo(PresentState()), kRedo, name);
    }
}

void COrrevaDoc::Restore(const RecordState& state, const Bilingual& text, const Bilingual& name)
{
    EndBarTrial();
    PutState(state, main_record);
    readings.Change(state.readings);
    SetDocumentTitle(main_record.file_path);
    if (HasFile()) {
        Recalculate();
        main_record.SetModified(state.modified);
    }
    UpdateAllViews();
    m_history.StartFrom(PresentState());
    m_status.Say(FormatText(text.In(g_nLanguage), name.In(g_nLanguage)));
    ShowStatus();
}

/// The trial of a parameter that a sheet stored is over: what the sheet stored is what the user wants.
void COrrevaDoc::OnStored(void (COrrevaData::*set)(double))
{
    const auto trial = TrialAmong(bar_params);
    if (!trial || active_record != &main_record) {
        return;
    }
    bar_start.reset(); // going back to it would take back what the sheet stored
    if (BarParameters()[static_cast<std::size_t>(*trial)].set == set) {
        EndBarTrial();
        m_before = m_history.Start(); // what was tried is a part of the sheet's step now
    }
}

bool COrrevaDoc::Write(const COrrevaData& record)
{
    const bool written = m_files.Write(record);
    std::string told;
    if (written && &record == &main_record) {
        told = readings.Save(record.file_path.GetText(), g_nLanguage);
    }
    if (written) {
        m_history.Saved(record.file_path.GetText(), record, readings.Book());
        if (bar_start) {
            bar_start->modified = 1; // what the file holds is the trial
        }
        if (&record == &main_record && Copies() != nullptr) {
            Copies()->DropLive();
            m_live.clear();
        }
    }
    TellSave(StatusTopic::Save);
    TellReadings(told);
    return written;
}

void COrrevaDoc::NotSaved(const COrrevaData& record, bool failed)
{
    m_files.NotSaved(record, failed);
    TellCopies();
}

bool COrrevaDoc::WriteFile(StatusTopic topic, const std::string& path, std::string_view bytes)
{
    m_files.Save(path, bytes);
    TellSave(topic);
    return static_cast<bool>(m_files.LastOutcome());
}

void COrrevaDoc::TellSave(StatusTopic topic)
{
    TellCopies(); // first, so that the word of the save itself is the newest
    if (m_files.LastOutcome()) {
        m_status.Succeed(topic, m_files.LastText(g_nLanguage));
    } else {
        m_status.Fail(topic, m_files.LastText(g_nLanguage));
    }
    ShowStatus();
}

/// Says once that copies cannot be kept.
void COrrevaDoc::TellCopies()
{
    if (const int error = Copies() != nullptr ? Copies()->TakeFailure() : 0; error != 0) {
        m_status.Fail(StatusTopic::RescueCopies,
                      FormatText(kNoCopies.In(g_nLanguage), FileReason(error).In(g_nLanguage)));
        ShowStatus();
    }
}

std::string COrrevaDoc::StateText(int language) const
{
    if (!HasFile()) {
        return {};
    }
    if (active_record->IsModified() != 0) {
        return kModified.In(language);
    }
    struct stat file = {};
    struct tm local = {};
    if (stat(active_record->file_path, &file) != 0 || localtime_r(&file.st_mtime, &local) == nullptr) {
        return {};
    }
    char text[64];
    return {text, std::strftime(text, sizeof text, kSaved.In(language), &local)};
}

void COrrevaDoc::KeepLiveCopy()
{
    if (Copies() == nullptr) {
        return;
    }
    if (active_record->IsModified() == 0) {
        if (!m_live.empty()) {
            Copies()->DropLive();
            m_live.clear();
        }
        return;
    }
    std::string now = active_record->file_path.GetText() + WriteTelescope(*active_record);
    if (now != m_live && Copies()->WriteLive(*active_record)) {
        m_live = std::move(now);
    }
    TellCopies();
}

void COrrevaDoc::ChooseEarlierDesign(const std::optional<std::string>& file)
{
    const std::vector<RescueCopy> copies = Copies() != nullptr ? Copies()->List() : std::vector<RescueCopy>{};
    const auto marked = file ? std::ranges::find(copies, *file, &RescueCopy::file) : copies.end();
    const auto chosen = m_host.AskEarlierDesign(
        copies, marked == copies.end() ? std::nullopt
                                       : std::optional(static_cast<std::size_t>(marked - copies.begin())));
    if (chosen && *chosen < copies.size()) {
        OpenCopy(copies[*chosen]);
    }
}

/// Makes a copy the current design under its old path. The file there is another one: the design counts as
/// modified, and saving it keeps that file.
void COrrevaDoc::OpenCopy(const RescueCopy& copy)
{
    COrrevaData design;
    if (!ReadEarlierDesign(copy, design)) {
        m_status.Say(kCopyGone.In(g_nLanguage));
        ShowStatus();
        return;
    }
    active_record->Reset();
    EndBarTrial();
    PutState({design, copy.path, 1}, *active_record);
    TellReadings(readings.Open(copy.path, g_nLanguage));
    SetDocumentTitle(active_record->file_path);
    Recalculate();
    NoteStep(kStepEarlier, StepKind::Replaces);
}

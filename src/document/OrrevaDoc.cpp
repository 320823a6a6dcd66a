#include "document/OrrevaDoc.h"

#include "document/FileMasks.h"
#include "document/FtaExport.h"
#include "document/OldArchive.h"
#include "document/OldFormat.h"
#include "document/OsloExport.h"
#include "document/TelescopeFile.h"
#include "lib/files/FileBytes.h"
#include "lib/text/CodePage.h"
#include "lib/text/Log.h"
#include "lib/text/Numbers.h"
#include "model/analysis/Recalculation.h"
#include "model/optics/CentreMarks.h"

#include <filesystem>

namespace {

/// No builder's remarks come near it; what stands behind it is not read.
constexpr std::size_t kLargestOldFile = std::size_t{64} << 20;

constexpr Bilingual kNotOpened{"The file %s cannot be opened.",
                               "Die Datei %s kann nicht geöffnet werden."_cp1252};
constexpr Bilingual kDamaged{
    "The file %s ends too early. It is damaged, or no file of the old Orreva format.",
    "Die Datei %s endet zu früh. Sie ist beschädigt oder keine Datei im alten Orreva-Format."_cp1252};

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
    : main_record(this, &DesignFiles()), scratch_record(this, &DesignFiles()), m_host(desktop)
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
    const Recalculation result = ::Recalculate(*active_record);
    field_angle_100 = result.field.angle;
    field_diameter_100 = result.field.diameter;
    mirror_back_position = result.mirror_back_position;
    mirror_front_position = result.mirror_front_position;
    active_record->SetModified(1);
    UpdateAllViews();
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
    QuickNewTexts texts = kQuickNewTexts;
    if (!m_host.AskQuickNew(texts)) {
        DropTelescope();
        return;
    }
    active_record->SetTitle(texts.title.c_str());
    active_record->SetMirrorDiameter(DecimalValue(texts.aperture.c_str()));
    active_record->SetFocalLength(DecimalValue(texts.focal_length.c_str()));
    Recalculate();
    UpdateAllViews();
}

void COrrevaDoc::OnFileNewDetailed()
{
    if (!m_host.OnNewDocument()) {
        return;
    }
    g_nWizard = 1;
    active_record->Reset();
    field_diameter_100 = 10.0;
    field_angle_100 = FieldAngle(active_record->GetFocalLength(), 10.0);
    Recalculate();
    if (!m_host.RunModal(Modal::TelescopeSheet)) {
        DropTelescope();
        return;
    }
    Recalculate();
    UpdateAllViews();
}

void COrrevaDoc::OnFileOpen()
{
    const std::string path = m_host.AskPath(kOpenTelescope);
    if (path.empty()) {
        return;
    }
    active_record->Reset();
    active_record->Load(path.c_str());
    Recalculate();
    active_record->SetModified(0);
}

void COrrevaDoc::OnFileSave() { active_record->Save(); }

void COrrevaDoc::OnFileSaveAs()
{
    const std::string path = m_host.AskPath(kSaveTelescope);
    if (!path.empty()) {
        active_record->SaveAs(path.c_str());
    }
}

void COrrevaDoc::OnImportOld()
{
    const std::string path = m_host.AskPath(OldFormatMask(g_nLanguage));
    if (!path.empty()) {
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
    OldArchive archive(*bytes);
    if (!Serialize(archive)) {
        Tell(m_host, kDamaged, path);
        UpdateAllViews(); // the record may hold a part of the file now
        return false;
    }
    m_host.SetDocumentTitle(std::filesystem::path(path).filename().c_str());
    return true;
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
    if (!path.empty() && !(text && ReplaceFile(path.c_str(), *text))) {
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
    if (m_host.RunModal(Modal::TelescopeSheet)) {
        Recalculate();
    }
}

void COrrevaDoc::OnTubeProperties()
{
    main_record.CopyTo(scratch_record);
    active_record = &scratch_record;
    LibString line;
    line.Format("Vorher im Doc: %d", active_record->GetTubeType());
    LogText(line);
    if (m_host.RunModal(Modal::TubeSheet)) {
        scratch_record.CopyTo(main_record);
    }
    active_record = &main_record;
    Recalculate();
}

void COrrevaDoc::StoreReadings(const ReadingBook& book)
{
    if (readings.Change(book)) {
        main_record.SetModified(1);
        UpdateAllViews();
    }
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

void COrrevaDoc::OnCloseDocument() { active_record->Reset(); }

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

// The binary format that stood before the design file: read only.

#include "document/OldArchive.h"
#include "document/OrrevaDoc.h"
#include "lib/CodePage.h"
#include "lib/FileBytes.h"
#include "lib/Language.h"

#include <filesystem>
#include <variant>

namespace {

using D = COrrevaData;
using OldField = std::variant<LibString D::*, double D::*, std::int32_t D::*>;

constexpr std::uint32_t kLastVersion = 20040101; // a date
/// No builder's remarks come near it; what stands behind it is not read.
constexpr std::size_t kLargestOldFile = std::size_t{64} << 20;

/// In the order of the stream, behind the magic number.
constexpr OldField kOldFields[] = {
    &D::title,
    &D::description,
    &D::focal_length,
    &D::mirror_diameter,
    &D::mirror_thickness,
    &D::density,
    &D::material,
    &D::ronchi_grating,
    &D::ronchi_constant,
    &D::tube_type,
    &D::distance_back,
    &D::distance_front,
    &D::inside_diameter_hat,
    &D::inside_diameter_box,
    &D::thickness_hat,
    &D::thickness_box,
    &D::height_hat,
    &D::height_box,
    &D::focuser_height,
    &D::focuser_diameter,
    &D::focuser_spare,
    &D::focuser_type,
    &D::oaz_travel,
    &D::oaz_length,
    &D::osch_travel,
    &D::secondary_diameter,
    &D::wanted_100percent_fow,
    &D::secondary_offset,
    &D::weight_mirror,
    &D::balance_mirror,
    &D::weight_cell,
    &D::balance_cell,
    &D::weight_box,
    &D::balance_box,
    &D::weight_truss,
    &D::balance_truss,
    &D::weight_hat,
    &D::balance_hat,
    &D::weight_secondary,
    &D::balance_secondary,
    &D::weight_eyepiece,
    &D::balance_eyepiece,
    &D::weight_finder,
    &D::balance_finder,
    &D::weight_misc,
    &D::balance_misc,
};

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

bool COrrevaData::ImportOld(OldArchive& archive)
{
    std::uint32_t magic = 0;
    if (!archive.Read(magic)) {
        return false;
    }
    if (magic != kLastVersion && host != nullptr) {
        host->ShowMessage("Achtung, diese Daten wurden mit einer älteren Programmversion erzeugt!"_cp1252);
    }
    Reset();
    const auto read = [&](auto place) { return archive.Read(this->*place); };
    for (const OldField& field : kOldFields) {
        if (!std::visit(read, field)) {
            return false;
        }
    }
    return true;
}

bool COrrevaDoc::Serialize(OldArchive& archive)
{
    if (!active_record->ImportOld(archive)) {
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
        Tell(host, kNotOpened, path);
        return false;
    }
    OldArchive archive(*bytes);
    if (!Serialize(archive)) {
        Tell(host, kDamaged, path);
        UpdateAllViews(); // the record may hold a part of the file now
        return false;
    }
    host.SetDocumentTitle(std::filesystem::path(path).filename().c_str());
    return true;
}

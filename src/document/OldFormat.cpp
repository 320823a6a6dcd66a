#include "document/OldFormat.h"

#include "document/OldArchive.h"
#include "lib/text/CodePage.h"

#include <variant>

namespace {

using D = COrrevaData;
using OldField = std::variant<LibString D::*, double D::*, std::int32_t D::*>;

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

} // namespace

bool ImportOld(OldArchive& archive, COrrevaData& record, RecordHost& host)
{
    std::uint32_t magic = 0;
    if (!archive.Read(magic)) {
        return false;
    }
    if (magic != kLastOldVersion) {
        host.ShowMessage("Achtung, diese Daten wurden mit einer älteren Programmversion erzeugt!"_cp1252);
    }
    record.Reset();
    const auto read = [&](auto place) { return archive.Read(record.*place); };
    for (const OldField& field : kOldFields) {
        if (!std::visit(read, field)) {
            return false;
        }
    }
    return true;
}

#include "drawing/paper/Sheets.h"

#include "drawing/paper/SheetParts.h"
#include "lib/text/CodePage.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <iterator>

const SheetName kSheets[5] = {
    {SheetKind::kCouderMask, "couder-mask", {"Couder mask", "Couder-Maske"}},
    {SheetKind::kEverest, "everest", {"Everest pinstick", "Everest-Pinstick"}},
    {SheetKind::kSecondary, "secondary", {"Secondary", "Fangspiegel"}},
    {SheetKind::kMarks, "marks", {"Centre marks", "Mittenmarkierungen"}},
    {SheetKind::kTube, "tube", {"Tube", "Tubus"}},
};

namespace {

SheetResult ContentOf(SheetKind kind, COrrevaData& record, const SheetZones& zones, const PaperSize& paper,
                      int language)
{
    switch (kind) {
    case SheetKind::kCouderMask:
        return CouderMaskSheet(record, zones);
    case SheetKind::kEverest:
        return EverestSheet(record, zones);
    case SheetKind::kSecondary:
        return SecondarySheet(record, language);
    case SheetKind::kMarks:
        return MarksSheet(record, language);
    case SheetKind::kTube:
        break;
    }
    // The long side of the paper lies along the tube.
    return TubeSheet(record, paper.height - 2 * kSheetMargin, paper.width - 2 * kSheetMargin, language);
}

} // namespace

const SheetName* FindSheet(std::string_view word)
{
    const auto found = std::ranges::find(kSheets, word, &SheetName::word);
    return found == std::end(kSheets) ? nullptr : found;
}

SheetZones ZonesOfMask(const CouderMask* mask, COrrevaData& record)
{
    if (mask != nullptr) {
        return {std::min(mask->zone_count, MAX_MASK_ZONES), mask->centre_percent};
    }
    const double D = record.GetMirrorDiameter();
    const ZoneFields fields = OpenZoneFields(D, record.GetFocalLength());
    return {std::min(IntegerValue(fields.wanted_zones.c_str()), MAX_MASK_ZONES),
            DecimalValue(fields.centre_percent.c_str())};
}

SheetPages MakeSheet(SheetKind kind, COrrevaData& record, const SheetZones& zones, const PaperSize& paper,
                     int language)
{
    const SheetResult result = ContentOf(kind, record, zones, paper, language);
    if (const auto* const fault = std::get_if<Bilingual>(&result)) {
        return {{}, *fault};
    }
    const auto sheet = std::ranges::find(kSheets, kind, &SheetName::kind);
    const std::string name = std::string(sheet->word) + " – "_cp1252 + sheet->name.In(language);
    return TileSheet(std::get<SheetContent>(result), {record.GetTitle().GetText(), name, language}, paper);
}

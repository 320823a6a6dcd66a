#pragma once

#include "drawing/paper/Paper.h"
#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

class COrrevaData;

/// The workshop sheets: what a builder cuts, drills and glues by, in true scale.

enum class SheetKind : std::uint8_t { kCouderMask, kEverest, kSecondary, kMarks, kTube };

struct SheetName {
    SheetKind kind;
    const char* word; ///< of the command line, and on each page
    Bilingual name;
};

/// All of them, in the order in which they are made.
extern const SheetName kSheets[5];

/// The sheet of a word, null if there is none.
const SheetName* FindSheet(std::string_view word);

/// The zones of mask and pinstick.
struct SheetZones {
    std::int32_t count = 0; ///< up to MAX_MASK_ZONES, none if it is not above 0
    double centre_percent = 5;
};

/// Those of a mask, or, where there is none, those that the zone calculator proposes.
SheetZones ZonesOfMask(const CouderMask* mask, COrrevaData& record);

/// A sheet beyond this is no sheet.
inline constexpr std::int32_t kMostSheetPages = 100;

/// A sheet's pages, or in one sentence why there are none.
struct SheetPages {
    std::vector<PaperPage> pages{};
    std::optional<Bilingual> fault{};
};

/// Lays a sheet of the telescope out on paper. What is larger than the paper less 8 mm on each side is parted
/// into tiles that overlap by 10 mm. The paper is held upright, or lying where that takes fewer pages.
SheetPages MakeSheet(SheetKind kind, COrrevaData& record, const SheetZones& zones, const PaperSize& paper,
                     int language);

#pragma once

#include "drawing/paper/SheetPages.h"
#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"

#include <cstdint>
#include <string_view>

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

/// The zones of a mask, or, where there is none, those that the zone calculator proposes.
SheetZones ZonesOfMask(const CouderMask* mask, COrrevaData& record);

/// Lays a sheet of the telescope out on paper. What is larger than the paper less 8 mm on each side is parted
/// into tiles that overlap by 10 mm. The paper is held upright, or lying where that takes fewer pages.
SheetPages MakeSheet(SheetKind kind, COrrevaData& record, const SheetZones& zones, const PaperSize& paper,
                     int language);

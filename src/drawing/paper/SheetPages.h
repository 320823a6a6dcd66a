#pragma once

#include "drawing/paper/Paper.h"
#include "lib/text/Language.h"

#include <cstdint>
#include <optional>
#include <vector>

/// The zones of mask and pinstick.
struct SheetZones {
    std::int32_t count = 0; ///< up to MAX_MASK_ZONES, none if it is not above 0
    double centre_percent = 5;
};

/// A sheet beyond this is no sheet.
inline constexpr std::int32_t kMostSheetPages = 100;

/// A sheet's pages, or in one sentence why there are none.
struct SheetPages {
    std::vector<PaperPage> pages{};
    std::optional<Bilingual> fault{};
};

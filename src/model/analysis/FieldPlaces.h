#pragma once

#include "lib/text/Language.h"

#include <cstdint>
#include <span>
#include <string_view>

/// The sheets and dialogs in which a user changes the numbers of a design.
enum class FieldSheet { kTelescope, kTube, kArtificialStar, kRonchi, kNone };

/// Where the user finds a field: its sheet, the page there and the control. The texts are those that the
/// forms show, misspellings included.
struct FieldPlace {
    std::string_view key; ///< of the design file
    FieldSheet sheet;
    std::int32_t page;    ///< its place among the sheet's tabs
    Bilingual page_title; ///< or the title of the dialog
    std::int32_t control; ///< its number
    Bilingual label;
};

/// The place of a key of the design file. What no page shows has the sheet kNone; so has a key that is none.
const FieldPlace& PlaceOfField(std::string_view key);

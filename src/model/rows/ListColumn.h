#pragma once

#include "lib/text/Language.h"

/// A column of a result list.
struct ListColumn {
    Bilingual title;
    int width; ///< pixels
    bool right_aligned = false;
};

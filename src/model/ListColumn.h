#pragma once

#include "lib/Language.h"

/// A column of a result list.
struct ListColumn {
    Bilingual title;
    int width; ///< pixels
    bool right_aligned = false;
};

#pragma once

#include "raytrace/Lines.h"
#include "raytrace/ViewSwitches.h"

enum class RayMode { kNone, kParallel, kFocal, kPointer };

/// What the command line chooses of the cross-section, already parsed.
struct ViewOptions {
    RayMode mode = RayMode::kNone;
    Point pointer{}; ///< in the telescope, mm
    bool hide_lost = false;
    bool extended = false;
    bool no_offset = false;
    bool box_and_cage = false;
};

/// The document's switches that these options stand for.
ViewSwitches SwitchesFor(const ViewOptions& options);

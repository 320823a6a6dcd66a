#pragma once

#include "document/DocumentHost.h"

/// Every file dialog hides the read-only box and asks before it overwrites.
inline constexpr const char* kTelescopeFilter =
    "Orreva Dateien (*.orreva.xml)|*.orreva.xml|All Files (*.*)|*.*||";
inline constexpr FileDialog kOpenTelescope{false, kTelescopeFilter, "orreva.xml", ""};
inline constexpr FileDialog kSaveTelescope{true, kTelescopeFilter, "orreva.xml", ""};

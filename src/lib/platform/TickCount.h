#pragma once

#include <cstdint>

/// Milliseconds since the system was started, in 32 bits: differences hold for 49 days.
std::uint32_t TickCount();

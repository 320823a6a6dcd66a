#pragma once

#include "lib/calendar/CalDate.h"

#include <cstdint>

/// Easter Sunday of a year: by the Julian rule up to and including the year of the reform, by the Gregorian
/// rule (the anonymous one, of Meeus's book) after it.
CalDate EasterSunday(std::int32_t nYear);

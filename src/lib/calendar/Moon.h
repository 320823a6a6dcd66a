#pragma once

#include "lib/calendar/CalDate.h"

#include <cstdint>

/// Age of the moon on 1.1. of a year by the epact of the Gregorian calendar, 1 to 30; 31, meaning none, below
/// the year of the reform.
std::int32_t MoonEpact(std::int32_t nYear);
/// Age of the moon in days by the epact.
std::int32_t MoonAge(const CalDate& date);

enum class MoonPhase { New, FirstQuarter, Full, LastQuarter };

/// The date of the phase that belongs to a date, by the mean lunation of Meeus. A phase that lies before the
/// date is looked for once more from 25 days later.
CalDate MoonPhaseDate(const CalDate& date, MoonPhase phase);

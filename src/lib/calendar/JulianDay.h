#pragma once

#include "lib/calendar/CalDate.h"
#include "lib/calendar/Calendar.h"

#include <cstdint>

/// Year of the Julian Period for a year from 4713 BC to 3267, 0 for any other.
std::int32_t JulianPeriodYear(std::int32_t nYear);
/// The year of a year of the Julian Period. Below 4714 it adds where an inverse would subtract: kept.
std::int32_t YearOfJulianPeriod(std::int32_t nPeriodYear);

/// Julian Day of 1.1. of a year of the Julian Period.
std::int32_t JulianDayOfPeriodYear(std::int32_t nPeriodYear,
                                   CalendarVersion version = CalendarVersion::Modern);
/// Julian Day that begins at noon of a date.
std::int32_t JulianDay(const CalDate& date, CalendarVersion version = CalendarVersion::Modern);
/// The date of a Julian Day, Julian before 2299161 and Gregorian from there on, without a year 0.
CalDate DateOfJulianDay(std::int32_t nJulianDay);

std::int32_t ModifiedJulianDay(std::int32_t nJulianDay);
std::int32_t JulianDayOfModified(std::int32_t nModifiedJulianDay);

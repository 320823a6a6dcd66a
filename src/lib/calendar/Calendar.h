#pragma once

#include "lib/calendar/CalDay.h"

#include <cstdint>

/// The calendar functions. Each exists in three versions that differ in the leap rule and in what they make
/// of the month in which the calendar was reformed.
///
/// Years are 32 bits wide and counted plainly through 0 and below; all arithmetic wraps at 32 bits. Every
/// function takes constant time for any date and any number of days, and gives what stepping by year and
/// month gives. Nothing is checked, and impossible dates are taken as they are.
enum class CalendarVersion {
    Old,    ///< the Julian calendar throughout
    Reform, ///< Julian, then Gregorian
    Modern, ///< Reform, with the years that 3200 divides as common years
};

/// The change of the calendar. The days between the two were never counted.
struct CalendarReform {
    CalDay lastOld;
    CalDay firstNew;
};

/// The reform in force: 4.10.1582 to 15.10.1582 until a region is set.
const CalendarReform& GetCalendarReform();
/// Regions 2 to 5 changed in 1700, region 6 in 1752, all others in 1582. The corrections of DaysBetween
/// assume the ten days of 1582 all the same: kept.
void SetCalendarRegion(std::int32_t nRegion);

/// Up to year 0 the years -1, -5, -9 ... are leap years: 1, 5 and 9 BC.
bool JulianLeap(std::int32_t nYear);
bool ReformLeap(std::int32_t nYear);
bool ModernLeap(std::int32_t nYear);
bool IsLeap(std::int32_t nYear, CalendarVersion version);

/// Days of a month, 0 for a month outside 1 to 12. The month of the reform has 31 less the gap, in the Old
/// version its plain length.
std::int32_t OldMonthDays(std::int32_t nMonth, std::int32_t nYear);
std::int32_t ReformMonthDays(std::int32_t nMonth, std::int32_t nYear);
std::int32_t ModernMonthDays(std::int32_t nMonth, std::int32_t nYear);
std::int32_t MonthDays(std::int32_t nMonth, std::int32_t nYear, CalendarVersion version);

/// Days of a year, the sum of its months.
std::int32_t YearDays(std::int32_t nYear, CalendarVersion version = CalendarVersion::Modern);

/// Days from the first date to the second, negative backwards. A date in the gap is not treated specially.
std::int32_t DaysBetween(const CalDay& first, const CalDay& second,
                         CalendarVersion version = CalendarVersion::Modern);

/// The date `nDays` later, or earlier when negative: whole years, then whole months, then days. The days of
/// the last step are only added to the day, so a walk that ends inside the month of the reform does not jump
/// the gap: 1.10.1582 and 5 days is 6.10.1582. A step back goes to the last day of the month before: the 31st
/// for October 1582, for every other month, those of the other reforms among them, the day whose number is
/// the length of the month: 18.9.1752 in region 6 and 47.2.1700 in regions 2 to 5.
CalDay AddDays(const CalDay& date, std::int32_t nDays, CalendarVersion version = CalendarVersion::Modern);

/// 1 Monday to 7 Sunday; 0 inside the gap (not in the Old version).
std::int32_t Weekday(const CalDay& date, CalendarVersion version = CalendarVersion::Modern);

/// Week of the year as ISO 8601 counts it, weeks beginning on Monday.
std::int32_t Week(const CalDay& date, CalendarVersion version = CalendarVersion::Modern);

/// Whether a date was ever in the calendar. The Old calendar is taken from the year 8 on, when the leap
/// years were put in order.
bool IsValid(const CalDay& date, CalendarVersion version = CalendarVersion::Modern);

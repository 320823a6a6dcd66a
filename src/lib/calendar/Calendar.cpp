#include "lib/calendar/Calendar.h"

#include <algorithm>
#include <limits>

namespace {

constexpr CalendarReform kReformOf1582{{4, 10, 1582}, {15, 10, 1582}};
constexpr CalendarReform kReformOf1700{{17, 2, 1700}, {2, 3, 1700}};
constexpr CalendarReform kReformOf1752{{1, 9, 1752}, {15, 9, 1752}};

CalendarReform g_reform = kReformOf1582;

constexpr std::int32_t kDaysBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365};

bool InReformMonth(std::int32_t nMonth, std::int32_t nYear)
{
    return nYear == g_reform.lastOld.GetYear() && nMonth == g_reform.lastOld.GetMonth();
}

/// Days of the month of the reform; counted from 31, which is right for October.
std::int32_t ReformMonthLength() { return 31 - (g_reform.firstNew.GetDay() - g_reform.lastOld.GetDay() - 1); }

std::int32_t PlainMonthDays(std::int32_t nMonth, bool bLeap)
{
    if (nMonth < 1 || nMonth > 12) {
        return 0;
    }
    return kDaysBefore[nMonth] - kDaysBefore[nMonth - 1] + (nMonth == 2 && bLeap ? 1 : 0);
}

/// Days of the year before the first of a month; the months beyond December have none.
std::int64_t DaysBeforeMonth(std::int32_t nMonth, std::int32_t nYear, CalendarVersion version)
{
    const std::int32_t nMonths = std::clamp(nMonth - 1, 0, 12);
    const bool bLeap = IsLeap(nYear, version);
    std::int64_t nDays = kDaysBefore[nMonths] + (nMonths >= 2 && bLeap ? 1 : 0);
    const std::int32_t nReformMonth = g_reform.lastOld.GetMonth();
    if (version != CalendarVersion::Old && nMonths >= nReformMonth && InReformMonth(nReformMonth, nYear)) {
        nDays += ReformMonthLength() - PlainMonthDays(nReformMonth, bLeap);
    }
    return nDays;
}

/// Days from 1.1.1 to 1.1. of a year in the Julian calendar.
std::int64_t JulianDaysBeforeYear(std::int64_t nYear)
{
    const std::int64_t nLeaps = nYear > 0 ? (nYear - 1) / 4 : -((3 - nYear) / 4);
    return 365 * (nYear - 1) + nLeaps;
}

/// Leap years from 1 to `nYear` by the rule that holds from the reform on.
std::int64_t LeapsUpTo(std::int64_t nYear, CalendarVersion version)
{
    const std::int64_t nGregorian = nYear / 4 - nYear / 100 + nYear / 400;
    return version == CalendarVersion::Modern ? nGregorian - nYear / 3200 : nGregorian;
}

/// Days from 1.1.1 to 1.1. of a year, one year beyond 32 bits included.
std::int64_t DaysBeforeYear(std::int64_t nYear, CalendarVersion version)
{
    const std::int32_t nReform = g_reform.lastOld.GetYear();
    if (version == CalendarVersion::Old || nYear <= nReform) {
        return JulianDaysBeforeYear(nYear);
    }
    return JulianDaysBeforeYear(nReform) + YearDays(nReform, version) + 365 * (nYear - nReform - 1) +
           LeapsUpTo(nYear - 1, version) - LeapsUpTo(nReform, version);
}

/// The year that holds the day so many days after 1.1.1.
std::int64_t YearOfDay(std::int64_t nDay, CalendarVersion version)
{
    const std::int64_t nFirstNewYear = std::int64_t{g_reform.lastOld.GetYear()} + 1;
    const std::int64_t nNewDays = nDay - DaysBeforeYear(nFirstNewYear, version);
    std::int64_t nYear = 0;
    if (version == CalendarVersion::Old || nNewDays < 0) {
        nYear = nDay * 4 / 1461;
    } else if (version == CalendarVersion::Reform) {
        nYear = nFirstNewYear + nNewDays * 400 / 146097;
    } else {
        nYear = nFirstNewYear + nNewDays * 3200 / 1168775;
    }
    // The mean year is off by a year or two, so these loops end at once.
    while (DaysBeforeYear(nYear, version) > nDay) {
        --nYear;
    }
    while (DaysBeforeYear(nYear + 1, version) <= nDay) {
        ++nYear;
    }
    return nYear;
}

std::int64_t DaysBeforeDate(const CalDay& date, CalendarVersion version)
{
    return DaysBeforeYear(date.GetYear(), version) +
           DaysBeforeMonth(date.GetMonth(), date.GetYear(), version) + date.GetDay();
}

/// What the reform adds to the days from the first date to the second.
std::int32_t ReformCorrection(const CalDay& first, const CalDay& second)
{
    const CalDay& lastOld = g_reform.lastOld;
    const CalDay& firstNew = g_reform.firstNew;
    const std::uint16_t nMonth = lastOld.GetMonth();
    const std::int32_t nYear = lastOld.GetYear();
    const CalDay monthStart(1, nMonth, nYear);
    const CalDay monthEnd(31, nMonth, nYear);
    const CalDay nextMonth(1, static_cast<std::uint16_t>(nMonth + 1), nYear);
    const CalDay lastSkipped(static_cast<std::uint16_t>(firstNew.GetDay() - 1), firstNew.GetMonth(), nYear);
    const CalDay firstSkipped(static_cast<std::uint16_t>(lastOld.GetDay() + 1), nMonth, nYear);
    constexpr std::int32_t kGap = 10;

    std::int32_t nCorrection = 0;
    if (InReformMonth(first.GetMonth(), first.GetYear())) {
        if (first.GetDay() <= lastOld.GetDay()) {
            nCorrection -= first < second && second < nextMonth && second > lastSkipped ? kGap : 0;
        }
        if (first.GetDay() >= firstNew.GetDay()) {
            nCorrection += first < second && second > monthEnd ? kGap : 0;
            nCorrection += first > second && second < firstSkipped ? kGap : 0;
        }
    }
    if (InReformMonth(second.GetMonth(), second.GetYear()) && second.GetDay() >= firstNew.GetDay()) {
        nCorrection -= second < first && first > monthEnd ? kGap : 0;
        nCorrection -= second > first && first < monthStart ? kGap : 0;
    }
    return nCorrection;
}

} // namespace

const CalendarReform& GetCalendarReform() { return g_reform; }

void SetCalendarRegion(std::int32_t nRegion)
{
    if (nRegion >= 2 && nRegion <= 5) {
        g_reform = kReformOf1700;
    } else {
        g_reform = nRegion == 6 ? kReformOf1752 : kReformOf1582;
    }
}

bool JulianLeap(std::int32_t nYear) { return nYear > 0 ? nYear % 4 == 0 : nYear % 4 == -1; }

bool ReformLeap(std::int32_t nYear)
{
    if (nYear < g_reform.lastOld.GetYear()) {
        return JulianLeap(nYear);
    }
    return nYear % 4 == 0 && (nYear % 100 != 0 || nYear % 400 == 0);
}

bool ModernLeap(std::int32_t nYear)
{
    return ReformLeap(nYear) && (nYear < g_reform.lastOld.GetYear() || nYear % 3200 != 0);
}

bool IsLeap(std::int32_t nYear, CalendarVersion version)
{
    switch (version) {
    case CalendarVersion::Old:
        return JulianLeap(nYear);
    case CalendarVersion::Reform:
        return ReformLeap(nYear);
    case CalendarVersion::Modern:
        break;
    }
    return ModernLeap(nYear);
}

std::int32_t OldMonthDays(std::int32_t nMonth, std::int32_t nYear)
{
    return MonthDays(nMonth, nYear, CalendarVersion::Old);
}

std::int32_t ReformMonthDays(std::int32_t nMonth, std::int32_t nYear)
{
    return MonthDays(nMonth, nYear, CalendarVersion::Reform);
}

std::int32_t ModernMonthDays(std::int32_t nMonth, std::int32_t nYear)
{
    return MonthDays(nMonth, nYear, CalendarVersion::Modern);
}

std::int32_t MonthDays(std::int32_t nMonth, std::int32_t nYear, CalendarVersion version)
{
    if (version != CalendarVersion::Old && InReformMonth(nMonth, nYear)) {
        return ReformMonthLength();
    }
    return PlainMonthDays(nMonth, IsLeap(nYear, version));
}

std::int32_t YearDays(std::int32_t nYear, CalendarVersion version)
{
    return static_cast<std::int32_t>(DaysBeforeMonth(13, nYear, version));
}

std::int32_t DaysBetween(const CalDay& first, const CalDay& second, CalendarVersion version)
{
    const std::int64_t nDays = DaysBeforeDate(second, version) - DaysBeforeDate(first, version);
    const std::int32_t nCorrection = version == CalendarVersion::Old ? 0 : ReformCorrection(first, second);
    return static_cast<std::int32_t>(nDays + nCorrection);
}

namespace {

constexpr std::int64_t kFirstYear = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t kLastYear = std::numeric_limits<std::int32_t>::max();

/// A date on its way, and the days that it still has to go. Both wrap at 32 bits.
struct Walk {
    CalDay date;
    std::int32_t nDays;
    CalendarVersion version;

    /// Goes to `goal` if the days reach as far, forward or backward.
    bool StepTo(const CalDay& goal, bool bForward)
    {
        const std::int32_t nStep = DaysBetween(date, goal, version);
        if (bForward ? nDays < nStep : nDays > nStep) {
            return false;
        }
        date = goal;
        nDays = static_cast<std::int32_t>(std::int64_t{nDays} - nStep);
        return true;
    }
};

CalDay YearStart(std::int64_t nYear) { return {1, 1, static_cast<std::int32_t>(nYear)}; }
CalDay YearEnd(std::int64_t nYear) { return {31, 12, static_cast<std::int32_t>(nYear)}; }

/// Whole years at once from 1.1., or from 31.12. backward; stops at the last year of 32 bits.
void WalkYears(Walk& walk, bool bForward)
{
    const std::int64_t nYear = walk.date.GetYear();
    const auto position = [&](std::int64_t y) {
        return bForward ? DaysBeforeYear(y, walk.version) : DaysBeforeYear(y + 1, walk.version) - 1;
    };
    const std::int64_t nGoal = position(nYear) + walk.nDays;
    const std::int64_t nGoalYear = std::clamp(YearOfDay(nGoal, walk.version), kFirstYear, kLastYear);
    walk.date = bForward ? YearStart(nGoalYear) : YearEnd(nGoalYear);
    walk.nDays = static_cast<std::int32_t>(nGoal - position(nGoalYear));
}

CalDay NextMonth(const CalDay& date)
{
    if (date.GetMonth() >= 12) {
        return YearStart(std::int64_t{date.GetYear()} + 1);
    }
    return {1, static_cast<std::uint16_t>(date.GetMonth() + 1), date.GetYear()};
}

/// The last day of the month before, whose number is the month's length. Months beyond December have no days,
/// so December is before them all; October 1582 ends with its 31st though it has fewer days.
CalDay PreviousMonth(const CalDay& date, CalendarVersion version)
{
    if (date.GetMonth() <= 1) {
        return YearEnd(std::int64_t{date.GetYear()} - 1);
    }
    const auto nMonth = static_cast<std::uint16_t>(std::min(date.GetMonth() - 1, 12));
    const bool bOctober1582 =
        nMonth == kReformOf1582.lastOld.GetMonth() && date.GetYear() == kReformOf1582.lastOld.GetYear();
    const std::int32_t nDay = bOctober1582 ? 31 : MonthDays(nMonth, date.GetYear(), version);
    return {static_cast<std::uint16_t>(nDay), nMonth, date.GetYear()};
}

} // namespace

CalDay AddDays(const CalDay& date, std::int32_t nDays, CalendarVersion version)
{
    Walk walk{date, nDays, version};
    const bool bForward = nDays >= 0;
    const auto nextYear = [&] {
        const std::int64_t nYear = walk.date.GetYear();
        return bForward ? YearStart(nYear + 1) : YearEnd(nYear - 1);
    };
    // The first year may begin anywhere; a second round is needed only where the years wrap.
    while (walk.StepTo(nextYear(), bForward)) {
        if (bForward ? walk.nDays > 0 : walk.nDays < 0) {
            WalkYears(walk, bForward);
        }
    }
    while (walk.StepTo(bForward ? NextMonth(walk.date) : PreviousMonth(walk.date, version), bForward)) {
    }
    const std::int64_t nDay = std::int64_t{walk.date.GetDay()} + walk.nDays;
    return {static_cast<std::uint16_t>(nDay), walk.date.GetMonth(), walk.date.GetYear()};
}

namespace {

constexpr CalDay kFinalLeapRule(1, 1, 3200);

/// Zeller's congruence.
std::int32_t OldWeekday(const CalDay& date)
{
    const bool bWinter = date.GetMonth() == 1 || date.GetMonth() == 2;
    const std::int32_t nMonth = date.GetMonth() + (bWinter ? 12 : 0);
    const auto nYear = static_cast<std::int32_t>(std::int64_t{date.GetYear()} - (bWinter ? 1 : 0));
    const std::int32_t nOfCentury = nYear % 100;
    const std::int32_t nCentury = nYear / 100;
    const std::int32_t h =
        ((nMonth + 1) * 26 / 10 + date.GetDay() + nOfCentury + nOfCentury / 4 + 5 - nCentury) % 7;
    if (h == 0) {
        return 6;
    }
    return h == 1 ? 7 : h - 1;
}

/// The weekday by counting on from the year 1.
std::int32_t NewWeekday(const CalDay& date, CalendarVersion version)
{
    const std::int64_t y = date.GetYear();
    const std::int64_t nLeapYears =
        y / 4 - y / 100 + y / 400 - (version == CalendarVersion::Modern ? y / 3200 : 0);
    const std::int64_t w =
        y + nLeapYears + DaysBetween(YearStart(y), date, version) - (IsLeap(date.GetYear(), version) ? 1 : 0);
    const std::int32_t nWeekday = static_cast<std::int32_t>(w) % 7;
    return nWeekday == 0 ? 7 : nWeekday;
}

std::int32_t ReformWeekday(const CalDay& date)
{
    const CalDay& lastOld = g_reform.lastOld;
    if (date <
        CalDay(static_cast<std::uint16_t>(lastOld.GetDay() + 1), lastOld.GetMonth(), lastOld.GetYear())) {
        return OldWeekday(date);
    }
    if (date < g_reform.firstNew) {
        return 0;
    }
    if (date.GetYear() == lastOld.GetYear()) {
        return (DaysBetween(g_reform.firstNew, date, CalendarVersion::Reform) + 4) % 7 + 1;
    }
    return NewWeekday(date, CalendarVersion::Reform);
}

} // namespace

std::int32_t Weekday(const CalDay& date, CalendarVersion version)
{
    if (version == CalendarVersion::Old) {
        return OldWeekday(date);
    }
    if (version == CalendarVersion::Modern && date >= kFinalLeapRule) {
        return NewWeekday(date, version);
    }
    return ReformWeekday(date);
}

std::int32_t Week(const CalDay& date, CalendarVersion version)
{
    const CalDay newYear = YearStart(date.GetYear());
    const std::int32_t nFirst = Weekday(newYear, version);
    const std::int32_t nWeeks = (DaysBetween(newYear, date, version) + nFirst - 1) / 7;
    if (nFirst < 5) {
        // From the 29th on, December may already hold days of the next year's first week.
        const std::int32_t nBefore = date.GetMonth() == 12 ? date.GetDay() - 28 : 0;
        const std::int32_t nWeekday = Weekday(date, version);
        const bool bNextYear = nBefore >= 1 && nBefore <= 3 && nWeekday >= 1 && nWeekday <= nBefore;
        return bNextYear ? 1 : nWeeks + 1;
    }
    if (nWeeks == 0) {
        return Week(YearEnd(std::int64_t{date.GetYear()} - 1), version);
    }
    const bool bLongYear = nFirst == 7 && IsLeap(date.GetYear(), version);
    return bLongYear && date == YearEnd(date.GetYear()) ? 1 : nWeeks;
}

bool IsValid(const CalDay& date, CalendarVersion version)
{
    const std::int32_t nDay = date.GetDay();
    if (version != CalendarVersion::Old && InReformMonth(date.GetMonth(), date.GetYear())) {
        return (nDay >= 1 && nDay <= g_reform.lastOld.GetDay()) ||
               (nDay >= g_reform.firstNew.GetDay() && nDay <= 31);
    }
    // MonthDays is 0 for a month that does not exist.
    return date.GetYear() >= 8 && nDay >= 1 && nDay <= MonthDays(date.GetMonth(), date.GetYear(), version);
}

#pragma once

#include "lib/calendar/CalDate.h"
#include "lib/calendar/Calendar.h"

#include <cstdint>

/// The calendar as it is defined, step by step over years and months: the judge of the closed forms. Only
/// where two years lie more than a full cycle apart does it count whole cycles of 12800 years, whose length
/// it has stepped through once.
namespace stepwise {

inline std::int32_t Wrap(std::int64_t n) { return static_cast<std::int32_t>(n); }

inline bool LeapYear(std::int64_t y, CalendarVersion version)
{
    if (version == CalendarVersion::Old || y < GetCalendarReform().lastOld.GetYear()) {
        return y > 0 ? y % 4 == 0 : -y % 4 == 1;
    }
    if (version == CalendarVersion::Modern && y % 3200 == 0) {
        return false;
    }
    return y % 400 == 0 || (y % 4 == 0 && y % 100 != 0);
}

inline std::int32_t MonthLength(std::int32_t m, std::int32_t y, CalendarVersion version)
{
    const CalDate& lastOld = GetCalendarReform().lastOld;
    if (version != CalendarVersion::Old && y == lastOld.GetYear() && m == lastOld.GetMonth()) {
        return 31 - (GetCalendarReform().firstNew.GetDay() - lastOld.GetDay() - 1);
    }
    switch (m) {
    case 4:
    case 6:
    case 9:
    case 11:
        return 30;
    case 2:
        return LeapYear(y, version) ? 29 : 28;
    default:
        return m >= 1 && m <= 12 ? 31 : 0;
    }
}

inline std::int32_t YearLength(std::int32_t y, CalendarVersion version)
{
    if (y != GetCalendarReform().lastOld.GetYear()) {
        return LeapYear(y, version) ? 366 : 365;
    }
    std::int32_t nDays = 0;
    for (std::int32_t m = 1; m <= 12; ++m) {
        nDays += MonthLength(m, y, version);
    }
    return nDays;
}

inline constexpr std::int32_t kCycle = 12800; ///< years after which every leap rule begins again

/// Days of one cycle that lies wholly before or wholly behind the reform.
inline std::int64_t CycleLength(bool bBefore, CalendarVersion version)
{
    const std::int32_t nStart = bBefore ? -2 * kCycle : 2 * kCycle;
    std::int64_t nDays = 0;
    for (std::int32_t y = nStart; y < nStart + kCycle; ++y) {
        nDays += YearLength(y, version);
    }
    return nDays;
}

/// Days of the years from `y1` up to, and not including, `y2`.
inline std::int64_t YearsLength(std::int64_t y1, std::int64_t y2, CalendarVersion version)
{
    std::int64_t nDays = 0;
    if (y2 - y1 > 4 * kCycle) {
        const std::int64_t nBefore = y1 < -kCycle ? (-y1) / kCycle - 1 : 0;
        y1 += nBefore * kCycle;
        const std::int64_t nBehind = y2 > 2 * kCycle ? y2 / kCycle - 2 : 0;
        y2 -= nBehind * kCycle;
        nDays = nBefore * CycleLength(true, version) + nBehind * CycleLength(false, version);
    }
    for (; y1 < y2; ++y1) {
        nDays += YearLength(Wrap(y1), version);
    }
    return nDays;
}

inline std::int32_t DaysBetween(const CalDate& first, const CalDate& second, CalendarVersion version)
{
    const CalDate& lastOld = GetCalendarReform().lastOld;
    const CalDate& firstNew = GetCalendarReform().firstNew;
    const std::int32_t nYear = lastOld.GetYear();
    const std::uint16_t nMonth = lastOld.GetMonth();
    const auto inReformMonth = [&](const CalDate& d) {
        return d.GetYear() == nYear && d.GetMonth() == nMonth;
    };
    const auto on = [&](int nDay, int m) {
        return CalDate(static_cast<std::uint16_t>(nDay), static_cast<std::uint16_t>(m), nYear);
    };
    std::int64_t n1 = first.GetDay();
    std::int64_t n2 = second.GetDay();
    if (version != CalendarVersion::Old) {
        if (inReformMonth(first)) {
            if (first.GetDay() <= lastOld.GetDay() && first < second && second < on(1, nMonth + 1) &&
                second > on(firstNew.GetDay() - 1, firstNew.GetMonth())) {
                n2 -= 10;
            }
            if (first.GetDay() >= firstNew.GetDay()) {
                if (first < second && second > on(31, nMonth)) {
                    n2 += 10;
                }
                if (first > second && second < on(lastOld.GetDay() + 1, nMonth)) {
                    n1 -= 10;
                }
            }
        }
        if (inReformMonth(second) && second.GetDay() >= firstNew.GetDay()) {
            if (second < first && first > on(31, nMonth)) {
                n1 += 10;
            }
            if (second > first && first < on(1, nMonth)) {
                n2 -= 10;
            }
        }
    }
    for (std::int32_t m = 1; m < first.GetMonth(); ++m) {
        n1 += MonthLength(m, first.GetYear(), version);
    }
    for (std::int32_t m = 1; m < second.GetMonth(); ++m) {
        n2 += MonthLength(m, second.GetYear(), version);
    }
    if (first.GetYear() > second.GetYear()) {
        n1 += YearsLength(second.GetYear(), first.GetYear(), version);
    } else {
        n2 += YearsLength(first.GetYear(), second.GetYear(), version);
    }
    return Wrap(n2 - n1);
}

inline CalDate AddDays(CalDate date, std::int32_t n, CalendarVersion version)
{
    const bool bForward = n >= 0;
    const auto step = [&](const CalDate& goal) {
        const std::int32_t nStep = stepwise::DaysBetween(date, goal, version);
        if (bForward ? n < nStep : n > nStep) {
            return false;
        }
        date = goal;
        n = Wrap(std::int64_t{n} - nStep);
        return true;
    };
    const auto year = [](const CalDate& d, int nMove) { return Wrap(std::int64_t{d.GetYear()} + nMove); };
    while (step(bForward ? CalDate(1, 1, year(date, 1)) : CalDate(31, 12, year(date, -1)))) {
    }
    const auto nextMonth = [&] {
        const int m = date.GetMonth() + 1;
        return m == 13 ? CalDate(1, 1, year(date, 1))
                       : CalDate(1, static_cast<std::uint16_t>(m), date.GetYear());
    };
    const auto previousMonth = [&] {
        const int m = date.GetMonth() - 1;
        if (m < 1) {
            return CalDate(31, 12, year(date, -1));
        }
        const CalDate& lastOld = GetCalendarReform().lastOld;
        const bool bOctober1582 = version != CalendarVersion::Old && m == 10 && date.GetYear() == 1582 &&
                                  lastOld == CalDate(4, 10, 1582);
        const int nDay = bOctober1582 ? 31 : MonthLength(m, date.GetYear(), version);
        return CalDate(static_cast<std::uint16_t>(nDay), static_cast<std::uint16_t>(m), date.GetYear());
    };
    while (step(bForward ? nextMonth() : previousMonth())) {
    }
    return {static_cast<std::uint16_t>(std::int64_t{date.GetDay()} + n), date.GetMonth(), date.GetYear()};
}

} // namespace stepwise

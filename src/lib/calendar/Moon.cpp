#include "lib/calendar/Moon.h"

#include "lib/calendar/Calendar.h"
#include "lib/calendar/JulianDay.h"
#include "lib/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace {

/// What the leap years left out and the moon's own drift have moved the epact by.
std::int32_t CenturyCorrection(std::int32_t nYear)
{
    if (nYear < 1701) {
        return 1;
    }
    if (nYear < 1800) {
        return 0;
    }
    const std::int32_t c = nYear / 100;
    const std::int32_t r = nYear % 100;
    std::int32_t t = (r == 0 && c % 4 > 0 ? 2 : 1) - (c % 4 + (c - 16) / 4 * 3);
    t += (c - 18) / 3;
    t += (c - 18) % 3 > 0 || r != 0 ? 1 : 0;
    if (t > 29) {
        t %= 30;
    }
    return t < 0 ? t + 30 : t;
}

/// Age of the moon on the first of a month.
std::int32_t AgeAtMonthStart(std::int32_t nMonth, std::int32_t nYear)
{
    std::int32_t nAge = MoonEpact(nYear);
    // Months beyond December have no days: from the 14th on the age stays.
    for (std::int32_t i = 2; i <= std::min(nMonth, 14); ++i) {
        nAge = (nAge + ModernMonthDays(i - 1, nYear)) % (i % 2 != 0 ? 30 : 29);
    }
    return nAge;
}

double DayOfPhase(const CalDate& date, MoonPhase phase)
{
    const double dOfYear =
        static_cast<double>(DaysBetween(CalDate(1, 1, date.GetYear()), date)) / YearDays(date.GetYear());
    const double k =
        std::floor((dOfYear + date.GetYear() - 2000) * 12.3685) + 0.25 * static_cast<double>(phase);
    const double T = k / 1236.85;
    return 29.530588853 * k + 2451550.09765 + 0.0001337 * T * T - 1.5e-7 * T * T * T +
           7.3e-10 * T * T * T * T;
}

} // namespace

std::int32_t MoonEpact(std::int32_t nYear)
{
    if (nYear < GetCalendarReform().lastOld.GetYear()) {
        return 31;
    }
    const std::int32_t nRemainder = JulianPeriodYear(nYear) % 19;
    const std::int32_t nGolden = nRemainder == 0 ? 19 : nRemainder;
    const std::int32_t nEpact = (11 * (nGolden - 1) + CenturyCorrection(nYear)) % 30;
    return nEpact == 0 ? 30 : nEpact;
}

std::int32_t MoonAge(const CalDate& date)
{
    const std::int32_t nAge = AgeAtMonthStart(date.GetMonth(), date.GetYear()) + date.GetDay() - 1;
    if (date.GetMonth() <= 1) {
        return nAge > 29 ? nAge % 29 : nAge;
    }
    const std::int32_t nDivisor = date.GetMonth() % 2 != 0 ? 29 : 30;
    return nAge % nDivisor == 0 ? nDivisor : nAge % nDivisor;
}

CalDate MoonPhaseDate(const CalDate& date, MoonPhase phase)
{
    const CalDate found = DateOfJulianDay(TruncToInt32(DayOfPhase(date, phase)));
    if (found >= date) {
        return found;
    }
    return DateOfJulianDay(TruncToInt32(DayOfPhase(AddDays(date, 25), phase)));
}

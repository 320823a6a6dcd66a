#include "lib/calendar/JulianDay.h"

#include "lib/text/Numbers.h"

namespace {

constexpr std::int32_t kPeriodYear1583 = 6296;
constexpr std::int32_t kModifiedStart = 2400001;

std::int32_t Wrap(std::int64_t n) { return static_cast<std::int32_t>(n); }

std::int32_t OldDayOfPeriodYear(std::int64_t p) { return Wrap((p - 1) * 365 + Wrap(p + 2) / 4); }

} // namespace

std::int32_t JulianPeriodYear(std::int32_t nYear)
{
    if (nYear >= -4713 && nYear <= -1) {
        return nYear + 4714;
    }
    return nYear >= 1 && nYear <= 3267 ? nYear + 4713 : 0;
}

std::int32_t YearOfJulianPeriod(std::int32_t nPeriodYear)
{
    return nPeriodYear < 4714 ? nPeriodYear + 4714 : nPeriodYear - 4713;
}

std::int32_t JulianDayOfPeriodYear(std::int32_t nPeriodYear, CalendarVersion version)
{
    if (version == CalendarVersion::Old || nPeriodYear < kPeriodYear1583) {
        return OldDayOfPeriodYear(nPeriodYear);
    }
    const CalDate newYear(1, 1, YearOfJulianPeriod(nPeriodYear));
    const std::int64_t nDays = DaysBetween(CalDate(1, 1, 1583), newYear, version);
    return Wrap(OldDayOfPeriodYear(kPeriodYear1583) + nDays - 10);
}

std::int32_t JulianDay(const CalDate& date, CalendarVersion version)
{
    const std::int64_t nYear = JulianDayOfPeriodYear(JulianPeriodYear(date.GetYear()), version);
    return Wrap(nYear + DaysBetween(CalDate(1, 1, date.GetYear()), date, version));
}

CalDate DateOfJulianDay(std::int32_t nJulianDay)
{
    std::int64_t b = std::int64_t{nJulianDay} + 1524;
    if (nJulianDay >= 2299161) {
        const std::int32_t nAlpha = TruncToInt32((nJulianDay - 1867216.25) / 36524.25);
        b = std::int64_t{nJulianDay} + nAlpha + 1525 - nAlpha / 4;
    }
    const std::int32_t nB = Wrap(b);
    const std::int32_t nC = TruncToInt32((nB - 122.1) / 365.25);
    const std::int32_t nD = TruncToInt32(365.25 * nC);
    const std::int32_t nE = TruncToInt32((nB - nD) / 30.6001);
    const std::int32_t nDay = nB - nD - TruncToInt32(30.6001 * nE);
    const std::int32_t nMonth = nE < 14 ? nE - 1 : nE - 13;
    const std::int32_t nYear = nMonth < 3 ? nC - 4715 : nC - 4716;
    return {static_cast<std::uint16_t>(nDay), static_cast<std::uint16_t>(nMonth),
            nYear < 1 ? nYear - 1 : nYear};
}

std::int32_t ModifiedJulianDay(std::int32_t nJulianDay)
{
    return Wrap(std::int64_t{nJulianDay} - kModifiedStart);
}

std::int32_t JulianDayOfModified(std::int32_t nModifiedJulianDay)
{
    return Wrap(std::int64_t{nModifiedJulianDay} + kModifiedStart);
}

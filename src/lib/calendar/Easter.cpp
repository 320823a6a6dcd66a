#include "lib/calendar/Easter.h"

#include "lib/calendar/Calendar.h"

namespace {

/// Month and day packed as month * 31 + day - 1.
std::int32_t JulianEaster(std::int32_t y)
{
    const std::int32_t d = (19 * (y % 19) + 15) % 30;
    const std::int32_t e = (2 * (y % 4) + 4 * (y % 7) - d + 34) % 7;
    return d + e + 114;
}

std::int32_t GregorianEaster(std::int32_t y)
{
    const std::int32_t a = y % 19;
    const std::int32_t b = y / 100;
    const std::int32_t c = y % 100;
    const std::int32_t h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
    const std::int32_t l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
    const std::int32_t m = (a + 11 * h + 22 * l) / 451;
    return h + l - 7 * m + 114;
}

} // namespace

CalDate EasterSunday(std::int32_t nYear)
{
    const bool bJulian = nYear <= GetCalendarReform().lastOld.GetYear();
    const std::int32_t f = bJulian ? JulianEaster(nYear) : GregorianEaster(nYear);
    return {static_cast<std::uint16_t>(f % 31 + 1), static_cast<std::uint16_t>(f / 31), nYear};
}
